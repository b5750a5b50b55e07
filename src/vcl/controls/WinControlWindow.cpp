// The window of TWinControl.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/actions/IdleActions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/DragSession.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/forms/Application.h"

#include <QCoreApplication>
#include <QLayout>

#include <memory>
#include <utility>

namespace kt {

namespace {

/// The control that captured the mouse beyond the press of a button.
TWinControl* Captured = nullptr;

/// False when `from` is not in the layout.
bool Replace(QLayout& layout, QWidget* from, QWidget* to) {
  return std::unique_ptr<QLayoutItem>(layout.replaceWidget(from, to)) != nullptr;
}

}  // namespace

void TWinControl::HandleNeeded() {
  if (HandleAllocated()) return;
  // A control that learns its size from its window may raise events, whose handlers may free anything.
  const TLifeWatch self(this);
  if (GetParent()) GetParent()->HandleNeeded();
  // The parent makes the windows of its children.
  if (self.IsAlive() && !HandleAllocated()) MakeWindows();
  if (self.IsAlive() && !GetParent()) Perform(CM_PARENTBIDIMODECHANGED);
}

/// The windows of the children come when this one is complete.
void TWinControl::MakeWindows() {
  const TLifeWatch self(this);
  CreateWnd();
  if (!self.IsAlive()) return;
  const std::vector<TObjectRef> children(FControls.begin(), FControls.end());
  for (const TObjectRef& child : children) {
    auto* const window = dynamic_cast<TWinControl*>(child.Get());
    if (window && window->GetParent() == this) window->HandleNeeded();
    if (!self.IsAlive() || !HandleAllocated()) return;
  }
  TabsChanged();
}

QWidget* TWinControl::GetHandle() {
  const TLifeWatch self(this);
  HandleNeeded();
  return self.IsAlive() ? FWindow : nullptr;
}

QWidget* TWinControl::CreateBody(QWidget* parent) { return new TBodyOf<QWidget>(this, parent); }

void TWinControl::CreateWnd() {
  // From now on exceptions come from handlers that Qt calls.
  Application();
  FWindow = CreateBody(GetParent() ? GetParent()->FWindow : nullptr);
  FBody = TControlBody::Of(FWindow);
  Q_ASSERT(FBody);
  InitializeWindow();
  FPlacedClient = ClientInWindow();
}

/// The window follows its control to another parent, which has one already or will make it.
void TWinControl::TakeWindowAlong() {
  if (!GetParent()->HandleAllocated()) return DestroyHandle();
  if (!HandleAllocated()) return HandleNeeded();
  FIsMovingWindow = true;
  FWindow->setParent(GetParent()->FWindow);
  FIsMovingWindow = false;
  UpdateWindowBounds();
  UpdateWindowVisible();
}

void TWinControl::InitializeWindow() {
  TIdleActions::Arm();
  FWindow->setAttribute(Qt::WA_OpaquePaintEvent, FControlStyle.Has(csOpaque));
  UpdateFocusPolicy();
  FWindow->setMouseTracking(true);
  FWindow->setAttribute(Qt::WA_InputMethodEnabled, FImeMode != imDisable);
  FWindow->setEnabled(IsEnabled());
  UpdateWindowBounds();
  UpdateWindowVisible();
  Perform(CM_CURSORCHANGED);
}

void TWinControl::DestroyWnd() {
  TFocus::Forget(this);
  if (Captured == this) Captured = nullptr;
  TDragSession::WindowLost(*this);
  FShowing = false;
  FWindow = nullptr;
  if (TControlBody* body = std::exchange(FBody, nullptr)) body->Retire();
}

void TWinControl::DestroyHandle() {
  if (!HandleAllocated()) return;
  // The children's windows go with this one; they get new ones with it.
  for (TControl* control : FControls) {
    if (auto* child = dynamic_cast<TWinControl*>(control)) child->DestroyHandle();
  }
  DestroyWnd();
}

void TWinControl::WindowDestroyed() {
  TFocus::Forget(this);
  if (Captured == this) Captured = nullptr;
  TDragSession::WindowLost(*this);
  FWindow = nullptr;
  FBody = nullptr;
  if (!std::exchange(FShowing, false) || HasState(csDestroying)) return;
  Perform(CM_SHOWINGCHANGED);
}

void TWinControl::RecreateWnd() {
  if (!HandleAllocated()) return;
  const TLifeWatch self(this);
  const bool isFocused = Focused();
  if (!GetParent() && !FWindow->isWindow()) {
    RecreateEmbedded();
  } else {
    const bool isShown = IsShowing() && !GetParent();
    const QPoint position = FWindow->pos();
    DestroyHandle();
    HandleNeeded();
    if (!self.IsAlive() || !HandleAllocated()) return;
    if (isShown) FWindow->move(position);
    if (isShown) FWindow->show();
  }
  if (self.IsAlive() && isFocused) SetFocus();
}

/// Somebody else's layout keeps the new window in the place of the old one.
void TWinControl::RecreateEmbedded() {
  QWidget* const host = FWindow->parentWidget();
  const QRect geometry = FWindow->geometry();
  const auto place = std::make_unique<QWidget>();
  const bool isInLayout = host->layout() && Replace(*host->layout(), FWindow, place.get());
  DestroyHandle();
  const TLifeWatch self(this);
  HandleNeeded();
  if (!self.IsAlive() || !HandleAllocated()) return;
  if (isInLayout) {
    Replace(*host->layout(), place.get(), FWindow);
  } else {
    FWindow->setParent(host);
    FWindow->setGeometry(geometry);
  }
  if (ShowsInParent()) FWindow->show();
}

void TWinControl::UpdateWindowVisible() {
  const bool isWanted = ShowsInParent();
  // Without a parent it is shown by whoever embeds it, who does not show what was hidden on purpose.
  if (GetParent() || !isWanted) FWindow->setVisible(isWanted);
}

void TWinControl::CMVisibleChanged(TMessage&) {
  if (!HandleAllocated()) return;
  const bool isWanted = ShowsInParent();
  const bool isEmbeddedLater = !GetParent() && FWindow->isWindow() && !StandsAlone();
  if (isWanted && isEmbeddedLater) {
    // No longer hidden on purpose: appears with its surroundings.
    FWindow->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
  } else {
    FWindow->setVisible(isWanted);
  }
}

void TWinControl::CMEnabledChanged(TMessage& message) {
  if (HandleAllocated()) FWindow->setEnabled(IsEnabled());
  TControl::CMEnabledChanged(message);
}

void TWinControl::WindowShown(bool isShown) {
  if (FShowing == isShown) return;
  FShowing = isShown;
  if (isShown && !GetParent()) BringTabsUpToDate();
  Perform(CM_SHOWINGCHANGED);
}

void TWinControl::BoundsUpdated() {
  if (!HandleAllocated()) return;
  UpdateWindowBounds();
  PlaceChildWindows();
}

void TWinControl::SetZOrder(bool isTopmost) {
  TControl::SetZOrder(isTopmost);
  if (HandleAllocated() && GetParent()) isTopmost ? FWindow->raise() : FWindow->lower();
}

void TWinControl::PlaceChildWindows() {
  if (!HandleAllocated() || std::exchange(FPlacedClient, ClientInWindow()) == ClientInWindow()) return;
  for (TControl* control : FControls) {
    auto* const child = dynamic_cast<TWinControl*>(control);
    if (child && child->HandleAllocated()) child->UpdateWindowBounds();
  }
}

QRect TWinControl::ClientInWindow() const { return {GetClientOrigin(), GetClientRect().size()}; }

void TWinControl::UpdateWindowBounds() {
  if (FIsMovingWindow) return;
  FIsMovingWindow = true;
  QRect geometry = GetBoundsRect();
  if (TWinControl* parent = GetParent()) {
    geometry.translate(parent->GetClientOrigin());
    // What lies outside the parent's client area is cut off.
    const QRect inside = parent->ClientInWindow();
    if (inside.contains(geometry) || inside.isEmpty()) {
      FWindow->clearMask();
    } else {
      const QRect visible = geometry.intersected(inside).translated(-geometry.topLeft());
      FWindow->setMask(visible.isEmpty() ? QRect(-1, -1, 1, 1) : visible);
    }
    FWindow->setGeometry(geometry);
  } else {
    FWindow->resize(geometry.size());
  }
  FIsMovingWindow = false;
}

void TWinControl::WindowMoved(const QRect& geometry) {
  if (FIsMovingWindow) return;
  const TLiveFlag moving(this, FIsMovingWindow);
  QPoint position = geometry.topLeft();
  if (GetParent()) position -= GetParent()->GetClientOrigin();
  SetBounds(position.x(), position.y(), geometry.width(), geometry.height());
}

QPoint TWinControl::GetClientOrigin() const {
  const QMargins margins = GetClientMargins();
  return {margins.left(), margins.top()};
}

QPoint TWinControl::ClientToScreen(QPoint point) { return GetHandle()->mapToGlobal(point + GetClientOrigin()); }

QPoint TWinControl::ScreenToClient(QPoint point) { return GetHandle()->mapFromGlobal(point) - GetClientOrigin(); }

void TWinControl::Invalidate() {
  if (HandleAllocated()) FWindow->update();
}

void TWinControl::InvalidateRect(const QRect& clientRect) {
  const QRect visible = clientRect.intersected(GetClientRect());
  if (HandleAllocated() && !visible.isEmpty()) FWindow->update(visible.translated(GetClientOrigin()));
}

void TWinControl::Repaint() {
  Invalidate();
  Update();
}

void TWinControl::Update() {
  if (HandleAllocated()) QCoreApplication::sendPostedEvents(FWindow->window(), QEvent::UpdateRequest);
}

void TWinControl::PaintWindow(const QRect&) { FBody->RunInherited(); }

void TWinControl::SetMouseCapture(bool value) {
  if (value == HasMouseCapture()) return;
  if (value) HandleNeeded();
  TWinControl* const previous = std::exchange(Captured, value ? this : nullptr);
  if (previous && previous->FWindow) previous->FWindow->releaseMouse();
  // A press already brings all events here until the button is released.
  if (value && !FBody->IsPressed()) GetHandle()->grabMouse();
  if (previous) TDragSession::CaptureLost(*previous);
}

bool TWinControl::HasMouseCapture() const { return Captured == this; }

}  // namespace kt
