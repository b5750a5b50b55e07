#include "kt/vcl/mask/MaskEdit.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/mask/MaskErrors.h"
#include "kt/vcl/mask/MaskLine.h"
#include "kt/vcl/mask/MaskMessages.h"
#include "kt/vcl/mask/MaskText.h"

namespace kt {

const TClassInfo* TCustomMaskEdit::Class() {
  static const TClassInfo info = TClassBuilder<TCustomMaskEdit>("TCustomMaskEdit").Done();
  return &info;
}

const QString& TCustomMaskEdit::GetText() const {
  if (!IsMasked()) return TCustomEdit::GetText();
  FValue = UnmaskValue(FSyntax, WindowText());
  return FValue;
}

void TCustomMaskEdit::SetText(const QString& value) {
  if (IsMasked()) return SetEditText(MaskValue(FSyntax, value));
  StartFrom(value);
  TCustomEdit::SetText(value);
}

void TCustomMaskEdit::SetEditText(const QString& value) {
  if (!IsMasked()) return SetText(value);
  const QString text = AlignToMask(FSyntax, value);
  StartFrom(text);
  if (WindowText() == text) return;
  SetWindowText(text);
  TextSet();
}

void TCustomMaskEdit::SetTextSilently(const QString& value) {
  FUndoSteps.clear();
  SetWindowText(IsMasked() ? MaskValue(FSyntax, value) : value);
  if (IsMasked()) SetSelStart(0);
}

/// Reset() comes back to this text, and Undo() not beyond it.
void TCustomMaskEdit::StartFrom(const QString& text) {
  FOldText = text;
  FUndoSteps.clear();
}

void TCustomMaskEdit::TextSet() {
  // Where one starts to type; behind the last cell there is nothing left to.
  if (IsMasked()) SetSelStart(0);
  Perform(CM_TEXTCHANGED, kTextHasChanged);
}

QString TCustomMaskEdit::TextWithMask(const QString& mask, TMaskSyntax& syntax) const {
  if (mask.isEmpty()) return GetText();
  syntax = TMaskSyntax(mask);
  if (IsMasked()) return MaskEntered(syntax, UnmaskEntered(FSyntax, WindowText()));
  return MaskValue(syntax, GetText());
}

void TCustomMaskEdit::SetEditMask(const QString& value) {
  if (FEditMask == value) return;
  TMaskSyntax syntax;
  const QString text = TextWithMask(value, syntax);
  FEditMask = value;
  FSyntax = std::move(syntax);
  TCustomEdit::SetMaxLength(FSyntax.Size());
  StartFrom(text);
  if (WindowText() == text) return CheckCursor();
  const bool isModified = IsModified();
  SetWindowText(text);
  SetModified(isModified);
  TextSet();
}

void TCustomMaskEdit::SetMaxLength(int value) {
  if (!IsMasked()) TCustomEdit::SetMaxLength(value);
}

/// A full line would refuse what overwrites it, so the mask alone sees to the length.
int TCustomMaskEdit::GetWindowMaxLength() const { return IsMasked() ? 0 : TCustomEdit::GetWindowMaxLength(); }

int TCustomMaskEdit::CaretPlace(int position) const {
  return IsMasked() ? TMaskLine::CaretPlace(FSyntax, position) : position;
}

void TCustomMaskEdit::CheckCursor() {
  if (!IsMasked() || GetSelLength() > 0) return;
  const int place = CaretPlace(GetCaretPos());
  if (place != GetCaretPos()) SetSelStart(place);
}

bool TCustomMaskEdit::Validate(const QString& value, int& pos) const {
  const std::optional<int> fault = IsMasked() ? FindMaskFault(FSyntax, value) : std::nullopt;
  if (fault) pos = *fault;
  return !fault;
}

void TCustomMaskEdit::ValidateError() {
  if (HasState(csDesigning)) throw EMaskError(SMaskErr);
  throw EDBEditError(SMaskEditErr);
}

void TCustomMaskEdit::ValidateEdit() {
  if (!IsMasked() || !IsModified()) return;
  const TLifeWatch self(this);
  const QString moved = ReflowMasked(FSyntax, WindowText());
  if (moved != WindowText()) ShowChanged(moved, CaretPlace(FSyntax.Size()), CaretPlace(FSyntax.Size()));
  int pos = 0;
  if (!self.IsAlive() || Validate(WindowText(), pos)) return;
  if (!HasState(csDesigning) && HandleAllocated() && CanFocus()) SetFocus();
  if (!self.IsAlive()) throw EDBEditError(SMaskEditErr);
  SetSelStart(pos);
  ValidateError();
}

void TCustomMaskEdit::Reset() {
  FUndoSteps.clear();
  const bool isChanged = WindowText() != FOldText;
  if (isChanged) SetWindowText(FOldText);
  SetModified(false);
  if (isChanged) TextSet();
}

void TCustomMaskEdit::CMEnter(TMessage& message) {
  StartFrom(WindowText());
  CheckCursor();
  TCustomEdit::CMEnter(message);
}

void TCustomMaskEdit::CMExit(TMessage& message) {
  const TLifeWatch self(this);
  if (!HasState(csDesigning)) ValidateEdit();
  if (self.IsAlive()) TCustomEdit::CMExit(message);
}

}  // namespace kt
