#pragma once

/// Numbers to text and back.
#include "kt/rtl/conversions/Currency.h"
#include "kt/rtl/conversions/FloatMask.h"
#include "kt/rtl/conversions/FloatText.h"
#include "kt/rtl/conversions/Floats.h"
#include "kt/rtl/conversions/Integers.h"
#include "kt/rtl/conversions/NeutralNumbers.h"
