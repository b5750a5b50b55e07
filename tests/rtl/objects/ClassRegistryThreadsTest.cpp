#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "support/InThreads.h"

#include <atomic>
#include <barrier>
#include <deque>
#include <gtest/gtest.h>

namespace kt {
namespace {

constexpr int kThreads = 4;
constexpr int kTurns = 200;

/// A class for each thread, and one that all register.
class ClassRegistryThreadsTest : public ::testing::Test {
 protected:
  static TClassInfo Info(const QString& name) { return TClassInfo({name, TComponent::Class()}); }

  const TClassInfo FOwn[kThreads] = {Info(QStringLiteral("TOwn0")), Info(QStringLiteral("TOwn1")),
                                     Info(QStringLiteral("TOwn2")), Info(QStringLiteral("TOwn3"))};
  const TClassInfo FShared{{QStringLiteral("TShared"), TComponent::Class()}};
};

TEST_F(ClassRegistryThreadsTest, EachThreadFindsItsClassWhileOthersComeAndGo) {
  std::atomic<int> found = 0;
  tests::InThreads(kThreads, [&](int number) {
    const TClassInfo* own = &FOwn[number];
    for (int i = 0; i < kTurns; ++i) {
      RegisterClass(own);
      found += GetClass(own->ClassName()) == own;
      UnRegisterClass(own);
      found += GetClass(own->ClassName()) == nullptr;
    }
  });
  EXPECT_EQ(2 * kThreads * kTurns, found);
}

TEST_F(ClassRegistryThreadsTest, ARegisteredClassHasItsAncestorsWhicheverThreadRegisteredIt) {
  // Long enough for another thread to arrive in the middle.
  constexpr int length = 60;
  std::atomic<int> found = 0;
  for (int i = 0; i < kTurns; ++i) {
    std::deque<TClassInfo> line;
    for (int j = 0; j < length; ++j) {
      const TClassInfo* parent = j > 0 ? &line.back() : TComponent::Class();
      line.emplace_back(TClassInfo::TDefinition{QStringLiteral("TThreaded%1").arg(j), parent});
    }
    std::barrier start(kThreads);
    tests::InThreads(kThreads, [&](int) {
      start.arrive_and_wait();
      RegisterClass(&line.back());
      found += GetClass(u"TThreaded0") == &line.front();
    });
    for (const TClassInfo& info : line) UnRegisterClass(&info);
  }
  EXPECT_EQ(kThreads * kTurns, found);
}

TEST_F(ClassRegistryThreadsTest, TheListIsOneMomentsListWhileOthersRegister) {
  std::atomic<int> good = 0;
  tests::InThreads(kThreads, [&](int) {
    for (int i = 0; i < kTurns; ++i) {
      RegisterClass(&FShared);
      good += FindClass(u"TComponent") == TComponent::Class() && !RegisteredClasses().empty();
    }
  });
  EXPECT_EQ(kThreads * kTurns, good);
  UnRegisterClass(&FShared);
  EXPECT_EQ(nullptr, GetClass(u"TShared"));
}

}  // namespace
}  // namespace kt
