#pragma once

/// Objects, persistent objects and components, how to make them, and the registry of classes.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Interface.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Object.h"
#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
