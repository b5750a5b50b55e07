#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/WinControl.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QPushButton>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TControlProbe;
using tests::TWindowProbe;

/// Writes down keys, focus and paints.
class TSpy : public TControlProbe {
 public:
  using TControlProbe::SetMouseCapture;
  QStringList* Shared = nullptr;

 protected:
  explicit TSpy(TComponent* owner = nullptr) : TControlProbe(owner) {}
  void Construct() override {
    TControlProbe::Construct();
    SetTabStop(true);
  }
  void Say(const QString& what) { Shared ? Shared->append(GetName() + u':' + what) : FLog.append(what); }
  void KeyDown(quint16& key, TShiftState shift) override {
    Say(QStringLiteral("down(%1%2)").arg(key).arg(shift.IsEmpty() ? QString() : QStringLiteral(" shifted")));
    TControlProbe::KeyDown(key, shift);
  }
  void KeyPress(QChar& key) override {
    Say(QStringLiteral("char(%1)").arg(key.unicode()));
    TControlProbe::KeyPress(key);
  }
  void DoEnter() override {
    Say(QStringLiteral("enter"));
    TControlProbe::DoEnter();
  }
  void DoExit() override {
    Say(QStringLiteral("exit"));
    TControlProbe::DoExit();
  }
  void CMShowingChanged(TMessage&) override { Say(IsShowing() ? QStringLiteral("showing") : QStringLiteral("hidden")); }
  void Paint() override {
    const QRect clip = GetCanvas().GetClipRect();
    Say(QStringLiteral("paint(%1,%2,%3,%4)").arg(clip.x()).arg(clip.y()).arg(clip.width()).arg(clip.height()));
  }
};

TEST(WinControlTest, HasNoWindowUntilItIsAskedFor) {
  auto control = Make<TSpy>();
  EXPECT_FALSE(control->HandleAllocated());
  EXPECT_NE(control->GetHandle(), nullptr);
  EXPECT_TRUE(control->HandleAllocated());
}

TEST(WinControlTest, ALayoutIsToldTheSizeThatTheControlWasGiven) {
  auto control = Make<TSpy>();
  control->SetBounds(0, 0, 70, 80);
  EXPECT_EQ(control->GetHandle()->sizeHint(), QSize(70, 80));
  control->SetBounds(0, 0, 300, 300);
  EXPECT_EQ(control->GetHandle()->sizeHint(), QSize(70, 80));
}

TEST(WinControlTest, TheWindowTakesPlaceAndSizeOver) {
  auto parent = Make<TSpy>();
  auto& child = *New<TSpy>(parent.get());
  child.SetParent(parent.get());
  child.SetBounds(5, 6, 70, 80);
  EXPECT_EQ(child.GetHandle()->geometry(), QRect(5, 6, 70, 80));
  EXPECT_EQ(child.GetHandle()->parentWidget(), parent->GetHandle());
  child.SetLeft(9);
  EXPECT_EQ(child.GetHandle()->x(), 9);
}

TEST(WinControlTest, ALayoutThatSizesTheWindowSizesTheControl) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control, {300, 200});
  EXPECT_EQ(control->GetWidth(), 300);
  EXPECT_EQ(control->GetHeight(), 200);
}

TEST(WinControlTest, SurvivesTheWindowAroundItAndGetsAnother) {
  auto control = Make<TSpy>();
  {
    TWindowProbe window(*control);
    control->Log();
  }
  EXPECT_FALSE(control->HandleAllocated());
  EXPECT_FALSE(control->IsShowing());
  TWindowProbe second(*control);
  EXPECT_TRUE(control->IsShowing());
}

TEST(WinControlTest, ADyingControlTakesItsWindowAlong) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control);
  control.reset();
  EXPECT_EQ(window.Window()->layout()->count(), 0);
}

TEST(WinControlTest, PaintsWhatIsAskedFor) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control, {100, 50});
  control->Log();
  window.Body()->repaint(3, 4, 10, 20);
  EXPECT_EQ(control->Log(), "paint(3,4,10,20)");
}

TEST(WinControlTest, SeveralRequestsMakeOnePaint) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control, {100, 50});
  control->Log();
  control->Invalidate();
  control->Invalidate();
  control->Update();
  EXPECT_EQ(control->Log(), "paint(0,0,100,50)");
}

TEST(WinControlTest, AKeySendsItsCodeAndItsCharacter) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control);
  control->SetFocus();
  control->Log();
  TWindowProbe::Type(QStringLiteral("a"));
  EXPECT_EQ(control->Log(), "down(65) char(97)");
}

TEST(WinControlTest, AKeyThatMovesSendsNoCharacter) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control);
  control->SetFocus();
  control->Log();
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Key(Qt::Key_Delete);
  EXPECT_EQ(control->Log(), "down(40) down(46)");
}

TEST(WinControlTest, AHeldMouseButtonMakesNoOtherKey) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control);
  control->SetFocus();
  QTest::mousePress(control->GetHandle(), Qt::RightButton);
  control->Log();
  TWindowProbe::Key(Qt::Key_Insert);
  EXPECT_EQ(control->Log(), "down(45)");
  TWindowProbe::Key(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(control->Log(), "down(17 shifted) down(45 shifted)");
  QTest::mouseRelease(control->GetHandle(), Qt::RightButton);
}

TEST(WinControlTest, AKeyOfTheChildIsNoKeyOfTheParent) {
  auto parent = Make<TSpy>();
  auto& child = *New<TSpy>(parent.get());
  child.SetParent(parent.get());
  TWindowProbe window(*parent);
  child.SetFocus();
  parent->Log();
  child.Log();
  TWindowProbe::Key(Qt::Key_F5);
  EXPECT_EQ(child.Log(), "down(116)");
  EXPECT_EQ(parent->Log(), "");
}

