#include "kt/rtl/conversions/FloatDecimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kt {
namespace {

/// What the digits are first made with; rounding happens on these, never on the binary value.
constexpr int kExactDigits = 18;

void StripZeros(TFloatRec& rec) {
  while (!rec.Digits.empty() && rec.Digits.back() == '0') rec.Digits.pop_back();
  if (rec.Digits.empty()) {
    rec.Exponent = 0;
    rec.Negative = false;
  }
}

/// Adds one unit in the last place; nine nines and a carry make a new first digit.
void RoundUp(TFloatRec& rec) {
  while (!rec.Digits.empty() && rec.Digits.back() == '9') rec.Digits.pop_back();
  if (rec.Digits.empty()) {
    rec.Digits = "1";
    ++rec.Exponent;
  } else {
    ++rec.Digits.back();
  }
}

void RoundTo(TFloatRec& rec, int precision, int decimals) {
  const int keep = std::min(precision, rec.Exponent + std::clamp(decimals, -9999, 9999));
  const int count = static_cast<int>(rec.Digits.size());
  if (keep < count) {
    const bool isUp = keep >= 0 && rec.Digits[static_cast<std::size_t>(keep)] >= '5';
    rec.Digits.resize(static_cast<std::size_t>(std::max(keep, 0)));
    if (isUp) RoundUp(rec);
  }
  StripZeros(rec);
}

}  // namespace

TFloatRec FloatToDecimal(double value, int precision, int decimals) {
  TFloatRec rec;
  if (std::isnan(value)) {
    rec.Kind = fkNaN;
    return rec;
  }
  rec.Negative = std::signbit(value);
  if (std::isinf(value)) {
    rec.Kind = fkInfinity;
    return rec;
  }
  char text[48];
  const auto [end, error] =
      std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific, kExactDigits - 1);
  Q_ASSERT(error == std::errc());
  const char* const mark = std::find(text, end, 'e');
  rec.Digits.assign(1, text[0]);
  rec.Digits.append(static_cast<const char*>(text) + 2, mark);
  const char* const exponent = mark + (mark[1] == '+' ? 2 : 1);
  std::from_chars(exponent, end, rec.Exponent);
  ++rec.Exponent;
  RoundTo(rec, std::clamp(precision, 1, kExactDigits), decimals);
  return rec;
}

TFloatRec FloatToDecimal(Currency value, int precision, int decimals) {
  TFloatRec rec;
  rec.Negative = value.Scaled() < 0;
  const quint64 magnitude =
      rec.Negative ? 0 - static_cast<quint64>(value.Scaled()) : static_cast<quint64>(value.Scaled());
  if (magnitude != 0) rec.Digits = std::to_string(magnitude);
  rec.Exponent = static_cast<int>(rec.Digits.size()) - 4;
  RoundTo(rec, std::clamp(precision, 1, 19), decimals);
  return rec;
}

}  // namespace kt
