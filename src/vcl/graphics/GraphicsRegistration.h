#pragma once

namespace kt {

/// The share of this folder in RegisterVisualPlatform().
void RegisterGraphics();

}  // namespace kt
