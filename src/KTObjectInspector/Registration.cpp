#include "kt/KTObjectInspector/Registration.h"

#include "kt/KTItemListEditor/Registration.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/objects/ClassRegistry.h"

namespace kt {

void RegisterObjectInspector() {
  RegisterItemListEditor();
  RegisterClasses({TKTObjectInspector::Class()});
}

}  // namespace kt
