#pragma once

namespace kt {

/// Registers the classes of image lists; a share of RegisterVisualPlatform().
void RegisterImageLists();

}  // namespace kt
