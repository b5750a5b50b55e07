#pragma once

namespace kt {

/// Registers timers and other additional controls; a share of RegisterVisualPlatform().
void RegisterExtCtrls();

}  // namespace kt
