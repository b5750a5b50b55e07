#pragma once

/// Numbers, dates and texts: their conversions, comparisons and formats.

#include "kt/rtl/conversions/DateTimes.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Numbers.h"
#include "kt/rtl/conversions/Text.h"
