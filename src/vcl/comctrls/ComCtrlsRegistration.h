#pragma once

namespace kt {

/// Registers page controls, status bars, progress bars and track bars; a share of RegisterVisualPlatform().
void RegisterComCtrls();

}  // namespace kt
