#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/Screen.h"
#include "support/Expect.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

class ScreenTest : public testing::Test {
 protected:
  void TearDown() override { Screen().SetCursor(crDefault); }
};

TEST_F(ScreenTest, ACursorHoldsForTheWholeProgram) {
  Screen().SetCursor(crHourGlass);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST_F(ScreenTest, ASecondCursorReplacesTheFirst) {
  Screen().SetCursor(crHourGlass);
  Screen().SetCursor(crCross);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
  Screen().SetCursor(crDefault);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ScreenTest, TheFontsAreThereByTheAlphabet) {
  const QStringList fonts = Screen().GetFonts();
  EXPECT_TRUE(fonts.contains(QStringLiteral("DejaVu Sans")));
  QStringList sorted = fonts;
  sorted.sort(Qt::CaseInsensitive);
  EXPECT_EQ(fonts, sorted);
}

TEST_F(ScreenTest, HasTheSizeOfTheFirstScreen) {
  // What the offscreen platform has.
  EXPECT_EQ(Screen().GetWidth(), 800);
  EXPECT_EQ(Screen().GetHeight(), 800);
}

TEST_F(ScreenTest, KnowsTheFormsInTheOrderTheyWereMade) {
  auto first = Make<TForm>();
  auto second = Make<TForm>();
  EXPECT_EQ(Screen().GetFormCount(), 2);
  EXPECT_EQ(Screen().GetForms(0), first.get());
  EXPECT_EQ(Screen().GetForms(1), second.get());
  first.reset();
  EXPECT_EQ(Screen().GetForms(0), second.get());
}

TEST_F(ScreenTest, AFormOutOfRangeFails) {
  EXPECT_EQ(MessageOf<EListError>([] { Screen().GetForms(0); }), "List index out of bounds (0)");
}

}  // namespace
}  // namespace kt
