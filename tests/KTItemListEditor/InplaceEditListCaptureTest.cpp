#include "KTItemListEditor/InplaceEditListFixture.h"

#include <QPaintEvent>
#include <QPushButton>

#include <tuple>

namespace kt::tests {
namespace {

/// Sees what of a window is painted.
class TPaintWatch : public QObject {
 public:
  explicit TPaintWatch(QWidget& widget) { widget.installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) FPainted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  /// What was painted since the last call.
  QRegion Take() {
    TWindowProbe::Settle();
    return std::exchange(FPainted, {});
  }

 private:
  QRegion FPainted;
};

/// Opens what only descendants may call.
struct TDroppingEdit : TKTInplaceEditList {
  using TKTInplaceEditList::CloseUp;
  using TKTInplaceEditList::DropDown;
};

/// Who has the mouse and the keyboard meanwhile, and what is painted.
class InplaceEditListCaptureTest : public TInplaceEditListTest {
 protected:
  void DropDown() { (Edit().*&TDroppingEdit::DropDown)(); }
  /// Whether the button is painted by what `deed` does.
  template <class F>
  bool PaintsButton(F deed) {
    TPaintWatch watch(*Edit().GetHandle());
    std::ignore = watch.Take();
    deed();
    return watch.Take().contains(OnButton());
  }
};

// The mouse.

TEST_F(InplaceEditListCaptureTest, APressOnTheButtonHasTheMouseTillItsRelease) {
  ShowEllipsis();
  PressAt(OnButton());
  EXPECT_TRUE(Edit().HasMouseCapture());
  ReleaseAt(OnButton());
  EXPECT_FALSE(Edit().HasMouseCapture());
}

TEST_F(InplaceEditListCaptureTest, ACancelledPressLetsTheMouseGo) {
  ShowEllipsis();
  PressAt(OnButton());
  Edit().Perform(WM_CANCELMODE);
  EXPECT_FALSE(Edit().HasMouseCapture());
  EXPECT_FALSE(Edit().IsPressed());
}

TEST_F(InplaceEditListCaptureTest, TheReleaseOfAnotherButtonMeanwhileRunsNothing) {
  ShowEllipsis();
  PressAt(OnButton());
  QTest::mouseRelease(Edit().GetHandle(), Qt::RightButton, Qt::NoModifier, OnButton());
  EXPECT_EQ("", TakeLog());
  ReleaseAt(OnButton());
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListCaptureTest, AListThatClosesEndsThePressThatOpenedIt) {
  ShowColors();
  PressAt(OnButton());
  ASSERT_TRUE(Edit().IsListVisible());
  ASSERT_TRUE(Edit().HasMouseCapture());
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Edit().HasMouseCapture());
  EXPECT_FALSE(Edit().IsPressed());
  EXPECT_EQ(nullptr, QWidget::mouseGrabber());
  ReleaseAt(OnButton());
}

TEST_F(InplaceEditListCaptureTest, AListThatClosesLetsTheMouseGoThatItHas) {
  ShowColors();
  OpenList();
  QTest::mousePress(ViewportOf(List()), Qt::LeftButton, Qt::NoModifier, {5, 5});
  ASSERT_TRUE(List().HasMouseCapture());
  Key(Qt::Key_Escape);
  EXPECT_FALSE(List().HasMouseCapture());
  EXPECT_EQ(nullptr, QWidget::mouseGrabber());
}

// The keyboard.

TEST_F(InplaceEditListCaptureTest, AListThatOpensBringsTheKeyboardToTheEditor) {
  auto* button = std::make_unique<QPushButton>().release();
  ShowColors();
  Window->Window()->layout()->addWidget(button);
  Editor.SetOptions(Editor.GetOptions() + TGridOptions{goAlwaysShowEditor});
  Settle();
  button->setFocus();
  Editor.SetEditorMode(true);
  ASSERT_TRUE(button->hasFocus());
  ASSERT_TRUE(Edit().Visible());
  DropDown();
  EXPECT_TRUE(Edit().IsListVisible());
  EXPECT_TRUE(Edit().Focused());
}

// What is painted.

TEST_F(InplaceEditListCaptureTest, AButtonThatIsPressedIsPainted) {
  ShowEllipsis();
  EXPECT_TRUE(PaintsButton([this] { PressAt(OnButton()); }));
  EXPECT_TRUE(PaintsButton([this] { MoveTo({3, 3}); }));
  EXPECT_TRUE(PaintsButton([this] { MoveTo(OnButton()); }));
  EXPECT_FALSE(PaintsButton([this] { MoveTo(OnButton() + QPoint(1, 1)); }));
  EXPECT_TRUE(PaintsButton([this] { ReleaseAt(OnButton()); }));
}

TEST_F(InplaceEditListCaptureTest, TheEditorIsPaintedWhenItsListOpensAndCloses) {
  ShowColors();
  EXPECT_TRUE(PaintsButton([this] { DropDown(); }));
  EXPECT_TRUE(PaintsButton([this] { (Edit().*&TDroppingEdit::CloseUp)(false); }));
}

}  // namespace
}  // namespace kt::tests
