#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/TypeOf.h"

namespace kt {

/// The side on which tabs stand.
enum TTabPosition { tpTop, tpBottom, tpLeft, tpRight };
/// Tabs, or buttons, or buttons that only the present page's one stands out as.
enum TTabStyle { tsTabs, tsButtons, tsFlatButtons };

/// The user wants to leave the present page; a handler that sets the last one to false keeps him there.
struct TTabChangingEvent : TEvent<TObject*, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TTabChangingEvent";
};
/// Sender wants the picture of a tab, which a handler may change: the index of the tab, the number of the picture.
struct TTabGetImageEvent : TEvent<TObject*, int, int&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TTabGetImageEvent";
};

template <>
struct TEnumNames<TTabPosition> {
  static constexpr char Name[] = "TTabPosition";
  static constexpr const char* Values[] = {"tpTop", "tpBottom", "tpLeft", "tpRight"};
};
template <>
struct TEnumNames<TTabStyle> {
  static constexpr char Name[] = "TTabStyle";
  static constexpr const char* Values[] = {"tsTabs", "tsButtons", "tsFlatButtons"};
};

}  // namespace kt
