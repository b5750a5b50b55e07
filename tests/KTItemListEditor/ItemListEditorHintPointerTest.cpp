// Hints under the pointer: they lie over the cells that they tell of, and so where the pointer is.
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QCursor>
#include <QEnterEvent>
#include <QLabel>

namespace kt::tests {
namespace {

/// The pointer is over the value of the first of two items, whose hint has opened there.
class ItemListEditorHintPointerTest : public TItemListTest {
 protected:
  ItemListEditorHintPointerTest() {
    Fill("a b");
    Item("a").SetValue(kLong);
    FWindow = std::make_unique<TWindowProbe>(*FEditor);
    FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goAlwaysShowEditor});
    FEditor->SetEditorMode(false);
    FEditor->OnMouseEnter = [this](TObject*) { FLog += QStringLiteral("enter"); };
    FEditor->OnMouseLeave = [this](TObject*) { FLog += QStringLiteral("leave"); };
    PointTo(Value(1));
    Log();
  }
  ~ItemListEditorHintPointerTest() override {
    QCursor::setPos(kAway);
    TWindowProbe::Settle();
  }

  /// A place in the value of an item, in the client area; the hint of the first one covers it.
  QPoint Value(int row) { return FEditor->CellRect(1, row).topLeft() + QPoint(20, 5); }
  /// The real pointer; the platform tells the window beneath of it, which here is never the hint.
  void PointTo(QPoint place) {
    QCursor::setPos(FEditor->ClientToScreen(place));
    TWindowProbe::Settle();
  }
  static QWidget* Label() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (qobject_cast<QLabel*>(widget)) return widget;
    }
    return nullptr;
  }
  /// What a platform says whose hints take the mouse.
  void EnterHint() {
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(FWindow->Body(), &leave);
    const QPoint place = Label()->mapFromGlobal(QCursor::pos());
    QEnterEvent enter(place, place, QCursor::pos());
    QApplication::sendEvent(Label(), &enter);
  }
  void LeaveHintTo(QPoint place) {
    const QPoint onScreen = FEditor->ClientToScreen(place);
    // Without the platform's own word for it: the hint is told first.
    QCursor::setPos(onScreen);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(Label(), &leave);
    QEnterEvent enter(place, place, onScreen);
    if (FWindow->Body()->rect().contains(place)) QApplication::sendEvent(FWindow->Body(), &enter);
  }
  void SendToHint(QEvent::Type type, QPoint place, Qt::MouseButton button = Qt::NoButton,
                  Qt::MouseButtons buttons = Qt::NoButton) {
    const QPoint onScreen = FEditor->ClientToScreen(place);
    QMouseEvent event(type, Label()->mapFromGlobal(onScreen), onScreen, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(Label(), &event);
  }
  QString Hint() {
    TKTHintWindow& window = FEditor->GetHintWindow();
    return window.IsShown() ? window.GetText() : QStringLiteral("-");
  }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }

  static inline const QString kLong = QString(80, u'w');
  /// Where no window is.
  static constexpr QPoint kAway{790, 790};
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FLog;
};

TEST_F(ItemListEditorHintPointerTest, AHintThatOpensUnderThePointerStays) {
  ASSERT_EQ(kLong, Hint());
  EnterHint();
  EXPECT_EQ(kLong, Hint());
  EXPECT_EQ("", Log());
}

TEST_F(ItemListEditorHintPointerTest, ItStaysWhileThePointerMovesInIt) {
  EnterHint();
  SendToHint(QEvent::MouseMove, Value(1) + QPoint(9, 1));
  EXPECT_EQ(kLong, Hint());
}

TEST_F(ItemListEditorHintPointerTest, APressOnItIsOneOnTheCellBeneath) {
  EnterHint();
  SendToHint(QEvent::MouseButtonPress, Value(1), Qt::LeftButton, Qt::LeftButton);
  SendToHint(QEvent::MouseButtonRelease, Value(1), Qt::LeftButton);
  EXPECT_EQ(1, FEditor->GetRow());
  EXPECT_EQ(1, FEditor->GetCol());
  EXPECT_TRUE(FEditor->IsEditorMode());
}

TEST_F(ItemListEditorHintPointerTest, OverAnotherCellTheHintOfThatIsAskedFor) {
  Item("b").SetValue(QStringLiteral("short"));
  EnterHint();
  SendToHint(QEvent::MouseMove, Value(2));
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintPointerTest, ItStaysWhenThePointerComesBackIntoTheCell) {
  EnterHint();
  LeaveHintTo(Value(1) + QPoint(-15, 0));
  EXPECT_EQ(kLong, Hint());
  EXPECT_EQ("", Log());
}

TEST_F(ItemListEditorHintPointerTest, ItGoesWhenThePointerLeavesThroughIt) {
  EnterHint();
  LeaveHintTo({-100, 600});
  EXPECT_EQ("-", Hint());
  EXPECT_EQ("leave", Log());
}

TEST_F(ItemListEditorHintPointerTest, ItGoesWhenThePointerIsOverThePartBesideTheGrid) {
  EnterHint();
  SendToHint(QEvent::MouseMove, {FEditor->GetWidth() + 20, Value(1).y()});
  EXPECT_EQ("-", Hint());
  EXPECT_EQ("leave", Log());
}

TEST_F(ItemListEditorHintPointerTest, WithoutAHintUnderItThePointerLeavesAsEver) {
  PointTo({FEditor->GetClientWidth() / 2, FEditor->GetClientHeight() - 5});
  ASSERT_EQ("-", Hint());
  Log();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(FWindow->Body(), &leave);
  EXPECT_EQ("leave", Log());
}

TEST_F(ItemListEditorHintPointerTest, AfterAStayTheNextLeaveAndEnterAreHeardAgain) {
  EnterHint();
  LeaveHintTo(Value(1));
  PointTo({FEditor->GetClientWidth() / 2, FEditor->GetClientHeight() - 5});
  Log();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(FWindow->Body(), &leave);
  QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
  QApplication::sendEvent(FWindow->Body(), &enter);
  EXPECT_EQ("leave enter", Log());
}

}  // namespace
}  // namespace kt::tests
