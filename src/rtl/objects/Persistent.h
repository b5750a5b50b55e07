#pragma once

#include "kt/rtl/objects/Object.h"

namespace kt {

class TFiler;

/// An object whose published properties can be copied and streamed.
class TPersistent : public TObject {
 public:
  using Inherited = TObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Copies `source` into this object. Overrides copy from the classes they know and pass all others to the inherited
  /// Assign(), which asks source->AssignTo(). Raises EConvertError "Cannot assign a %s to a %s" when neither side knows
  /// how.
  virtual void Assign(TPersistent* source);
  /// The path of names by which object inspectors and messages call this object: the owner's path, a dot, and the class
  /// name.
  virtual QString GetNamePath();
  /// The object that this one belongs to, or null; what GetOwner() of the class says.
  TPersistent* OwnerOf() { return GetOwner(); }

 protected:
  friend class TReader;
  friend class TUndoLog;
  friend class TWriter;

  TPersistent() = default;

  void Destruct() override;
  /// Copies this object into `dest`, for destinations whose class does not know this one. Raises as Assign() says.
  virtual void AssignTo(TPersistent* dest);
  /// Declares what is streamed besides the published properties.
  virtual void DefineProperties(TFiler&) {}
  virtual TPersistent* GetOwner() { return nullptr; }

 private:
  [[noreturn]] void AssignError(TPersistent* source);
};

}  // namespace kt
