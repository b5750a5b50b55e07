#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/Event.h"

namespace kt {

class TControl;

/// The least and greatest size, in pixels; 0 is no limit. Where they cross, the least one holds.
struct TSizeLimits {
  int MinWidth = 0;
  int MinHeight = 0;
  int MaxWidth = 0;
  int MaxHeight = 0;

  int ClampWidth(int width) const;
  int ClampHeight(int height) const;
};

/// The least and greatest size of a control, in pixels; 0 is no limit. Belongs to its control.
class TSizeConstraints : public TPersistent {
 public:
  using Inherited = TPersistent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  void Assign(TPersistent* source) override;

  int GetMaxHeight() const { return FLimits.MaxHeight; }
  int GetMaxWidth() const { return FLimits.MaxWidth; }
  int GetMinHeight() const { return FLimits.MinHeight; }
  int GetMinWidth() const { return FLimits.MinWidth; }
  /// A negative value counts as none. A limit that crosses its opposite takes that one along.
  void SetMaxHeight(int value);
  void SetMaxWidth(int value);
  void SetMinHeight(int value);
  void SetMinWidth(int value);

  const TSizeLimits& GetLimits() const { return FLimits; }

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
  TSizeLimits FLimits;
};

}  // namespace kt
