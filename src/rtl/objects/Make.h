#pragma once

#include "kt/rtl/objects/Object.h"

#include <QtGlobal>

#include <concepts>
#include <memory>
#include <utility>

namespace kt {

/// The class that Make() really instantiates: opens the protected constructors of T. It also tells a component whether
/// its class overrides Notification(), so that owners pass by those with nothing to hear.
template <class T>
class TInstance final : public T {
 public:
  template <class... A>
  explicit TInstance(A&&... args) : T(std::forward<A>(args)...) {
    if constexpr (requires { typename T::TNotificationRoot; }) this->SetHearsNotifications(OverridesNotification());
  }

 private:
  template <class C, class... A>
  static C* Declaring(void (C::*)(A...));

  static constexpr bool OverridesNotification() {
    // An override that cannot be named from here is one all the same.
    if constexpr (requires { Declaring(&TInstance::Notification); }) {
      return !std::same_as<decltype(Declaring(&TInstance::Notification)), typename T::TNotificationRoot*>;
    } else {
      return true;
    }
  }
};

/// Creates a T from its constructor's arguments and runs its second phase of construction. The caller owns the result.
/// Passes on whatever the construction throws; nothing is left over then.
template <std::derived_from<TObject> T, class... A>
[[nodiscard]] std::unique_ptr<T> Make(A&&... args) {
  // Placement on plain memory: a destroying delete is no help to a new-expression whose constructor throws.
  void* memory = TObjectLife::Allocate(sizeof(TInstance<T>));
  T* object = nullptr;
  try {
    object = ::new (memory) TInstance<T>(std::forward<A>(args)...);
  } catch (...) {
    TObjectLife::Release(memory);
    throw;
  }
  TObjectLife::Begin(object);
  return std::unique_ptr<T>(object);
}

/// Creates a T that `owner`, its constructor's first argument, owns and frees. Never null; `owner` must not be null.
template <std::derived_from<TObject> T, class O, class... A>
T* New(O* owner, A&&... args) {
  Q_ASSERT(owner);
  return Make<T>(owner, std::forward<A>(args)...).release();
}

}  // namespace kt
