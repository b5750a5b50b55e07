#include "kt/rtl/streams/FormErrors.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Messages.h"

namespace kt {
namespace {

constexpr qsizetype kShownLength = 60;
constexpr QLatin1StringView kGap{"..."};

}  // namespace

QString Shortened(QStringView text) {
  if (text.size() <= kShownLength) return text.toString();
  QStringView begin = text.first((kShownLength - kGap.size() + 1) / 2);
  QStringView end = text.last((kShownLength - kGap.size()) / 2);
  // Half a character would be none.
  if (begin.back().isHighSurrogate()) begin.chop(1);
  if (end.front().isLowSurrogate()) end = end.sliced(1);
  return begin.toString() + kGap + end.toString();
}

QString MessageAbout(QLatin1StringView pattern, QStringView argument) {
  // A number arrives as text too, and Format() minds the difference.
  if (QString(pattern).contains(QLatin1StringView("%d"))) return Format(pattern, {argument.toLongLong()});
  return Format(pattern, {Shortened(argument)});
}

QString ShownName(QStringView name) {
  QString shown = Shortened(name);
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
