#pragma once

namespace kt {

/// Registers what streams have to know of the visual platform: its classes, and the names of colours, cursors and
/// character sets. Programs call it once before they load a form; calling it again changes nothing.
void RegisterVisualPlatform();

}  // namespace kt
