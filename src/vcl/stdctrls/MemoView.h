#pragma once

#include "kt/vcl/stdctrls/EditWidget.h"

#include <QPlainTextEdit>

namespace kt {

/// Qt's editor of plain text as the window of a memo, which counts two characters where one line ends and the next
/// begins, and Qt one.
class TMemoView : public QPlainTextEdit, public TEditWidget {
 public:
  explicit TMemoView(QWidget* parent) : QPlainTextEdit(parent) {}

  QString ShownText() const override;
  void ShowText(const QString& text) override;
  bool IsShownModified() const override { return document()->isModified(); }
  void SetShownModified(bool value) override { document()->setModified(value); }
  void TypeText(const QString& text) override;
  void TypeBackspace() override;
  /// Another text in the place of a piece; caret and selection stay with their texts.
  void ReplaceShown(int start, int length, const QString& text);

  int GetShownStart() const override { return Outer(textCursor().selectionStart()); }
  int GetShownLength() const override;
  int GetShownCaret() const override { return Outer(textCursor().position()); }
  void Select(int anchor, int caret) override;

  void SetUserReadOnly(bool value) override;
  void SetUserLimit(int value) override { FLimit = value; }
  void SetBordered(bool value) override;
  // The palette says whether a selection shows that has not the keyboard.
  void SetSelectionKept(bool) override {}
  void SetSelectingAll(bool) override {}

  bool CanUndoTyping() const override { return document()->isUndoAvailable(); }
  void UndoTyping() override { undo(); }
  void ForgetUndo() override { document()->clearUndoRedoStacks(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  int Outer(int position) const;
  int Inner(int position) const;
  /// How many characters may take the place of the selection.
  int Room() const;

  int FLimit = 0;
};

}  // namespace kt
