#include "kt/vcl/Registration.h"

#include "kt/vcl/forms/FormsRegistration.h"
#include "kt/vcl/graphics/GraphicsRegistration.h"

namespace kt {

void RegisterVisualPlatform() {
  RegisterGraphics();
  RegisterForms();
}

}  // namespace kt
