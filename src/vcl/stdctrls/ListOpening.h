#pragma once

namespace kt {

class TCustomListBox;
class TWinControl;

/// Shows a list in its present size next to a control, below it or, with more room there, above. It does not take the
/// keyboard. A TFloatingListBox opens as it does; any other list appears in its parent, or without one in a window of
/// its own that belongs to that of the control.
void OpenListBeside(TCustomListBox& list, TWinControl& anchor);
/// Has it disappear again.
void CloseList(TCustomListBox& list);

}  // namespace kt
