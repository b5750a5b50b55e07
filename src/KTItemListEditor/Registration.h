#pragma once

namespace kt {

/// Registers the item list editor, and the visual platform that it stands on, for streams. Programs call it once before
/// they load a form with one; calling it again changes nothing.
void RegisterItemListEditor();

}  // namespace kt
