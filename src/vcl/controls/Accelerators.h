#pragma once

#include <QString>

namespace kt {

/// The letter of a caption that stands for it together with Alt: the one behind the first "&" that is not doubled.
/// Empty when there is none.
QString GetHotkey(const QString& caption);
/// The caption as it reads: "&" gone, "&&" single.
QString StripHotkey(const QString& caption);
/// Whether `character` is the letter of the caption, in either case.
bool IsAccel(quint16 character, const QString& caption);

}  // namespace kt
