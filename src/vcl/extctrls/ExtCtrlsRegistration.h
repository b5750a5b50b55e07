#pragma once

namespace kt {

/// Registers panels, images, bevels, paint boxes and shapes for streams. Calling it again changes nothing.
void RegisterExtCtrls();

}  // namespace kt
