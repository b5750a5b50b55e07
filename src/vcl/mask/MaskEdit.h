#pragma once

#include "kt/vcl/mask/MaskSyntax.h"
#include "kt/vcl/stdctrls/CustomEdit.h"

#include <optional>
#include <vector>

namespace kt {

class TMaskLine;

/// A line of text that follows an edit mask; TMaskSyntax has its characters.
///
/// Behind a mask the window shows EditText, which always has the mask's length and literals. Keys, the clipboard, input
/// methods and whatever else reaches the window can put only what fits into its cells: typing overwrites and passes by
/// the literals, deleting leaves blanks. Text is the value: without the literals when the mask does not save them, with
/// spaces for blanks. What the program sets is shown even where it does not fit; a text that the user has changed has
/// to fit, and to have all that is required, before the keyboard may leave. Without a mask this is a TCustomEdit.
class TCustomMaskEdit : public TCustomEdit {
 public:
  using Inherited = TCustomEdit;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetEditMask() const { return FEditMask; }
  /// Takes what was entered along; the new mask is in force from now on, with the separators of the present locale.
  void SetEditMask(const QString& value);
  bool IsMasked() const { return !FEditMask.isEmpty(); }
  /// The reference is good until the text changes.
  const QString& GetText() const override;
  void SetText(const QString& value) override;
  /// The text as it is shown. Setting it puts the literals back to their places.
  const QString& GetEditText() const { return WindowText(); }
  void SetEditText(const QString& value);
  /// Behind a mask it is the mask's length, and setting it changes nothing.
  void SetMaxLength(int value) override;
  void SetSelText(const QString& value) override;
  bool CanUndo() const override;
  /// Takes back the user's last change.
  void Undo() override;
  void ClearUndo() override;

  /// Raises EDBEditError when the user has changed the text and it does not fulfil the mask; then the caret stands at
  /// the fault and the keyboard comes here. At design time, EMaskError. A mask that is filled from the right first
  /// moves what was entered to its place.
  virtual void ValidateEdit();
  /// Back to the text that the editor was given last, or had when it got the keyboard.
  virtual void Reset();

  void DefaultHandler(TMessage& message) override;

 protected:
  explicit TCustomMaskEdit(TComponent* owner = nullptr) : TCustomEdit(owner) {}

  /// Whether the user may change the text.
  virtual bool EditCanModify() { return true; }
  /// Whether a text fulfils the mask; if not, `pos` is the place of the first fault.
  virtual bool Validate(const QString& value, int& pos) const;
  /// Raises the error of ValidateEdit().
  virtual void ValidateError();
  /// Takes a caret that stands at a literal to the next cell.
  void CheckCursor();

  void SetTextSilently(const QString& value) override;
  void WindowTextChanged(const QString& text, bool byUser) override;
  int GetWindowMaxLength() const override;
  int CaretPlace(int position) const override;
  void CMEnter(TMessage& message) override;
  void CMExit(TMessage& message) override;

 private:
  /// What was shown before a change, and where the caret was.
  struct TUndoStep {
    QString Text;
    int Caret;
  };

  QString TextWithMask(const QString& mask, TMaskSyntax& syntax) const;
  void StartFrom(const QString& text);
  void TextSet();
  TMaskLine Line() const;
  void Apply(const TMaskLine& line);
  void ShowChanged(const QString& text, int anchor, int caret);
  bool HandleKey(const TMessage& message);
  bool HandleKeyDown(quint16 key, TShiftState shift);
  bool HandleCharacter(QChar character, TShiftState shift);
  bool MoveByKey(quint16 key, TShiftState shift);
  bool IsChangeable();
  bool Insert(const QString& text);
  bool Paste();
  bool Cut();
  bool TakeBack();
  bool Escape();

  QString FEditMask;
  TMaskSyntax FSyntax;
  QString FOldText;
  std::vector<TUndoStep> FUndoSteps;
  /// What GetText() refers to.
  mutable QString FValue;
};

/// The masked line of text that forms use.
class TMaskEdit : public TCustomMaskEdit {
 public:
  using Inherited = TCustomMaskEdit;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  bool IsMaxLengthStored() const { return !IsMasked(); }

 protected:
  explicit TMaskEdit(TComponent* owner = nullptr) : TCustomMaskEdit(owner) {}

  void CreateWnd() override;
  void CMBiDiModeChanged(TMessage& message) override;
};

}  // namespace kt
