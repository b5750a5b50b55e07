#include "kt/vcl/stdctrls/StdCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/CheckBox.h"
#include "kt/vcl/stdctrls/ComboBox.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "kt/vcl/stdctrls/GroupBox.h"
#include "kt/vcl/stdctrls/Label.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "kt/vcl/stdctrls/Memo.h"
#include "kt/vcl/stdctrls/RadioButton.h"
#include "kt/vcl/stdctrls/ScrollBar.h"

namespace kt {

void RegisterStdCtrls() {
  RegisterClasses({
      TButton::Class(),
      TCheckBox::Class(),
      TComboBox::Class(),
      TEdit::Class(),
      TGroupBox::Class(),
      TLabel::Class(),
      TListBox::Class(),
      TMemo::Class(),
      TRadioButton::Class(),
      TScrollBar::Class(),
  });
}

}  // namespace kt
