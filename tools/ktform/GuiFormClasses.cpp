#include "kt/KTObjectInspector/Registration.h"
#include "ktform/FormClasses.h"

namespace ktform {

void RegisterFormClasses() { kt::RegisterObjectInspector(); }

}  // namespace ktform
