#include "kt/rtl/streams/BinaryFormat.h"

#include <QtEndian>

#include <cmath>
#include <limits>

namespace kt {
namespace {

constexpr int kBias = 16383;
constexpr int kMantissaBits = 63;
constexpr int kSpecialExponent = 0x7FFF;
constexpr quint64 kIntegerBit = quint64(1) << kMantissaBits;

struct TParts {
  quint64 Mantissa = 0;
  int Exponent = 0;
};

TParts Split(Extended magnitude) {
  if (std::isnan(magnitude)) return {kIntegerBit | (kIntegerBit >> 1), kSpecialExponent};
  if (std::isinf(magnitude)) return {kIntegerBit, kSpecialExponent};
  if (magnitude == 0) return {};
  int exponent = 0;
  Extended fraction = std::frexp(magnitude, &exponent);
  exponent += kBias - 1;
  if (exponent <= 0) {
    fraction = std::ldexp(fraction, exponent - 1);
    exponent = 0;
  }
  return {quint64(std::ldexp(fraction, kMantissaBits + 1)), exponent};
}

}  // namespace

Extended DecodeExtended(const char* bytes) {
  const auto mantissa = qFromLittleEndian<quint64>(bytes);
  const auto head = qFromLittleEndian<quint16>(bytes + 8);
  const int exponent = head & 0x7FFF;
  Extended value = 0;
  if (exponent == kSpecialExponent)
    value =
        (mantissa << 1) == 0 ? std::numeric_limits<Extended>::infinity() : std::numeric_limits<Extended>::quiet_NaN();
  else
    value = std::ldexp(Extended(mantissa), (exponent == 0 ? 1 : exponent) - kBias - kMantissaBits);
  return std::copysign(value, head & 0x8000 ? Extended(-1) : Extended(1));
}

TExtendedBytes EncodeExtended(Extended value) {
  const TParts parts = Split(std::fabs(value));
  TExtendedBytes bytes;
  qToLittleEndian(parts.Mantissa, bytes.data());
  const bool negative = std::signbit(value) && !std::isnan(value);
  qToLittleEndian(quint16(parts.Exponent | (negative ? 0x8000 : 0)), bytes.data() + 8);
  return bytes;
}

}  // namespace kt