TEST(WinControlTest, AKeyThatNobodyUsesGoesToTheWindowAround) {
  class THost : public QWidget {
   public:
    int Keys = 0;
    void keyPressEvent(QKeyEvent*) override { ++Keys; }
  };
  auto control = Make<TSpy>();
  THost host;
  control->GetHandle()->setParent(&host);
  control->GetHandle()->show();
  host.show();
  QTest::keyClick(control->GetHandle(), Qt::Key_Escape);
  EXPECT_EQ(host.Keys, 1);
  control->OnKeyDown = [](TObject*, quint16& key, TShiftState) { key = 0; };
  control->OnKeyPress = [](TObject*, QChar& key) { key = u'\0'; };
  QTest::keyClick(control->GetHandle(), Qt::Key_Escape);
  EXPECT_EQ(host.Keys, 1);
  control.reset();
}

/// Two controls in one parent, and a button that is none of ours.
class WinControlFocusTest : public testing::Test {
 protected:
  WinControlFocusTest() {
    for (TSpy* spy : {FParent.get(), &First, &Second}) spy->Shared = &FLog;
    FParent->SetName(QStringLiteral("P"));
    First.SetName(QStringLiteral("A"));
    Second.SetName(QStringLiteral("B"));
    First.SetParent(FParent.get());
    Second.SetParent(FParent.get());
    FWindow = std::make_unique<TWindowProbe>(*FParent);
    Button = new QPushButton(FWindow->Window());
    Button->show();
    FParent->SetTabStop(false);
  }
  QString Log() {
    FLog = FLog.filter(QRegularExpression(QStringLiteral("enter|exit")));
    return std::exchange(FLog, {}).join(u' ');
  }

  QStringList FLog;
  std::unique_ptr<TSpy> FParent = Make<TSpy>();
  TSpy& First = *New<TSpy>(FParent.get());
  TSpy& Second = *New<TSpy>(FParent.get());
  std::unique_ptr<TWindowProbe> FWindow;
  QPushButton* Button = nullptr;
};

TEST_F(WinControlFocusTest, EntersFromTheOutsideIn) {
  First.SetFocus();
  EXPECT_EQ(Log(), "P:enter A:enter");
  EXPECT_EQ(TFocus::Current(), &First);
}

TEST_F(WinControlFocusTest, StaysInTheCommonParentOnTheWay) {
  First.SetFocus();
  Log();
  Second.SetFocus();
  EXPECT_EQ(Log(), "A:exit B:enter");
}

TEST_F(WinControlFocusTest, LeavesForAWidgetThatIsNotOurs) {
  First.SetFocus();
  Log();
  Button->setFocus();
  EXPECT_EQ(Log(), "A:exit P:exit");
  EXPECT_EQ(TFocus::Current(), nullptr);
}

TEST_F(WinControlFocusTest, StaysFocusedWhileTheWindowIsInactive) {
  First.SetFocus();
  Log();
  QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(First.GetHandle(), &out);
  EXPECT_EQ(Log(), "");
  EXPECT_EQ(TFocus::Current(), &First);
}

TEST_F(WinControlFocusTest, AnExitThatFailsCanKeepTheFocus) {
  QString message;
  const TExceptionHandler outer = SetExceptionHandler(
      [&](std::exception_ptr error) { message = MessageOf<Exception>([&] { std::rethrow_exception(error); }); });
  First.SetFocus();
  First.OnExit = [this](TObject*) {
    First.SetFocus();
    throw Exception(QStringLiteral("not yet"));
  };
  Second.SetFocus();
  SetExceptionHandler(outer);
  EXPECT_EQ(message, "not yet");
  EXPECT_TRUE(First.Focused());
  EXPECT_EQ(TFocus::Current(), &First);
  First.OnExit = nullptr;
}

TEST_F(WinControlFocusTest, ADeadControlIsNotFocused) {
  First.SetFocus();
  delete &First;
  EXPECT_NE(TFocus::Current(), &First);
}

TEST_F(WinControlFocusTest, ADisabledControlCannotBeFocused) {
  First.SetEnabled(false);
  EXPECT_EQ(MessageOf<EInvalidOperation>([this] { First.SetFocus(); }), "Cannot focus a disabled or invisible window");
}

TEST(WinControlTest, MousePositionsAreThoseOfTheClientArea) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control);
  control->OnMouseDown = [&](TObject*, TMouseButton, TShiftState shift, int x, int y) {
    control->Note(QStringLiteral("%1,%2,%3").arg(x).arg(y).arg(shift.Has(ssLeft) && shift.Has(ssCtrl)));
  };
  control->Log();
  window.Press({12, 13}, Qt::ControlModifier);
  window.Release({12, 13});
  EXPECT_EQ(control->Log(), "12,13,1");
}

TEST(WinControlTest, AHandlerThatThrowsDoesNotReachQt) {
  auto control = Make<TSpy>();
  TWindowProbe window(*control);
  int errors = 0;
  const TExceptionHandler outer = SetExceptionHandler([&](std::exception_ptr) { ++errors; });
  control->OnMouseDown = [](TObject*, TMouseButton, TShiftState, int, int) { throw Exception(QStringLiteral("no")); };
  window.Click({5, 5});
  SetExceptionHandler(outer);
  EXPECT_EQ(errors, 1);
}

}  // namespace
}  // namespace kt
