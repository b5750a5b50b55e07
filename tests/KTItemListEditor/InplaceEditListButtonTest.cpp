#include "KTItemListEditor/InplaceEditListFixture.h"

#include <QLineEdit>
#include <QStyle>

namespace kt::tests {
namespace {

using InplaceEditListButtonTest = TInplaceEditListTest;

TEST_F(InplaceEditListButtonTest, IsAsWideAsAScrollBarAtTheRightEnd) {
  ShowEllipsis();
  EXPECT_EQ(QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent), Edit().GetButtonWidth());
  EXPECT_EQ(QRect(Edit().GetWidth() - Edit().GetButtonWidth(), 0, Edit().GetButtonWidth(), Edit().GetHeight()),
            Edit().GetButtonRect());
}

TEST_F(InplaceEditListButtonTest, IsAtTheLeftEndFromRightToLeft) {
  Editor.SetBiDiMode(bdRightToLeft);
  ShowEllipsis();
  EXPECT_EQ(QRect(0, 0, Edit().GetButtonWidth(), Edit().GetHeight()), Edit().GetButtonRect());
}

TEST_F(InplaceEditListButtonTest, TheTextLeavesRoomForTheButtonAlone) {
  ShowEllipsis();
  const auto marginOf = [&] { return dynamic_cast<QLineEdit&>(*Edit().GetHandle()).textMargins().right(); };
  EXPECT_EQ(Edit().GetButtonWidth(), marginOf());
  Key(Qt::Key_Down);
  EXPECT_EQ(0, marginOf());
}

/// The line editor itself has one of the two pixels above its text.
TEST_F(InplaceEditListButtonTest, TheTextStandsTwoPixelsBelowTheTop) {
  Show();
  EXPECT_EQ(1, dynamic_cast<QLineEdit&>(*Edit().GetHandle()).textMargins().top());
}

/// All but two pixels, which the text has beside it anyway.
TEST_F(InplaceEditListButtonTest, FromRightToLeftTheTextLeavesRoomAtTheLeftEnd) {
  Editor.SetBiDiMode(bdRightToLeft);
  ShowEllipsis();
  const QMargins margins = dynamic_cast<QLineEdit&>(*Edit().GetHandle()).textMargins();
  EXPECT_EQ(Edit().GetButtonWidth() - 2, margins.left());
  EXPECT_EQ(0, margins.right());
}

TEST_F(InplaceEditListButtonTest, FromRightToLeftAClickAtTheLeftEndRunsTheAction) {
  Editor.SetBiDiMode(bdRightToLeft);
  ShowEllipsis();
  ClickAt({Edit().GetWidth() - 4, 8});
  EXPECT_EQ("", TakeLog());
  ClickAt({4, 8});
  EXPECT_EQ("click(a)", TakeLog());
}

TEST_F(InplaceEditListButtonTest, ShowsTheArrowCursor) {
  ShowEllipsis();
  MoveTo(OnButton(), Qt::NoButton);
  EXPECT_EQ(Qt::ArrowCursor, Edit().GetHandle()->cursor().shape());
  MoveTo({3, 3}, Qt::NoButton);
  EXPECT_EQ(Qt::IBeamCursor, Edit().GetHandle()->cursor().shape());
}

TEST_F(InplaceEditListButtonTest, SimpleCellsShowTheTextCursorEverywhere) {
  Show();
  MoveTo(OnButton(), Qt::NoButton);
  EXPECT_EQ(Qt::IBeamCursor, Edit().GetHandle()->cursor().shape());
}

// What it does.

TEST_F(InplaceEditListButtonTest, AClickRunsTheActionWithTheItem) {
  ShowEllipsis();
  ClickAt(OnButton());
  EXPECT_EQ("click(a)", TakeLog());
}

TEST_F(InplaceEditListButtonTest, TheEditorsOwnHandlerHasTheGridAsItsSender) {
  ShowEllipsis();
  TObject* heard = nullptr;
  Edit().OnEditButtonClick = [&heard](TObject* sender) { heard = sender; };
  ClickAt(OnButton());
  EXPECT_EQ(&Editor, heard);
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListButtonTest, AReleaseBesideTheButtonRunsNothing) {
  ShowEllipsis();
  PressAt(OnButton());
  EXPECT_TRUE(Edit().IsPressed());
  MoveTo({3, 3});
  EXPECT_FALSE(Edit().IsPressed());
  ReleaseAt({3, 3});
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListButtonTest, ComingBackPressesItAgain) {
  ShowEllipsis();
  PressAt(OnButton());
  MoveTo({3, 3});
  MoveTo(OnButton());
  EXPECT_TRUE(Edit().IsPressed());
  ReleaseAt(OnButton());
  EXPECT_EQ("click(a)", TakeLog());
  EXPECT_FALSE(Edit().IsPressed());
}

TEST_F(InplaceEditListButtonTest, ACancelledPressRunsNothing) {
  ShowEllipsis();
  PressAt(OnButton());
  Edit().Perform(WM_CANCELMODE);
  ReleaseAt(OnButton());
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListButtonTest, TheRightButtonDoesNotPressIt) {
  ShowEllipsis();
  QTest::mousePress(Edit().GetHandle(), Qt::RightButton, Qt::NoModifier, OnButton());
  EXPECT_FALSE(Edit().IsPressed());
  QTest::mouseRelease(Edit().GetHandle(), Qt::RightButton, Qt::NoModifier, OnButton());
}

TEST_F(InplaceEditListButtonTest, APressLeavesTheSelectedTextSelected) {
  ShowEllipsis();
  Edit().SelectAll();
  ClickAt(OnButton());
  EXPECT_EQ(1, Edit().GetSelLength());
}

TEST_F(InplaceEditListButtonTest, APressOpensTheListAndAnotherOneClosesIt) {
  ShowColors();
  ClickAt(OnButton());
  EXPECT_TRUE(Edit().IsListVisible());
  EXPECT_FALSE(Edit().IsPressed());
  ClickAt(OnButton());
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListButtonTest, SimpleCellsHaveNone) {
  Show();
  Editor.OnEditButtonClick = [this](TObject*) { Log += QStringLiteral("click"); };
  ClickAt(OnButton());
  EXPECT_EQ("", TakeLog());
}

// How it looks.

/// The colours of the middle line of dots on the button.
int DotPixels(const QImage& image, const QRect& button, QColor color) {
  int count = 0;
  for (int y = button.top(); y <= button.bottom(); ++y) {
    for (int x = button.left(); x <= button.right(); ++x) count += image.pixelColor(x, y) == color;
  }
  return count;
}

TEST_F(InplaceEditListButtonTest, TheEllipsisIsThreeDotsInTheColourOfButtonTexts) {
  ShowEllipsis();
  QPalette palette = Edit().GetHandle()->palette();
  palette.setColor(QPalette::ButtonText, QColor(1, 2, 3));
  Edit().GetHandle()->setPalette(palette);
  const int side = std::max(Edit().GetButtonWidth() >> 3, 1);
  const QImage image = Edit().GetHandle()->grab().toImage();
  EXPECT_EQ(3 * side * side, DotPixels(image, Edit().GetButtonRect(), QColor(1, 2, 3)));
}

TEST_F(InplaceEditListButtonTest, APressedButtonLooksPressed) {
  ShowEllipsis();
  const QImage before = Edit().GetHandle()->grab(Edit().GetButtonRect()).toImage();
  PressAt(OnButton());
  const QImage pressed = Edit().GetHandle()->grab(Edit().GetButtonRect()).toImage();
  ReleaseAt(OnButton());
  EXPECT_NE(before, pressed);
  EXPECT_EQ(before, Edit().GetHandle()->grab(Edit().GetButtonRect()).toImage());
}

TEST_F(InplaceEditListButtonTest, AnArrowWithoutAListLooksInactive) {
  ShowColors();
  const QImage before = Edit().GetHandle()->grab(Edit().GetButtonRect()).toImage();
  delete Edit().GetActiveList();
  EXPECT_NE(before, Edit().GetHandle()->grab(Edit().GetButtonRect()).toImage());
}

TEST_F(InplaceEditListButtonTest, TheTwoKindsOfButtonsLookDifferent) {
  ShowEllipsis();
  const QImage ellipsis = Edit().GetHandle()->grab(Edit().GetButtonRect()).toImage();
  Item(0).SetEditStyle(esPickList);
  Editor.SetEditorMode(true);
  EXPECT_NE(ellipsis, Edit().GetHandle()->grab(Edit().GetButtonRect()).toImage());
}

}  // namespace
}  // namespace kt::tests
