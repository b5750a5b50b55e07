#include "ktform/FormClasses.h"

namespace ktform {

// The runtime alone has no class that stands in forms.
void RegisterFormClasses() {}

}  // namespace ktform
