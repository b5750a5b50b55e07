#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/InThreads.h"
#include "support/Samples.h"

#include <atomic>
#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(PropInfoThreadsTest, SeveralThreadsMayBeTheFirstToAskForAType) {
  constexpr int threads = 4, turns = 200;
  std::atomic<int> good = 0;
  for (int i = 0; i < turns; ++i) {
    auto road =
        std::make_unique<TFunctionAccess<qint64>>([](TObject&) { return 0; }, TFunctionAccess<qint64>::TSetter());
    const TPropInfo property({QStringLiteral("Width"), [] { return TypeInfoOf<int>(); }, std::move(road)});
    tests::InThreads(threads, [&](int) { good += property.PropType() == TypeInfoOf<int>(); });
  }
  EXPECT_EQ(threads * turns, good);
}

/// Class infos are made when they are first asked for, by whichever thread.
TEST(PropInfoThreadsTest, SeveralThreadsMayBeTheFirstToAskForAClass) {
  std::atomic<int> good = 0;
  tests::InThreads(4, [&](int) {
    const TPropInfo* property = tests::TSample::Class()->FindProp(u"Styles");
    good += property && property->Kind() == tkSet && property->PropType()->Name() == u"TSampleStyles";
  });
  EXPECT_EQ(4, good);
}

}  // namespace
}  // namespace kt
