#pragma once

namespace kt {

class TWinControl;

/// Which control counts as focused, in windows of ours and of others: it follows the keyboard, but stays while only the
/// window or a pop-up has taken that away. Tells CM_ENTER and CM_EXIT to the controls on the way.
class TFocus {
 public:
  /// Null when none of ours is.
  static TWinControl* Current();
  /// A window of ours got the keyboard. May raise what a handler of OnExit or OnEnter raises.
  static void Moved(TWinControl* control);
  /// The keyboard went to a widget that is none of ours.
  static void Left() { Moved(nullptr); }
  /// A control is being destroyed, or loses its window.
  static void Forget(TWinControl* control);
};

}  // namespace kt
