#include "kt/vcl/graphics/Cursor.h"

#include "kt/rtl/conversions/Integers.h"
#include "kt/vcl/graphics/NamedIntegers.h"

#include <limits>

namespace kt {
namespace {

constexpr TNamedInteger kCursorEntries[] = {
    {"crDefault", crDefault},
    {"crArrow", crArrow},
    {"crCross", crCross},
    {"crIBeam", crIBeam},
    {"crSizeNESW", crSizeNESW},
    {"crSizeNS", crSizeNS},
    {"crSizeNWSE", crSizeNWSE},
    {"crSizeWE", crSizeWE},
    {"crUpArrow", crUpArrow},
    {"crHourGlass", crHourGlass},
    {"crDrag", crDrag},
    {"crNoDrop", crNoDrop},
    {"crHSplit", crHSplit},
    {"crVSplit", crVSplit},
    {"crMultiDrag", crMultiDrag},
    {"crSQLWait", crSQLWait},
    {"crNo", crNo},
    {"crAppStart", crAppStart},
    {"crHelp", crHelp},
    {"crHandPoint", crHandPoint},
    {"crSizeAll", crSizeAll},
    {"crSize", crSize},
};
/// Names at the end that are read and no longer offered.
constexpr size_t kRetired = 1;
constexpr TNamedIntegers kCursorNames(kCursorEntries);

}  // namespace

const TTypeInfo* TTypeOf<TCursor>::Info() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TCursor"), otSWord, std::numeric_limits<qint16>::min(),
                                 std::numeric_limits<qint16>::max());
  return &info;
}

bool IdentToCursor(QStringView ident, TCursor& cursor) {
  const auto value = kCursorNames.ValueOf(ident);
  if (value) cursor = static_cast<TCursor>(*value);
  return value.has_value();
}

bool CursorToIdent(TCursor cursor, QString& ident) {
  const QString name = kCursorNames.NameOf(cursor);
  if (!name.isEmpty()) ident = name;
  return !name.isEmpty();
}

QString CursorToString(TCursor cursor) {
  const QString name = kCursorNames.NameOf(cursor);
  return name.isEmpty() ? QString::number(cursor) : name;
}

TCursor StringToCursor(QStringView text) {
  TCursor cursor;
  return IdentToCursor(text, cursor) ? cursor : static_cast<TCursor>(StrToInt(text));
}

void GetCursorValues(const std::function<void(const QString&)>& proc) {
  const auto offered = kCursorNames.Entries().first(kCursorNames.Entries().size() - kRetired);
  for (const TNamedInteger& entry : offered) proc(QString::fromLatin1(entry.Name));
}

void RegisterCursorNames() { kCursorNames.RegisterFor(TypeInfoOf<TCursor>()); }

}  // namespace kt
