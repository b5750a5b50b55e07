#pragma once

namespace kt {

/// Registers the classes of controls, grids and forms; a share of RegisterVisualPlatform().
void RegisterForms();

}  // namespace kt
