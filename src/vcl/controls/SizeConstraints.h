#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/Event.h"

namespace kt {

class TControl;

/// The least and greatest size of a control, in pixels; 0 is no limit. Belongs to its control.
class TSizeConstraints : public TPersistent {
 public:
  using Inherited = TPersistent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  void Assign(TPersistent* source) override;

  int GetMaxHeight() const { return FMaxHeight; }
  int GetMaxWidth() const { return FMaxWidth; }
  int GetMinHeight() const { return FMinHeight; }
  int GetMinWidth() const { return FMinWidth; }
  /// A negative value counts as none. A limit that crosses its opposite takes that one along.
  void SetMaxHeight(int value);
  void SetMaxWidth(int value);
  void SetMinHeight(int value);
  void SetMinWidth(int value);

  /// Cuts a width or height to the limits.
  int ClampWidth(int width) const;
  int ClampHeight(int height) const;

  TNotifyEvent OnChange;

 protected:
  explicit TSizeConstraints(TControl* control) : FControl(control) {}
  TPersistent* GetOwner() override;
  /// Brings the control to a permitted size and raises OnChange.
  virtual void Change();

 private:
  void SetMax(int& max, int& min, int value);
  void SetMin(int& min, int& max, int value);

  TControl* FControl;
  int FMaxHeight = 0;
  int FMaxWidth = 0;
  int FMinHeight = 0;
  int FMinWidth = 0;
};

}  // namespace kt
