#include "kt/vcl/menus/Menu.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TMenu::Class() {
  static const TClassInfo info = TClassBuilder<TMenu>("TMenu").Done();
  return &info;
}

void TMenu::Construct() {
  TComponent::Construct();
  FItems = Make<TMenuItem>();
  FItems->FMenu = this;
}

void TMenu::Destruct() {
  Destroying();
  FItems.reset();
  TComponent::Destruct();
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

void TMenu::GetChildren(const TGetChildProc& proc, TComponent* root) { FItems->GetChildren(proc, root); }

void TMenu::SetChildOrder(TComponent* child, int order) { FItems->SetChildOrder(child, order); }

}  // namespace kt
