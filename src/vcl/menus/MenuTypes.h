#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"

namespace kt {

class TMenuItem;

/// Whether an entry begins a new column, with a line before it or without. Kept for the forms that say it: Qt's menus
/// have one column until the screen is too low for them.
enum TMenuBreak { mbNone, mbBreak, mbBarBreak };

/// Whether something is done by itself; maParent leaves it to the menu further out.
enum TMenuItemAutoFlag { maAutomatic, maManual, maParent };
/// Without maParent. Published with MenuAutoFlagTypeInfo().
using TMenuAutoFlag = TMenuItemAutoFlag;
const TTypeInfo* MenuAutoFlagTypeInfo();

/// Where a menu slides in from. Kept for the forms that say it: the style of the desktop decides.
enum TMenuAnimations { maLeftToRight, maRightToLeft, maTopToBottom, maBottomToTop, maNone };
using TMenuAnimation = TSet<TMenuAnimations>;

/// The button of the mouse that chooses from a pop-up menu. Kept for the forms that say it: Qt's menus take both.
enum TTrackButton { tbRightButton, tbLeftButton };

/// Sender is the menu; the entry that has changed, null for the menu itself; whether entries have come or gone.
struct TMenuChangeEvent : TEvent<TObject*, TMenuItem*, bool> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TMenuChangeEvent";
};

template <>
struct TEnumNames<TMenuBreak> {
  static constexpr char Name[] = "TMenuBreak";
  static constexpr const char* Values[] = {"mbNone", "mbBreak", "mbBarBreak"};
};
template <>
struct TEnumNames<TMenuItemAutoFlag> {
  static constexpr char Name[] = "TMenuItemAutoFlag";
  static constexpr const char* Values[] = {"maAutomatic", "maManual", "maParent"};
};
template <>
struct TEnumNames<TMenuAnimations> {
  static constexpr char Name[] = "TMenuAnimations";
  static constexpr const char* Values[] = {"maLeftToRight", "maRightToLeft", "maTopToBottom", "maBottomToTop",
                                           "maNone"};
  static constexpr char SetName[] = "TMenuAnimation";
};
template <>
struct TEnumNames<TTrackButton> {
  static constexpr char Name[] = "TTrackButton";
  static constexpr const char* Values[] = {"tbRightButton", "tbLeftButton"};
};

}  // namespace kt
