#include "kt/rtl/conversions/FloatMask.h"

#include "kt/rtl/conversions/FloatDecimal.h"
#include "kt/rtl/conversions/FloatText.h"
#include "kt/rtl/conversions/MaskText.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

namespace kt {
namespace {

constexpr int kMaskPrecision = 15;
constexpr int kHighestFixedExponent = 18;

/// Where the text quoted at `at` ends: at its closing quote, or at the last character.
qsizetype EndOfQuoted(QStringView mask, qsizetype at) {
  const qsizetype end = mask.indexOf(mask[at], at + 1);
  return end < 0 ? mask.size() - 1 : end;
}

/// "E+00": how many characters the exponent picture at `at` takes, 0 when there is none.
qsizetype ExponentLength(QStringView mask, qsizetype at) {
  if (mask[at].toLower() != u'e' || at + 1 >= mask.size()) return 0;
  if (mask[at + 1] != u'+' && mask[at + 1] != u'-') return 0;
  qsizetype length = 2;
  while (at + length < mask.size() && mask[at + length] == u'0') ++length;
  return length;
}

QList<QStringView> Sections(QStringView mask) {
  QList<QStringView> result;
  qsizetype start = 0;
  for (qsizetype i = 0; i < mask.size(); ++i) {
    if (IsQuote(mask[i])) {
      i = EndOfQuoted(mask, i);
    } else if (mask[i] == u';') {
      result += mask.sliced(start, i - start);
      start = i + 1;
    }
  }
  result += mask.sliced(start);
  return result;
}

struct TPicture {
  int IntegerPlaces = 0;
  int DecimalPlaces = 0;
  int FirstZero = -1;
  int LastZero = -1;
  bool HasPoint = false;
  bool HasGroups = false;
  bool IsScientific = false;

  int Places() const { return IntegerPlaces + DecimalPlaces; }
  /// Digits that are written even when they are zero.
  int LeastIntegerDigits() const { return FirstZero < 0 ? 0 : std::max(IntegerPlaces - FirstZero, 0); }
  int LeastDecimals() const { return LastZero < 0 ? 0 : std::max(LastZero + 1 - IntegerPlaces, 0); }
};

TPicture ReadPicture(QStringView mask) {
  TPicture picture;
  for (qsizetype i = 0; i < mask.size(); ++i) {
    const QChar c = mask[i];
    if (IsQuote(c)) {
      i = EndOfQuoted(mask, i);
    } else if (c == u'0' || c == u'#') {
      if (c == u'0') picture.LastZero = picture.Places();
      if (c == u'0' && picture.FirstZero < 0) picture.FirstZero = picture.Places();
      ++(picture.HasPoint ? picture.DecimalPlaces : picture.IntegerPlaces);
    } else if (c == u'.') {
      picture.HasPoint = true;
    } else if (c == u',') {
      picture.HasGroups = true;
    } else if (const qsizetype length = ExponentLength(mask, i)) {
      picture.IsScientific = true;
      i += length - 1;
    }
  }
  return picture;
}

/// Writes one number into one picture, from left to right.
class TMaskWriter {
 public:
  TMaskWriter(QStringView mask, const TFloatRec& rec, const TFormatSettings& settings)
      : FMask(mask), FRec(rec), FSettings(settings), FPicture(ReadPicture(mask)) {
    FPower = FPicture.IsScientific && !rec.Digits.empty() ? rec.Exponent - FPicture.IntegerPlaces : 0;
    FIntegerDigits = std::max(FRec.Exponent - FPower, FPicture.LeastIntegerDigits());
    const int used = static_cast<int>(FRec.Digits.size()) - (FRec.Exponent - FPower);
    FDecimals = std::max(std::min(used, FPicture.DecimalPlaces), FPicture.LeastDecimals());
  }

