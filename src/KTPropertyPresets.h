#pragma once

/// The presets of the object inspector: rules for what items look like and how they are edited.

#include "kt/KTPropertyPresets/MatchClassName.h"
#include "kt/KTPropertyPresets/PresetRegistry.h"
#include "kt/KTPropertyPresets/PresetTypes.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
