#pragma once

namespace kt {

class TControlActionLink;

/// Has the actions of controls on the screen brought up to date whenever the program is about to wait for the user, so
/// that what can be done now is enabled, and nothing else.
class TIdleActions {
 public:
  static void Add(TControlActionLink& link);
  static void Remove(TControlActionLink& link);
  /// Does so now. What handlers raise goes to the application's handler of exceptions.
  static void Update();
  /// Called when there is an event queue for sure; costs a comparison.
  static void Arm();
};

}  // namespace kt
