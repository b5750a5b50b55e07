#pragma once

#include "kt/vcl/controls/ControlTypes.h"

#include <Qt>

class QKeyEvent;

namespace kt {

/// The virtual key code of a key of Qt's; 0 when it has none.
quint16 VirtualKeyOf(const QKeyEvent& event);
/// The held keys and buttons in the framework's terms.
TShiftState ShiftStateOf(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons = Qt::NoButton);

}  // namespace kt
