#include "kt/vcl/stdctrls/StdCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/stdctrls/ListBox.h"

namespace kt {

void RegisterStdCtrls() { RegisterClasses({TListBox::Class()}); }

}  // namespace kt
