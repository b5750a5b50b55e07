#pragma once

#include "kt/rtl/typeinfo/TypeOf.h"

namespace kt {

enum TBrushStyle : quint8 {
  bsSolid,
  bsClear,
  bsHorizontal,
  bsVertical,
  bsFDiagonal,
  bsBDiagonal,
  bsCross,
  bsDiagCross
};

enum TPenStyle : quint8 { psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame };

/// How a pen mixes with what is on the screen; Not inverts, Merge is or, Mask is and.
enum TPenMode : quint8 {
  pmBlack,
  pmWhite,
  pmNop,
  pmNot,
  pmCopy,
  pmNotCopy,
  pmMergePenNot,
  pmMaskPenNot,
  pmMergeNotPen,
  pmMaskNotPen,
  pmMerge,
  pmNotMerge,
  pmMask,
  pmNotMask,
  pmXor,
  pmNotXor
};

template <>
struct TEnumNames<TBrushStyle> {
  static constexpr char Name[] = "TBrushStyle";
  static constexpr const char* Values[] = {"bsSolid",     "bsClear",     "bsHorizontal", "bsVertical",
                                           "bsFDiagonal", "bsBDiagonal", "bsCross",      "bsDiagCross"};
};
template <>
struct TEnumNames<TPenStyle> {
  static constexpr char Name[] = "TPenStyle";
  static constexpr const char* Values[] = {"psSolid",      "psDash",  "psDot",        "psDashDot",
                                           "psDashDotDot", "psClear", "psInsideFrame"};
};
template <>
struct TEnumNames<TPenMode> {
  static constexpr char Name[] = "TPenMode";
  static constexpr const char* Values[] = {
      "pmBlack",       "pmWhite",      "pmNop",   "pmNot",      "pmCopy", "pmNotCopy", "pmMergePenNot", "pmMaskPenNot",
      "pmMergeNotPen", "pmMaskNotPen", "pmMerge", "pmNotMerge", "pmMask", "pmNotMask", "pmXor",         "pmNotXor"};
};

}  // namespace kt
