#pragma once

#include "kt/vcl/stdctrls/CustomEdit.h"

namespace kt {

/// What the in-place editor of a grid needs besides a line editor: the text it began with, and a mask for what may be
/// typed. This one lets everything be typed; an editor that knows masks takes its place.
class TInplaceEditBase : public TCustomEdit {
 public:
  using Inherited = TCustomEdit;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetEditMask() const { return FEditMask; }
  void SetEditMask(const QString& value) { FEditMask = value; }
  /// Raises an exception when the text does not fulfil the mask.
  virtual void ValidateEdit() {}
  /// Back to the text that the editor was given last.
  virtual void Reset();
  void SetText(const QString& value) override;

 protected:
  explicit TInplaceEditBase(TComponent* owner = nullptr) : TCustomEdit(owner) {}

  /// Whether the user may change the text.
  virtual bool EditCanModify() { return true; }

 private:
  QString FEditMask;
  QString FOldText;
};

}  // namespace kt
