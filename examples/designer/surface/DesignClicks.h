#pragma once

#include "kt/vcl/controls/WinControl.h"

#include <QPoint>

#include <functional>

namespace designer {

/// Clicks that live controls answer while they are being designed, such as one on the tab of a page. They go by class,
/// so that whoever adds a class can add its clicks.

/// Whether the control has used a click at a place of its window.
using TDesignClick = std::function<bool(kt::TWinControl& control, QPoint point)>;

/// For controls of that class and its descendants; replaces what there was for it.
void RegisterDesignClick(const kt::TClassInfo* classInfo, TDesignClick click);
/// Asks for the control's class first, then for its ancestors.
bool DesignClick(kt::TWinControl& control, QPoint point);

/// The clicks of the designer's own: the bars of tabs that Qt draws, in whatever control.
void RegisterOwnDesignClicks();

}  // namespace designer
