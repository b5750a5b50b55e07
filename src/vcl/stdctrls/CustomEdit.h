#pragma once

#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/Canvas.h"

#include <QLineEdit>
#include <QPointer>

#include <memory>

namespace kt {

/// A line of text that can be edited. Its window is Qt's line editor, which brings clipboard, undo and input methods.
class TCustomEdit : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetText() const override { return TWinControl::GetText(); }
  void SetText(const QString& value) override;
  /// Whether the user has changed the text since it was set.
  bool IsModified() const { return FModified; }
  void SetModified(bool value);
  bool IsReadOnly() const { return FReadOnly; }
  void SetReadOnly(bool value);
  /// The most characters; 0 for any number.
  int GetMaxLength() const { return FMaxLength; }
  virtual void SetMaxLength(int value);
  TBorderStyle GetBorderStyle() const { return FBorderStyle; }
  void SetBorderStyle(TBorderStyle value);

  // Selection, in characters from 0; positions outside the text are cut to it.
  int GetSelStart() const;
  /// Moves the caret and selects nothing.
  void SetSelStart(int value);
  int GetSelLength() const;
  void SetSelLength(int value);
  QString GetSelText() const;
  /// Replaces the selection, and counts as the user's change.
  virtual void SetSelText(const QString& value);
  void SelectAll();
  /// Selects from one position to the other, the caret at the second.
  void Select(int anchor, int caret);
  /// The character before which the caret stands.
  int GetCaretPos() const;

  void Clear() { SetText({}); }
  void ClearSelection() { SetSelText({}); }
  virtual bool CanUndo() const;
  virtual void Undo();

  void DefaultHandler(TMessage& message) override;

  /// What screen readers call the editor. Empty: nothing of its own.
  const QString& GetAccessibleName() const { return FAccessibleName; }
  void SetAccessibleName(const QString& value);

  /// After each change of the text, the user's and the program's.
  TNotifyEvent OnChange;

 protected:
  /// In WParam of CM_TEXTCHANGED: the text is another one. Without it the text is only to be looked at again.
  static constexpr qintptr kTextHasChanged = 1;

  explicit TCustomEdit(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void PaintWindow(const QRect& clip) override;
  bool WindowEvent(QEvent& event) override;
  bool InputText(const QString&) override { return false; }
  void CMTextChanged(TMessage& message) override;
  void CMFontChanged(TMessage& message) override;
  void CMColorChanged(TMessage& message) override;
  void CMCursorChanged(TMessage& message) override;
  bool WantsKey(quint16 key) override;

  /// Raises OnChange.
  virtual void Change() { OnChange(this); }
  /// Whether PaintOver() has something to draw.
  virtual bool HasOverlay() { return false; }
  /// Draws on top of the text, a button beside it for example.
  virtual void PaintOver(TCanvas&) {}
  /// The room for the text inside the window; the part beside it is free for a descendant to paint on.
  void SetFormatRect(const QRect& rect);
  /// Sets the text without telling anybody.
  virtual void SetTextSilently(const QString& value) { SetWindowText(value); }
  /// The text as the window shows it, which selection and caret belong to.
  const QString& WindowText() const { return TWinControl::GetText(); }
  /// Changes it without telling anybody; the text is not modified then.
  void SetWindowText(const QString& value);
  /// The text in the window has been changed, by its user or by the program; `text` is the new one.
  virtual void WindowTextChanged(const QString& text, bool byUser);
  /// The most characters that the window itself lets in; 0 for any number.
  virtual int GetWindowMaxLength() const { return FMaxLength; }
  /// Where a caret without selection comes to stand that is put to a position in the text.
  virtual int CaretPlace(int position) const { return position; }
  /// Null without a window.
  QLineEdit* LineEdit() const { return FLineEdit; }

 private:
  void ShowText();
  void UpdateMaxLength();
  void UpdateColors();
  void TypeCharacter(QChar character);

  /// Goes with the window, which somebody else may destroy.
  QPointer<QLineEdit> FLineEdit;
  QString FAccessibleName;
  /// From the first overlay on.
  std::unique_ptr<TCanvas> FCanvas;
  int FSelStart = 0;
  int FSelLength = 0;
  int FMaxLength = 0;
  TBorderStyle FBorderStyle = bsSingle;
  bool FModified = false;
  bool FReadOnly = false;
  bool FIsSettingText = false;
  bool FIsUpdatingColors = false;
};

}  // namespace kt
