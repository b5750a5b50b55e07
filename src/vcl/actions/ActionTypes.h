#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <QString>

namespace kt {

class TBasicAction;

/// An action is to be done or brought up to date; a handler that sets the last one to true has seen to it.
struct TActionEvent : TEvent<TBasicAction*, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TActionEvent";
};
/// The hint of an action's client is about to be shown; a handler may change it, or set the last one to false.
struct THintEvent : TEvent<QString&, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "THintEvent";
};

/// Whether the actions of a list can be done: all of them, or none; or none although all are enabled.
enum TActionListState { asNormal, asSuspended, asSuspendedEnabled };

template <>
struct TEnumNames<TActionListState> {
  static constexpr char Name[] = "TActionListState";
  static constexpr const char* Values[] = {"asNormal", "asSuspended", "asSuspendedEnabled"};
};

}  // namespace kt
