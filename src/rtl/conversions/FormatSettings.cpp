#include "kt/rtl/conversions/FormatSettings.h"

#include <QDate>

#include <atomic>

namespace kt {
namespace {

/// A pattern of a locale taken apart: what is quoted is dropped, runs of one letter are fields, the first other
/// character between two fields is the separator.
struct TPatternParts {
  QStringList Fields;
  QString Separator;
};

bool IsMark(QChar c) { return c == QChar(0x200e) || c == QChar(0x200f) || c == QChar(0x061c); }

TPatternParts TakeApart(const QString& pattern, QLatin1StringView letters) {
  TPatternParts parts;
  bool quoted = false;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    const QChar c = pattern.at(i);
    if (c == QLatin1Char('\'')) quoted = !quoted;
    if (quoted || c == QLatin1Char('\'') || IsMark(c)) continue;
    if (letters.contains(c)) {
      if (i > 0 && pattern.at(i - 1) == c && !parts.Fields.isEmpty())
        parts.Fields.last() += c;
      else
        parts.Fields += QString(c);
    } else if (!c.isSpace() && !c.isLetter() && !parts.Fields.isEmpty() && parts.Separator.isEmpty()) {
      parts.Separator = c;
    }
  }
  return parts;
}

QString ShortDatePattern(const QStringList& fields) {
  QStringList result;
  for (const QString& field : fields) {
    const QChar letter = field.at(0).toLower();
    if (letter == QLatin1Char('y'))
      result += QStringLiteral("yyyy");
    else if (field.size() <= 2)
      result += QString(field.size(), letter);
  }
  return result.size() == 3 ? result.join(QLatin1Char('/')) : QString();
}

/// "h:mm AP" becomes "h:nn AMPM".
QString TimePattern(const TPatternParts& parts, bool withSeconds) {
  QString hours = QStringLiteral("hh");
  bool hasHalf = false;
  bool halfFirst = false;
  bool seenHours = false;
  for (const QString& field : parts.Fields) {
    const QChar letter = field.at(0).toLower();
    if (letter == QLatin1Char('h')) {
      hours = QString(field.size(), letter);
      seenHours = true;
    } else if (letter == QLatin1Char('a')) {
      hasHalf = true;
      halfFirst = !seenHours;
    }
  }
  QString result = hours + (withSeconds ? QStringLiteral(":nn:ss") : QStringLiteral(":nn"));
  if (!hasHalf) return result;
  return halfFirst ? QStringLiteral("AMPM ") + result : result + QStringLiteral(" AMPM");
}

/// A long date keeps its words; only the letters that mean something else here are changed.
QString LongDatePattern(const QString& pattern) {
  QString result;
  bool quoted = false;
  for (const QChar c : pattern) {
    if (c == QLatin1Char('\'')) quoted = !quoted;
    if (IsMark(c)) continue;
    result += !quoted && c == QLatin1Char('M') ? QChar(QLatin1Char('m')) : c;
  }
  return result;
}

struct TCurrencyLayout {
  int Positive = 0;
  int Negative = 1;
};

/// Finds where the locale puts its currency sign by writing 1 with a sign that no locale uses.
TCurrencyLayout CurrencyLayout(const QLocale& locale) {
  const QString text = locale.toCurrencyString(1.0, QStringLiteral("\u00a4"), 0);
  const qsizetype sign = text.indexOf(QChar(0xa4));
  const bool isBlank = text.contains(QLatin1Char(' ')) || text.contains(QChar(0xa0)) || text.contains(QChar(0x202f));
  const qsizetype digit = text.indexOf(locale.toString(1));
  if (sign < digit) return isBlank ? TCurrencyLayout{2, 9} : TCurrencyLayout{0, 1};
  return isBlank ? TCurrencyLayout{3, 8} : TCurrencyLayout{1, 5};
}

void ReadNames(TFormatSettings& settings, const QLocale& locale) {
  for (int month = 1; month <= 12; ++month) {
    const auto at = static_cast<std::size_t>(month - 1);
    settings.ShortMonthNames[at] = locale.monthName(month, QLocale::ShortFormat);
    settings.LongMonthNames[at] = locale.monthName(month, QLocale::LongFormat);
  }
  for (int day = 1; day <= 7; ++day) {
    const auto at = static_cast<std::size_t>(day % 7);
    settings.ShortDayNames[at] = locale.dayName(day, QLocale::ShortFormat);
    settings.LongDayNames[at] = locale.dayName(day, QLocale::LongFormat);
  }
}

void ReadDates(TFormatSettings& settings, const QLocale& locale) {
  const TPatternParts date = TakeApart(locale.dateFormat(QLocale::ShortFormat), QLatin1StringView("dMy"));
  settings.ShortDateFormat = ShortDatePattern(date.Fields);
  settings.DateSeparator = date.Separator;
  if (settings.ShortDateFormat.isEmpty() || date.Separator.isEmpty()) {
    settings.ShortDateFormat = QStringLiteral("yyyy/mm/dd");
    settings.DateSeparator = QStringLiteral("-");
  }
  settings.LongDateFormat = LongDatePattern(locale.dateFormat(QLocale::LongFormat));
}

void ReadTimes(TFormatSettings& settings, const QLocale& locale) {
  const TPatternParts time = TakeApart(locale.timeFormat(QLocale::ShortFormat), QLatin1StringView("hHmsAaPp"));
  settings.TimeSeparator = time.Separator.isEmpty() ? QStringLiteral(":") : time.Separator;
  settings.ShortTimeFormat = TimePattern(time, false);
  settings.LongTimeFormat = TimePattern(time, true);
  settings.TimeAMString = locale.amText().isEmpty() ? QStringLiteral("AM") : locale.amText();
  settings.TimePMString = locale.pmText().isEmpty() ? QStringLiteral("PM") : locale.pmText();
}

struct TLocaleState {
  QLocale Locale;
  TFormatSettings Settings{Locale};
};

/// Outside of the state because comparisons look at it each time.
constinit std::atomic<unsigned> Generation{1};

TLocaleState& State() {
  static TLocaleState state;
  return state;
}

}  // namespace

TFormatSettings::TFormatSettings() : TFormatSettings(QLocale::c()) {}

TFormatSettings::TFormatSettings(const QLocale& locale)
    : DecimalSeparator(locale.decimalPoint()),
      ThousandSeparator(locale.groupSeparator()),
      CurrencyString(locale.currencySymbol()),
      ListSeparator(locale.decimalPoint() == QLatin1StringView(",") ? QStringLiteral(";") : QStringLiteral(",")) {
  const TCurrencyLayout layout = CurrencyLayout(locale);
  CurrencyFormat = layout.Positive;
  NegCurrFormat = layout.Negative;
  ReadNames(*this, locale);
  ReadDates(*this, locale);
  ReadTimes(*this, locale);
}

const QLocale& FormatLocale() { return State().Locale; }

const TFormatSettings& FormatSettings() { return State().Settings; }

void SetFormatLocale(const QLocale& locale) {
  TLocaleState& state = State();
  state.Locale = locale;
  state.Settings = TFormatSettings(locale);
  Generation.fetch_add(1, std::memory_order_release);
}

unsigned FormatLocaleGeneration() { return Generation.load(std::memory_order_acquire); }

}  // namespace kt
