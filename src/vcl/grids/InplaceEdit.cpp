#include "kt/vcl/grids/InplaceEdit.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/grids/CustomGrid.h"

#include <QCoreApplication>
#include <QInputMethodEvent>

namespace kt {

const TClassInfo* TInplaceEdit::Class() {
  static const TClassInfo info = TClassBuilder<TInplaceEdit>("TInplaceEdit").Done();
  return &info;
}

void TInplaceEdit::Construct() {
  TCustomMaskEdit::Construct();
  SetTabStop(false);
  SetBorderStyle(bsNone);
  SetVisible(false);
  SetParentColor(true);
}

TWinControl* TInplaceEdit::FocusOwner() { return FGrid ? static_cast<TWinControl*>(FGrid) : this; }

void TInplaceEdit::Deselect() { Select(GetCaretPos(), GetCaretPos()); }

void TInplaceEdit::Hide() {
  if (!IsVisible()) return;
  const bool isFocused = Focused();
  // Invisible by itself before the grid gets the keyboard, so that the grid does not hand it back.
  SetVisibleFlag(false);
  const TLifeWatch self(this);
  if (isFocused && FGrid && FGrid->HandleAllocated()) FGrid->GetHandle()->setFocus();
  if (self.IsAlive()) Perform(CM_VISIBLECHANGED);
}

void TInplaceEdit::Move(const QRect& rect) {
  UpdateLoc(rect);
  if (IsVisible()) Invalidate();
}

void TInplaceEdit::UpdateLoc(const QRect& rect) {
  if (rect.isEmpty()) return Hide();
  SetBounds(rect.x(), rect.y(), rect.width(), rect.height());
  BoundsChanged();
  SetVisible(true);
  if (FGrid && FGrid->Focused()) GetHandle()->setFocus();
}

void TInplaceEdit::SetFocus() {
  if (IsVisible() && CanFocus()) GetHandle()->setFocus();
}

void TInplaceEdit::BoundsChanged() { SetFormatRect({2, 2, GetWidth() - 4, GetHeight() - 2}); }

void TInplaceEdit::UpdateContents() {
  // Handlers of the grid may free the editor.
  const TLifeWatch self(this);
  const TLiveFlag updating(this, FIsUpdating);
  const QString mask = FGrid->GetEditMask(FGrid->GetCol(), FGrid->GetRow());
  const QString text = self.IsAlive() ? FGrid->GetEditText(FGrid->GetCol(), FGrid->GetRow()) : QString();
  if (!self.IsAlive()) return;
  const bool isReadOnly = !FGrid->CanEditModify();
  if (!self.IsAlive() || IsFresh(mask, text, isReadOnly)) return;
  SetText({});
  SetEditMask(mask);
  SetMaxLength(FGrid->GetEditLimit());
  SetText(text);
  SetModified(false);
  SetReadOnly(isReadOnly);
  SelectAll();
}

/// Whether nothing would change, so that nothing need be painted.
bool TInplaceEdit::IsFresh(const QString& mask, const QString& text, bool isReadOnly) const {
  return mask == GetEditMask() && !IsMasked() && text == GetText() && !IsModified() && isReadOnly == IsReadOnly() &&
         GetMaxLength() == FGrid->GetEditLimit() && GetSelStart() == 0 && GetSelLength() == text.size();
}

bool TInplaceEdit::EditCanModify() { return FGrid->CanEditModify(); }

void TInplaceEdit::Change() {
  TCustomMaskEdit::Change();
  if (!FIsUpdating && FGrid) FGrid->UpdateText();
}

void TInplaceEdit::DblClick() { FGrid->DblClick(); }

bool TInplaceEdit::WantsKey(quint16 key) { return FGrid && (TCustomMaskEdit::WantsKey(key) || FGrid->WantsKey(key)); }

bool TInplaceEdit::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  return FGrid->DoMouseWheel(shift, delta, isHorizontal, position + GetBoundsRect().topLeft());
}

void TInplaceEdit::SendToGrid(quint16& key, TShiftState shift) {
  FGrid->KeyDown(key, shift);
  key = 0;
}

void TInplaceEdit::RaiseGridEvent(quint16& key, TShiftState shift) { FGrid->OnKeyDown(FGrid, key, shift); }

