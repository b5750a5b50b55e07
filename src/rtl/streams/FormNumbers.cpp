#include "kt/rtl/streams/FormNumbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace kt {
namespace {

constexpr int kDecimals = 18;
constexpr int kSignificantDigits = 16;
/// Letters of TFloatKind in its order; extended has none.
constexpr std::array<char, 4> kSuffixes{0, 's', 'd', 'w'};

/// from_chars cannot tell too large from too small, and takes the smallest of the extended numbers for the latter. A
/// stream can.
template <typename T>
std::optional<T> ParseExtreme(QByteArrayView digits) {
  std::istringstream stream(std::string(digits.begin(), digits.end()));
  stream.imbue(std::locale::classic());
  T value{};
  stream >> value;
  if (stream.fail()) return std::nullopt;
  return value;
}

template <typename T>
std::optional<T> Parse(QByteArrayView digits) {
  T value{};
  const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value);
  if (std::is_floating_point_v<T> && error == std::errc::result_out_of_range) return ParseExtreme<T>(digits);
  if (error != std::errc() || end != digits.end()) return std::nullopt;
  return value;
}

template <typename T>
QByteArray Shortest(T value) {
  std::array<char, 64> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return QByteArray(buffer.data(), end - buffer.data()).replace("e+", "E").replace('e', 'E');
}

QByteArray ShortestExtended(Extended value) {
  QByteArray text = Shortest(value);
  // Without a point it would be an integer.
  if (!text.contains('.') && !text.contains('E')) text += ".0";
  return text;
}

/// The digits of `magnitude` rounded to `count` of them, and nothing else.
QByteArray LeadingDigits(Extended magnitude, int count) {
  std::array<char, 64> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific, count - 1)
          .ptr;
  return QByteArray(buffer.data(), end - buffer.data());
}

/// The number with 18 decimals, or an empty text when that form cannot hold it.
QByteArray FixedText(Extended value) {
  const Extended magnitude = std::fabs(value);
  if (magnitude == 0) return (std::signbit(value) ? "-0." : "0.") + QByteArray(kDecimals, '0');
  const QByteArray scientific = LeadingDigits(magnitude, kSignificantDigits);
  const int exponent = scientific.mid(scientific.indexOf('e') + 1).toInt();
  if (exponent >= kSignificantDigits || exponent <= -kDecimals) return {};
  const int count = std::min(kSignificantDigits, kDecimals + exponent + 1);
  QByteArray digits = LeadingDigits(magnitude, count);
  digits.truncate(digits.indexOf('e'));
  digits.remove(1, 1);
  const int before = std::max(exponent + 1, 0);
  QByteArray text = value < 0 ? "-" : "";
  text += before > 0 ? digits.left(before) : QByteArray("0");
  text += '.';
  QByteArray decimals = QByteArray(std::max(-exponent - 1, 0), '0') + digits.mid(before);
  return text + decimals.leftJustified(kDecimals, '0');
}

QByteArray ExtendedText(Extended value) {
  QByteArray fixed = FixedText(value);
  if (!fixed.isEmpty() && Parse<Extended>(fixed) == value) return fixed;
  return ShortestExtended(value);
}

QByteArray Unmarked(TFloatKind kind, Extended value) {
  if (std::isnan(value)) return "+NaN";
  if (std::isinf(value)) return value < 0 ? "-Inf" : "+Inf";
  if (kind == fkExtended) return ExtendedText(value);
  return kind == fkSingle ? Shortest(float(value)) : Shortest(double(value));
}

std::optional<Extended> ParseSpecial(QByteArrayView text) {
  const bool negative = text.front() == '-';
  const bool infinite = (text[1] | 0x20) == 'i';
  const Extended value =
      infinite ? std::numeric_limits<Extended>::infinity() : std::numeric_limits<Extended>::quiet_NaN();
  return negative ? -value : value;
}

bool IsSpecial(QByteArrayView text) { return text.size() == 4 && text.back() > '9'; }

}  // namespace

TFloatKind FloatKindOfSuffix(char letter) {
  for (size_t kind = fkSingle; kind < kSuffixes.size(); ++kind)
    if (kSuffixes[kind] == letter) return TFloatKind(kind);
  return fkExtended;
}

QByteArray FloatToFormText(TFloatKind kind, Extended value) {
  QByteArray text = Unmarked(kind, value);
  if (kSuffixes[kind] != 0) text += kSuffixes[kind];
  return text;
}

std::optional<Extended> ParseFormFloat(QByteArrayView digits, TFloatKind kind) {
  if (IsSpecial(digits)) return ParseSpecial(digits);
  if (kind == fkExtended) return Parse<Extended>(digits);
  if (kind == fkSingle) return Parse<float>(digits);
  return Parse<double>(digits);
}

std::optional<qint64> ParseFormCurrency(QByteArrayView digits) {
  if (const auto exact = Parse<qint64>(digits)) return exact;
  const auto value = ParseFormFloat(digits, fkExtended);
  constexpr Extended limit = 9223372036854775808.0L;
  if (!value || !(std::fabs(*value) < limit)) return std::nullopt;
  return std::llround(*value);
}

std::optional<qint64> ParseFormInteger(QByteArrayView digits) {
  if (!digits.startsWith('$')) return Parse<qint64>(digits);
  quint64 value = 0;
  const auto [end, error] = std::from_chars(digits.begin() + 1, digits.end(), value, 16);
  if (error != std::errc() || end != digits.end()) return std::nullopt;
  return qint64(value);
}

}  // namespace kt
