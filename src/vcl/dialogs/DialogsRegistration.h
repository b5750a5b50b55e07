#pragma once

namespace kt {

/// Registers the dialogs that stand on forms; a share of RegisterVisualPlatform().
void RegisterDialogs();

}  // namespace kt
