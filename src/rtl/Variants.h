#pragma once

/// Values whose type is known at run time.
#include "kt/rtl/conversions/Variant.h"
