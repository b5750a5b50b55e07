#pragma once

namespace kt {

/// Turns of the wheel add up to whole steps, however finely a wheel tells of them.
class TWheelSteps {
 public:
  /// A step, in the eighths of a degree that turns are told in.
  static constexpr int kStep = 120;

  /// Adds a turn and takes the steps that are whole by now: positive away from the user.
  int Turn(int delta) {
    FRest += delta;
    const int steps = FRest / kStep;
    FRest -= steps * kStep;
    return steps;
  }

 private:
  int FRest = 0;
};

}  // namespace kt
