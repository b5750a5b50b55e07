#pragma once

#include "kt/KTItemListEditor/ItemListTypes.h"

#include <QString>

namespace kt {

class TKTItemProperty;
class TKTPropertyPreset;

/// The part that an item plays in the tree of properties.
enum TKTPropertyKind {
  pkNormal,
  pkSet,            ///< a set; its children are the members that it can have
  pkSetMember,      ///< a truth value: whether the set has the member
  pkCollection,     ///< a collection; its children can be its elements
  pkCollectionItem  ///< an element of a collection
};

/// How the lines of a string list are listed below its property.
enum TInplaceTStringsOption {
  isUseNameValue,  ///< a line "name=value" is an item of that name
  isSort           ///< by name, not in the order of the lines
};
using TInplaceTStringsOptions = TSet<TInplaceTStringsOption>;

enum TILEFilterOption {
  foInclusive,     ///< what the filters name is kept, not hidden
  foCaseSensitive  ///< names match with regard to case
};
using TILEFilterOptions = TSet<TILEFilterOption>;

struct TKTItemPropertyEvent : TEvent<TObject*, TKTItemProperty* /*item*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTItemPropertyEvent";
};
/// `result` comes in as what happens without a handler.
struct TKTItemPropertyQueryEvent : TEvent<TObject*, TKTItemProperty* /*item*/, bool& /*result*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTItemPropertyQueryEvent";
};
struct TKTCustomPresetItemEvent : TEvent<TObject*, TKTPropertyPreset* /*preset*/, TKTItemProperty* /*item*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTCustomPresetItemEvent";
};
struct TKTCustomPresetItemQueryEvent
    : TEvent<TObject*, TKTPropertyPreset* /*preset*/, TKTItemProperty* /*item*/, bool& /*result*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTCustomPresetItemQueryEvent";
};
/// Gives the text of a property of `instance`, which can be null where the path to it leads nowhere.
struct TKTItemGetPropertyEvent
    : TEvent<TObject*, TObject* /*instance*/, const QString& /*propName*/, QString& /*value*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTItemGetPropertyEvent";
};
/// Writes a text to a property of `instance`, which can be null where the path to it leads nowhere.
struct TKTItemSetPropertyEvent
    : TEvent<TObject*, TObject* /*instance*/, const QString& /*propName*/, const QString& /*value*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTItemSetPropertyEvent";
};

template <>
struct TEnumNames<TKTPropertyKind> {
  static constexpr char Name[] = "TKTPropertyKind";
  static constexpr const char* Values[] = {"pkNormal", "pkSet", "pkSetMember", "pkCollection", "pkCollectionItem"};
};
template <>
struct TEnumNames<TInplaceTStringsOption> {
  static constexpr char Name[] = "TInplaceTStringsOption";
  static constexpr char SetName[] = "TInplaceTStringsOptions";
  static constexpr const char* Values[] = {"isUseNameValue", "isSort"};
};
template <>
struct TEnumNames<TILEFilterOption> {
  static constexpr char Name[] = "TILEFilterOption";
  static constexpr char SetName[] = "TILEFilterOptions";
  static constexpr const char* Values[] = {"foInclusive", "foCaseSensitive"};
};

}  // namespace kt
