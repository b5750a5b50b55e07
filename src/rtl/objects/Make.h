#pragma once

#include "kt/rtl/objects/Object.h"

#include <QtGlobal>

#include <concepts>
#include <memory>
#include <utility>

namespace kt {

/// The class that Make() really instantiates: opens the protected constructors of T and adds nothing.
template <class T>
class TInstance final : public T {
 public:
  template <class... A>
  explicit TInstance(A&&... args) : T(std::forward<A>(args)...) {}
};

/// Creates a T from its constructor's arguments and runs its second phase of construction. The caller owns the result.
/// Passes on whatever the construction throws; nothing is left over then.
template <std::derived_from<TObject> T, class... A>
[[nodiscard]] std::unique_ptr<T> Make(A&&... args) {
  // Placement on plain memory: a destroying delete is no help to a new-expression whose constructor throws.
  auto memory = ::operator new(sizeof(TInstance<T>));
  T* object = nullptr;
  try {
    object = ::new (memory) TInstance<T>(std::forward<A>(args)...);
  } catch (...) {
    ::operator delete(memory);
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