  QString Run() {
    for (qsizetype i = 0; i < FMask.size(); ++i) {
      const QChar c = FMask[i];
      if (IsQuote(c)) {
        const qsizetype end = EndOfQuoted(FMask, i);
        const bool isClosed = end > i && FMask[end] == c;
        FResult += FMask.sliced(i + 1, end - i - (isClosed ? 1 : 0));
        i = end;
      } else if (c == u'0' || c == u'#') {
        WritePlace();
      } else if (const qsizetype length = ExponentLength(FMask, i)) {
        WriteExponent(FMask.sliced(i, length));
        i += length - 1;
      } else if (c != u'.' && c != u',') {
        FResult += c;
      }
    }
    return FResult;
  }

 private:
  void WritePlace() {
    const int place = FPlace++;
    if (place == 0) WriteSurplus();
    const int position = FPicture.IntegerPlaces - place;
    if (position > 0 ? position <= FIntegerDigits : -position < FDecimals) WriteDigit(position);
  }

  /// Digits for which the picture has no place go before the first one.
  void WriteSurplus() {
    for (int position = FIntegerDigits; position > FPicture.IntegerPlaces; --position) WriteDigit(position);
  }

  /// The digit so many places left of the decimal point; 0 and below is right of it.
  void WriteDigit(int position) {
    if (position == 0) FResult += FSettings.DecimalSeparator;
    const int index = FRec.Exponent - FPower - position;
    const bool isInside = index >= 0 && index < static_cast<int>(FRec.Digits.size());
    FResult += QLatin1Char(isInside ? FRec.Digits[static_cast<std::size_t>(index)] : '0');
    if (FPicture.HasGroups && position > 1 && position % 3 == 1) FResult += FSettings.ThousandSeparator;
  }

  void WriteExponent(QStringView picture) {
    FResult += picture[0];
    if (FPower < 0)
      FResult += u'-';
    else if (picture[1] == u'+')
      FResult += u'+';
    FResult += QString::number(std::abs(FPower)).rightJustified(picture.size() - 2, u'0');
  }

  QStringView FMask;
  const TFloatRec& FRec;
  const TFormatSettings& FSettings;
  TPicture FPicture;
  QString FResult;
  int FPower = 0;
  int FIntegerDigits = 0;
  int FDecimals = 0;
  int FPlace = 0;
};

template <typename T>
TFloatRec Round(T value, const TPicture& picture) {
  if (picture.IsScientific) return FloatToDecimal(value, std::max(picture.Places(), 1), 9999);
  return FloatToDecimal(value, std::is_same_v<T, Currency> ? 19 : kMaskPrecision, picture.DecimalPlaces);
}

template <typename T>
QString FormatNumber(QStringView mask, T value, const TFormatSettings& settings) {
  const QList<QStringView> sections = Sections(mask);
  const auto at = [&](qsizetype i) { return i < sections.size() ? sections[i] : QStringView(); };
  const bool isNegative = value < T();
  const bool hasOwn = isNegative && !at(1).isEmpty();
  QStringView section = hasOwn ? at(1) : at(0);
  TFloatRec rec = Round(value, ReadPicture(section));
  if (rec.Kind == fkFinite && rec.Digits.empty()) {
    section = at(2).isEmpty() ? at(0) : at(2);
    rec = Round(value, ReadPicture(section));
  }
  const bool isPlain = section.isEmpty() || rec.Kind != fkFinite ||
                       (rec.Exponent > kHighestFixedExponent && !ReadPicture(section).IsScientific);
  if (isPlain) {
    if constexpr (std::is_same_v<T, Currency>)
      return CurrToStr(value, settings);
    else
      return FloatToStr(value, settings);
  }
  const QString text = TMaskWriter(section, rec, settings).Run();
  return rec.Negative && !hasOwn ? u'-' + text : text;
}

}  // namespace

QString FormatFloat(QStringView mask, double value, const TFormatSettings& settings) {
  return FormatNumber(mask, value, settings);
}

QString FormatCurr(QStringView mask, Currency value, const TFormatSettings& settings) {
  return FormatNumber(mask, value, settings);
}

}  // namespace kt
