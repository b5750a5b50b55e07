#pragma once

#include "kt/rtl/objects/LifeWatch.h"

#include <concepts>
#include <exception>

namespace kt {

class TObject;

/// BeginUpdate() now and EndUpdate() at the end of the scope, on whatever has the two. While an exception is under way
/// an exception of EndUpdate() gives way to it. An object that handlers free meanwhile is left alone.
template <class T>
class TUpdateBracket {
 public:
  explicit TUpdateBracket(T& target) : FTarget(target), FLife(ObjectIn(target)), FUnderWay(std::uncaught_exceptions()) {
    FTarget.BeginUpdate();
  }
  TUpdateBracket(const TUpdateBracket&) = delete;
  TUpdateBracket& operator=(const TUpdateBracket&) = delete;
  ~TUpdateBracket() noexcept(false) {
    if (!IsAlive()) return;
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

  /// Whether the target is still there; always, for what is no object.
  bool IsAlive() const { return !std::derived_from<T, TObject> || FLife.IsAlive(); }

 private:
  static const TObject* ObjectIn(T& target) {
    if constexpr (std::derived_from<T, TObject>) {
      return &target;
    } else {
      return nullptr;
    }
  }

  T& FTarget;
  TLifeWatch FLife;
  int FUnderWay;
};

}  // namespace kt
