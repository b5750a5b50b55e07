#include "kt/rtl/objects/UnhandledExceptions.h"

#include "kt/rtl/objects/Exceptions.h"

#include <cstdio>

namespace kt {
namespace {

TExceptionHandler& InstalledHandler() {
  static TExceptionHandler handler;
  return handler;
}

void ReportToStandardError(std::exception_ptr error) {
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& caught) {
    std::fprintf(stderr, "Unhandled exception: %s\n", caught.what());
  } catch (...) {
    std::fputs("Unhandled exception of an unknown type\n", stderr);
  }
}

}  // namespace

TExceptionHandler SetExceptionHandler(TExceptionHandler handler) {
  return std::exchange(InstalledHandler(), std::move(handler));
}

void HandleException(std::exception_ptr error) noexcept {
  const TExceptionHandler handler = InstalledHandler();
  if (!handler) return ReportToStandardError(error);
  try {
    handler(error);
  } catch (...) {
    ReportToStandardError(error);
    ReportToStandardError(std::current_exception());
  }
}

}  // namespace kt
