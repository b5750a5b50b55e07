#pragma once

#include "kt/qobjects/MemberAccess.h"

namespace kt {

/// A number with decimals as the shortest text of that many digits, from those that people count on, which reads back
/// as the very same number.
QString ExactText(double number);
QString ExactText(float number);

/// Numbers with decimals as such texts, with a point.
TMemberTexts NumberTexts(const TMemberPtr& member);

}  // namespace kt
