#pragma once

#include "kt/rtl/strings/Strings.h"
#include "kt/vcl/stdctrls/CustomEdit.h"
#include "kt/vcl/stdctrls/MemoText.h"

#include <memory>

namespace kt {

class TMemoView;

/// A text of many lines that can be edited. Its window is Qt's editor of plain text.
///
/// Text has CR LF between its lines, whatever it was set with, and so have positions. Lines are those that end so:
/// where the window wraps a long one is no matter of theirs. A change by the program between BeginUpdate() and
/// EndUpdate() of the lines is shown and told once.
class TCustomMemo : public TCustomEdit {
 public:
  using Inherited = TCustomEdit;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCustomMemo() override;

  const QString& GetText() const override { return FText.Text(); }
  void SetText(const QString& value) override;
  /// The text line by line. Whatever line changes, the caret stays where it was in the others; a line added to the text
  /// "a" gives "a", line break and the line, and one added to an empty text ends with a line break. Raises
  /// EStringListError for an index that is none.
  TStrings& GetLines() const;
  void SetLines(TStrings& value);

  TAlignment GetAlignment() const { return FAlignment; }
  /// Texts that do not begin at the left are always wrapped.
  void SetAlignment(TAlignment value);
  TScrollStyle GetScrollBars() const { return FScrollBars; }
  /// A wrapped text has no horizontal one.
  void SetScrollBars(TScrollStyle value);
  /// Whether Enter begins a line, instead of clicking the form's default button. Together with the Ctrl key it always
  /// does.
  bool IsWantReturns() const { return FWantReturns; }
  void SetWantReturns(bool value) { FWantReturns = value; }
  /// Whether Tab comes into the text, instead of leaving it.
  bool IsWantTabs() const { return FWantTabs; }
  void SetWantTabs(bool value);
  bool IsWordWrap() const { return FWordWrap; }
  void SetWordWrap(bool value);
  /// Column and line of the caret, both from 0. Setting selects nothing.
  QPoint GetCaretPos() const;
  void SetCaretPos(QPoint value);

  void DefaultHandler(TMessage& message) override;

 protected:
  explicit TCustomMemo(TComponent* owner = nullptr);

  void Construct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  bool WantsKey(quint16 key) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  void CMBiDiModeChanged(TMessage& message) override;
  void CMCursorChanged(TMessage& message) override;
  const QString& WindowText() const override { return FText.Text(); }
  void StoreWindowText(const QString& value) override { FText.SetText(TMemoText::Normalized(value)); }
  void WindowTextChanged(const QString& text, bool byUser) override;
  int CaretPlace(int position) const override { return FText.Valid(position); }
  bool TypesByItself(QChar character) const override;
  void TypeCharacter(QChar character) override;
  QPalette WindowPalette() const override;
  bool HasWindowColors() const override;

 private:
  class TLines;

  TMemoView* View() const;
  void ChangeText(const TMemoText::TChange& change);
  void ShiftSelection(const TMemoText::TChange& change);
  void HoldChanges(bool isHolding);
  void UpdateLayout();
  bool IsWrapping() const { return FWordWrap || FAlignment != taLeftJustify; }

  TMemoText FText;
  std::unique_ptr<TLines> FLines;
  TAlignment FAlignment = taLeftJustify;
  TScrollStyle FScrollBars = ssNone;
  bool FWantReturns = true;
  bool FWantTabs = false;
  bool FWordWrap = true;
  bool FIsChangingText = false;
  bool FIsHoldingChanges = false;
  bool FHasChanged = false;
};

/// The text of many lines that forms use.
class TMemo : public TCustomMemo {
 public:
  using Inherited = TCustomMemo;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TMemo(TComponent* owner = nullptr) : TCustomMemo(owner) {}
};

}  // namespace kt
