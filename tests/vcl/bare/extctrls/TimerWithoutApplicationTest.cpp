#include "kt/rtl/objects/Make.h"
#include "kt/vcl/extctrls/Timer.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

TEST(TimerWithoutApplicationTest, KeepsItsProperties) {
  ASSERT_EQ(nullptr, QCoreApplication::instance());
  auto timer = Make<TTimer>();
  timer->SetOnTimer(TNotifyEvent([](TObject*) {}));
  timer->SetInterval(5);
  timer->SetEnabled(false);
  timer->SetEnabled(true);
  EXPECT_EQ(5U, timer->GetInterval());
  EXPECT_TRUE(timer->IsEnabled());
  EXPECT_TRUE(timer->GetOnTimer());
}

}  // namespace
}  // namespace kt::tests
