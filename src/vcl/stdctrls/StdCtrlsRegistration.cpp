#include "kt/vcl/stdctrls/StdCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/CheckBox.h"
#include "kt/vcl/stdctrls/GroupBox.h"
#include "kt/vcl/stdctrls/Label.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "kt/vcl/stdctrls/RadioButton.h"

namespace kt {

void RegisterStdCtrls() {
  RegisterClasses({TButton::Class(), TCheckBox::Class(), TGroupBox::Class(), TLabel::Class(), TListBox::Class(),
                   TRadioButton::Class()});
}

}  // namespace kt
