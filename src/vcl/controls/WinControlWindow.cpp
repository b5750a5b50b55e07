// The window of TWinControl.
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/forms/Application.h"

#include <QCoreApplication>

namespace kt {

namespace {

/// The control that captured the mouse beyond the press of a button.
TWinControl* Captured = nullptr;

}  // namespace

void TWinControl::HandleNeeded() {
  if (HandleAllocated()) return;
  if (GetParent()) GetParent()->HandleNeeded();
  // The parent makes the windows of its children.
  if (!HandleAllocated()) CreateWnd();
}

QWidget* TWinControl::GetHandle() {
  HandleNeeded();
  return FWindow;
}

QWidget* TWinControl::CreateBody(QWidget* parent) { return new TBodyOf<QWidget>(this, parent); }

void TWinControl::CreateWnd() {
  // From now on exceptions come from handlers that Qt calls.
  Application();
  FWindow = CreateBody(GetParent() ? GetParent()->FWindow : nullptr);
  FBody = TControlBody::Of(FWindow);
  Q_ASSERT(FBody);
  InitializeWindow();
  for (int i = 0; i < GetControlCount(); ++i) {
    if (auto* child = dynamic_cast<TWinControl*>(FControls[i])) child->HandleNeeded();
  }
}

void TWinControl::InitializeWindow() {
  FWindow->setAttribute(Qt::WA_OpaquePaintEvent, FControlStyle.Has(csOpaque));
  FWindow->setFocusPolicy(FTabStop ? Qt::TabFocus : Qt::NoFocus);
  FWindow->setMouseTracking(true);
  FWindow->setAttribute(Qt::WA_InputMethodEnabled);
  FWindow->setEnabled(IsEnabled());
  UpdateWindowBounds();
  UpdateWindowVisible();
  Perform(CM_CURSORCHANGED);
}

void TWinControl::DestroyWnd() {
  TFocus::Forget(this);
  if (Captured == this) Captured = nullptr;
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
  FWindow = nullptr;
  FBody = nullptr;
  if (!std::exchange(FShowing, false) || HasState(csDestroying)) return;
  Perform(CM_SHOWINGCHANGED);
}

void TWinControl::RecreateWnd() {
  if (!HandleAllocated()) return;
  const bool isFocused = Focused();
  DestroyHandle();
  HandleNeeded();
  if (isFocused) SetFocus();
}

void TWinControl::UpdateWindowVisible() {
  // A window of its own is shown by whoever has embedded it.
  if (GetParent()) FWindow->setVisible(IsVisible());
}

void TWinControl::CMVisibleChanged(TMessage&) {
  if (HandleAllocated()) FWindow->setVisible(IsVisible());
}

void TWinControl::CMEnabledChanged(TMessage& message) {
  if (HandleAllocated()) FWindow->setEnabled(IsEnabled());
  TControl::CMEnabledChanged(message);
}

void TWinControl::WindowShown(bool isShown) {
  if (FShowing == isShown) return;
  FShowing = isShown;
  Perform(CM_SHOWINGCHANGED);
}

void TWinControl::BoundsUpdated() {
  if (HandleAllocated()) UpdateWindowBounds();
}

void TWinControl::UpdateWindowBounds() {
  if (FIsMovingWindow) return;
  FIsMovingWindow = true;
  QRect geometry = GetBoundsRect();
  if (TWinControl* parent = GetParent()) {
    geometry.translate(parent->GetClientOrigin());
    // What lies outside the parent's client area is cut off.
    const QRect inside(parent->GetClientOrigin(), parent->GetClientRect().size());
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
  FIsMovingWindow = true;
  QPoint position = geometry.topLeft();
  if (GetParent()) position -= GetParent()->GetClientOrigin();
  try {
    SetBounds(position.x(), position.y(), geometry.width(), geometry.height());
  } catch (...) {
    FIsMovingWindow = false;
    throw;
  }
  FIsMovingWindow = false;
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
  if (Captured && Captured->FWindow) Captured->FWindow->releaseMouse();
  Captured = value ? this : nullptr;
  // A press already brings all events here until the button is released.
  if (value && !FBody->IsPressed()) GetHandle()->grabMouse();
}

bool TWinControl::HasMouseCapture() const { return Captured == this; }

}  // namespace kt
