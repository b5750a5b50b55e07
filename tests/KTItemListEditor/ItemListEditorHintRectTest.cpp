#include "support/Expect.h"
#include "support/ItemLists.h"

namespace kt::tests {
namespace {

/// The room that the text of a hint takes.
using ItemListEditorHintRectTest = TItemListTest;

TEST_F(ItemListEditorHintRectTest, TheRoomForAHintIsThatOfItsTextAndALittleMore) {
  TFont& font = FEditor->GetFont();
  const int width = FEditor->GetCanvas().TextWidth(QStringLiteral("some text"));
  const int height = FEditor->GetCanvas().TextHeight(QStringLiteral("some text"));
  const QRect rect = FEditor->CalcHintRect(1000, QStringLiteral("some text"), font);
  EXPECT_EQ(QPoint(0, 0), rect.topLeft());
  // Laid out as lines, a text may take a little more than its glyphs.
  EXPECT_NEAR(width + 6, rect.width(), 2);
  EXPECT_EQ(height + 2, rect.height());
}

TEST_F(ItemListEditorHintRectTest, ATextThatIsWiderThanAllowedTakesMoreLines) {
  const QString text = QStringLiteral("several words that do not fit in one line");
  const QRect line = FEditor->CalcHintRect(1000, text, FEditor->GetFont());
  const QRect rect = FEditor->CalcHintRect(100, text, FEditor->GetFont());
  EXPECT_LE(rect.width(), 100 + 6);
  EXPECT_GE(rect.height() - 2, 2 * (line.height() - 2));
}

TEST_F(ItemListEditorHintRectTest, ALineBreakInAHintTakesASecondLine) {
  const QRect line = FEditor->CalcHintRect(1000, QStringLiteral("one"), FEditor->GetFont());
  const QRect lines = FEditor->CalcHintRect(1000, QStringLiteral("one\r\ntwo"), FEditor->GetFont());
  EXPECT_EQ(2 * (line.height() - 2), lines.height() - 2);
}

TEST_F(ItemListEditorHintRectTest, MeasuringAHintLeavesTheFontOfTheCanvas) {
  FEditor->GetCanvas().GetFont().SetHeight(-33);
  FEditor->GetCanvas().GetFont().SetColor(clGreen);
  FEditor->CalcHintRect(1000, QStringLiteral("some text"), FEditor->GetFont());
  EXPECT_EQ(-33, FEditor->GetCanvas().GetFont().GetHeight());
  EXPECT_EQ(clGreen, FEditor->GetCanvas().GetFont().GetColor());
}

}  // namespace
}  // namespace kt::tests
