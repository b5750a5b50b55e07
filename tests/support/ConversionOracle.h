#pragma once

#include "kt/rtl/Conversions.h"
#include "kt/rtl/Variants.h"
#include "kt/rtl/conversions/FloatMask.h"
#include "kt/rtl/objects/Exceptions.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>

/// What must hold for any text that is taken for a number, an amount, a truth value, a moment, a picture or a variant.
/// Shared by the fuzz target and by the tests that run its corpus.
namespace kt::oracle {

inline void Demand(bool condition, const char* promise) {
  if (!condition) throw std::logic_error(promise);
}

/// What `call` answers; nothing when it raises one of our exceptions.
template <class F>
auto Answer(F call) -> std::optional<decltype(call())> {
  try {
    return call();
  } catch (const Exception&) {
    return std::nullopt;
  }
}

inline void CheckIntegers(const QString& text) {
  qint64 big = 77;
  if (TryStrToInt64(text, big)) {
    Demand(StrToInt64(IntToStr(big)) == big, "an integer comes back");
  } else {
    Demand(big == 77 && StrToInt64Def(text, -1) == -1, "a refused integer leaves the value");
  }
  int small = 77;
  const bool isSmall = TryStrToInt(text, small);
  Demand(isSmall || small == 77, "a refused integer leaves the value");
  Demand(!isSmall || StrToInt(IntToStr(small)) == small, "an integer comes back");
  quint64 natural = 77;
  const bool isNatural = TryStrToUInt64(text, natural);
  quint64 again = 0;
  Demand(!isNatural || (TryStrToUInt64(IntToStr(natural), again) && again == natural), "a natural number comes back");
}

inline void CheckFloats(const QString& text) {
  constexpr double kLargestShort = 1.79769313486231e308;  // Its 15 digits are those of a double.
  double number = 77;
  if (!TryStrToFloat(text, number)) return Demand(number == 77, "a refused number leaves the value");
  Demand(std::isfinite(number), "a number is finite");
  if (std::fabs(number) > kLargestShort) return;
  const QString shown = FloatToStr(number);
  Demand(FloatToStr(StrToFloat(shown)) == shown, "a number is shown as the same after it was read");
}

inline void CheckAmounts(const QString& text) {
  Currency amount = Currency::FromScaled(77);
  if (!TryStrToCurr(text, amount)) return Demand(amount.Scaled() == 77, "a refused amount leaves the value");
  Demand(StrToCurr(CurrToStr(amount)) == amount, "an amount comes back");
}

inline void CheckTruth(const QString& text) {
  bool truth = true;
  if (!TryStrToBool(text, truth)) return Demand(truth, "a refused truth value leaves the value");
  Demand(StrToBool(BoolToStr(truth)) == truth && StrToBool(BoolToStr(truth, bnTexts)) == truth, "a truth comes back");
}

inline qint64 MillisecondsOf(TDateTime moment) {
  const TTimeStamp stamp = DateTimeToTimeStamp(moment);
  return qint64{stamp.Day} * MSecsPerDay + stamp.MSec;
}

/// A moment is shown to the second, and midnight without a time, so what is shown may change once.
inline void CheckMoment(TDateTime moment, const TFormatSettings& settings) {
  Demand(moment > MinDateTime - 1 && moment <= MaxDateTime, "a moment that was read is one");
  const TDateTime second = StrToDateTime(DateTimeToStr(moment, settings), settings);
  Demand(std::abs(MillisecondsOf(second) - MillisecondsOf(moment)) < 1000, "a moment comes back to the second");
  const QString shown = DateTimeToStr(second, settings);
  Demand(DateTimeToStr(StrToDateTime(shown, settings), settings) == shown, "a moment is shown as the same");
}

inline void CheckMoments(const QString& text, const TFormatSettings& settings) {
  TDateTime moment = 77;
  Demand(TryStrToDateTime(text, moment, settings) || moment == 77, "a refused moment leaves the value");
  if (TryStrToDateTime(text, moment, settings)) CheckMoment(moment, settings);
  if (TryStrToDate(text, moment, settings)) CheckMoment(moment, settings);
  if (TryStrToTime(text, moment, settings)) CheckMoment(moment, settings);
}

/// Pictures: no more than a name, or the digits of a number, for each character.
inline void CheckPictures(const QString& picture, double number) {
  const qsizetype most = (picture.size() + 1) * 64 + 1024;
  const auto date = Answer([&] { return FormatDateTime(picture, number); });
  Demand(!date || date->size() <= most, "a moment in a picture is bounded by the picture");
  const auto shown = Answer([&] { return FormatFloat(picture, number); });
  Demand(!shown || shown->size() <= most, "a number in a picture is bounded by the picture");
}

/// False where widths ask for more than there is to be said.
inline bool HasSmallNumbers(const QString& format) {
  int digits = 0;
  for (const QChar c : format) {
    digits = c.isDigit() ? digits + 1 : 0;
    if (digits > 3) return false;
  }
  return true;
}

inline void CheckFormat(const QString& format, const QString& text, double number) {
  if (!HasSmallNumbers(format)) return;
  const auto shown = Answer([&] { return Format(format, {text, number, 42, Variant(text), Currency(12.5), u'x'}); });
  const qsizetype most = (format.size() + 1) * (1024 + text.size());
  Demand(!shown || shown->size() <= most, "a formatted text is bounded by its widths and arguments");
  Demand(!shown || format.contains(u'%') || *shown == format, "a text without placeholders stays");
}

/// -1 for a comparison that raises.
inline int Compared(const Variant& a, const Variant& b) {
  return Answer([&] { return static_cast<int>(VarCompareValue(a, b)); }).value_or(-1);
}

inline int Mirrored(int relation) {
  if (relation == vrLessThan) return vrGreaterThan;
  return relation == vrGreaterThan ? int{vrLessThan} : relation;
}

inline void CheckVariants(const QString& text, double number) {
  const Variant values[] = {Variant(),
                            Variant::Null(),
                            Variant(text),
                            Variant::FromOleStr(text),
                            Variant(number),
                            Variant(static_cast<float>(number)),
                            Variant(true),
                            Variant(-1),
                            Variant(std::numeric_limits<quint64>::max()),
                            Variant(Currency(0.5)),
                            Variant::FromDateTime(36526.25)};
  constexpr TVarType types[] = {varEmpty,    varNull,     varSmallint, varInteger, varSingle,   varDouble,
                                varCurrency, varDate,     varOleStr,   varBoolean, varShortInt, varByte,
                                varWord,     varLongWord, varInt64,    varUInt64,  varString};
  for (const Variant& a : values) {
    for (const Variant& b : values) Demand(Compared(a, b) == Mirrored(Compared(b, a)), "a comparison has two sides");
    for (const TVarType type : types) {
      const auto converted = Answer([&] { return a.AsType(type); });
      Demand(!converted || VarType(*converted) == type, "a converted variant has the type");
    }
  }
}

/// The first line of the bytes is a picture or format, the second a value.
inline void CheckConversions(const QByteArray& bytes) {
  static const std::array<TFormatSettings, 3> manners = {TFormatSettings(), TFormatSettings(QLocale(QLocale::German)),
                                                         TFormatSettings(QLocale(QLocale::English))};
  const qsizetype end = bytes.indexOf('\n');
  const QString picture = QString::fromUtf8(bytes.left(end)).left(512);
  const QString text = QString::fromUtf8(end < 0 ? bytes : bytes.mid(end + 1)).left(512);
  CheckIntegers(text);
  CheckFloats(text);
  CheckAmounts(text);
  CheckTruth(text);
  for (const TFormatSettings& settings : manners) CheckMoments(text, settings);
  const double number = Answer([&] { return StrToFloat(text); }).value_or(36526.75);
  CheckPictures(picture, number);
  CheckFormat(picture, text, number);
  CheckVariants(text, number);
}

}  // namespace kt::oracle
