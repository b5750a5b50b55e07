#include "kt/KTItemListEditor/Registration.h"
#include "ktform/FormClasses.h"

namespace ktform {

void RegisterFormClasses() { kt::RegisterItemListEditor(); }

}  // namespace ktform
