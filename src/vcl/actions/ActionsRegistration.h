#pragma once

namespace kt {

/// Registers the classes of actions; a share of RegisterVisualPlatform().
void RegisterActions();

}  // namespace kt
