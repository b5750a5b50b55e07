#pragma once

#include <QChar>

namespace kt {

/// Whether `c` begins and ends a text that stands for itself in a mask of numbers or dates.
inline bool IsQuote(QChar c) { return c == u'\'' || c == u'"'; }

}  // namespace kt
