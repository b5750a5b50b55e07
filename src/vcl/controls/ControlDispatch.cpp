// How messages reach the handlers of TControl.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/WinControl.h"

namespace kt {

qintptr MessagePoint(int x, int y) {
  return static_cast<qintptr>((quint32(quint16(qint16(y))) << 16) | quint16(qint16(x)));
}

QPoint PointOfMessage(qintptr lParam) { return {qint16(lParam & 0xFFFF), qint16((lParam >> 16) & 0xFFFF)}; }

void TControl::WndProc(TMessage& message) {
  switch (message.Msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      if (IsDraggedByPress()) return PressToDrag();
      FControlState.Include(csLButtonDown);
      break;
    case WM_LBUTTONUP:
      FControlState.Exclude(csLButtonDown);
      break;
    default:
      break;
  }
  Dispatch(message);
}

void TControl::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case CM_PARENTFONTCHANGED:
      return CMParentFontChanged(message);
    case CM_PARENTCOLORCHANGED:
      return CMParentColorChanged(message);
    case CM_PARENTBIDIMODECHANGED:
      return CMParentBiDiModeChanged(message);
    case CM_PARENTSHOWHINTCHANGED:
      return CMParentShowHintChanged(message);
    case CM_FONTCHANGED:
      return CMFontChanged(message);
    case CM_COLORCHANGED:
      return CMColorChanged(message);
    case CM_BIDIMODECHANGED:
      return CMBiDiModeChanged(message);
    case CM_ENABLEDCHANGED:
      return CMEnabledChanged(message);
    case CM_VISIBLECHANGED:
      return CMVisibleChanged(message);
    case CM_SHOWHINTCHANGED:
      return CMShowHintChanged(message);
    case CM_CURSORCHANGED:
      return CMCursorChanged(message);
    case CM_TEXTCHANGED:
      return CMTextChanged(message);
    case CM_MOUSEENTER:
      return CMMouseEnter(message);
    case CM_MOUSELEAVE:
      return CMMouseLeave(message);
    case CM_CANCELMODE:
      return CMCancelMode(message);
    case CM_DIALOGCHAR:
      return CMDialogChar(message);
    case WM_CONTEXTMENU:
      return WMContextMenu(message);
    default:
      if (!DispatchMouse(message)) TComponent::Dispatch(message);
  }
}

bool TControl::DispatchMouse(TMessage& message) {
  if (message.Msg < WM_MOUSEMOVE || message.Msg > WM_MBUTTONDBLCLK) return false;
  const TLifeWatch self(this);
  // What is open elsewhere closes, then the window has its way with the mouse before the handlers do.
  TWinControl* const focused = TFocus::Current();
  const bool isPress = message.Msg != WM_MOUSEMOVE && message.Msg != WM_LBUTTONUP && message.Msg != WM_RBUTTONUP &&
                       message.Msg != WM_MBUTTONUP;
  if (isPress && focused) focused->Perform(CM_CANCELMODE, 0, PointerMessage(this));
  if (self.IsAlive()) DefaultHandler(message);
  if (!self.IsAlive()) return true;
  switch (message.Msg) {
    case WM_MOUSEMOVE: {
      const QPoint point = PointOfMessage(message.LParam);
      MouseMove(TShiftState::FromBits(static_cast<quint32>(message.WParam)), point.x(), point.y());
      return true;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      return ButtonDown(message, mbLeft, message.Msg == WM_LBUTTONDBLCLK), true;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      return ButtonDown(message, mbRight, message.Msg == WM_RBUTTONDBLCLK), true;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      return ButtonDown(message, mbMiddle, message.Msg == WM_MBUTTONDBLCLK), true;
    case WM_LBUTTONUP:
      return ButtonUp(message, mbLeft), true;
    case WM_RBUTTONUP:
      return ButtonUp(message, mbRight), true;
    case WM_MBUTTONUP:
      return ButtonUp(message, mbMiddle), true;
    default:
      return false;
  }
}

void TControl::ButtonDown(const TMessage& message, TMouseButton button, bool isDouble) {
  auto shift = TShiftState::FromBits(static_cast<quint32>(message.WParam));
  if (button == mbLeft && !isDouble && FControlStyle.Has(csClickEvents)) FControlState.Include(csClicked);
  const TLifeWatch self(this);
  if (isDouble) {
    shift.Include(ssDouble);
    if (button == mbLeft && FControlStyle.Has(csDoubleClicks)) DblClick();
  }
  if (!self.IsAlive()) return;
  const QPoint point = PointOfMessage(message.LParam);
  if (!FControlStyle.Has(csNoStdEvents)) MouseDown(button, shift, point.x(), point.y());
}

void TControl::ButtonUp(const TMessage& message, TMouseButton button) {
  const QPoint point = PointOfMessage(message.LParam);
  const TLifeWatch self(this);
  if (button == mbLeft && FControlState.Has(csClicked)) {
    FControlState.Exclude(csClicked);
    if (GetClientRect().contains(point)) Click();
  }
  if (!self.IsAlive()) return;
  if (FControlStyle.Has(csNoStdEvents)) return;
  MouseUp(button, TShiftState::FromBits(static_cast<quint32>(message.WParam)), point.x(), point.y());
}

}  // namespace kt
