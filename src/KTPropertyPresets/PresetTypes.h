#pragma once

#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"

namespace kt {

/// A test of a preset on an item. The numbers are those of the bits in form files.
enum TKTPresetMatchType {
  mtPropertyName,            ///< the item's name
  mtFullPropertyName,        ///< its full path name
  mtPropertyType,            ///< kind and name of its type
  mtClassName,               ///< the class of the first inspected object
  mtParentPropertyName,      ///< the name of the nearest item above that holds an object
  mtParentFullPropertyName,  ///< the full path name of that item
  mtParentPropertyType       ///< kind and name of its type
};
using TKTPresetMatchTypes = TSet<TKTPresetMatchType>;

/// What a preset does to the items that it matches. The numbers are those of the bits in form files.
enum TKTPropertyPresetType {
  pftCustom,  ///< calls OnCustomPreset
  pftAlias,   ///< shows another name
  pftReadOnly,
  pftWritable,
  pftVisible,
  pftHidden,
  pftHint,
  pftEditStyle,  ///< the edit style, with its pick list or the handler of its button
  pftEditMask,
  pftValidate,  ///< the handlers of validation, and those that get and set values
  pftFont,
  pftValueFont
};
using TKTPropertyPresetTypes = TSet<TKTPropertyPresetType>;

template <>
struct TEnumNames<TKTPresetMatchType> {
  static constexpr char Name[] = "TKTPresetMatchType";
  static constexpr char SetName[] = "TKTPresetMatchTypes";
  static constexpr const char* Values[] = {"mtPropertyName",      "mtFullPropertyName",   "mtPropertyType",
                                           "mtClassName",         "mtParentPropertyName", "mtParentFullPropertyName",
                                           "mtParentPropertyType"};
};
template <>
struct TEnumNames<TKTPropertyPresetType> {
  static constexpr char Name[] = "TKTPropertyPresetType";
  static constexpr char SetName[] = "TKTPropertyPresetTypes";
  static constexpr const char* Values[] = {"pftCustom",   "pftAlias",    "pftReadOnly", "pftWritable",
                                           "pftVisible",  "pftHidden",   "pftHint",     "pftEditStyle",
                                           "pftEditMask", "pftValidate", "pftFont",     "pftValueFont"};
};

}  // namespace kt
