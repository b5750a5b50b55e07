#include "kt/vcl/controls/Focus.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/WinControl.h"

#include <vector>

namespace kt {

namespace {

struct TFocusState {
  TWinControl* Current = nullptr;
  /// Where the focus is on its way to.
  TWinControl* Target = nullptr;
  /// Who is still to be told; controls that die meanwhile are taken out.
  std::vector<TWinControl*> Pending;
};

TFocusState& State() {
  static TFocusState state;
  return state;
}

/// Tells all of `controls`, the first one first.
void Tell(std::vector<TWinControl*> controls, quint32 msg) {
  std::vector<TWinControl*> outer = std::exchange(State().Pending, std::move(controls));
  struct TRestore {
    std::vector<TWinControl*>& Outer;
    ~TRestore() { State().Pending = std::move(Outer); }
  } restore{outer};
  for (std::size_t i = 0; i < State().Pending.size(); ++i) {
    if (TWinControl* control = State().Pending[i]) control->Perform(msg);
  }
}

std::vector<TWinControl*> AncestorsUpTo(TWinControl* control, const TWinControl* below) {
  std::vector<TWinControl*> result;
  for (; control && !(below && control->ContainsControl(below)); control = control->GetParent())
    result.push_back(control);
  return result;
}

}  // namespace

TWinControl* TFocus::Current() { return State().Current; }

void TFocus::Moved(TWinControl* control) {
  TWinControl* const previous = State().Current;
  if (previous == control) return;
  // Whoever leaves counts as focused while it is told, so that it can stay.
  State().Target = control;
  if (previous) Tell(AncestorsUpTo(previous, control), CM_EXIT);
  if (State().Current != previous && State().Current) return;
  const bool isPreviousAlive = State().Current == previous;
  control = State().Target;
  State().Current = control;
  if (!control) return;
  std::vector<TWinControl*> entered = AncestorsUpTo(control, isPreviousAlive ? previous : nullptr);
  for (TWinControl* parent = control; parent; parent = parent->GetParent()) {
    const TLifeWatch life(parent);
    parent->ControlFocused(control);
    // What was entered, or what is around it, may have been freed.
    if (!life.IsAlive() || State().Current != control) return;
  }
  Tell({entered.rbegin(), entered.rend()}, CM_ENTER);
}

void TFocus::Forget(TWinControl* control) {
  if (State().Current == control) State().Current = nullptr;
  if (State().Target == control) State().Target = nullptr;
  for (TWinControl*& pending : State().Pending) {
    if (pending == control) pending = nullptr;
  }
}

}  // namespace kt
