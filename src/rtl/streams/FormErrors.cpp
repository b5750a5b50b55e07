#include "kt/rtl/streams/FormErrors.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Messages.h"

namespace kt {

QString MessageAbout(QLatin1StringView pattern, QStringView argument) {
  // A number arrives as text too, and Format() minds the difference.
  if (QString(pattern).contains(QLatin1StringView("%d"))) return Format(pattern, {argument.toLongLong()});
  return Format(pattern, {argument});
}

QString ShownName(QStringView name) {
  QString shown = name.toString();
  for (QChar& c : shown)
    if (!c.isPrint() && !c.isSurrogate()) c = u'?';
  return shown;
}

QString AtOffset(const QString& what, qint64 offset, const QString& path) {
  const QString where = what + QStringLiteral(" at offset ") + QString::number(offset);
  return path.isEmpty() ? where : where + QStringLiteral(" (") + path + u')';
}

QString AtPlace(const TPlaceWording& wording, const QString& what, qint64 offset, const QString& path) {
  return wording ? wording(what, offset, path) : AtOffset(what, offset, path);
}

QString OnLine(const QString& what, qint64 line, qint64 column) {
  return Format(SParseError, {what, line}) + QStringLiteral(", column ") + QString::number(column);
}

}  // namespace kt
