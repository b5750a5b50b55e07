#pragma once

#include "kt/rtl/streams/FormEvents.h"

#include <QByteArray>

namespace kt {

/// The numbers of the text object format. All of this is independent of the locale.

/// The text of a floating-point number with the letter of its kind, one that parses back to the very same value.
///
/// An extended number is written with 18 decimals of which the first 16 digits count, as the component framework does,
/// where that is exact; else with as few digits as it takes, which is also the form of the other kinds: `1.5s`,
/// `38718.25d`, `0.1w`. What is not a finite number is an extension of ours: `+Inf`, `-Inf`, `+NaN`; the sign tells it
/// from an identifier.
QByteArray FloatToFormText(TFloatKind kind, Extended value);

/// Reads the digits of such a number, without the letter. None when they are no number or beyond the range of the kind.
std::optional<Extended> ParseFormFloat(QByteArrayView digits, TFloatKind kind);

/// Reads an amount of money: the text states ten-thousandths, a fraction of which is rounded.
std::optional<qint64> ParseFormCurrency(QByteArrayView digits);

/// Reads a decimal or `$` hexadecimal integer of 64 bits; sixteen hexadecimal digits may reach into the sign.
std::optional<qint64> ParseFormInteger(QByteArrayView digits);

/// The kind that a suffix letter (lower case) names; `fkExtended` for none. Currency is not among them.
TFloatKind FloatKindOfSuffix(char letter);

}  // namespace kt
