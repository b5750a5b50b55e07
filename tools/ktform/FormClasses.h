#pragma once

namespace ktform {

/// Registers the classes that forms may name: all that this build of the program has. Needs no display and no
/// application object; properties of other classes are told by what the form itself holds.
void RegisterFormClasses();

}  // namespace ktform
