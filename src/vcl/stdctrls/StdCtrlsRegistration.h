#pragma once

namespace kt {

/// Registers the standard controls for streams. Calling it again changes nothing.
void RegisterStdCtrls();

}  // namespace kt
