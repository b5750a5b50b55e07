#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/Make.h"
#include "support/InThreads.h"

#include <atomic>
#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(KeptDataThreadsTest, ObjectsOfSeveralThreadsKeepAndForgetTheirOwn) {
  constexpr int threads = 4, turns = 300;
  std::atomic<int> kept = 0;
  tests::InThreads(threads, [&](int number) {
    for (int i = 0; i < turns; ++i) {
      const auto component = Make<TComponent>();
      EnsureKeptData(component.get()).Properties.push_back({QString::number(number), QByteArray()});
      const auto other = Make<TComponent>();
      const TKeptData* found = FindKeptData(component.get());
      kept += found && found->Properties.size() == 1 && found->Properties[0].Path == QString::number(number);
      kept += FindKeptData(other.get()) == nullptr;
    }
  });
  EXPECT_EQ(2 * threads * turns, kept);
}

}  // namespace
}  // namespace kt
