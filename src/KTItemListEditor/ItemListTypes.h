#pragma once

#include "kt/ktcommon/KTException.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/grids/GridTypes.h"

namespace kt {

class TKTItemProp;

/// The only exception class that the item list editor and the object inspector raise themselves.
class ETORVException : public EKTException {
  using EKTException::EKTException;
};

/// Which axis of the grid carries the items.
enum TKTGridOrientation {
  goVertical,   ///< items run down the rows
  goHorizontal  ///< items run across the columns
};

enum TILEDisplayOption {
  doColumnTitles,   ///< a title line
  doAutoColResize,  ///< the columns fill the width
  doKeyColFixed,    ///< column 0 keeps its width meanwhile
  doShowReadOnly,   ///< read-only items have rows
  doMultiColValues  ///< more than one value field
};
using TILEDisplayOptions = TSet<TILEDisplayOption>;

enum TILEPropOption {
  propEdit,    ///< names can be selected and edited
  propAdd,     ///< items can be added by key
  propDelete,  ///< items can be deleted by key
  propUnique   ///< names are unique within a level
};
using TILEPropOptions = TSet<TILEPropOption>;

/// What the hint of a value cell shows.
enum TGridShowHints {
  shNone,         ///< there are no hints, not even for names
  shValueOnly,    ///< the text of the cell
  shHintOnly,     ///< the item's Hint
  shValueAndHint  ///< the text, and below it the hint in parentheses
};

/// Fills `values` with what the user can pick for the item of that full path name.
struct TKTGetPickListEvent : TEvent<TObject*, const QString& /*propName*/, TStrings& /*values*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTGetPickListEvent";
};
/// `item` is null for the blank line; `column` is the value column that holds the cursor.
struct TKTOnValidateEvent : TEvent<TObject*, TKTItemProp* /*item*/, int /*column*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTOnValidateEvent";
};
/// `error` may be thrown again.
struct TKTOnValidateErrorEvent : TEvent<TObject*, TKTItemProp*, int, const Exception& /*error*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTOnValidateErrorEvent";
};
/// May change or clear the text of the hint for an item.
struct TKTOnShowHintsEvent : TEvent<TObject*, TKTItemProp* /*item*/, QString& /*hint*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTOnShowHintsEvent";
};
/// May change or clear the category that the map has for the item under `propName`.
struct TKTGetCategoryEvent
    : TEvent<TObject*, TKTItemProp* /*item*/, const QString& /*propName*/, QString& /*category*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTGetCategoryEvent";
};

template <>
struct TEnumNames<TKTGridOrientation> {
  static constexpr char Name[] = "TKTGridOrientation";
  static constexpr const char* Values[] = {"goVertical", "goHorizontal"};
};
template <>
struct TEnumNames<TILEDisplayOption> {
  static constexpr char Name[] = "TILEDisplayOption";
  static constexpr char SetName[] = "TILEDisplayOptions";
  static constexpr const char* Values[] = {"doColumnTitles", "doAutoColResize", "doKeyColFixed", "doShowReadOnly",
                                           "doMultiColValues"};
};
template <>
struct TEnumNames<TILEPropOption> {
  static constexpr char Name[] = "TILEPropOption";
  static constexpr char SetName[] = "TILEPropOptions";
  static constexpr const char* Values[] = {"propEdit", "propAdd", "propDelete", "propUnique"};
};

template <>
struct TEnumNames<TGridShowHints> {
  static constexpr char Name[] = "TGridShowHints";
  static constexpr const char* Values[] = {"shNone", "shValueOnly", "shHintOnly", "shValueAndHint"};
};

}  // namespace kt
