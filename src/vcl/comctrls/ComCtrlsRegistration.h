#pragma once

namespace kt {

/// Registers page controls, status bars and their like; a share of RegisterVisualPlatform().
void RegisterComCtrls();

}  // namespace kt
