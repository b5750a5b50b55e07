#pragma once

/// String lists, and how text files are encoded.
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/strings/TextEncoding.h"
