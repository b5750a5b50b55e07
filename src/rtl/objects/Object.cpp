#include "kt/rtl/objects/Object.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeTable.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {
namespace {

class TEnding;
/// The destructions that run inside each other in this thread, the innermost first, and their number.
thread_local const TEnding* Endings = nullptr;
thread_local int Depth = 0;

class TEnding {
 public:
  explicit TEnding(const TObject* object) : Object(object), Outer(Endings) {
    Endings = this;
    ++Depth;
  }
  ~TEnding() {
    --Depth;
    Endings = Outer;
  }
  TEnding(const TEnding&) = delete;
  TEnding& operator=(const TEnding&) = delete;

  const TObject* const Object;
  const TEnding* const Outer;
};

bool IsEnding(const TObject* object) {
  for (const TEnding* ending = Endings; ending; ending = ending->Outer) {
    if (ending->Object == object) return true;
  }
  return false;
}

}  // namespace

const TClassInfo* TObject::Class() {
  static const TClassInfo info = TClassBuilder<TObject>("TObject").Creatable().Done();
  return &info;
}

const QString& TObject::ClassName() const { return ClassType()->ClassName(); }

const TClassInfo* TObject::ClassParent() const { return ClassType()->ClassParent(); }

bool TObject::InheritsFrom(const TClassInfo* ancestor) const { return ClassType()->InheritsFrom(ancestor); }

bool TObject::ClassNameIs(QStringView name) const { return ClassType()->ClassNameIs(name); }

void TObject::operator delete(TObject* self, std::destroying_delete_t) noexcept { TObjectLife::End(self); }

void* TObjectLife::Allocate(std::size_t size) { return ::operator new(size); }

void TObjectLife::Release(void* memory) noexcept { ::operator delete(memory); }

void TObjectLife::Begin(TObject* object) {
  const TLifeWatch watch(object);
  try {
    object->Construct();
    if (watch.IsAlive()) object->AfterConstruction();
  } catch (...) {
    if (watch.IsAlive()) {
      const TEnding ending(object);
      Abandon(object);
    }
    throw;
  }
  if (!watch.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
}

void TObjectLife::Abandon(TObject* object) noexcept {
  GuardedCall([object] { object->Destruct(); });
  // The start of the memory, which is not where TObject lies when another base class comes first.
  void* memory = dynamic_cast<void*>(object);
  TLifeWatch::Forget(object);
  TLifeTable::Forget(object);
  TObjectRef::Forget(object);
  object->~TObject();
  Release(memory);
}

void TObjectLife::End(TObject* object) noexcept {
  // A handler cannot know that what it frees is on its way out already.
  if (IsEnding(object)) return GuardedCall([object] { object->DestructAgain(); });
  const TEnding ending(object);
  GuardedCall([object] { object->BeforeDestruction(); });
  Abandon(object);
}

bool TObjectLife::IsDeep() {
  // A level takes up to some kilobytes in a build with sanitizers, a thread has at least half a megabyte.
  constexpr int kDeep = 100;
  return Depth > kDeep;
}

}  // namespace kt
