#include "kt/vcl/forms/FormsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "kt/vcl/mask/MaskEdit.h"

namespace kt {

void RegisterForms() { RegisterClasses({TForm::Class(), TDrawGrid::Class(), TMaskEdit::Class()}); }

}  // namespace kt
