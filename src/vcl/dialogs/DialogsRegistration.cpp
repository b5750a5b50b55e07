#include "kt/vcl/dialogs/DialogsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/dialogs/ColorDialog.h"
#include "kt/vcl/dialogs/FontDialog.h"
#include "kt/vcl/dialogs/OpenDialog.h"

namespace kt {

void RegisterDialogs() {
  RegisterClasses({TColorDialog::Class(), TFontDialog::Class(), TOpenDialog::Class(), TSaveDialog::Class()});
}

}  // namespace kt
