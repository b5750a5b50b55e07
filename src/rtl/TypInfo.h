#pragma once

/// Reflection: type infos, class infos, and the operations that read and write published properties.
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropListener.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropPath.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/rtl/typeinfo/TypeInfo.h"
#include "kt/rtl/typeinfo/TypeOf.h"
