#pragma once

#include "kt/vcl/stdctrls/EditWidget.h"

#include <QLineEdit>

#include <memory>
#include <optional>

class QStyle;

namespace kt {

/// What Qt's line editor takes for "any number" of characters.
inline constexpr int kAnyLength = 32767;

/// Qt's line editor as the window of an edit. The selection outlives the loss of the keyboard, which Qt's does not:
/// while it does not show it is remembered.
class TEditLine : public QLineEdit, public TEditWidget {
 public:
  explicit TEditLine(QWidget* parent);
  ~TEditLine() override;

  /// What stands for each character; none shows them.
  void SetMaskCharacter(QChar value);

  QString ShownText() const override { return text(); }
  void ShowText(const QString& text) override;
  bool IsShownModified() const override { return isModified(); }
  void SetShownModified(bool value) override { setModified(value); }
  void TypeText(const QString& text) override;
  void TypeBackspace() override;

  int GetShownStart() const override;
  int GetShownLength() const override;
  int GetShownCaret() const override { return FParked ? FParked->Caret : cursorPosition(); }
  void Select(int anchor, int caret) override;

  void SetUserReadOnly(bool value) override;
  void SetUserLimit(int value) override;
  void SetBordered(bool value) override { setFrame(value); }
  void SetSelectionKept(bool value) override { FKeepsSelection = value; }
  void SetSelectingAll(bool value) override { FSelectsAll = value; }

  bool CanUndoTyping() const override { return isUndoAvailable(); }
  void UndoTyping() override { undo(); }
  void ForgetUndo() override;

  bool event(QEvent* event) override;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct TSpan {
    int Anchor;
    int Caret;
  };

  std::optional<TSpan> Selection() const;
  /// Puts the selection back that does not show.
  void Unpark();
  void FitLimit(int length);

  /// The one with the character that stands for others.
  std::unique_ptr<QStyle> FStyle;
  /// What is selected but does not show.
  std::optional<TSpan> FParked;
  int FLimit = 0;
  bool FKeepsSelection = false;
  bool FSelectsAll = true;
};

}  // namespace kt
