// Selection, undo and clipboard of TCustomEdit.
#include "kt/vcl/graphics/Presence.h"
#include "kt/vcl/stdctrls/CustomEdit.h"
#include "kt/vcl/stdctrls/EditWidget.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>

namespace kt {

int TCustomEdit::GetSelStart() const { return Editor() ? Editor()->GetShownStart() : FSelStart; }

void TCustomEdit::SetSelStart(int value) { Select(value, value); }

int TCustomEdit::GetSelLength() const { return Editor() ? Editor()->GetShownLength() : FSelLength; }

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
  if (Editor()) Editor()->Select(anchor, caret);
}

QString TCustomEdit::GetSelText() const { return WindowText().mid(GetSelStart(), GetSelLength()); }

void TCustomEdit::SetSelText(const QString& value) {
  const QString cased = InCharCase(value, FCharCase);
  // Typed, so that it can be undone.
  if (Editor()) return Editor()->TypeText(cased);
  QString text = WindowText();
  text.replace(FSelStart, FSelLength, cased);
  const int caret = FSelStart + static_cast<int>(cased.size());
  SetWindowText(text);
  FModified = true;
  // Now: a handler may free the edit.
  SetSelStart(caret);
  Perform(CM_TEXTCHANGED);
}

void TCustomEdit::SelectAll() { Select(0, static_cast<int>(WindowText().size())); }

int TCustomEdit::GetCaretPos() const { return Editor() ? Editor()->GetShownCaret() : FSelStart + FSelLength; }

bool TCustomEdit::CanUndo() const { return Editor() && Editor()->CanUndoTyping(); }

void TCustomEdit::Undo() {
  if (Editor()) Editor()->UndoTyping();
}

void TCustomEdit::ClearUndo() {
  if (Editor()) Editor()->ForgetUndo();
}

// The clipboard.

void TCustomEdit::CopyToClipboard() {
  if (!HasGui() || GetSelLength() == 0 || !FPasswordChar.isNull()) return;
  QGuiApplication::clipboard()->setText(GetSelText());
}

void TCustomEdit::CutToClipboard() {
  if (!HasGui() || GetSelLength() == 0 || FReadOnly || !FPasswordChar.isNull()) return;
  CopyToClipboard();
  SetSelText({});
}

void TCustomEdit::PasteFromClipboard() {
  if (HasGui() && !FReadOnly) SetSelText(QGuiApplication::clipboard()->text());
}

}  // namespace kt
