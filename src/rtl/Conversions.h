#pragma once

/// Numbers, dates and texts: their conversions, comparisons and formats.
#include "kt/rtl/conversions/FloatText.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
