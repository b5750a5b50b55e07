#include "kt/vcl/forms/FormsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/grids/DrawGrid.h"

namespace kt {

void RegisterForms() { RegisterClasses({TForm::Class(), TDrawGrid::Class()}); }

}  // namespace kt
