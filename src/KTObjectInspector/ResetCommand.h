#pragma once

namespace kt {

class TKTCustomObjectInspector;
class TMenuItem;
class TPopupMenu;

/// Adds the command "Reset to default" to a menu, the inspector's own for instance: it gives the selected property the
/// value that it had before any change, and is disabled where the objects know no way back. OnPopup of the menu goes on
/// to be called. The menu owns the command; either of the two may go first.
TMenuItem* AddResetCommand(TKTCustomObjectInspector& inspector, TPopupMenu& menu);

}  // namespace kt
