#include "kt/vcl/menus/Menu.h"

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
  TMenuItem* const item = FItems->FindShortCut(ShortCut(key, shift));
  if (item) item->Click();
  return item != nullptr;
}

void TMenu::GetChildren(const TGetChildProc& proc, TComponent* root) { FItems->GetChildren(proc, root); }

void TMenu::SetChildOrder(TComponent* child, int order) { FItems->SetChildOrder(child, order); }

}  // namespace kt
