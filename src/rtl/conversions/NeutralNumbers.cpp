#include "kt/rtl/conversions/NeutralNumbers.h"

#include <algorithm>
#include <charconv>

namespace kt {
namespace {

template <typename T>
QByteArray Write(T value) {
  char text[64];
  const std::to_chars_result result = std::to_chars(text, text + sizeof text, value);
  Q_ASSERT(result.ec == std::errc());
  return QByteArray(text, result.ptr - text);
}

/// An out-of-range number is too small rather than too large when its first digit stands behind the point after the
/// exponent is applied.
bool IsTiny(QByteArrayView text) {
  const char* const data = text.data();
  const char* const end = data + text.size();
  const char* const mark = std::find_if(data, end, [](char c) { return c == 'e' || c == 'E'; });
  const char* const point = std::find(data, mark, '.');
  const char* const first = std::find_if(data, mark, [](char c) { return c >= '1' && c <= '9'; });
  qint64 exponent = 0;
  if (mark != end) {
    const char* const digits = mark + 1 != end && mark[1] == '+' ? mark + 2 : mark + 1;
    const std::from_chars_result result = std::from_chars(digits, end, exponent);
    if (result.ec == std::errc::result_out_of_range) return *digits == '-';
  }
  return exponent + (point - first) < 0;
}

template <typename T>
bool Read(QByteArrayView text, T& value) {
  const char* const end = text.data() + text.size();
  T number = 0;
  const std::from_chars_result result = std::from_chars(text.data(), end, number);
  if (result.ptr != end || result.ec == std::errc::invalid_argument) return false;
  if (result.ec == std::errc::result_out_of_range) {
    if (!IsTiny(text)) return false;
    number = text.startsWith('-') ? -T{0} : T{0};
  }
  value = number;
  return true;
}

}  // namespace

QByteArray DoubleToNeutral(double value) { return Write(value); }

QByteArray LongDoubleToNeutral(long double value) { return Write(value); }

bool TryNeutralToDouble(QByteArrayView text, double& value) { return Read(text, value); }

bool TryNeutralToLongDouble(QByteArrayView text, long double& value) { return Read(text, value); }

}  // namespace kt
