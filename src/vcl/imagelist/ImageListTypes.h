#pragma once

#include "kt/rtl/typeinfo/TypeOf.h"

namespace kt {

/// How a picture of a list is drawn: blended with a colour by a quarter or by half, as it is, or without the ground of
/// the list.
enum TDrawingStyle { dsFocus, dsSelected, dsNormal, dsTransparent };
/// What is drawn of it: its pixels, or in black and white which of them show.
enum TImageType { itImage, itMask };

template <>
struct TEnumNames<TDrawingStyle> {
  static constexpr char Name[] = "TDrawingStyle";
  static constexpr const char* Values[] = {"dsFocus", "dsSelected", "dsNormal", "dsTransparent"};
};
template <>
struct TEnumNames<TImageType> {
  static constexpr char Name[] = "TImageType";
  static constexpr const char* Values[] = {"itImage", "itMask"};
};

}  // namespace kt
