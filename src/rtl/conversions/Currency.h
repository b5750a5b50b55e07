#pragma once

#include <QtGlobal>

#include <compare>

namespace kt {

/// An amount with exactly four decimals in 64 bits: about +-922 trillion, no rounding errors of binary fractions.
class Currency {
 public:
  constexpr Currency() = default;
  /// The nearest amount, halves to even. Raises ERangeError for values that do not fit and for NaN.
  explicit Currency(double value);

  /// An amount from its number of ten-thousandths.
  static constexpr Currency FromScaled(qint64 scaled) {
    Currency result;
    result.FScaled = scaled;
    return result;
  }

  /// The number of ten-thousandths.
  constexpr qint64 Scaled() const { return FScaled; }
  double ToDouble() const { return static_cast<double>(static_cast<long double>(FScaled) / 10000); }

  // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the comparison with zero inside for a null pointer.
  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  qint64 FScaled = 0;
};

}  // namespace kt
