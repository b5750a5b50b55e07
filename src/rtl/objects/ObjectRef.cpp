#include "kt/rtl/objects/ObjectRef.h"

#include <memory>
#include <unordered_map>

namespace kt {
namespace {

using TFirstRefs = std::unordered_map<const TObject*, TObjectRef*>;

/// The first reference to each object that has some; null while there are none, which is also what is left for objects
/// that outlive the thread's variables.
thread_local TFirstRefs* FirstRefs = nullptr;

void SetFirst(const TObject* object, TObjectRef* first) {
  if (!FirstRefs) FirstRefs = new TFirstRefs;
  (*FirstRefs)[object] = first;
}

void RemoveFirst(const TObject* object) noexcept {
  FirstRefs->erase(object);
  if (!FirstRefs->empty()) return;
  delete FirstRefs;
  FirstRefs = nullptr;
}

TObjectRef* FirstOf(const TObject* object) {
  if (!FirstRefs) return nullptr;
  const auto found = FirstRefs->find(object);
  return found == FirstRefs->end() ? nullptr : found->second;
}

}  // namespace

TObjectRef& TObjectRef::operator=(TObject* object) {
  if (object == FObject) return *this;
  Unlink();
  Link(object);
  return *this;
}

void TObjectRef::Link(TObject* object) {
  if (!object) return;
  TObjectRef* first = FirstOf(object);
  if (!first) SetFirst(object, this);
  // Second in the chain, so that the table stays as it is.
  FObject = object;
  FPrevious = first;
  FNext = first ? first->FNext : nullptr;
  if (first) first->FNext = this;
  if (FNext) FNext->FPrevious = this;
}

void TObjectRef::Unlink() noexcept {
  if (!FObject) return;
  if (FNext) FNext->FPrevious = FPrevious;
  if (FPrevious) {
    FPrevious->FNext = FNext;
  } else if (FNext) {
    FirstRefs->find(FObject)->second = FNext;
  } else {
    RemoveFirst(FObject);
  }
  FObject = nullptr;
  FPrevious = FNext = nullptr;
}

void TObjectRef::Forget(const TObject* object) noexcept {
  TObjectRef* ref = FirstOf(object);
  if (!ref) return;
  while (ref) {
    TObjectRef* next = ref->FNext;
    ref->FObject = nullptr;
    ref->FPrevious = ref->FNext = nullptr;
    ref = next;
  }
  RemoveFirst(object);
}

}  // namespace kt
