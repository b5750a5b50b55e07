#pragma once

#include "kt/rtl/objects/Message.h"

#include <QString>

#include <new>

namespace kt {

class TClassInfo;

/// The root of every framework class.
///
/// Life has two phases at both ends, so that a virtual call always reaches the most derived class. Make() and New() run
/// the C++ constructors, which only store their arguments, then Construct() and AfterConstruction() on the complete
/// object. `delete`, `unique_ptr` and owners run BeforeDestruction() and Destruct() on the still complete object, then
/// the C++ destructors, which only release memory. Overrides of Construct() call the inherited one where the
/// construction order of the class has it; overrides of Destruct() usually call it last.
///
/// A Construct() or AfterConstruction() that throws gets the object destroyed (Destruct() without BeforeDestruction())
/// and the exception passed on; Destruct() must therefore cope with a half-built object. An exception that leaves
/// Destruct() or BeforeDestruction() cannot stop the destruction: it is handed to HandleException() and the destruction
/// goes on.
///
/// An object that is deleted again while it is being destroyed, as by a handler that hears of what it leaves, is
/// destroyed once: the second time only DestructAgain() runs.
///
/// Constructors are protected: no framework object lives on the stack. An object is used from one thread at a time.
class TObject {
 public:
  /// What a class reference to this class needs to create an instance: nothing, here.
  using TCreatedIn = void;

  TObject(const TObject&) = delete;
  TObject& operator=(const TObject&) = delete;
  virtual ~TObject() = default;

  static const TClassInfo* Class();
  /// The class of this very object.
  virtual const TClassInfo* ClassType() const { return Class(); }

  const QString& ClassName() const;
  /// Null for TObject itself.
  const TClassInfo* ClassParent() const;
  /// True for the object's own class too.
  bool InheritsFrom(const TClassInfo* ancestor) const;
  /// Compares without regard to ASCII case; ancestors do not count.
  bool ClassNameIs(QStringView name) const;

  /// Hands a message to the handler of this class for its number. A class overrides this with a switch over the numbers
  /// it knows and passes all others to the inherited Dispatch(); at the root they end in DefaultHandler().
  virtual void Dispatch(TMessage& message) { DefaultHandler(message); }
  virtual void DefaultHandler(TMessage&) {}

  static void operator delete(TObject* self, std::destroying_delete_t) noexcept;

 protected:
  TObject() = default;

  virtual void Construct() {}
  virtual void AfterConstruction() {}
  virtual void BeforeDestruction() {}
  virtual void Destruct() {}
  /// Leaves the lists of those who wait for the object to be gone from them.
  virtual void DestructAgain() {}

 private:
  friend struct TObjectLife;
};

/// The two ends of an object's life; for Make() only.
struct TObjectLife {
  /// Memory for an object, and its return when no object came to lie there. Both are of the library that frees objects.
  static void* Allocate(std::size_t size);
  static void Release(void* memory) noexcept;
  /// Runs the second phase of construction; when it fails, destroys the object and passes the exception on.
  static void Begin(TObject* object);
  /// Destroys an object whose construction failed.
  static void Abandon(TObject* object) noexcept;
  static void End(TObject* object) noexcept;
  /// True while so many destructions run inside each other in this thread that the stack might end: whoever owns a tree
  /// then destroys it from its leaves.
  static bool IsDeep();
};

}  // namespace kt
