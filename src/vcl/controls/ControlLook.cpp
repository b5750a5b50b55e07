// Colour, font and reading direction of TControl, and how they follow the parent.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/controls/WinControl.h"

namespace kt {

void TControl::SetColor(TColor value) {
  if (FColor == value) return;
  FColor = value;
  FParentColor = false;
  Perform(CM_COLORCHANGED);
}

void TControl::SetParentColor(bool value) {
  if (FParentColor == value) return;
  FParentColor = value;
  if (FParent && !HasState(csReading)) Perform(CM_PARENTCOLORCHANGED);
}

void TControl::CMParentColorChanged(TMessage&) {
  if (!FParentColor || !FParent) return;
  const TLifeWatch self(this);
  SetColor(FParent->FColor);
  if (self.IsAlive()) FParentColor = true;
}

void TControl::SetFont(const TFont& value) { FFont->Assign(const_cast<TFont*>(&value)); }

void TControl::FontChanged(TObject*) {
  FParentFont = false;
  Perform(CM_FONTCHANGED);
}

void TControl::SetParentFont(bool value) {
  if (FParentFont == value) return;
  FParentFont = value;
  if (FParent && !HasState(csReading)) Perform(CM_PARENTFONTCHANGED);
}

void TControl::CMParentFontChanged(TMessage&) {
  if (!FParentFont || !FParent) return;
  const TLifeWatch self(this);
  SetFont(*FParent->FFont);
  if (self.IsAlive()) FParentFont = true;
}

void TControl::SetBiDiMode(TBiDiMode value) {
  if (FBiDiMode == value) return;
  FBiDiMode = value;
  FParentBiDiMode = false;
  Perform(CM_BIDIMODECHANGED);
}

void TControl::SetParentBiDiMode(bool value) {
  if (FParentBiDiMode == value) return;
  FParentBiDiMode = value;
  if (FParent && !HasState(csLoading)) Perform(CM_PARENTBIDIMODECHANGED);
}

void TControl::CMParentBiDiModeChanged(TMessage&) {
  if (!FParentBiDiMode || !FParent) return;
  const TLifeWatch self(this);
  SetBiDiMode(FParent->FBiDiMode);
  if (self.IsAlive()) FParentBiDiMode = true;
}

}  // namespace kt
