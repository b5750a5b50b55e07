// Keys, focus and the wheel of TWinControl.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/KeyCodes.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/QtCursor.h"

#include <QLatin1StringView>

#include <algorithm>

namespace kt {

namespace {

constexpr QLatin1StringView SCannotFocus{"Cannot focus a disabled or invisible window"};

}  // namespace

void TWinControl::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_CHAR:
      return DispatchKey(message);
    case WM_SETFOCUS:
      return WMSetFocus(message);
    case WM_KILLFOCUS:
      return WMKillFocus(message);
    case WM_CANCELMODE:
      return WMCancelMode(message);
    case WM_SYSCHAR:
      return WMSysChar(message);
    case CM_ENTER:
      return CMEnter(message);
    case CM_EXIT:
      return CMExit(message);
    case CM_SHOWINGCHANGED:
      return CMShowingChanged(message);
    case CM_WANTSPECIALKEY:
      return CMWantSpecialKey(message);
    case CM_CHILDKEY:
      if (GetParent()) GetParent()->WndProc(message);
      return;
    case CM_DIALOGKEY:
    case CM_FOCUSCHANGED:
    case CM_APPLICATIONHINT:
      return DispatchDown(message);
    case CM_DRAG:
      return CMDrag(message);
    case CM_CTL3DCHANGED:
      return CMCtl3DChanged(message);
    case CM_PARENTCTL3DCHANGED:
      return CMParentCtl3DChanged(message);
    case CM_TABSTOPCHANGED:
      return CMTabStopChanged(message);
    case CM_ORDERTABS:
      return BringTabsUpToDate();
    case CM_RECREATEWND:
      return RecreateWnd();
    default:
      TControl::Dispatch(message);
  }
}

/// To all controls in here, till one has taken it.
void TWinControl::DispatchDown(TMessage& message) {
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && i < GetControlCount() && message.Result == 0; ++i) GetControls(i)->WndProc(message);
}

void TWinControl::CMDialogChar(TMessage& message) { DispatchDown(message); }

/// A letter together with Alt; with Ctrl besides it is one that keyboards type that way. What nobody takes is the
/// window's.
void TWinControl::WMSysChar(TMessage& message) {
  const TLifeWatch self(this);
  const bool isTyped = TShiftState::FromBits(static_cast<quint32>(message.LParam)).Has(ssCtrl);
  if (!HasState(csDesigning) && message.WParam != u' ' && !isTyped) {
    TWinControl* top = this;
    while (top->GetParent()) top = top->GetParent();
    message.Result = top->Perform(CM_DIALOGCHAR, message.WParam, message.LParam);
  }
  if (self.IsAlive() && message.Result == 0) DefaultHandler(message);
}

void TWinControl::DispatchKey(TMessage& message) {
  for (TWinControl* parent = GetParent(); parent; parent = parent->GetParent()) {
    if (parent->PreviewKey(message)) return;
  }
  const auto shift = TShiftState::FromBits(static_cast<quint32>(message.LParam));
  // A handler that frees the control has taken the key.
  const TLifeWatch self(this);
  if (message.Msg == WM_CHAR) {
    QChar character(static_cast<char16_t>(message.WParam));
    KeyPress(character);
    message.WParam = character.unicode();
  } else {
    auto key = static_cast<quint16>(message.WParam);
    const bool isDown = message.Msg == WM_KEYDOWN || message.Msg == WM_SYSKEYDOWN;
    if (isDown) {
      KeyDown(key, shift);
    } else {
      KeyUp(key, shift);
    }
    message.WParam = key;
  }
  if (self.IsAlive() && message.WParam != 0) DefaultHandler(message);
}

void TWinControl::DefaultHandler(TMessage& message) {
  switch (message.Msg) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_CHAR:
    case WM_SYSCHAR:
      FIsKeyLeft = true;
      return;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      if (FBody) FBody->RunInherited();
      return;
    default:
      return;
  }
}

bool TWinControl::SendKey(quint32 msg, quint16 key, qintptr shift) {
  FIsKeyLeft = false;
  // A control that has gone is done with the key as well.
  TControlBody* const body = FBody;
  Perform(msg, key, shift);
  return body->Control() != this || !FIsKeyLeft;
}

bool TWinControl::WantsKey(quint16 key) { return Perform(CM_WANTSPECIALKEY, key) != 0; }

bool TWinControl::OfferToParents(quint16 key, Qt::KeyboardModifiers modifiers) {
  if (key == 0 || !GetParent()) return false;
  TMessage message{CM_CHILDKEY, key, PointerMessage(this), 0};
  Q_UNUSED(modifiers)
  GetParent()->WndProc(message);
  return message.Result != 0;
}

bool TWinControl::OfferToForm(quint16 key, Qt::KeyboardModifiers modifiers) {
  TWinControl* top = this;
  while (top->GetParent()) top = top->GetParent();
  return top->Perform(CM_DIALOGKEY, key, ShiftStateOf(modifiers).Bits()) != 0;
}

bool TWinControl::InputText(const QString& text) {
  for (QChar character : text) {
    if (HandleAllocated()) SendKey(WM_CHAR, character.unicode(), 0);
  }
  return true;
}

bool TWinControl::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  if (isHorizontal || !(OnMouseWheel || OnMouseWheelDown || OnMouseWheelUp)) return false;
  const QPoint place = ClientToScreen(position);
  const TLifeWatch self(this);
  bool isUsed = false;
  OnMouseWheel(this, shift, delta, place, isUsed);
  if (!self.IsAlive() || isUsed) return true;
  for (int steps = FWheel.Turn(delta); steps != 0;) {
    const bool isUp = steps > 0;
    steps += isUp ? -1 : 1;
    const TMouseWheelUpDownEvent handler = isUp ? OnMouseWheelUp : OnMouseWheelDown;
    handler(this, shift, place, isUsed);
    if (!self.IsAlive()) return true;
  }
  return isUsed;
}

bool TWinControl::KeepsPointer() const {
  return std::any_of(FControls.begin(), FControls.end(), [](const TControl* control) {
    const auto* child = dynamic_cast<const TWinControl*>(control);
    return child && child->KeepsPointer();
  });
}

bool TWinControl::Focused() const { return HandleAllocated() && FWindow->hasFocus(); }

bool TWinControl::CanFocus() const {
  for (const TWinControl* control = this; control; control = control->GetParent()) {
    if (!control->IsVisible() || !control->IsEnabled() || control->HasState(csDestroying)) return false;
  }
  return true;
}

void TWinControl::SetFocus() {
  if (!CanFocus()) throw EInvalidOperation(SCannotFocus);
  const TLifeWatch self(this);
  QWidget* const window = GetHandle();
  if (!window) return;
  window->setFocus();
  // Those that are left and entered may free whatever they like.
  if (!self.IsAlive() || !FWindow || FWindow->isActiveWindow()) return;
  // The keyboard comes when the window is activated; until then the form has to know for whom.
  TWinControl* const owner = FocusOwner();
  for (TWinControl* parent = owner; parent; parent = parent->GetParent()) {
    const TLifeWatch life(parent);
    parent->ControlFocused(owner);
    if (!life.IsAlive() || !self.IsAlive()) return;
  }
}

void TWinControl::CMCursorChanged(TMessage&) { ShowCursor(GetCursor()); }

void TWinControl::ShowCursor(TCursor cursor) {
  if (!HandleAllocated()) return;
  if (cursor == crDefault) {
    FWindow->unsetCursor();
  } else {
    FWindow->setCursor(QtCursorShape(cursor));
  }
}

}  // namespace kt
