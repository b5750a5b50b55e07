#pragma once

#include "kt/rtl/strings/Strings.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/stdctrls/OwnerDraw.h"

#include <memory>
#include <vector>

namespace kt {

/// Who draws the lines, and who has them. Lines of the virtual styles are the program's, which tells of them as they
/// are needed.
enum TListBoxStyle { lbStandard, lbOwnerDrawFixed, lbOwnerDrawVariable, lbVirtual, lbVirtualOwnerDraw };
template <>
struct TEnumNames<TListBoxStyle> {
  static constexpr char Name[] = "TListBoxStyle";
  static constexpr const char* Values[] = {"lbStandard", "lbOwnerDrawFixed", "lbOwnerDrawVariable", "lbVirtual",
                                           "lbVirtualOwnerDraw"};
};

/// Asks for the text of a line, or for its object.
struct TLBGetDataEvent : TEvent<TWinControl*, int, QString&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TLBGetDataEvent";
};
struct TLBGetDataObjectEvent : TEvent<TWinControl*, int, TObject*&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TLBGetDataObjectEvent";
};
/// Asks for the first line that begins with a text; -1 is none.
struct TLBFindDataEvent : TEvent<TWinControl*, const QString&, int&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TLBFindDataEvent";
};

/// A list of lines of which one can be selected, or several with MultiSelect. Its window is Qt's list view over the
/// lines: a line costs nothing but its text, so that tens of thousands are set and shown at once.
///
/// All of it works without a window. OnClick comes when the user selects a line, by mouse or by key. Lines that the
/// program does not draw keep the height of the font while there is a window, and ItemHeight otherwise.
class TCustomListBox : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCustomListBox() override;

  /// Changes between BeginUpdate() and EndUpdate() are shown once. The selection stays with its line.
  TStrings& GetItems() const;
  void SetItems(TStrings& value);
  /// Of a virtual style it is told here; setting it raises EInvalidOperation for others.
  int GetCount() const { return IsVirtual() ? FVirtualCount : GetItems().GetCount(); }
  void SetCount(int value);
  /// The text of a line and what goes with it, whoever has them.
  QString GetLine(int index) const;
  TObject* GetLineObject(int index) const;
  TListBoxStyle GetStyle() const { return FStyle; }
  void SetStyle(TListBoxStyle value);
  bool IsVirtual() const { return FStyle == lbVirtual || FStyle == lbVirtualOwnerDraw; }
  bool IsOwnerDraw() const { return FStyle != lbStandard && FStyle != lbVirtual; }
  /// The selected line, or -1; with MultiSelect the one that the keyboard is on. Setting scrolls it into view; what is
  /// no line selects none. Neither is a click.
  int GetItemIndex() const { return FItemIndex; }
  void SetItemIndex(int value);
  bool GetSelected(int index) const;
  /// Raises EListError for what is no line.
  void SetSelected(int index, bool value);
  bool IsMultiSelect() const { return FMultiSelect; }
  void SetMultiSelect(bool value);
  /// Whether several lines are selected with the Shift and Ctrl keys; else each click and the space bar turn a line on
  /// or off. Of no matter without MultiSelect.
  bool IsExtendedSelect() const { return FExtendedSelect; }
  void SetExtendedSelect(bool value) { FExtendedSelect = value; }
  /// How many lines are selected; -1 without MultiSelect.
  int GetSelCount() const;
  /// Into how many columns the lines are broken that stand side by side, and scroll sideways; 0 for a plain list.
  int GetColumns() const { return FColumns; }
  void SetColumns(int value);
  /// The width that can be scrolled to; 0 for that of the list.
  int GetScrollWidth() const { return FScrollWidth; }
  void SetScrollWidth(int value);
  /// Kept for the forms that say it: Qt's lines have tab stops of their own.
  int GetTabWidth() const { return FTabWidth; }
  void SetTabWidth(int value) { FTabWidth = value; }
  /// The height of a line in pixels.
  int GetItemHeight() const;
  void SetItemHeight(int value);
  /// The height of the window is cut so that no line shows in part. Not while it is aligned.
  bool IsIntegralHeight() const { return FIntegralHeight; }
  void SetIntegralHeight(bool value);
  /// Lines that are added find their place by the alphabet.
  bool IsSorted() const { return FSorted; }
  void SetSorted(bool value);
  /// Whether typing finds the line that begins so.
  bool IsAutoComplete() const { return FAutoComplete; }
  void SetAutoComplete(bool value) { FAutoComplete = value; }
  TBorderStyle GetBorderStyle() const { return FBorderStyle; }
  void SetBorderStyle(TBorderStyle value);
  /// The first line in view.
  int GetTopIndex() const;
  void SetTopIndex(int value);
  /// The line at a place of the client area. Outside the lines -1 or, behind them and unless only `existing` ones
  /// count, their number.
  int ItemAtPos(QPoint point, bool existing) const;
  /// The place of a line in the client area, whether or not it is in view.
  QRect ItemRect(int index) const;

  void AddItem(const QString& text, TObject* object) { GetItems().AddObject(text, object); }
  void Clear() { GetItems().Clear(); }
  void ClearSelection();
  void DeleteSelected();
  void SelectAll();
  /// Adds the selected lines to another list, or takes them over there.
  void CopySelection(TCustomListBox& destination);
  void MoveSelection(TCustomListBox& destination);
  /// What OnDrawItem draws on.
  TCanvas& GetCanvas();
  /// Selects the first line that begins with a text, without regard to case; -1 and no change when there is none.
  int SelectPrefix(const QString& text);
  /// The width in pixels that the longest line takes, together with the room beside it.
  int LongestLineWidth() const;

  void DefaultHandler(TMessage& message) override;

  TLBGetDataEvent OnData;
  TLBFindDataEvent OnDataFind;
  TLBGetDataObjectEvent OnDataObject;
  /// For the styles that are drawn by the program. Nobody's lines are drawn plain.
  TDrawItemEvent OnDrawItem;
  /// Of lbOwnerDrawVariable.
  TMeasureItemEvent OnMeasureItem;

 protected:
  explicit TCustomListBox(TComponent* owner = nullptr);

  void Construct() override;
  void WndProc(TMessage& message) override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  QMargins GetClientMargins() const override;
  void Resize() override;
  bool WindowEvent(QEvent& event) override;
  bool WantsKey(quint16 key) override;
  void CMFontChanged(TMessage& message) override;
  void CMColorChanged(TMessage& message) override;
  void WMCancelMode(TMessage& message) override;

  virtual void DrawItem(int index, const QRect& rect, TOwnerDrawState state);
  virtual void MeasureItem(int index, int& height) { OnMeasureItem(this, index, height); }

  /// Makes the widget, for descendants that place it elsewhere.
  QWidget* CreateListView(QWidget* parent);
  /// Scrolls the selected line into view.
  void ShowSelected();

 private:
  class TLines;
  class TModel;
  class TView;

  TView* View() const;
  void LinesChanged();
  void LineInserted(int index);
  void LineDeleted(int index);
  void SelectInView();
  void SelectedInView(int index);
  void SelectByUser(int index, TShiftState shift);
  bool MoveByKey(quint16 key, TShiftState shift);
  bool IsLine(int index) const { return index >= 0 && index < GetCount(); }
  /// Sets what is selected, and where the keyboard is, without telling anybody.
  void SelectOnly(int first, int last);
  void TurnLine(int index);
  void PressLine(int index, TShiftState shift);
  void FollowTo(int index);
  bool PaintLine(QPainter& painter, const QRect& rect, int index, TOwnerDrawState state);
  int HeightOfLine(int index);
  /// Whether lines are where a view has put them, and not simply below each other.
  bool IsLaidOut() const { return View() && (FColumns > 0 || FStyle == lbOwnerDrawVariable); }
  void UpdateLayout();
  void HandleMouse(const TMessage& message);
  void FollowMouse(QPoint point);
  void FitHeight();
  void UpdateLook();
  int LinesInView() const;

  std::unique_ptr<TLines> FLines;
  std::unique_ptr<TCanvas> FCanvas;
  /// With MultiSelect, for each line.
  std::vector<bool> FSelected;
  int FItemIndex = -1;
  /// Where a range of lines begins.
  int FAnchorIndex = -1;
  int FVirtualCount = 0;
  int FColumns = 0;
  int FScrollWidth = 0;
  int FTabWidth = 0;
  TListBoxStyle FStyle = lbStandard;
  bool FMultiSelect = false;
  bool FExtendedSelect = true;
  int FItemHeight = 16;
  int FTopIndex = 0;
  TBorderStyle FBorderStyle = bsSingle;
  bool FAutoComplete = true;
  bool FIntegralHeight = false;
  bool FSorted = false;
  bool FIsTracking = false;
  bool FIsSelecting = false;
  bool FIsUpdatingLook = false;
};

/// The list of lines that forms use.
class TListBox : public TCustomListBox {
 public:
  using Inherited = TCustomListBox;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TListBox(TComponent* owner = nullptr) : TCustomListBox(owner) {}
};

}  // namespace kt
