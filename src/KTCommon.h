#pragma once

/// What the parts of the product share.
#include "kt/ktcommon/DeltaFont.h"
#include "kt/ktcommon/HintWindow.h"
#include "kt/ktcommon/KTException.h"
#include "kt/ktcommon/NewLine.h"
#include "kt/ktcommon/RegularExpression.h"
#include "kt/ktcommon/SpecialFiler.h"
