#pragma once

namespace kt {

/// Makes the object inspector, and what it stands on, known to forms. May be called any number of times.
void RegisterObjectInspector();

}  // namespace kt
