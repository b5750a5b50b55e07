#include "kt/vcl/menus/MenusRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/menus/PopupMenu.h"

namespace kt {

void RegisterMenus() { RegisterClasses({TMainMenu::Class(), TMenuItem::Class(), TPopupMenu::Class()}); }

}  // namespace kt
