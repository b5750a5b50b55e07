// The window of TCustomListBox, and what the user does with it.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/ListBoxView.h"
#include "kt/vcl/stdctrls/WindowColors.h"

#include <algorithm>

namespace kt {

QWidget* TCustomListBox::CreateListView(QWidget* parent) { return new TView(*this, parent); }

QWidget* TCustomListBox::CreateBody(QWidget* parent) { return CreateListView(parent); }

TCustomListBox::TView* TCustomListBox::View() const { return static_cast<TView*>(Window()); }

void TCustomListBox::CreateWnd() {
  TWinControl::CreateWnd();
  // Between the border of the style and the lines there may be a pixel that nobody paints.
  Window()->setAttribute(Qt::WA_OpaquePaintEvent, false);
  UpdateLook();
  View()->SetLayout(FColumns, FScrollWidth, FStyle != lbOwnerDrawVariable);
  // Lines have another height from now on.
  const TLifeWatch self(this);
  View()->Model().Reset();
  if (!self.IsAlive() || !View()) return;
  View()->SetTop(FTopIndex);
  SelectInView();
  FitHeight();
}

void TCustomListBox::DestroyWnd() {
  FTopIndex = GetTopIndex();
  FIsTracking = false;
  View()->Model().Detach();
  TWinControl::DestroyWnd();
}

void TCustomListBox::UpdateLook() {
  TView* view = View();
  if (!view) return;
  view->SetBordered(FBorderStyle == bsSingle);
  view->setFont(QtFont(GetFont()));
  QPalette palette = PaletteOf(*view, GetColor(), GetFont().GetColor());
  const QPalette around = PaletteAround(*view);
  // The selected line stands out as well while the keyboard is elsewhere.
  for (auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
    palette.setBrush(QPalette::Inactive, role, around.brush(QPalette::Active, role));
  }
  const bool outer = std::exchange(FIsUpdatingLook, true);
  view->setPalette(palette);
  FIsUpdatingLook = outer;
}

bool TCustomListBox::WindowEvent(QEvent& event) {
  if (event.type() == QEvent::PaletteChange && !FIsUpdatingLook && View()) {
    // System colours are other ones now. What somebody else has set besides is left to him.
    const QPalette& palette = View()->palette();
    const bool isSelectionOld =
        palette.brush(QPalette::Inactive, QPalette::Highlight) != palette.brush(QPalette::Active, QPalette::Highlight);
    if (isSelectionOld || !HasColors(*View(), GetColor(), GetFont().GetColor())) UpdateLook();
  }
  return TWinControl::WindowEvent(event);
}

void TCustomListBox::CMFontChanged(TMessage& message) {
  TWinControl::CMFontChanged(message);
  UpdateLook();
  if (View()) LinesChanged();
  FitHeight();
}

void TCustomListBox::CMColorChanged(TMessage& message) {
  TWinControl::CMColorChanged(message);
  UpdateLook();
}

// Keys.

bool TCustomListBox::WantsKey(quint16 key) { return (key >= VK_LEFT && key <= VK_DOWN) || TWinControl::WantsKey(key); }

bool TCustomListBox::MoveByKey(quint16 key, TShiftState shift) {
  if (GetCount() == 0) return false;
  const int aside = FColumns > 0 ? std::max(LinesInView() / FColumns, 1) : 1;
  switch (key) {
    case VK_UP:
      return SelectByUser(FItemIndex - 1, shift), true;
    case VK_LEFT:
      return SelectByUser(FItemIndex - aside, shift), true;
    case VK_DOWN:
      return SelectByUser(FItemIndex + 1, shift), true;
    case VK_RIGHT:
      return SelectByUser(FItemIndex + aside, shift), true;
    case VK_PRIOR:
      return SelectByUser(FItemIndex - LinesInView() + 1 - (LinesInView() == 1), shift), true;
    case VK_NEXT:
      return SelectByUser(FItemIndex + LinesInView() - 1 + (LinesInView() == 1), shift), true;
    case VK_HOME:
      return SelectByUser(0, shift), true;
    case VK_END:
      return SelectByUser(GetCount() - 1, shift), true;
    case VK_SPACE:
      if (!FMultiSelect || !IsLine(FItemIndex)) return false;
      TurnLine(FItemIndex);
      return Click(), true;
    default:
      return false;
  }
}

void TCustomListBox::DefaultHandler(TMessage& message) {
  const auto shift = TShiftState::FromBits(static_cast<quint32>(message.LParam));
  if (message.Msg == WM_KEYDOWN && MoveByKey(static_cast<quint16>(message.WParam), shift)) return;
  const QChar character(static_cast<char16_t>(message.WParam));
  // The space bar has turned a line on or off.
  if (message.Msg == WM_CHAR && FMultiSelect && character == u' ') return;
  if (message.Msg == WM_CHAR && FAutoComplete && character.isPrint() && View()) {
    // Finds the next line that begins so.
    View()->keyboardSearch(QString(character));
    return;
  }
  TWinControl::DefaultHandler(message);
  if (message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_LBUTTONDBLCLK) HandleMouse(message);
}

// The mouse.

/// A press selects a line, which is dragged when the mouse moves.
void TCustomListBox::WndProc(TMessage& message) {
  const bool isPress = message.Msg == WM_LBUTTONDOWN || message.Msg == WM_LBUTTONDBLCLK;
  if (!isPress || GetDragMode() != dmAutomatic || HasState(csDesigning)) return TWinControl::WndProc(message);
  FControlState.Include(csLButtonDown);
  const TLifeWatch self(this);
  Dispatch(message);
  if (self.IsAlive() && message.Msg == WM_LBUTTONDOWN && GetDragMode() == dmAutomatic) BeginDrag(false);
}

void TCustomListBox::HandleMouse(const TMessage& message) {
  const QPoint point = PointOfMessage(message.LParam);
  switch (message.Msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      if (ItemAtPos(point, true) < 0) return;
      FIsTracking = true;
      PressLine(ItemAtPos(point, true), TShiftState::FromBits(static_cast<quint32>(message.WParam)));
      return SetMouseCapture(true);
    case WM_MOUSEMOVE:
      if (FIsTracking) FollowMouse(point);
      return;
    default:
      if (!std::exchange(FIsTracking, false)) return;
      SetMouseCapture(false);
      return Click();
  }
}

/// Selects what the pointer is over, or the line beyond the end that it is past.
void TCustomListBox::FollowMouse(QPoint point) {
  if (GetCount() == 0) return;
  const int at = IsLaidOut() ? ItemAtPos(point, true) : -1;
  if (IsLaidOut() && at < 0) return;
  const int top = GetTopIndex();
  const int last = top + LinesInView() - 1;
  int index = point.y() < 0 ? top - 1 : top + point.y() / GetItemHeight();
  if (point.y() >= GetClientHeight()) index = last + 1;
  index = std::clamp(at >= 0 ? at : index, 0, GetCount() - 1);
  if (index != FItemIndex) FollowTo(index);
}

void TCustomListBox::WMCancelMode(TMessage& message) {
  TWinControl::WMCancelMode(message);
  FIsTracking = false;
  SetMouseCapture(false);
}

}  // namespace kt
