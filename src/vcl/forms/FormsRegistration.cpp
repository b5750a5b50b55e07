#include "kt/vcl/forms/FormsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/ScrollBox.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "kt/vcl/mask/MaskEdit.h"

namespace kt {

void RegisterForms() { RegisterClasses({TForm::Class(), TScrollBox::Class(), TDrawGrid::Class(), TMaskEdit::Class()}); }

}  // namespace kt
