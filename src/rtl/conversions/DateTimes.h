#pragma once

/// Dates and times: their parts, texts and pictures.
#include "kt/rtl/conversions/DateTime.h"
#include "kt/rtl/conversions/DateTimeFormat.h"
#include "kt/rtl/conversions/DateTimeParse.h"
