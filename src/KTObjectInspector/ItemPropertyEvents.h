#pragma once

#include "kt/KTObjectInspector/ItemProperty.h"

namespace kt {

/// The events of an item that has some: made at the first use of any of them.
struct TKTItemProperty::TEvents {
  TKTItemGetPropertyEvent OnGetProperty;
  TKTItemSetPropertyEvent OnSetProperty;
  TKTItemPropertyEvent OnRefreshValue;
};

}  // namespace kt
