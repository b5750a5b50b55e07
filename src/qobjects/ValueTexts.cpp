#include "kt/qobjects/ValueTexts.h"

#include "kt/qobjects/Messages.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"

#include <QByteArray>
#include <QColor>
#include <QDateTime>
#include <QKeySequence>
#include <QLocale>
#include <QRegularExpression>
#include <QTimeZone>
#include <QUrl>
#include <QUuid>

#include <map>

namespace kt {

namespace {

// Bytes: UTF-8 where they are, else hexadecimal digits.

constexpr char kHexMark[] = "hex:";

QString BytesToText(const QVariant& value) {
  const QByteArray bytes = value.toByteArray();
  const QString text = QString::fromUtf8(bytes);
  const bool isText = text.toUtf8() == bytes && !bytes.startsWith(kHexMark) && !bytes.contains('\0');
  return isText ? text : QLatin1StringView(kHexMark) + QString::fromLatin1(bytes.toHex());
}

QVariant BytesFromText(const QString& text, const QVariant&) {
  if (!text.startsWith(QLatin1StringView(kHexMark))) return text.toUtf8();
  const QByteArray digits = text.mid(sizeof kHexMark - 1).toLatin1();
  const QByteArray bytes = QByteArray::fromHex(digits);
  return bytes.toHex() == digits.toLower() ? QVariant(bytes) : QVariant();
}

// Colours.

QString ColorToText(const QVariant& value) {
  const auto color = value.value<QColor>();
  if (!color.isValid()) return {};
  return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QVariant ColorFromText(const QString& text, const QVariant&) {
  const QString name = text.trimmed();
  if (name.isEmpty()) return QColor();
  return QColor::isValidColor(name) ? QVariant(QColor(name)) : QVariant();
}

// Dates and times: as ISO 8601 has them.

QString TimeToText(const QVariant& value) {
  const QTime time = value.toTime();
  return time.isValid() ? time.toString(time.msec() == 0 ? Qt::ISODate : Qt::ISODateWithMs) : QString();
}

QVariant TimeFromText(const QString& text, const QVariant&) {
  if (text.isEmpty()) return QTime();
  const QTime time = QTime::fromString(text, Qt::ISODateWithMs);
  return time.isValid() ? QVariant(time) : QVariant();
}

QString DateToText(const QVariant& value) { return value.toDate().toString(Qt::ISODate); }

QVariant DateFromText(const QString& text, const QVariant&) {
  if (text.isEmpty()) return QDate();
  const QDate date = QDate::fromString(text, Qt::ISODate);
  return date.isValid() ? QVariant(date) : QVariant();
}

/// A named time zone follows in brackets.
QString DateTimeToText(const QVariant& value) {
  const QDateTime moment = value.toDateTime();
  if (!moment.isValid()) return {};
  QString text = moment.toString(moment.time().msec() == 0 ? Qt::ISODate : Qt::ISODateWithMs);
  if (moment.timeSpec() != Qt::TimeZone) return text;
  return text + u'[' + QString::fromUtf8(moment.timeZone().id()) + u']';
}

QVariant DateTimeFromText(const QString& text, const QVariant&) {
  if (text.isEmpty()) return QDateTime();
  const qsizetype bracket = text.indexOf(u'[');
  QDateTime moment = QDateTime::fromString(bracket < 0 ? text : text.left(bracket), Qt::ISODateWithMs);
  if (bracket >= 0) {
    const QTimeZone zone(text.mid(bracket + 1).chopped(text.endsWith(u']') ? 1 : 0).toUtf8());
    if (!zone.isValid()) return {};
    moment =
        moment.timeSpec() == Qt::LocalTime ? QDateTime(moment.date(), moment.time(), zone) : moment.toTimeZone(zone);
  }
  return moment.isValid() ? QVariant(moment) : QVariant();
}

// Others.

/// With the script where it is not the one that the language has there.
QString LocaleToText(const QVariant& value) {
  const QLocale locale = value.toLocale();
  QString name = locale.name();
  if (QLocale(name).script() == locale.script()) return name;
  QString text = QLocale::languageToCode(locale.language()) + u'_' + QLocale::scriptToCode(locale.script());
  if (locale.territory() != QLocale::AnyTerritory) text += u'_' + QLocale::territoryToCode(locale.territory());
  return text;
}

QVariant LocaleFromText(const QString& text, const QVariant& current) {
  QLocale locale(text);
  // An unknown name gives the locale without a language.
  if (locale.language() == QLocale::C && text != QStringLiteral("C")) return {};
  locale.setNumberOptions(current.toLocale().numberOptions());
  return locale;
}

constexpr qsizetype kMostChords = 4;

QVariant KeysFromText(const QString& text, const QVariant&) {
  const QKeySequence keys(text, QKeySequence::PortableText);
  if (text.trimmed().isEmpty()) return QKeySequence();
  // More than these Qt leaves out.
  if (text.split(QStringLiteral(", ")).size() > kMostChords) return {};
  for (int i = 0; i < keys.count(); ++i) {
    if (keys[static_cast<uint>(i)].key() == Qt::Key_unknown) return {};
  }
  return keys.isEmpty() ? QVariant() : QVariant(keys);
}

QVariant UrlFromText(const QString& text, const QVariant&) {
  if (text.isEmpty()) return QUrl();
  const QUrl url(text, QUrl::TolerantMode);
  return url.isValid() ? QVariant(url) : QVariant();
}

QVariant UuidFromText(const QString& text, const QVariant&) {
  if (text.isEmpty()) return QUuid();
  const QUuid uuid(text);
  return uuid.isNull() && text != QUuid().toString() ? QVariant() : QVariant(uuid);
}

QVariant PatternFromText(const QString& text, const QVariant& current) {
  auto expression = current.toRegularExpression();
  expression.setPattern(text);
  return expression.isValid() ? QVariant(expression) : QVariant();
}

const std::map<int, TTextForm>& Forms() {
  static const std::map<int, TTextForm> forms = {
      {QMetaType::QString,
       {[](const QVariant& value) { return value.toString(); },
        [](const QString& text, const QVariant&) { return QVariant(text); }}},
      {QMetaType::QByteArray, {BytesToText, BytesFromText}},
      {QMetaType::QColor, {ColorToText, ColorFromText}},
      {QMetaType::QDate, {DateToText, DateFromText}},
      {QMetaType::QTime, {TimeToText, TimeFromText}},
      {QMetaType::QDateTime, {DateTimeToText, DateTimeFromText}},
      {QMetaType::QLocale, {LocaleToText, LocaleFromText}},
      {QMetaType::QKeySequence,
       {[](const QVariant& value) { return value.value<QKeySequence>().toString(QKeySequence::PortableText); },
        KeysFromText}},
      {QMetaType::QUrl,
       {[](const QVariant& value) { return value.toUrl().toString(QUrl::FullyEncoded); }, UrlFromText}},
      {QMetaType::QUuid, {[](const QVariant& value) { return value.toUuid().toString(); }, UuidFromText}},
      {QMetaType::QRegularExpression,
       {[](const QVariant& value) { return value.toRegularExpression().pattern(); }, PatternFromText}},
  };
  return forms;
}

}  // namespace

const TTextForm* FindTextForm(QMetaType type) {
  const auto found = Forms().find(type.id());
  return found == Forms().end() ? nullptr : &found->second;
}

QVariant ValueOfText(QMetaType type, const QString& text, const QVariant& current) {
  const TTextForm* form = FindTextForm(type);
  Q_ASSERT(form);
  if (current.isValid() && form->ToText(current) == text) return current;
  QVariant value = form->FromText(text, current);
  if (!value.isValid()) throw EPropertyConvertError(Format(SInvalidTextOfType, {text, QLatin1StringView(type.name())}));
  return value;
}

}  // namespace kt
