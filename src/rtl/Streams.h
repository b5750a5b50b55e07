#pragma once

/// Reading and writing components: the binary and the text object format.
#include "kt/rtl/streams/FileSaving.h"
#include "kt/rtl/streams/Filer.h"
#include "kt/rtl/streams/Fixups.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/IntegerConsts.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/TextPlaces.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/streams/Writer.h"
