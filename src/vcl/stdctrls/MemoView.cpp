#include "kt/vcl/stdctrls/MemoView.h"

#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/stdctrls/MemoText.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

#include <algorithm>
#include <limits>

namespace kt {

QString TMemoView::ShownText() const {
  QString text;
  text.reserve(document()->characterCount() + document()->blockCount());
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockNumber() > 0) text += QLatin1StringView("\r\n");
    text += block.text();
  }
  return text;
}

void TMemoView::ShowText(const QString& text) { setPlainText(text); }

int TMemoView::Outer(int position) const { return position + document()->findBlock(position).blockNumber(); }

int TMemoView::Inner(int position) const {
  // Behind each line that ends one character is missing here.
  int first = 0;
  int last = document()->blockCount() - 1;
  while (first < last) {
    const int middle = (first + last + 1) / 2;
    const bool isBefore = document()->findBlockByNumber(middle).position() + middle <= position;
    (isBefore ? first : last) = isBefore ? middle : middle - 1;
  }
  const QTextBlock block = document()->findBlockByNumber(first);
  return block.position() + std::clamp(position - first - block.position(), 0, block.length() - 1);
}

int TMemoView::GetShownLength() const {
  const QTextCursor cursor = textCursor();
  return Outer(cursor.selectionEnd()) - Outer(cursor.selectionStart());
}

void TMemoView::Select(int anchor, int caret) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(Inner(anchor));
  cursor.setPosition(Inner(caret), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

int TMemoView::Room() const {
  if (FLimit <= 0) return std::numeric_limits<int>::max();
  const int size = document()->characterCount() + document()->blockCount() - 2;
  return std::max(FLimit - size + GetShownLength(), 0);
}

void TMemoView::TypeText(const QString& text) {
  QString fitting = TMemoText::Normalized(text);
  const int room = Room();
  if (room < fitting.size()) fitting.truncate(room);
  if (fitting.endsWith(u'\r')) fitting.chop(1);
  if (fitting.isEmpty() && !text.isEmpty()) return;
  insertPlainText(fitting);
  ensureCursorVisible();
}

void TMemoView::TypeBackspace() { textCursor().deletePreviousChar(); }

void TMemoView::ReplaceShown(int start, int length, const QString& text) {
  QTextCursor cursor(document());
  const bool wasModified = document()->isModified();
  const int end = Inner(start + length);
  cursor.setPosition(Inner(start));
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  cursor.insertText(text);
  document()->clearUndoRedoStacks();
  document()->setModified(wasModified);
}

void TMemoView::SetUserReadOnly(bool value) {
  // With a caret to move and to select with: Qt's own read-only editor has none.
  setTextInteractionFlags(value ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard : Qt::TextEditorInteraction);
}

void TMemoView::SetBordered(bool value) {
  setFrameStyle(value ? static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken)
                      : static_cast<int>(QFrame::NoFrame));
}

void TMemoView::keyPressEvent(QKeyEvent* event) {
  const QString text = event->text();
  const bool isTyping = TControlBody::TypesText(*event) && (text.front().isPrint() || text.front() == u'\t');
  if (isTyping && text.size() > Room()) return event->accept();
  QPlainTextEdit::keyPressEvent(event);
}

void TMemoView::inputMethodEvent(QInputMethodEvent* event) {
  if (event->commitString().size() <= Room()) return QPlainTextEdit::inputMethodEvent(event);
  QInputMethodEvent fitting(event->preeditString(), event->attributes());
  fitting.setCommitString(event->commitString().left(Room()), event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&fitting);
}

void TMemoView::insertFromMimeData(const QMimeData* source) {
  if (textInteractionFlags().testFlag(Qt::TextEditable)) TypeText(source->text());
}

}  // namespace kt
