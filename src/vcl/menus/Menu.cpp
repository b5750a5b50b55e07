#include "kt/vcl/menus/Menu.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/imagelist/ImageList.h"

#include <utility>

namespace kt {

const TTypeInfo* MenuAutoFlagTypeInfo() {
  static const TEnumTypeInfo info(QStringLiteral("TMenuAutoFlag"),
                                  {QStringLiteral("maAutomatic"), QStringLiteral("maManual")});
  return &info;
}

const TClassInfo* TMenu::Class() {
  static const TClassInfo info = TClassBuilder<TMenu>("TMenu").Done();
  return &info;
}

void TMenu::Construct() {
  // Before the owner hears of the menu and looks into it.
  FItems = Make<TMenuItem>();
  FItems->FMenu = this;
  TComponent::Construct();
}

void TMenu::Destruct() {
  Destroying();
  FImages.reset();
  FItems.reset();
  TComponent::Destruct();
}

void TMenu::Loaded() {
  TComponent::Loaded();
  MenuChanged(nullptr, true);
}

bool TMenu::IsShortCut(quint16 key, TShiftState shift) {
  TMenuItem* item = FItems->FindShortCut(ShortCut(key, shift));
  if (!item) return false;
  // It may be about to be disabled.
  const TLifeWatch self(this);
  item->InitiateActions();
  item = self.IsAlive() ? FItems->FindShortCut(ShortCut(key, shift)) : nullptr;
  if (item) item->Click();
  return true;
}

void TMenu::MenuChanged(TMenuItem* source, bool rebuild) {
  if (!HasState(csLoading) && !HasState(csDestroying)) DoChange(source, rebuild);
}

void TMenu::SetAutoHotkeys(TMenuAutoFlag value) {
  if (std::exchange(FAutoHotkeys, value) != value) MenuChanged(nullptr, true);
}

void TMenu::SetAutoLineReduction(TMenuAutoFlag value) {
  if (std::exchange(FAutoLineReduction, value) != value) MenuChanged(nullptr, true);
}

TBiDiMode TMenu::GetBiDiMode() const {
  const auto* control = FParentBiDiMode ? dynamic_cast<const TControl*>(GetOwnerComponent()) : nullptr;
  return control ? control->GetBiDiMode() : FBiDiMode;
}

void TMenu::SetBiDiMode(TBiDiMode value) {
  if (FBiDiMode == value && !FParentBiDiMode) return;
  FBiDiMode = value;
  FParentBiDiMode = false;
  MenuChanged(nullptr, true);
}

void TMenu::SetParentBiDiMode(bool value) {
  if (std::exchange(FParentBiDiMode, value) != value) MenuChanged(nullptr, true);
}

void TMenu::SetImages(TCustomImageList* value) {
  if (GetImages() == value) return;
  FollowImages(FImages, value, TNotifyEvent([this](TObject*) { MenuChanged(nullptr, true); }));
  MenuChanged(nullptr, true);
}

void TMenu::GetChildren(const TGetChildProc& proc, TComponent* root) { FItems->GetChildren(proc, root); }

void TMenu::SetChildOrder(TComponent* child, int order) { FItems->SetChildOrder(child, order); }

}  // namespace kt
