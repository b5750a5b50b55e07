#pragma once

/// Collections and lists.
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/collections/List.h"
#include "kt/rtl/collections/ThreadList.h"
#include "kt/rtl/collections/UpdateBracket.h"
