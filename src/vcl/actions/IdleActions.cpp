#include "kt/vcl/actions/IdleActions.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/actions/ControlActionLink.h"
#include "kt/vcl/controls/WinControl.h"

#include <QAbstractEventDispatcher>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace kt {

namespace {

std::vector<TControlActionLink*>& Links() {
  static std::vector<TControlActionLink*> links;
  return links;
}

bool IsOnScreen(TControl& control) {
  const auto* window = dynamic_cast<TWinControl*>(&control);
  if (!window) window = control.GetParent();
  return window && window->IsShowing() && control.IsVisible();
}

}  // namespace

void TIdleActions::Add(TControlActionLink& link) {
  Links().push_back(&link);
  Arm();
}

void TIdleActions::Remove(TControlActionLink& link) { std::erase(Links(), &link); }

void TIdleActions::Update() {
  static bool IsAtWork = false;
  if (IsAtWork) return;
  IsAtWork = true;
  // Handlers may free any of them.
  for (TControlActionLink* link : std::vector<TControlActionLink*>(Links())) {
    if (std::find(Links().begin(), Links().end(), link) == Links().end()) continue;
    if (link->FClient.HasState(csDesigning)) continue;
    if (IsOnScreen(link->FClient)) GuardedCall([link] { link->Update(); });
  }
  IsAtWork = false;
}

void TIdleActions::Arm() {
  static QPointer<QAbstractEventDispatcher> Armed;
  QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
  if (!dispatcher || dispatcher == Armed) return;
  Armed = dispatcher;
  QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, dispatcher, [] { Update(); });
}

}  // namespace kt
