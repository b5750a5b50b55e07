#pragma once

#include <exception>

namespace kt {

/// BeginUpdate() now and EndUpdate() at the end of the scope, on whatever has the two. While an exception is under way
/// an exception of EndUpdate() gives way to it.
template <class T>
class TUpdateBracket {
 public:
  explicit TUpdateBracket(T& target) : FTarget(target), FUnderWay(std::uncaught_exceptions()) { FTarget.BeginUpdate(); }
  TUpdateBracket(const TUpdateBracket&) = delete;
  TUpdateBracket& operator=(const TUpdateBracket&) = delete;
  ~TUpdateBracket() noexcept(false) {
    if (std::uncaught_exceptions() == FUnderWay) {
      FTarget.EndUpdate();
      return;
    }
    try {
      FTarget.EndUpdate();
    } catch (...) {
      // The first exception is the one that tells what went wrong.
    }
  }

 private:
  T& FTarget;
  int FUnderWay;
};

}  // namespace kt
