#pragma once

namespace kt {

class TObject;

/// A pointer to an object that it does not own, and that becomes null when the memory of the object goes. For members
/// and lists; TLifeWatch is for the time of a call. Used from the thread that uses the object; costs a search in a
/// table for each object destroyed while there are any.
class TObjectRef {
 public:
  explicit TObjectRef(TObject* object = nullptr) { Link(object); }
  TObjectRef(const TObjectRef& other) { Link(other.FObject); }
  // The other assignment tells whether there is anything to do.
  TObjectRef& operator=(const TObjectRef& other) {  // NOLINT(bugprone-unhandled-self-assignment)
    return *this = other.FObject;
  }
  TObjectRef& operator=(TObject* object);
  ~TObjectRef() { Unlink(); }

  TObject* Get() const { return FObject; }
  explicit operator bool() const { return FObject != nullptr; }

  /// Tells all references of this thread that the memory of an object is about to go.
  static void Forget(const TObject* object) noexcept;

 private:
  void Link(TObject* object);
  void Unlink() noexcept;

  TObject* FObject = nullptr;
  /// The other references to the same object.
  TObjectRef* FPrevious = nullptr;
  TObjectRef* FNext = nullptr;
};

}  // namespace kt
