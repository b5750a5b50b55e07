// How TWinControl shows the children that have no window, and gives them the mouse.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/controls/WinControl.h"

#include <QPainter>

#include <algorithm>
#include <bit>

namespace kt {

namespace {

bool IsWindow(const TControl* control) { return dynamic_cast<const TWinControl*>(control) != nullptr; }

bool IsMouseMessage(quint32 msg) { return msg >= WM_MOUSEMOVE && msg <= WM_MBUTTONDBLCLK; }

bool IsPress(quint32 msg) {
  return msg != WM_MOUSEMOVE && msg != WM_LBUTTONUP && msg != WM_RBUTTONUP && msg != WM_MBUTTONUP;
}

/// How many mouse buttons a message of the mouse says are held.
int ButtonsHeld(const TMessage& message) {
  constexpr TShiftState buttons = {ssLeft, ssRight, ssMiddle};
  return std::popcount(static_cast<quint32>(message.WParam) & static_cast<quint32>(buttons.Bits()));
}

}  // namespace

TControl* TWinControl::ControlAtPos(QPoint pos, bool allowDisabled, bool allowWindows) const {
  if (!GetClientRect().contains(pos)) return nullptr;
  TControl* found = nullptr;
  for (auto child = FControls.rbegin(); child != FControls.rend(); ++child) {
    TControl* const control = *child;
    const bool isReached = control->IsEnabled() || allowDisabled || control->HasState(csDesigning);
    if (!isReached || !control->GetBoundsRect().contains(pos) || !control->ShowsInParent()) continue;
    const bool isWindow = IsWindow(control);
    // Windows lie above all others.
    if (isWindow && allowWindows) return control;
    if (!isWindow && !found) found = control;
  }
  return found;
}

// Painting.

QRegion TWinControl::WindowsArea() const {
  QRegion area;
  for (const TControl* control : FControls) {
    if (IsWindow(control) && control->ShowsInParent()) area += control->GetBoundsRect();
  }
  return area;
}

QRegion TWinControl::OpaqueArea() const {
  QRegion area;
  for (const TControl* control : FControls) {
    const bool isOpaque = control->GetControlStyle().Has(csOpaque) && control->ShowsInParent();
    if (isOpaque && !IsWindow(control)) area += control->GetBoundsRect();
  }
  return area;
}

void TWinControl::PaintControls(const QRect& clip) {
  if (std::all_of(FControls.begin(), FControls.end(), &IsWindow)) return;
  const QPoint origin = GetClientOrigin();
  // Windows hide what is below them, translucent or not.
  const QRegion open = QRegion(clip.translated(-origin) & GetClientRect()) - WindowsArea();
  QPainter painter(FWindow);
  painter.translate(origin);
  const TLifeWatch self(this);
  // A handler may take controls away.
  for (int i = 0; self.IsAlive() && i < GetControlCount(); ++i) {
    TControl& child = *FControls[i];
    if (IsWindow(&child) || !child.ShowsInParent()) continue;
    const QRegion seen = open & child.GetBoundsRect();
    if (seen.isEmpty()) continue;
    const QPoint corner = child.GetBoundsRect().topLeft();
    painter.save();
    painter.setClipRegion(seen);
    painter.translate(corner);
    GuardedCall([&] { child.PaintInWindow(painter, seen.boundingRect().translated(-corner)); });
    painter.restore();
  }
}

// The mouse.

void TWinControl::WndProc(TMessage& message) {
  TControl* const target = IsMouseMessage(message.Msg) ? ControlForMouse(message) : this;
  if (target == this) return TControl::WndProc(message);
  const QPoint point = PointOfMessage(message.LParam) - target->GetBoundsRect().topLeft();
  message.Result = target->Perform(message.Msg, message.WParam, MessagePoint(point.x(), point.y()));
}

/// Who gets the press of a button gets all that follows, until no button is held any more.
TControl* TWinControl::ControlForMouse(const TMessage& message) {
  const int held = ButtonsHeld(message);
  const bool isFirstPress = IsPress(message.Msg) && held <= 1;
  if (isFirstPress || (message.Msg == WM_MOUSEMOVE && held == 0)) FPressed = nullptr;
  auto* target = static_cast<TControl*>(FPressed.Get());
  if (!target || (target != this && target->GetParent() != this)) {
    target = HasMouseCapture() ? this : ControlAt(PointOfMessage(message.LParam));
  }
  if (IsPress(message.Msg) && (target == this || target->GetControlStyle().Has(csCaptureMouse))) FPressed = target;
  if (!IsPress(message.Msg) && held == 0) FPressed = nullptr;
  return target;
}

void TWinControl::PointerCame(QPoint point) {
  TControl* const child = ControlAtPos(point, true);
  FPointedChild = child;
  FPointed = child ? poChild : poWindow;
  if (child) {
    HintControlChanged(child);
    ShowPointedCursor();
  }
  (child ? child : this)->Perform(CM_MOUSEENTER);
}

void TWinControl::PointerWent() {
  TControl* const former = PointedNow();
  const bool wasChild = std::exchange(FPointed, poWindow) == poChild;
  FPointedChild = nullptr;
  if (wasChild) ShowPointedCursor();
  if (former) former->Perform(CM_MOUSELEAVE);
}

TControl* TWinControl::PointedNow() const {
  if (FPointed == poWindow) return const_cast<TWinControl*>(this);
  return FPointed == poChild ? static_cast<TControl*>(FPointedChild.Get()) : nullptr;
}

void TWinControl::PointerMoved(QPoint point, bool isButtonHeld) {
  // A drag may have had the release.
  if (!isButtonHeld) FPressed = nullptr;
  const TObject* const pressed = FPressed.Get();
  if (pressed == this) return;
  TControl* const child = ControlAtPos(point, true);
  // While a button is held others do not hear of the mouse.
  TControl* const target = !pressed ? (child ? child : this) : child == pressed ? child : nullptr;
  const bool isSame = target == PointedNow() && (target || FPointed == poNobody);
  if (!isSame) PointTo(target);
}

/// `control`: this one, a child, or nobody.
void TWinControl::PointTo(TControl* control) {
  const TLifeWatch self(this);
  const TObjectRef next(control);
  TControl* const former = PointedNow();
  FPointedChild = control == this ? nullptr : control;
  FPointed = control == this ? poWindow : control ? poChild : poNobody;
  HideControlHint();
  HintControlChanged(control ? control : this);
  if (!self.IsAlive()) return;
  ShowPointedCursor();
  if (former) former->Perform(CM_MOUSELEAVE);
  if (self.IsAlive() && next && PointedNow() == control) control->Perform(CM_MOUSEENTER);
}

/// The pointer of the child that the mouse is over, if it has one of its own.
void TWinControl::ShowPointedCursor() {
  const TControl* const child = FPointed == poChild ? PointedNow() : nullptr;
  const bool isOwn = child && child->GetCursor() != crDefault && !child->HasState(csDesigning);
  if (isOwn) {
    ShowCursor(child->GetCursor());
  } else {
    Perform(CM_CURSORCHANGED);
  }
}

void TWinControl::ChildCursorChanged(const TControl& child) {
  if (FPointed == poChild && FPointedChild.Get() == &child) ShowPointedCursor();
}

}  // namespace kt
