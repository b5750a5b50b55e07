#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace kt {

/// Receives an exception that has no caller to go to, for example one raised while an object is destroyed.
using TExceptionHandler = std::function<void(std::exception_ptr)>;

/// Installs the receiver, one for the process, and returns the one it replaces. Deliberately without a lock: it is set
/// before a second thread uses the runtime, and is called in whatever thread the exception arose, so it has to be fit
/// for that. While it runs, objects are between life and death: it reports, and starts nothing with the object
/// concerned. Whoever throws in it changes nothing: both exceptions go to standard error, and the destruction goes on.
/// An empty one restores the default, which writes the message
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
