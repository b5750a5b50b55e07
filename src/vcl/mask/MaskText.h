#pragma once

#include "kt/vcl/mask/MaskSyntax.h"

#include <optional>

/// Values, and the texts that show them behind a mask. A masked text always has the length of its mask; where the mask
/// has no character of the value it shows the blank.
namespace kt {

/// The text that a mask makes of a value, with spaces where the value has nothing. A value holds the mask's literals
/// when the mask saves them. Characters that do not fit are kept: a value is shown before it is judged.
QString FormatMaskText(QStringView mask, QStringView value);

/// The masked text of a value which holds the mask's literals when the mask saves them; literals that are missing are
/// filled in, and blanks up to them. What is too long is cut. Spaces in the value are blanks, but stay spaces between
/// other characters where the cell takes any.
QString MaskValue(const TMaskSyntax& syntax, QStringView value);
/// As MaskValue(), of a value without literals whatever the mask saves.
QString MaskEntered(const TMaskSyntax& syntax, QStringView entered);
/// The value that a masked text shows: spaces for blanks, with the literals when the mask saves them. Without literals
/// the spaces at the end are gone, and those at the start as well when the mask is filled from the right.
QString UnmaskValue(const TMaskSyntax& syntax, QStringView text);
/// As UnmaskValue(), without literals whatever the mask saves.
QString UnmaskEntered(const TMaskSyntax& syntax, QStringView text);
/// A text in the length of the mask, with its literals where they belong.
QString AlignToMask(const TMaskSyntax& syntax, QStringView text);
/// What was entered moved to where the mask fills it in, when all of it fits there; else the text as it was. Changes
/// texts of masks alone that are filled from the right.
QString ReflowMasked(const TMaskSyntax& syntax, const QString& text);
/// The first place where a masked text is not what its mask asks for: a required cell that is blank, or a character
/// that does not fit.
std::optional<int> FindMaskFault(const TMaskSyntax& syntax, QStringView text);

}  // namespace kt
