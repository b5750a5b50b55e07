#pragma once

#include <QString>

class QWidget;

namespace kt {

/// What an edit asks of the widget of Qt's that shows its text. Texts and positions are those of the edit, in
/// characters from 0; positions have to lie in the text.
class TEditWidget {
 public:
  virtual ~TEditWidget() = default;

  /// The edit that a widget shows the text of, or null.
  static TEditWidget* Of(QWidget* widget);

  virtual QString ShownText() const = 0;
  /// Shows another text, which is not modified and has nothing to undo.
  virtual void ShowText(const QString& text) = 0;
  virtual bool IsShownModified() const = 0;
  virtual void SetShownModified(bool value) = 0;
  /// Takes a text as if it were typed: instead of the selection, and to be undone.
  virtual void TypeText(const QString& text) = 0;
  /// Deletes the selection or the character before the caret.
  virtual void TypeBackspace() = 0;

  virtual int GetShownStart() const = 0;
  virtual int GetShownLength() const = 0;
  virtual int GetShownCaret() const = 0;
  virtual void Select(int anchor, int caret) = 0;

  virtual void SetUserReadOnly(bool value) = 0;
  /// The most characters that the user may bring in; 0 for any number. A text that is longer already stays.
  virtual void SetUserLimit(int value) = 0;
  virtual void SetBordered(bool value) = 0;
  /// Whether the selection shows while the keyboard is elsewhere.
  virtual void SetSelectionKept(bool value) = 0;
  /// Whether all of the text is selected when the Tab key leads here.
  virtual void SetSelectingAll(bool value) = 0;

  virtual bool CanUndoTyping() const = 0;
  virtual void UndoTyping() = 0;
  virtual void ForgetUndo() = 0;
};

}  // namespace kt
