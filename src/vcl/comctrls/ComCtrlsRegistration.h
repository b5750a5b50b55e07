#pragma once

namespace kt {

/// Registers the common controls for streams. Calling it again changes nothing.
void RegisterComCtrls();

}  // namespace kt
