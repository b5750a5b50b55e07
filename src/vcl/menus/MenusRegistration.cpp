#include "kt/vcl/menus/MenusRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/menus/PopupMenu.h"

namespace kt {

void RegisterMenus() { RegisterClasses({TMenuItem::Class(), TPopupMenu::Class()}); }

}  // namespace kt
