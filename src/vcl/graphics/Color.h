#pragma once

#include "kt/rtl/typeinfo/TypeOf.h"

#include <QString>

#include <functional>

namespace kt {

/// A colour: blue, green and red in the three low bytes ($00BBGGRR), or, with the high bit set, the number of a colour
/// that the user's desktop defines. Every 32-bit value is one; TColor(0x800080) makes one of a number.
enum TColor : qint32 {
  clBlack = 0x000000,
  clMaroon = 0x000080,
  clGreen = 0x008000,
  clOlive = 0x008080,
  clNavy = 0x800000,
  clPurple = 0x800080,
  clTeal = 0x808000,
  clGray = 0x808080,
  clSilver = 0xC0C0C0,
  clRed = 0x0000FF,
  clLime = 0x00FF00,
  clYellow = 0x00FFFF,
  clBlue = 0xFF0000,
  clFuchsia = 0xFF00FF,
  clAqua = 0xFFFF00,
  clWhite = 0xFFFFFF,
  clLtGray = clSilver,
  clDkGray = clGray,

  clMoneyGreen = 0xC0DCC0,
  clSkyBlue = 0xF0CAA6,
  clCream = 0xF0FBFF,
  clMedGray = 0xA4A0A0,

  /// No colour at all: nothing is drawn.
  clNone = 0x1FFFFFFF,
  /// The colour that whoever draws would take by itself.
  clDefault = 0x20000000,

  clSystemColor = static_cast<qint32>(0xFF000000),
  clScrollBar = clSystemColor | 0,
  clBackground = clSystemColor | 1,
  clActiveCaption = clSystemColor | 2,
  clInactiveCaption = clSystemColor | 3,
  clMenu = clSystemColor | 4,
  clWindow = clSystemColor | 5,
  clWindowFrame = clSystemColor | 6,
  clMenuText = clSystemColor | 7,
  clWindowText = clSystemColor | 8,
  clCaptionText = clSystemColor | 9,
  clActiveBorder = clSystemColor | 10,
  clInactiveBorder = clSystemColor | 11,
  clAppWorkSpace = clSystemColor | 12,
  clHighlight = clSystemColor | 13,
  clHighlightText = clSystemColor | 14,
  clBtnFace = clSystemColor | 15,
  clBtnShadow = clSystemColor | 16,
  clGrayText = clSystemColor | 17,
  clBtnText = clSystemColor | 18,
  clInactiveCaptionText = clSystemColor | 19,
  clBtnHighlight = clSystemColor | 20,
  cl3DDkShadow = clSystemColor | 21,
  cl3DLight = clSystemColor | 22,
  clInfoText = clSystemColor | 23,
  clInfoBk = clSystemColor | 24,
  clHotLight = clSystemColor | 26,
  clGradientActiveCaption = clSystemColor | 27,
  clGradientInactiveCaption = clSystemColor | 28,
  clMenuHighlight = clSystemColor | 29,
  clMenuBar = clSystemColor | 30
};

template <>
struct TTypeOf<TColor> {
  static const TTypeInfo* Info();
};

constexpr bool IsSystemColor(TColor color) { return color < 0; }

/// The colour of a name, compared without regard to ASCII case; false leaves `color` alone.
bool IdentToColor(QStringView ident, TColor& color);
/// The name of a colour; false when it has none.
bool ColorToIdent(TColor color, QString& ident);
/// The name, else the number: "$00BBGGRR".
QString ColorToString(TColor color);
/// The colour of a name or number. Raises EConvertError "'%s' is not a valid integer value".
TColor StringToColor(QStringView text);
/// Calls `proc` for the name of each colour: the plain ones first, then the others by their names.
void GetColorValues(const std::function<void(const QString& name)>& proc);

/// Lets form files use the names.
void RegisterColorNames();

}  // namespace kt
