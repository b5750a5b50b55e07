#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/forms/Application.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QHelpEvent>
#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TWindowProbe;

/// Hears of its hints, and has none shown.
class THintProbe : public TControlProbe {
 public:
  QStringList Hints;

  void Dispatch(TMessage& message) override {
    if (message.Msg != CM_HINTSHOW) return TControlProbe::Dispatch(message);
    const auto* info = MessagePointer<THintInfo>(message.LParam);
    Hints += QStringLiteral("%1@%2,%3").arg(info->HintStr).arg(info->CursorPos.x()).arg(info->CursorPos.y());
    message.Result = 1;
  }

 protected:
  explicit THintProbe(TComponent* owner = nullptr) : TControlProbe(owner) {}
};

class HintsTest : public testing::Test {
 protected:
  HintsTest() {
    Child.SetParent(FParent.get());
    Child.SetBounds(10, 10, 50, 50);
    FParent->SetShowHint(true);
    FParent->SetHint(QStringLiteral("parent"));
    FWindow = std::make_unique<TWindowProbe>(*FParent);
  }
  void TearDown() override { Application().OnHint = nullptr; }
  /// The mouse rests over the child.
  void Rest() {
    QHelpEvent event(QEvent::ToolTip, {3, 4}, {103, 104});
    QApplication::sendEvent(Child.GetHandle(), &event);
  }

  std::unique_ptr<THintProbe> FParent = Make<THintProbe>();
  THintProbe& Child = *New<THintProbe>(FParent.get());
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(HintsTest, AHintWithABarHasAShortAndALongShare) {
  EXPECT_EQ(GetShortHint(QStringLiteral("Cut|Moves it to the clipboard")), "Cut");
  EXPECT_EQ(GetLongHint(QStringLiteral("Cut|Moves it to the clipboard")), "Moves it to the clipboard");
}

TEST_F(HintsTest, AHintWithoutABarIsBoth) {
  EXPECT_EQ(GetShortHint(QStringLiteral("Cut")), "Cut");
  EXPECT_EQ(GetLongHint(QStringLiteral("Cut")), "Cut");
}

TEST_F(HintsTest, TheControlUnderTheMouseIsAsked) {
  Child.SetHint(QStringLiteral("short|long"));
  Rest();
  EXPECT_EQ(Child.Hints.join(u' '), "short@3,4");
}

TEST_F(HintsTest, AControlWithoutHintHasItsParents) {
  Rest();
  EXPECT_EQ(Child.Hints.join(u' '), "parent@3,4");
}

TEST_F(HintsTest, WhereHintsAreOffNobodyIsAsked) {
  Child.SetShowHint(false);
  Rest();
  EXPECT_EQ(Child.Hints.join(u' '), "");
}

TEST_F(HintsTest, TheApplicationHasTheLongHintOfWhatTheMouseIsOver) {
  Child.SetHint(QStringLiteral("short|long"));
  QString log;
  Application().OnHint = [&](TObject*) { log += Application().GetHint() + u';'; };
  QEnterEvent enter({3, 3}, {3, 3}, {103, 103});
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(Child.GetHandle(), &enter);
  QApplication::sendEvent(Child.GetHandle(), &leave);
  EXPECT_EQ(log, "long;parent;");
}

}  // namespace
}  // namespace kt
