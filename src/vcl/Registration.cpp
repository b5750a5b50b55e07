#include "kt/vcl/Registration.h"

#include "kt/vcl/actions/ActionsRegistration.h"
#include "kt/vcl/comctrls/ComCtrlsRegistration.h"
#include "kt/vcl/dialogs/DialogsRegistration.h"
#include "kt/vcl/extctrls/ExtCtrlsRegistration.h"
#include "kt/vcl/forms/FormsRegistration.h"
#include "kt/vcl/graphics/GraphicsRegistration.h"
#include "kt/vcl/imagelist/ImageListRegistration.h"
#include "kt/vcl/menus/MenusRegistration.h"
#include "kt/vcl/stdctrls/StdCtrlsRegistration.h"

namespace kt {

void RegisterVisualPlatform() {
  RegisterGraphics();
  RegisterForms();
  RegisterActions();
  RegisterMenus();
  RegisterStdCtrls();
  RegisterExtCtrls();
  RegisterComCtrls();
  RegisterImageLists();
  RegisterDialogs();
}

}  // namespace kt
