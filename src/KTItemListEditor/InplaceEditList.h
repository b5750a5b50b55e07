#pragma once

#include "kt/ktcommon/RegularExpression.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/vcl/grids/GridTypes.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <algorithm>
#include <memory>

namespace kt {

class TCustomListBox;
class TKTCustomItemListEditor;
class TKTDropDownList;

/// Fills a list with what can be picked for a cell.
struct TKTGetPickListItemsEvent : TEvent<int /*col*/, int /*row*/, TStrings& /*items*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTGetPickListItemsEvent";
};

/// The in-place editor of an item list editor, which makes it and owns it.
///
/// By the edit style of its cell it has a button that drops down a list to pick from, or one with an ellipsis. A
/// regular expression can restrict what is typed: text stays only while the expression matches all of it, and has to be
/// found in it when it leaves the editor. Handlers of the grid's events may free items and clear the tree at any time.
class TKTInplaceEditList : public TInplaceEdit {
 public:
  using Inherited = TInplaceEdit;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTInplaceEditList() override;

  /// Raises EInvalidCast where the editor is not in an item list editor.
  TKTCustomItemListEditor& GetGrid() const;

  /// The regular expression of the cell; empty for no check.
  const QString& GetExpression() const { return FMatcher->GetExpression(); }
  void SetExpression(const QString& value) { FMatcher->SetExpression(value); }
  /// In pixels.
  int GetButtonWidth() const { return std::max(FButtonWidth, 0); }
  void SetButtonWidth(int value) { FButtonWidth = value; }
  /// The most lines that the list shows without scrolling.
  int GetDropDownRows() const { return FDropDownRows; }
  void SetDropDownRows(int value) { FDropDownRows = value; }
  TEditStyle GetEditStyle() const { return FEditStyle; }
  /// The list of the cell, or null.
  TWinControl* GetActiveList() const { return FActiveList; }
  bool IsListVisible() const { return FListVisible; }
  /// Whether the list has been filled for the cell.
  bool IsPickListLoaded() const { return FPickListLoaded; }
  void SetPickListLoaded(bool value) { FPickListLoaded = value; }
  /// Whether the button looks pressed.
  bool IsPressed() const { return FPressed; }
  QRect GetButtonRect() const;
  /// Whether a place in the client area is on the button.
  bool OverButton(QPoint point) const { return GetButtonRect().contains(point); }

  /// The button was clicked; the sender is the grid.
  TNotifyEvent OnEditButtonClick;
  TKTGetPickListItemsEvent OnGetPickListItems;

 protected:
  friend class TKTCustomItemListEditor;
  friend class TKTDropDownList;

  explicit TKTInplaceEditList(TComponent* owner = nullptr) : TInplaceEdit(owner) {}

  void Construct() override;
  void CreateWnd() override;
  void Notification(TComponent* component, TOperation operation) override;

  // Overridable operations in their fixed order.

  void BoundsChanged() override;
  void UpdateContents() override;
  /// The list to pick from, made when it is needed; the same one each time for a cell. Descendants can have one of
  /// their own: a TFloatingListBox opens by itself, any other list is shown in its parent, or without one in a window
  /// of its own. Its OnMouseUp is theirs to connect with ListMouseUp().
  virtual TCustomListBox& GetPickList();
  /// Whether the text may leave the editor.
  virtual bool ValidateExpression();
  virtual void DoDropDownKeys(quint16& key, TShiftState shift);
  virtual void DoEditButtonClick();
  /// Back to the text that the cell had; then deliberately writes the grid's own Text into the cell.
  virtual void RestoreContents();
  /// For descendants.
  virtual void LoadPickList() {}

  /// Closes the list. `accept`: takes the selected line over, unless the item is read-only, and has it validated.
  virtual void CloseUp(bool accept);
  virtual void DoGetPickListItems();
  virtual void DropDown();
  void DblClick() override;
  void KeyDown(quint16& key, TShiftState shift) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void MouseMove(TShiftState shift, int x, int y) override;
  void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
  void CMTextChanged(TMessage& message) override;
  void CMCancelMode(TMessage& message) override;
  void CMVisibleChanged(TMessage& message) override;
  void WMCancelMode(TMessage& message) override;
  void WMKillFocus(TMessage& message) override;
  void WndProc(TMessage& message) override;
  bool InputText(const QString& text) override;
  void DefaultHandler(TMessage& message) override;

  bool WantsKey(quint16 key) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  bool HasOverlay() override { return FEditStyle != esSimple; }
  void PaintOver(TCanvas& canvas) override;
  /// The left button was released on the list.
  void ListMouseUp(TObject* sender, TMouseButton button, TShiftState shift, int x, int y);

 private:
  bool IsPickListActive();
  bool HasReadOnlyItem() const;
  /// Puts a text into the editor without anybody hearing of it.
  void PutText(const QString& text);
  /// As the user's change: the cell gets it.
  void PickText(const QString& text);

  // The expression.
  [[noreturn]] void RaiseExpressionError();
  bool MatchesWhole();
  void TakeTypingBack();
  void CheckAndSync();

  // Keys.
  static bool IsGridKey(quint16 key, TShiftState shift);
  void ArrowKeys(quint16 key, TShiftState shift);
  bool MovesByWord(quint16 key, TShiftState shift) const;

  // The list.
  void SizeList(TCustomListBox& list);
  void HideList(bool accept);

  // The button.
  void TrackButton(QPoint point);
  void StopTracking();
  void PressButton(QPoint point);
  bool DragIntoList(QPoint point);
  void StepPickList();
  void UpdateCursorAt(QPoint point);

  std::unique_ptr<TGRegularExpression> FMatcher;
  bool FListVisible = false;
  bool FPickListLoaded = false;
  bool FPressed = false;
  bool FTracking = false;
  /// Negative until the window knows the usual one, or somebody sets it.
  int FButtonWidth = -1;
  int FDropDownRows = 0;
  TEditStyle FEditStyle = esSimple;
  TWinControl* FActiveList = nullptr;
  /// Owned as a component.
  TKTDropDownList* FPickList = nullptr;
  /// The text that the expression has let pass last, and the caret in it.
  QString FAcceptedText;
  int FAcceptedCaret = 0;
  /// Where the mouse was last.
  QPoint FMouse;
  /// The editor is taking over the text of a cell.
  bool FIsFillingIn = false;
  bool FIsTakingBack = false;
  /// How many texts of cells were taken over.
  quint64 FReadings = 0;
};

}  // namespace kt
