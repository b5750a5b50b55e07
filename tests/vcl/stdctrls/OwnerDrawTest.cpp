// Lines that the program draws, or has.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/CheckBox.h"
#include "kt/vcl/stdctrls/ComboBox.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QImage>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TWindowProbe;

class OwnerDrawTest : public testing::Test {
 protected:
  OwnerDrawTest() {
    for (const char* line : {"a", "b", "c"}) Box.GetItems().Add(QString::fromLatin1(line));
  }
  void Show() { FWindow = std::make_unique<TWindowProbe>(Box, QSize(120, 160)); }
  QImage Picture() { return Box.GetHandle()->grab().toImage(); }

  std::unique_ptr<TListBox> FBox = Make<TListBox>();
  TListBox& Box = *FBox;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(OwnerDrawTest, TheProgramDrawsEachLineInItsPlace) {
  Box.SetStyle(lbOwnerDrawFixed);
  Box.SetItemHeight(30);
  Box.SetItemIndex(1);
  QStringList log;
  Box.OnDrawItem = [&](TWinControl* control, int index, const QRect& rect, TOwnerDrawState state) {
    EXPECT_EQ(control, &Box);
    EXPECT_EQ(rect.height(), 30);
    EXPECT_EQ(rect.y(), index * 30);
    log += QString::number(index) + (state.Has(odSelected) ? QStringLiteral("!") : QString());
    Box.GetCanvas().GetBrush().SetColor(clRed);
    Box.GetCanvas().FillRect(rect);
  };
  Show();
  log.clear();
  const QImage picture = Picture();
  EXPECT_EQ(log.join(u' '), "0 1! 2");
  EXPECT_EQ(picture.pixelColor(50, 20), QColor(Qt::red));
  EXPECT_EQ(Box.ItemRect(2).y(), 60);
  EXPECT_EQ(Box.ItemAtPos({5, 65}, true), 2);
}

TEST_F(OwnerDrawTest, LinesHaveHeightsOfTheirOwn) {
  Box.SetStyle(lbOwnerDrawVariable);
  Box.SetItemHeight(20);
  Box.OnMeasureItem = [](TWinControl*, int index, int& height) {
    EXPECT_EQ(height, 20);
    height = 10 + 10 * index;
  };
  Show();
  EXPECT_EQ(Box.ItemRect(0).height(), 10);
  EXPECT_EQ(Box.ItemRect(1), QRect(0, 10, Box.ItemRect(1).width(), 20));
  EXPECT_EQ(Box.ItemRect(2).y(), 30);
  EXPECT_EQ(Box.ItemAtPos({5, 35}, true), 2);
  EXPECT_EQ(Box.ItemAtPos({5, 5}, true), 0);
}

TEST_F(OwnerDrawTest, AHandlerMayFreeTheListBoxThatIsPainted) {
  Box.SetStyle(lbOwnerDrawFixed);
  Box.OnDrawItem = [this](TWinControl*, int, const QRect&, TOwnerDrawState) { FBox.reset(); };
  FWindow = std::make_unique<TWindowProbe>(Box, QSize(120, 160));
  if (FBox) FBox->Repaint();
  EXPECT_EQ(FBox, nullptr);
}

TEST_F(OwnerDrawTest, AVirtualListBoxAsksForItsLines) {
  EXPECT_EQ(MessageOf<EInvalidOperation>([this] { Box.SetCount(4); }),
            "Only a virtual list box is told how many lines it has");
  Box.SetStyle(lbVirtual);
  Box.OnData = [](TWinControl*, int index, QString& text) { text = QString::number(index * index); };
  Box.OnDataFind = [](TWinControl*, const QString& text, int& index) { index = text == u"9" ? 3 : -1; };
  TObject* const object = &Box;
  Box.OnDataObject = [object](TWinControl*, int index, TObject*& answer) { answer = index == 2 ? object : nullptr; };
  Box.SetCount(10000);
  EXPECT_EQ(Box.GetCount(), 10000);
  EXPECT_EQ(Box.GetLine(30), QStringLiteral("900"));
  EXPECT_EQ(Box.GetLineObject(2), object);
  EXPECT_EQ(Box.SelectPrefix(QStringLiteral("9")), 3);
  EXPECT_EQ(Box.SelectPrefix(QStringLiteral("x")), -1);
  EXPECT_EQ(Box.GetItemIndex(), 3);
  Show();
  const auto& view = dynamic_cast<QAbstractItemView&>(*Box.GetHandle());
  EXPECT_EQ(view.model()->rowCount(), 10000);
  EXPECT_EQ(view.model()->index(5, 0).data().toString(), QStringLiteral("25"));
  Box.SetCount(2);
  EXPECT_EQ(Box.GetItemIndex(), 1);
}

TEST_F(OwnerDrawTest, ColumnsStandSideBySide) {
  for (int i = 3; i < 40; ++i) Box.GetItems().Add(QString::number(i));
  Box.SetColumns(2);
  Show();
  const int inColumn = Box.GetClientHeight() / Box.GetItemHeight();
  const QRect second = Box.ItemRect(inColumn);
  EXPECT_EQ(second.y(), 0);
  EXPECT_EQ(second.x(), Box.GetClientWidth() / 2);
  EXPECT_EQ(Box.ItemAtPos(second.center(), true), inColumn);
  Box.SetFocus();
  Box.SetItemIndex(1);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Box.GetItemIndex(), 1 + inColumn);
}

