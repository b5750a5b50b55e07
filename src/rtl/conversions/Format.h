#pragma once

#include "kt/rtl/conversions/FormatSettings.h"
#include "kt/rtl/conversions/VarRec.h"

#include <QString>

#include <initializer_list>

namespace kt {

/// Fills arguments into a text: Format("%s is %d years old", {name, age}).
///
/// A placeholder is "%" [index ":"] ["-"] [width] ["." precision] type; "%%" is a percent sign. Width, precision and
/// index are numbers or "*", which takes the next argument, an integer. Width pads with blanks, "-" aligns to the left.
/// An index counts arguments from 0, and the placeholders that follow go on from there. Types, in either case:
///   d u x   an integer in decimal, unsigned decimal or hexadecimal; precision is the least number of digits
///   e f g n m   a floating-point number or Currency: scientific, fixed, general, with thousand separators, money
///   s       a text, character or variant; precision is the most characters
///   p       a pointer in hexadecimal
/// Raises EConvertError when an argument is missing, or when placeholder and argument do not fit.
QString Format(QAnyStringView format, std::initializer_list<TVarRec> args = {},
               const TFormatSettings& settings = FormatSettings());

}  // namespace kt
