#pragma once

#include "kt/rtl/collections/ThreadList.h"

#include <initializer_list>

namespace kt {

class TClassInfo;

/// The classes of presets that inspectors start with. Shared by the whole process; every operation holds the list's
/// lock while it walks.

/// Registers a class of presets for streams, and it and its ancestors below TKTPropertyPreset for inspectors: goes up
/// and stops at the first one that is there already. Raises EFilerError as RegisterClass() does, and registers nothing
/// then. `presetClass` must be a descendant of TKTPropertyPreset, or that class itself.
void RegisterPreset(const TClassInfo* presetClass);
/// One after the other.
void RegisterPresets(std::initializer_list<const TClassInfo*> presetClasses);
/// Takes a class and its ancestors off the list: goes up and stops at the first one that is not there. Streams go on to
/// know them.
void UnregisterPreset(const TClassInfo* presetClass);
void UnregisterPresets(std::initializer_list<const TClassInfo*> presetClasses);

/// The classes in the order of their registration, each `const TClassInfo*`; lock it to walk through it. Null until the
/// first one is registered.
TThreadListOf<const TClassInfo>* RegisteredPresets();

}  // namespace kt
