#include "kt/vcl/comctrls/ComCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/StatusBar.h"
#include "kt/vcl/comctrls/TabSheet.h"

namespace kt {

void RegisterComCtrls() { RegisterClasses({TPageControl::Class(), TStatusBar::Class(), TTabSheet::Class()}); }

}  // namespace kt
