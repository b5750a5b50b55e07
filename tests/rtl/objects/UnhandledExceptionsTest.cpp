#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <gtest/gtest.h>
#include <string>

namespace kt {
namespace {

class UnhandledExceptionsTest : public ::testing::Test {
 protected:
  UnhandledExceptionsTest() : FFormer(SetExceptionHandler({})) {}
  ~UnhandledExceptionsTest() override { SetExceptionHandler(FFormer); }

  /// What handling it writes to standard error.
  template <class E>
  static std::string ErrorsOf(const E& error) {
    ::testing::internal::CaptureStderr();
    HandleException(std::make_exception_ptr(error));
    return ::testing::internal::GetCapturedStderr();
  }

 private:
  TExceptionHandler FFormer;
};

TEST_F(UnhandledExceptionsTest, WithoutAHandlerTheMessageGoesToStandardError) {
  EXPECT_EQ("Unhandled exception: lost\n", ErrorsOf(Exception(QStringLiteral("lost"))));
}

TEST_F(UnhandledExceptionsTest, WhatIsNoExceptionOfAnyKindIsToldToo) {
  EXPECT_EQ("Unhandled exception of an unknown type\n", ErrorsOf(1));
}

TEST_F(UnhandledExceptionsTest, AHandlerThatThrowsLosesNeitherException) {
  SetExceptionHandler([](std::exception_ptr) { throw Exception(QStringLiteral("second")); });
  EXPECT_EQ("Unhandled exception: first\nUnhandled exception: second\n", ErrorsOf(Exception(QStringLiteral("first"))));
}

TEST_F(UnhandledExceptionsTest, AGuardedCallEndsAtTheHandler) {
  int handled = 0;
  SetExceptionHandler([&handled](std::exception_ptr) { ++handled; });
  GuardedCall([] { throw Exception(QStringLiteral("lost")); });
  EXPECT_EQ(1, handled);
}

}  // namespace
}  // namespace kt
