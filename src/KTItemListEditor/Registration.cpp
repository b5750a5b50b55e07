#include "kt/KTItemListEditor/Registration.h"

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/Registration.h"

namespace kt {

void RegisterItemListEditor() {
  RegisterVisualPlatform();
  RegisterClasses({TKTItemListEditor::Class()});
}

}  // namespace kt
