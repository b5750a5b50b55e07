#pragma once

#include "kt/rtl/typeinfo/TypeInfo.h"
#include "kt/vcl/controls/ControlTypes.h"

#include <QString>

namespace kt {

/// A key with what is held together with it: the virtual key code and the bits below. 0 is none.
using TShortCut = quint16;
inline constexpr TShortCut scNone = 0;
inline constexpr TShortCut scShift = 0x2000;
inline constexpr TShortCut scCtrl = 0x4000;
inline constexpr TShortCut scAlt = 0x8000;

/// "TShortCut", for publishing.
const TTypeInfo* ShortCutTypeInfo();

/// The short cut of a key; none for a key code above 255.
TShortCut ShortCut(quint16 key, TShiftState shift);
/// The name as menus show it, "Ctrl+Ins"; empty for keys without a name.
QString ShortCutToText(TShortCut shortCut);
/// The short cut of such a name, compared without regard to case; none when there is none.
TShortCut TextToShortCut(const QString& text);

}  // namespace kt
