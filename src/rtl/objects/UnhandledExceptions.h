#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace kt {

/// Receives an exception that has no caller to go to, for example one raised while an object is destroyed.
using TExceptionHandler = std::function<void(std::exception_ptr)>;

/// Installs the receiver and returns the one it replaces. An empty one restores the default, which writes the message
/// to standard error. Applications with windows install one that shows the message.
TExceptionHandler SetExceptionHandler(TExceptionHandler handler);

/// Hands the exception to the receiver; never throws (a receiver that throws is itself reported to standard error).
void HandleException(std::exception_ptr error) noexcept;

/// Runs `call`; an exception goes to HandleException().
template <class F>
void GuardedCall(F&& call) noexcept {
  try {
    std::forward<F>(call)();
  } catch (...) {
    HandleException(std::current_exception());
  }
}

}  // namespace kt
