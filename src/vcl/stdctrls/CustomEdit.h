#pragma once

#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/Canvas.h"

#include <QPalette>

#include <memory>

class QLineEdit;

namespace kt {

class TEditWidget;

/// Which letters an edit has.
enum TEditCharCase { ecNormal, ecUpperCase, ecLowerCase };
template <>
struct TEnumNames<TEditCharCase> {
  static constexpr char Name[] = "TEditCharCase";
  static constexpr const char* Values[] = {"ecNormal", "ecUpperCase", "ecLowerCase"};
};
/// A text in these letters; as long as it was.
QString InCharCase(const QString& text, TEditCharCase charCase);

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
  /// Whether all of the text is selected when the keyboard comes here, unless the mouse brought it.
  bool IsAutoSelect() const { return FAutoSelect; }
  void SetAutoSelect(bool value);
  /// Whether the height follows the font: of an edit with a border, in a parent, from when it has a window.
  bool IsAutoSize() const { return FAutoSize; }
  void SetAutoSize(bool value);
  /// Which letters the text has, whoever sets or types it. What is there is turned into them. Masks go before it.
  TEditCharCase GetCharCase() const { return FCharCase; }
  void SetCharCase(TEditCharCase value);
  /// Whether the selection shows only while the keyboard is here. It is there all the same.
  bool IsHideSelection() const { return FHideSelection; }
  void SetHideSelection(bool value);
  /// Kept for forms that say it. Texts are Unicode: there is no other character set that they have to fit.
  bool IsOEMConvert() const { return FOEMConvert; }
  void SetOEMConvert(bool value) { FOEMConvert = value; }
  /// What is shown for each character; #0 shows them. A text that does not show is not copied either.
  QChar GetPasswordChar() const { return FPasswordChar; }
  void SetPasswordChar(QChar value);

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
  /// What was typed until now cannot be taken back any more.
  virtual void ClearUndo();
  /// Nothing happens without a selection or without a clipboard, as in a program without windows.
  void CopyToClipboard();
  void CutToClipboard();
  void PasteFromClipboard();

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
  void Loaded() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void PaintWindow(const QRect& clip) override;
  bool WindowEvent(QEvent& event) override;
  bool InputText(const QString& text) override;
  void CMEnter(TMessage& message) override;
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
  virtual const QString& WindowText() const { return TWinControl::GetText(); }
  virtual void StoreWindowText(const QString& value) { StoreText(value); }
  /// Changes it without telling anybody; the text is not modified then.
  void SetWindowText(const QString& value);
  /// The text in the window has been changed, by its user or by the program; `text` is the new one.
  virtual void WindowTextChanged(const QString& text, bool byUser);
  /// The most characters that the window itself lets in; 0 for any number.
  virtual int GetWindowMaxLength() const { return FMaxLength; }
  /// Where a caret without selection comes to stand that is put to a position in the text.
  virtual int CaretPlace(int position) const { return position; }
  /// Whether the window knows what to do with a key that types a character.
  virtual bool TypesByItself(QChar) const { return true; }
  /// What the window does with a character that no key of its own has typed.
  virtual void TypeCharacter(QChar character);
  virtual QPalette WindowPalette() const;
  /// Whether the window shows the colours of that palette that may have become other ones.
  virtual bool HasWindowColors() const;
  /// Gives the window the font and the colours.
  void UpdateColors();
  /// Whether it is a key or the mouse in a designer, who does not type in what is designed.
  bool IsDesigned(const TMessage& message) const;
  /// Which side the text of a line begins at.
  void UpdateDirection();
  /// Null without a window.
  QLineEdit* LineEdit() const;
  TEditWidget* Editor() const;
  /// The window is being told its text.
  bool IsSettingText() const { return FIsSettingText; }

 private:
  void ShowText();
  void ShowInCharCase();
  void UpdateMaxLength();
  void FitHeight();
  bool CameByMouse() const;

  QString FAccessibleName;
  /// From the first overlay on.
  std::unique_ptr<TCanvas> FCanvas;
  int FSelStart = 0;
  int FSelLength = 0;
  int FMaxLength = 0;
  TBorderStyle FBorderStyle = bsSingle;
  TEditCharCase FCharCase = ecNormal;
  QChar FPasswordChar;
  bool FAutoSelect = true;
  bool FAutoSize = true;
  bool FHideSelection = true;
  bool FOEMConvert = false;
  bool FModified = false;
  bool FReadOnly = false;
  bool FIsSettingText = false;
  bool FIsUpdatingColors = false;
};

}  // namespace kt
