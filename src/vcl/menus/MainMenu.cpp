#include "kt/vcl/menus/MainMenu.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/imagelist/ImageList.h"

namespace kt {

const TClassInfo* TMainMenu::Class() {
  using T = TMainMenu;
  static const TClassInfo info =
      TClassBuilder<T>("TMainMenu")
          .Property<&T::GetAutoHotkeys, &T::SetAutoHotkeys>("AutoHotkeys", &MenuAutoFlagTypeInfo)
          .Default(maAutomatic)
          .Property<&T::GetAutoLineReduction, &T::SetAutoLineReduction>("AutoLineReduction", &MenuAutoFlagTypeInfo)
          .Default(maAutomatic)
          .Property<&T::IsAutoMerge, &T::SetAutoMerge>("AutoMerge")
          .Default(false)
          .Property<&T::GetBiDiMode, &T::SetBiDiMode>("BiDiMode")
          .Stored(&T::IsBiDiModeStored)
          .Property<&T::GetImages, &T::SetImages>("Images")
          .Property<&T::IsOwnerDraw, &T::SetOwnerDraw>("OwnerDraw")
          .Default(false)
          .Property<&T::IsParentBiDiMode, &T::SetParentBiDiMode>("ParentBiDiMode")
          .Default(true)
          .Property<&T::OnChange>("OnChange")
          .Creatable()
          .Done();
  return &info;
}

void TMainMenu::DoChange(TMenuItem* source, bool rebuild) {
  const TLifeWatch self(this);
  FOnBarChange(this);
  if (self.IsAlive()) TMenu::DoChange(source, rebuild);
}

}  // namespace kt
