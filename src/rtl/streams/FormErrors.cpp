#include "kt/rtl/streams/FormErrors.h"

#include "kt/rtl/objects/Messages.h"

namespace kt {

QString FillFormText(QLatin1StringView pattern, QStringView argument) {
  QString text(pattern);
  const qsizetype string = text.indexOf(u"%s");
  const qsizetype number = text.indexOf(u"%d");
  const qsizetype at = string < 0 || (number >= 0 && number < string) ? number : string;
  return at < 0 ? text : text.replace(at, 2, argument.toString());
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

QString OnLine(const QString& what, qint64 line, qint64 column) {
  // The line goes in first: `what` may hold any text, a percent sign included.
  QString pattern(SParseError);
  pattern.replace(QLatin1StringView("%d"), QString::number(line));
  pattern.replace(QLatin1StringView("%s"), what);
  return pattern + QStringLiteral(", column ") + QString::number(column);
}

}  // namespace kt
