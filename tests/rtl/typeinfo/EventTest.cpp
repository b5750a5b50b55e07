#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TSample;

struct TCountEvent : TEvent<int, int&> {
  using TEvent::TEvent;
};

TEST(EventTest, AnEventIsOnePointerWide) { EXPECT_EQ(sizeof(void*), sizeof(TNotifyEvent)); }

TEST(EventTest, CallingAnEmptyEventDoesNothing) {
  const TNotifyEvent event;
  event(nullptr);
  EXPECT_TRUE(event.IsEmpty());
}

TEST(EventTest, AMethodOfAnObjectIsCalled) {
  const auto sample = Make<TSample>();
  const TNotifyEvent event(sample.get(), &TSample::HandleAction);
  event(sample.get());
  EXPECT_EQ(sample.get(), sample->LastSender);
  EXPECT_EQ(sample.get(), event.Instance());
}

TEST(EventTest, AReferenceParameterBringsAnAnswerBack) {
  const TCountEvent event([](int input, int& output) { output = input + 1; });
  int answer = 0;
  event(4, answer);
  EXPECT_EQ(5, answer);
}

TEST(EventTest, TheSameMethodOfTheSameObjectIsEqual) {
  const auto a = Make<TSample>();
  const auto b = Make<TSample>();
  const TNotifyEvent first(a.get(), &TSample::HandleAction);
  EXPECT_EQ(first, TNotifyEvent(a.get(), &TSample::HandleAction));
  EXPECT_FALSE(first == TNotifyEvent(b.get(), &TSample::HandleAction));
  EXPECT_FALSE(first == TNotifyEvent());
}

TEST(EventTest, CopiesShareTheirHandler) {
  const TNotifyEvent event([](TObject*) {});
  const TNotifyEvent copy = event;
  EXPECT_EQ(event, copy);
  EXPECT_EQ(event.Handler(), copy.Handler());
}

TEST(EventTest, AHandlerMayClearTheEventThatCallsIt) {
  auto alive = std::make_shared<int>(7);
  const std::weak_ptr<int> watch = alive;
  TNotifyEvent event;
  int seen = 0;
  event = TNotifyEvent([&event, &seen, kept = std::move(alive)](TObject*) {
    event = nullptr;
    seen = *kept;
  });
  event(nullptr);
  EXPECT_EQ(7, seen);
  EXPECT_TRUE(event.IsEmpty());
  EXPECT_TRUE(watch.expired());
}

TEST(EventTest, OnlyMethodsOfTheSameSignatureAreAccepted) {
  EXPECT_TRUE(TNotifyEvent::Accepts(TNotifyEvent([](TObject*) {})));
  EXPECT_TRUE(TNotifyEvent::Accepts(TMethod()));
  EXPECT_FALSE(TNotifyEvent::Accepts(TCountEvent([](int, int&) {})));
}

TEST(EventTest, AMethodKnownByItsNameDoesNothing) {
  const auto sample = Make<TSample>();
  TCountEvent event;
  event.SetMethod(TCountEvent::Named(sample.get(), QStringLiteral("Count")));
  int answer = 3;
  event(4, answer);
  EXPECT_EQ(3, answer);
  EXPECT_EQ(sample.get(), event.Instance());
  EXPECT_EQ("Count", event.Handler()->MethodName());
  EXPECT_EQ("Count", sample->ClassType()->MethodName(event));
}

TEST(EventTest, MethodsKnownByNameAreEqualWithTheSameObjectNameAndType) {
  const auto a = Make<TSample>();
  const auto b = Make<TSample>();
  const TMethod method = TNotifyEvent::Named(a.get(), QStringLiteral("Act"));
  EXPECT_EQ(method, TNotifyEvent::Named(a.get(), QStringLiteral("ACT")));
  EXPECT_FALSE(method == TNotifyEvent::Named(a.get(), QStringLiteral("Other")));
  EXPECT_FALSE(method == TNotifyEvent::Named(b.get(), QStringLiteral("Act")));
  EXPECT_FALSE(method == TCountEvent::Named(a.get(), QStringLiteral("Act")));
  EXPECT_FALSE(TCountEvent::Accepts(method));
}

TEST(EventTest, ATypeOfEventsMakesMethodsKnownByName) {
  const auto sample = Make<TSample>();
  const TMethod method = NamedMethod(TypeInfoOf<TNotifyEvent>(), sample.get(), QStringLiteral("Act"));
  EXPECT_EQ(TNotifyEvent::Named(sample.get(), QStringLiteral("Act")), method);
  EXPECT_TRUE(NamedMethod(TypeInfoOf<int>(), sample.get(), QStringLiteral("Act")).IsEmpty());
}

}  // namespace
}  // namespace kt
