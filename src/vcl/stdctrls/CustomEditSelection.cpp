// Selection and undo of TCustomEdit.
#include "kt/vcl/stdctrls/CustomEdit.h"

#include <QLineEdit>

#include <algorithm>

namespace kt {

int TCustomEdit::GetSelStart() const {
  if (!FLineEdit) return FSelStart;
  return FLineEdit->hasSelectedText() ? FLineEdit->selectionStart() : FLineEdit->cursorPosition();
}

void TCustomEdit::SetSelStart(int value) { Select(value, value); }

int TCustomEdit::GetSelLength() const { return FLineEdit ? FLineEdit->selectionLength() : FSelLength; }

void TCustomEdit::SetSelLength(int value) {
  const int start = GetSelStart();
  Select(start, start + value);
}

void TCustomEdit::Select(int anchor, int caret) {
  const int length = static_cast<int>(WindowText().size());
  anchor = std::clamp(anchor, 0, length);
  caret = std::clamp(caret, 0, length);
  if (anchor == caret) anchor = caret = CaretPlace(caret);
  FSelStart = std::min(anchor, caret);
  FSelLength = std::abs(caret - anchor);
  if (!FLineEdit) return;
  if (anchor == caret) {
    FLineEdit->setCursorPosition(caret);
  } else {
    FLineEdit->setSelection(anchor, caret - anchor);
  }
}

QString TCustomEdit::GetSelText() const { return WindowText().mid(GetSelStart(), GetSelLength()); }

void TCustomEdit::SetSelText(const QString& value) {
  if (FLineEdit) {
    // Typed, so that it can be undone.
    FLineEdit->insert(value);
    return;
  }
  QString text = WindowText();
  text.replace(FSelStart, FSelLength, value);
  const int caret = FSelStart + static_cast<int>(value.size());
  SetWindowText(text);
  FModified = true;
  Perform(CM_TEXTCHANGED);
  SetSelStart(caret);
}

void TCustomEdit::SelectAll() {
  if (FLineEdit) return FLineEdit->selectAll();
  FSelStart = 0;
  FSelLength = static_cast<int>(WindowText().size());
}

int TCustomEdit::GetCaretPos() const { return FLineEdit ? FLineEdit->cursorPosition() : FSelStart + FSelLength; }

bool TCustomEdit::CanUndo() const { return FLineEdit && FLineEdit->isUndoAvailable(); }

void TCustomEdit::Undo() {
  if (FLineEdit) FLineEdit->undo();
}

}  // namespace kt