bool TInplaceEdit::IsLeftSide() const {
  const int length = GetSelLength();
  return GetSelStart() <= CaretPlace(0) && (length == 0 || length == static_cast<int>(WindowText().size()));
}

bool TInplaceEdit::IsRightSide() const {
  const int end = CaretPlace(static_cast<int>(WindowText().size()));
  const int start = GetSelStart();
  return (start == 0 || GetSelLength() == 0) && start + GetSelLength() >= end;
}

void TInplaceEdit::EscapeToGrid(quint16& key, TShiftState shift) {
  const TLifeWatch self(this);
  SendToGrid(key, shift);
  if (!self.IsAlive()) return;
  // A grid that knows more of its cells has taken the change back itself.
  if (IsMasked() && IsModified()) Reset();
}

void TInplaceEdit::HandleGridKey(quint16& key, TShiftState shift) {
  const bool isCtrl = shift.Has(ssCtrl);
  const bool isMoving = FGrid->GetOptions().Has(goAlwaysShowEditor);
  switch (key) {
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
      return SendToGrid(key, shift);
    case VK_ESCAPE:
      return EscapeToGrid(key, shift);
    case VK_INSERT:
      if (shift.IsEmpty()) return SendToGrid(key, shift);
      if (shift == TShiftState{ssShift} && !EditCanModify()) key = 0;
      return;
    case VK_LEFT:
      if (isMoving && (isCtrl || IsLeftSide())) SendToGrid(key, shift);
      return;
    case VK_RIGHT:
      if (isMoving && (isCtrl || IsRightSide())) SendToGrid(key, shift);
      return;
    case VK_HOME:
      if (isMoving && (isCtrl || IsLeftSide())) SendToGrid(key, shift);
      return;
    case VK_END:
      if (isMoving && (isCtrl || IsRightSide())) SendToGrid(key, shift);
      return;
    case VK_TAB:
      if (!shift.Has(ssAlt)) SendToGrid(key, shift);
      return;
    case VK_DELETE:
      if (isCtrl) {
        SendToGrid(key, shift);
      } else if (!EditCanModify()) {
        key = 0;
      }
      return;
    default:
      return;
  }
}

void TInplaceEdit::KeyDown(quint16& key, TShiftState shift) {
  // The grid's handlers may free the editor.
  const TLifeWatch self(this);
  SetReadOnly(!EditCanModify());
  if (key == VK_F2) {
    RaiseGridEvent(key, shift);
    if (key != VK_F2 || !self.IsAlive()) return;
    Deselect();
    key = 0;
    return;
  }
  HandleGridKey(key, shift);
  if (key == 0 || !self.IsAlive()) return;
  RaiseGridEvent(key, shift);
  if (key != 0 && self.IsAlive()) TCustomMaskEdit::KeyDown(key, shift);
}

void TInplaceEdit::KeyPress(QChar& key) {
  const TLifeWatch self(this);
  FGrid->KeyPress(key);
  if (!self.IsAlive()) return;
  if (key.unicode() >= 32 && !FGrid->CanEditAcceptKey(key)) key = u'\0';
  if (key == u'\t' || key == u'\x1b') key = u'\0';
  const bool isChange = key == u'\b' || key == u'\x16' || key == u'\x18' || key.unicode() >= 32;
  if (isChange && !EditCanModify()) key = u'\0';
  if (!key.isNull()) TCustomMaskEdit::KeyPress(key);
}

/// What an input method has composed is typed as much as what comes from keys.
bool TInplaceEdit::InputText(const QString& text) {
  const TLifeWatch self(this);
  QString accepted;
  for (QChar character : text) {
    const bool isAccepted = FGrid->CanEditAcceptKey(character);
    if (!self.IsAlive()) return true;
    if (isAccepted) accepted += character;
  }
  if (accepted == text || !HandleAllocated()) return TCustomMaskEdit::InputText(text);
  QInputMethodEvent rest;
  rest.setCommitString(accepted);
  QCoreApplication::sendEvent(Window(), &rest);
  return true;
}

void TInplaceEdit::KeyUp(quint16& key, TShiftState shift) { FGrid->KeyUp(key, shift); }

}  // namespace kt