TEST_F(OwnerDrawTest, AScrollWidthCanBeScrolledTo) {
  Box.SetScrollWidth(500);
  Show();
  const int room = Box.GetClientWidth();
  const auto& view = dynamic_cast<QAbstractItemView&>(*Box.GetHandle());
  EXPECT_EQ(view.sizeHintForColumn(0), 500);
  EXPECT_LT(room, 500);
}

TEST(OwnerDrawnComboBoxTest, TheProgramDrawsWhatIsPickedAndTheLines) {
  const auto box = Make<TComboBox>();
  box->GetItems().Add(QStringLiteral("a"));
  box->GetItems().Add(QStringLiteral("b"));
  box->SetStyle(csOwnerDrawVariable);
  box->SetItemIndex(1);
  std::vector<std::pair<int, bool>> drawn;
  box->OnDrawItem = [&](TWinControl*, int index, const QRect& rect, TOwnerDrawState state) {
    drawn.emplace_back(index, state.Has(odComboBoxEdit));
    box->GetCanvas().GetBrush().SetColor(clRed);
    box->GetCanvas().FillRect(rect);
  };
  box->OnMeasureItem = [](TWinControl*, int index, int& height) { height = 30 + index; };
  TWindowProbe window(*box, {120, 40});
  drawn.clear();
  const QImage picture = box->GetHandle()->grab().toImage();
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ(drawn[0], std::pair(1, true));
  EXPECT_EQ(picture.pixelColor(50, 20), QColor(Qt::red));
  const auto& view = *dynamic_cast<QComboBox&>(*box->GetHandle()).view();
  EXPECT_EQ(view.sizeHintForRow(1), 31);
}

TEST(OwnerDrawnComboBoxTest, AHandlerMayFreeTheComboBoxThatIsPainted) {
  auto box = Make<TComboBox>();
  box->GetItems().Add(QStringLiteral("a"));
  box->SetStyle(csOwnerDrawFixed);
  box->SetItemIndex(0);
  box->OnDrawItem = [&box](TWinControl*, int, const QRect&, TOwnerDrawState) { box.reset(); };
  TWindowProbe window(*box, {120, 40});
  if (box) box->Repaint();
  EXPECT_EQ(box, nullptr);
}

TEST(ButtonCaptionTest, ACaptionThatIsTooWideIsBrokenBetweenWords) {
  const auto box = Make<TCheckBox>();
  box->SetCaption(QStringLiteral("Some words that need room"));
  box->SetBounds(0, 0, 90, 60);
  box->SetWordWrap(true);
  auto& button = dynamic_cast<QAbstractButton&>(*box->GetHandle());
  EXPECT_GT(button.text().count(u'\n'), 0);
  EXPECT_EQ(QString(button.text()).replace(u'\n', u' '), box->GetCaption());
  box->SetWidth(900);
  EXPECT_EQ(button.text(), box->GetCaption());
  box->SetWidth(90);
  box->SetWordWrap(false);
  EXPECT_EQ(button.text(), box->GetCaption());
}

}  // namespace
}  // namespace kt
