#include "kt/vcl/Registration.h"

#include "kt/vcl/graphics/GraphicsRegistration.h"

namespace kt {

void RegisterVisualPlatform() { RegisterGraphics(); }

}  // namespace kt
