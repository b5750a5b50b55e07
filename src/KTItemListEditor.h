#pragma once

/// The item list editor: a grid of named items with values, child items and categories.

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemListTypes.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemStrings.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/KTItemListEditor/Registration.h"
#include "kt/rtl/strings/StringList.h"
