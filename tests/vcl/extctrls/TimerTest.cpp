#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/extctrls/Timer.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/FormText.h"
#include "support/Published.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class TTimerForm : public TComponent {
 public:
  void Design() { SetDesigning(true); }

 protected:
  TTimerForm() = default;
};

class TimerTest : public testing::Test {
 protected:
  ~TimerTest() override { Application().OnException = nullptr; }

  /// A timer that notes each of its turns.
  TTimer& Add(const char* name, TComponent* owner = nullptr) {
    auto& timer = *New<TTimer>(owner ? owner : FOwner.get());
    timer.SetInterval(1);
    timer.SetOnTimer(TNotifyEvent([this, name](TObject*) { FLog += QLatin1String(name); }));
    return timer;
  }
  /// Handles events until another timer, which begins now, has had three turns: long enough for one before it.
  static void Wait() {
    auto other = Make<TTimer>();
    QEventLoop loop;
    int turns = 0;
    other->SetInterval(3);
    other->SetOnTimer(TNotifyEvent([&](TObject*) {
      if (++turns == 3) loop.quit();
    }));
    loop.exec();
  }
  int Turns(const char* name) const { return static_cast<int>(FLog.count(QLatin1String(name))); }

  std::unique_ptr<TTimerForm> FOwner = Make<TTimerForm>();
  QStringList FLog;
};

TEST_F(TimerTest, PublishesWhatItIsMadeOf) {
  EXPECT_EQ("Enabled=True Interval=1000 OnTimer", PublishedOf(*Make<TTimer>()));
}

TEST_F(TimerTest, RaisesItsEventAgainAndAgain) {
  Add("a");
  Wait();
  EXPECT_GE(Turns("a"), 2);
}

TEST_F(TimerTest, DoesNotRunWhileDisabled) {
  TTimer& timer = Add("a");
  timer.SetEnabled(false);
  Wait();
  EXPECT_EQ(0, Turns("a"));
  timer.SetEnabled(true);
  Wait();
  EXPECT_GE(Turns("a"), 1);
}

TEST_F(TimerTest, DoesNotRunWithoutAnInterval) {
  Add("a").SetInterval(0);
  Wait();
  EXPECT_EQ(0, Turns("a"));
}

TEST_F(TimerTest, StopsWhenItsHandlerIsTakenAway) {
  TTimer& timer = Add("a");
  timer.SetOnTimer(nullptr);
  Wait();
  EXPECT_EQ(0, Turns("a"));
}

TEST_F(TimerTest, DoesNotRunInADesigner) {
  TTimer& before = Add("before");
  FOwner->Design();
  Add("behind");
  Wait();
  EXPECT_EQ(0, Turns("before"));
  EXPECT_EQ(0, Turns("behind"));
  EXPECT_TRUE(before.IsEnabled());
}

TEST_F(TimerTest, AHandlerMayDisableIt) {
  TTimer& timer = Add("a");
  timer.SetOnTimer(TNotifyEvent([&](TObject*) {
    FLog += "a";
    timer.SetEnabled(false);
  }));
  Wait();
  EXPECT_EQ(1, Turns("a"));
}

TEST_F(TimerTest, AHandlerMayFreeIt) {
  TTimer& timer = Add("a");
  timer.SetOnTimer(TNotifyEvent([&](TObject*) {
    FLog += "a";
    delete &timer;
  }));
  Wait();
  EXPECT_EQ(1, Turns("a"));
  EXPECT_EQ(0, FOwner->GetComponentCount());
}

TEST_F(TimerTest, AHandlerMayFreeItsOwner) {
  TTimer& timer = Add("a");
  timer.SetOnTimer(TNotifyEvent([&](TObject*) {
    FLog += "a";
    FOwner.reset();
  }));
  Wait();
  EXPECT_EQ(1, Turns("a"));
}

TEST_F(TimerTest, WhatAHandlerThrowsGoesToTheApplicationAndTheTimerGoesOn) {
  Application().OnException = TExceptionEvent([this](TObject*, const Exception& error) { FLog += error.Message(); });
  TTimer& timer = Add("a");
  timer.SetOnTimer(TNotifyEvent([](TObject*) { throw Exception(QStringLiteral("late")); }));
  Wait();
  EXPECT_GE(Turns("late"), 2);
}

TEST_F(TimerTest, IsReadFromAFormFile) {
  RegisterVisualPlatform();
  auto form = Make<TForm>();
  ReadFormText(*form, R"(object TheForm: TForm
    object Clock: TTimer
      Enabled = False
      Interval = 250
    end
  end
)");
  auto* timer = dynamic_cast<TTimer*>(form->FindComponent(u"Clock"));
  ASSERT_NE(nullptr, timer);
  EXPECT_EQ("object Clock: TTimer\n  Enabled = False\n  Interval = 250\nend\n", TextOf(timer));
}

TEST_F(TimerTest, WritesNoDefaults) { EXPECT_EQ("object TTimer\nend\n", TextOf(Make<TTimer>().get())); }

}  // namespace
}  // namespace kt::tests
