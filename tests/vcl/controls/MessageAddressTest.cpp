#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/MessageAddress.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kt {
namespace {

constexpr quint32 Hello = WM_USER + 7;

class TListener : public tests::TControlProbe {
 public:
  void Dispatch(TMessage& message) override {
    if (message.Msg != Hello) return TControlProbe::Dispatch(message);
    Note(QStringLiteral("hello(%1,%2)").arg(message.WParam).arg(message.LParam));
    if (const auto call = OnHello) call();
  }
  std::function<void()> OnHello;
};

void Deliver() { QCoreApplication::sendPostedEvents(); }

TEST(MessageAddressTest, APostedMessageComesLaterAndInOrder) {
  auto control = Make<TListener>();
  control->PostMessage(Hello, 1, 2);
  control->PostMessage(Hello, 3, 4);
  EXPECT_EQ(control->Log(), "");
  Deliver();
  EXPECT_EQ(control->Log(), "hello(1,2) hello(3,4)");
}

TEST(MessageAddressTest, MessagesForADeadControlAreDropped) {
  int count = 0;
  auto control = Make<TListener>();
  control->OnHello = [&] { ++count; };
  control->PostMessage(Hello);
  control.reset();
  Deliver();
  EXPECT_EQ(count, 0);
}

TEST(MessageAddressTest, AControlMayDieInItsMessage) {
  int count = 0;
  auto control = Make<TListener>();
  control->OnHello = [&] {
    ++count;
    control.reset();
  };
  control->PostMessage(Hello);
  control->PostMessage(Hello);
  Deliver();
  EXPECT_EQ(count, 1);
}

TEST(MessageAddressTest, AnExceptionGoesToTheHandlerAndNotIntoQt) {
  QString message;
  const TExceptionHandler outer = SetExceptionHandler(
      [&](std::exception_ptr error) { message = tests::MessageOf<Exception>([&] { std::rethrow_exception(error); }); });
  auto control = Make<TListener>();
  control->OnHello = [] { throw Exception(QStringLiteral("boom")); };
  control->PostMessage(Hello);
  Deliver();
  SetExceptionHandler(outer);
  EXPECT_EQ(message, "boom");
}

}  // namespace
}  // namespace kt
