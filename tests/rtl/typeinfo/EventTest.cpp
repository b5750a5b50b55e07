#include "kt/rtl/typeinfo/Event.h"
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

}  // namespace
}  // namespace kt
