#pragma once

#include "kt/rtl/typeinfo/TypeOf.h"

#include <QString>

#include <functional>

namespace kt {

/// The shape of the mouse pointer: one of these, or the number of an application's own shape (above 0). Every 16-bit
/// value is one.
enum TCursor : qint16 {
  crDefault = 0,
  crNone = -1,
  crArrow = -2,
  crCross = -3,
  crIBeam = -4,
  crSizeNESW = -6,
  crSizeNS = -7,
  crSizeNWSE = -8,
  crSizeWE = -9,
  crUpArrow = -10,
  crHourGlass = -11,
  crDrag = -12,
  crNoDrop = -13,
  crHSplit = -14,
  crVSplit = -15,
  crMultiDrag = -16,
  crSQLWait = -17,
  crNo = -18,
  crAppStart = -19,
  crHelp = -20,
  crHandPoint = -21,
  crSizeAll = -22,
  crSize = crSizeAll
};

template <>
struct TTypeOf<TCursor> {
  static const TTypeInfo* Info();
};

/// The cursor of a name, compared without regard to ASCII case; false leaves `cursor` alone.
bool IdentToCursor(QStringView ident, TCursor& cursor);
/// The name of a cursor; false when it has none. crNone has none.
bool CursorToIdent(TCursor cursor, QString& ident);
/// The name, else the number in decimal.
QString CursorToString(TCursor cursor);
/// The cursor of a name or number; a number is cut to 16 bits. Raises EConvertError "'%s' is not a valid integer
/// value".
TCursor StringToCursor(QStringView text);
/// Calls `proc` for each name but crSize, which only old forms know, in the framework's order.
void GetCursorValues(const std::function<void(const QString& name)>& proc);

/// Lets form files use the names.
void RegisterCursorNames();

}  // namespace kt
