#pragma once

namespace kt {

/// Registers the classes of menus; a share of RegisterVisualPlatform().
void RegisterMenus();

}  // namespace kt
