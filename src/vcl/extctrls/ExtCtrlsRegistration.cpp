#include "kt/vcl/extctrls/ExtCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/extctrls/Timer.h"

namespace kt {

void RegisterExtCtrls() { RegisterClasses({TTimer::Class()}); }

}  // namespace kt
