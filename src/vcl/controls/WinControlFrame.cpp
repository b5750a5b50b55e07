// What forms say of the frames of windows, and of input methods.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/WinControl.h"

namespace kt {

void TWinControl::SetCtl3D(bool value) {
  if (FFrame.IsCtl3D == value) return;
  FFrame.IsCtl3D = value;
  FFrame.IsParentCtl3D = false;
  Perform(CM_CTL3DCHANGED);
}

void TWinControl::SetParentCtl3D(bool value) {
  if (FFrame.IsParentCtl3D == value) return;
  FFrame.IsParentCtl3D = value;
  if (GetParent() && !HasState(csReading)) Perform(CM_PARENTCTL3DCHANGED);
}

void TWinControl::CMCtl3DChanged(TMessage&) {
  Invalidate();
  NotifyControls(CM_PARENTCTL3DCHANGED);
}

void TWinControl::CMParentCtl3DChanged(TMessage&) {
  if (!FFrame.IsParentCtl3D || !GetParent()) return;
  const TLifeWatch self(this);
  SetCtl3D(GetParent()->IsCtl3D());
  if (self.IsAlive()) FFrame.IsParentCtl3D = true;
}

void TWinControl::SetImeMode(TImeMode value) {
  FImeMode = value;
  if (HandleAllocated()) FWindow->setAttribute(Qt::WA_InputMethodEnabled, value != imDisable);
}

}  // namespace kt
