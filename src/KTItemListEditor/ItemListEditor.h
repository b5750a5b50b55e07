#pragma once

#include "kt/KTItemListEditor/ItemListTypes.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemStrings.h"
#include "kt/ktcommon/DeltaFont.h"
#include "kt/ktcommon/HintWindow.h"
#include "kt/rtl/conversions/Variant.h"
#include "kt/vcl/graphics/Picture.h"
#include "kt/vcl/grids/DrawGrid.h"

namespace kt {

/// Selectors of GetGridCount() and SetGridCount(): a line is an item, a field is its name or one of its values.
enum TKTGridCount { gcFieldCount, gcCurrentField, gcFixedFields, gcLineCount, gcCurrentLine, gcFixedLines };

/// A cell without regard to the orientation.
struct TGridInfo {
  int Field;
  int Line;
  int CurField;
  int CurLine;
  int FixedFields;
  int FixedLines;
  int FieldCount;
  int LineCount;
};

/// A grid of named items with values: each item that shows is a line, field 0 is its name, field k its k-th value.
///
/// The tree of items is Items. Two lists follow from it: all items, parents before their children, and the rows, which
/// leave out hidden items and what is below collapsed ones. Entries follow every change of the tree at once; rows do,
/// too, except that they stand still while Items is in an update bracket. Both are counts rather than lists: finding an
/// item or its place takes time in proportion to its level and to the logarithm of the number of its siblings,
/// expanding and collapsing the same, however many rows come and go.
///
/// The model needs neither a display nor an application object.
class TKTCustomItemListEditor : public TCustomDrawGrid {
 public:
  using Inherited = TCustomDrawGrid;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTCustomItemListEditor() override;

  // Items.

  TKTItemProps& GetItems() const { return *FItems; }
  void SetItems(TKTItemProps& value) { FItems->Assign(&value); }
  /// All items; null outside 0..GetItemCount()-1.
  TKTItemProp* GetItem(int index) const;
  int GetItemCount() const;
  /// The rows; null outside 0..GetVisibleItemCount()-1.
  TKTItemProp* GetVisibleItem(int index) const;
  int GetVisibleItemCount() const;
  /// The item under the cursor, or null.
  TKTItemProp* GetSelected() const;
  /// Expands the ancestors and moves the cursor to the item. Null hides the in-place editor.
  void SetSelected(TKTItemProp* item);
  /// Name and first value of a row, counted without the title; setting a row past the last adds an item.
  QString GetPropNames(int index);
  void SetPropNames(int index, const QString& value);
  QString GetPropValues(int index);
  void SetPropValues(int index, const QString& value);
  TKTItemStrings& GetStrings() const { return *FStrings; }
  void SetStrings(TStrings& value) { FStrings->Assign(&value); }

  // Options.

  TILEPropOptions GetPropertyOptions() const { return FPropertyOptions; }
  /// propAdd brings propEdit with it, and goes with it.
  void SetPropertyOptions(TILEPropOptions value);
  TILEDisplayOptions GetDisplayOptions() const { return FDisplayOptions; }
  TKTGridOrientation GetOrientation() const { return FOrientation; }
  void SetOrientation(TKTGridOrientation value);
  /// Between the names in a full path name.
  const QString& GetPathDelimiter() const { return FPathDelimiter; }
  void SetPathDelimiter(const QString& value) { FPathDelimiter = value; }
  bool GetCaseSensitive() const { return FCaseSensitive; }
  /// A list that is sorted already keeps its order.
  void SetCaseSensitive(bool value);
  bool IsSorted() const { return FItems->GetSorted(); }
  void SetSorted(bool value) { FItems->SetSorted(value); }
  /// As in every grid; with doAutoColResize the widths follow.
  int GetColCount() const { return TCustomDrawGrid::GetColCount(); }
  void SetColCount(int value);
  /// The height of a row in pixels, and the least there is: rows are higher where the fonts need it, until somebody
  /// sets the height.
  int GetDefaultRowHeight() const { return FRowHeight; }
  void SetDefaultRowHeight(int value);
  /// Leaving a blank item deletes it.
  bool GetDeleteBlanks() const { return FDeleteBlanks; }
  void SetDeleteBlanks(bool value) { FDeleteBlanks = value; }
  /// Records the wish to see items under categories: renamed items move. Switching it moves nothing.
  bool GetArrangeByCategory() const { return FArrangeByCategory; }

  /// The most lines that the editor's drop-down list shows without scrolling. A value below 1 is ignored.
  int GetDropDownRows() const { return FDropDownRows; }
  void SetDropDownRows(int value);

  // Fonts.

  /// Of value fields without an item; items without a value font of their own inherit it.
  TKTCustomDeltaFont& GetValueFont() const { return *FValueFont; }
  void SetValueFont(TFont& value) { FValueFont->Assign(&value); }
  TKTCustomDeltaFont& GetCategoryFont() const { return *FCategoryFont; }
  void SetCategoryFont(TFont& value) { FCategoryFont->Assign(&value); }

  TKTCustomDeltaFont& GetTitleCaptionFont() const { return *FTitleCaptionFont; }
  void SetTitleCaptionFont(TFont& value) { FTitleCaptionFont->Assign(&value); }

  // Drawing.

  /// Pixels of indentation a level, and the room for the glyph. Setting a negative one changes nothing.
  int GetIndent() const { return FIndent; }
  void SetIndent(int value);
  /// Before expanded and collapsed items. Those of the package follow palette and resolution; any other is drawn as it
  /// is.
  TPicture& GetMinusGlyph() const { return *FMinusGlyph; }
  void SetMinusGlyph(TPicture& value) { FMinusGlyph->Assign(&value); }
  bool IsMinusGlyphStored() const { return FHasOwnMinusGlyph; }
  TPicture& GetPlusGlyph() const { return *FPlusGlyph; }
  void SetPlusGlyph(TPicture& value) { FPlusGlyph->Assign(&value); }
  bool IsPlusGlyphStored() const { return FHasOwnPlusGlyph; }
  /// While the editor does not have the focus, the current cell looks like any other.
  bool GetHideSelection() const { return FHideSelection; }
  void SetHideSelection(bool value);

  // Hints.

  TKTHintWindow& GetHintWindow() const { return *FHintWindow; }
  TGridShowHints GetShowItemHintStyle() const { return FShowItemHintStyle; }
  /// A hint that shows stays until the mouse moves.
  void SetShowItemHintStyle(TGridShowHints value) { FShowItemHintStyle = value; }
  /// The room that a hint of that text takes, its lines at most `maxWidth` long. Needs a QGuiApplication.
  QRect CalcHintRect(int maxWidth, const QString& hint, TFont& font);

  // Titles.

  TStringList& GetTitleCaptions() const { return *FTitleCaptions; }
  void SetTitleCaptions(TStrings& value);
  bool TitleCaptionsStored() const;

  // Looking up.

  /// Deliberately answers false even when it found the row: `index` tells, -1 for none.
  bool FindItem(const QString& name, int& index);
  /// The first line from `startIndex` on whose part before the first "=" is `name`, or -1. Lines without "=" have none.
  int IndexOfName(TStrings& strings, int startIndex, const QString& name);
  /// Whether the item under the cursor has neither name nor value.
  bool IsEmptyItem() const;

  // Changing.

  /// Reuses the empty item under the cursor, or adds one at the top level: at the end, or before the cursor. Answers
  /// its line. At the top level there may be fewer items than lines before the cursor: it comes last then.
  int InsertItem(const QString& name, const QString& value, bool append);
  /// Takes back what is typed, or removes the empty item under the cursor; false when there was neither.
  bool RestoreCurrentItem();
  /// Nothing is left to rebuild: entries follow the tree by themselves.
  void RefreshAllItems() {}
  /// Asks every item anew whether it has a row.
  void RefreshVisibleItems();

  // Counts without regard to the orientation.

  int GetGridCount(int kind) const;
  TGridInfo GetGridInfo(int col, int row) const;
  bool IsValueCell(int col, int row) const { return (FOrientation == goVertical ? col : row) != 0; }
  /// The number of value fields.
  int GetValueCount() const { return GetGridCount(gcFieldCount) - 1; }
  /// The value field under the cursor, counted from 1; 0 for the name.
  int GetCurrentValueColumn() const { return GetGridCount(gcCurrentField); }
  int GetCurrentValueIndex() const { return GetCurrentValueColumn() - 1; }
  /// Whether the cursor is in a value field of that item.
  bool IsSelectedValue(const TKTItemProp& item) const;
  bool IsEditUpdateLocked() const { return FEditUpdateLock > 0; }

  TKTGetCategoryEvent OnCategorize;
  /// The button of an item without a handler of its own was clicked; the sender is the item, or null.
  TNotifyEvent OnEditButtonClick;
  /// Adds to what can be picked for an item without a handler of its own.
  TKTGetPickListEvent OnGetPickList;
  /// Has the last word on the text of a hint.
  TKTOnShowHintsEvent OnShowHints;
  TKTOnValidateEvent OnValidate;
  TKTOnValidateEvent OnValidated;
  /// Without a handler the error goes on to the caller.
  TKTOnValidateErrorEvent OnValidateError;

 protected:
  friend class TKTInplaceEditList;
  friend class TKTItemProp;
  friend class TKTItemProps;

  explicit TKTCustomItemListEditor(TComponent* owner = nullptr);

  void Construct() override;
  void Destruct() override;
  void CalcSizingState(int x, int y, TGridState& state, int& index, int& sizingPos, int& sizingOfs,
                       TGridDrawInfo& fixedInfo) override;
  void CMFontChanged(TMessage& message) override;
  void CMMouseLeave(TMessage& message) override;
  void CMShowingChanged(TMessage& message) override;
  void ColWidthsChanged() override;
  void CreateWnd() override;
  void DoExit() override;
  void DrawCell(int col, int row, const QRect& rect, TGridDrawState state) override;
  bool KeepsPointer() const override;
  void KeyDown(quint16& key, TShiftState shift) override;
  void Loaded() override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void MouseMove(TShiftState shift, int x, int y) override;
  void Resize() override;
  void RowMoved(int fromIndex, int toIndex) override;
  void ColumnMoved(int fromIndex, int toIndex) override;
  bool SelectCell(int col, int row) override;

  // What the items tell.

  void ItemNotify(TKTItemProp* item, TCollectionNotification action);
  void UpdatingItemProp(TKTItemProp* item);
  /// Null for a structural change.
  void UpdateItemProp(TKTItemProp* item);
  void VisibleChanged(TKTItemProp* item);
  void InvalidateItem(const TKTItemProp& item);
  void InvalidateValues(const TKTItemProp& item);

  /// Items by name, values by the name of their item.
  TGridCellDescription DescribeCell(int col, int row) override;
  void ToggleCell(int col, int row) override;

  // Editing. All of these take cells of the grid.

  /// Makes a TKTInplaceEditList.
  TInplaceEdit* CreateEditor() override;
  /// Not for items that are read-only.
  bool CanEditModify() override;
  /// The item's for values, and esSimple for names; on the blank line by whether there is something to pick.
  TEditStyle GetEditStyle(int col, int row) override;
  /// The item's mask, unless that is an expression; OnGetEditMask has the last word.
  QString GetEditMask(int col, int row) override;
  /// The text of the cell; OnGetEditText has the last word.
  QString GetEditText(int col, int row) override;
  /// Writes what is typed into the item, at once. A name that the items reject is held back, and meets their error when
  /// it comes a second time. Does nothing while updates of the editor are locked.
  void SetEditText(int col, int row, const QString& value) override;

  // What descendants can override, in its fixed order.

  /// Both delete items, and do nothing while one of them is under way.
  void DeleteColumn(int col) override;
  void DeleteRow(int row) override;
  /// The item's mask when that is an expression.
  virtual QString GetExpressionMask(int col, int row);

  /// Makes the columns fill the width, with doAutoColResize.
  virtual void AdjustColWidths();
  virtual void AdjustGridCount();

 public:
  /// Without regard to case unless CaseSensitive. All matching of names goes through it.
  virtual int CompareStrings(const QString& s1, const QString& s2);

 protected:
  /// Fills the category map of Items.
  virtual void FillCategories() {}

 public:
  /// Has what was typed accepted or refused: runs the events of validation for the item under the cursor, if its text
  /// was modified. Without a handler for errors, raises what was wrong.
  virtual void Validate();

 protected:
  virtual void DoValidate();
  virtual void DoValidate(TKTItemProp* item, int column);
  virtual void DoValidated(TKTItemProp* item, int column);
  virtual void DoValidateError(TKTItemProp* item, int column, const Exception& error);

 public:
  /// While locked, changes of items rebuild nothing and leave the in-place editor alone. Nests.
  virtual void DisableEditUpdate();
  virtual void EnableEditUpdate();

 protected:
  /// Fills the drop-down list of a value cell: with the item's pick list and what the handlers add.
  virtual void EditListGetItems(int col, int row, TStrings& items);
  /// The button of the in-place editor was clicked. The item's handler goes before the editor's; either gets the item
  /// as its sender.
  virtual void EditButtonClick(TObject* sender);

 public:
  /// By an ordinal key the row of that number. By any other key the first row whose display name, Name=Value, equals
  /// the key; with `create` raises ETORVException "Property not found: %s" when there is none. With `create` an ordinal
  /// key outside the rows inserts an item at the top level. Null without rows.
  virtual TKTItemProp* FindItemProp(const Variant& key, bool create);
  /// The item under a cell, or null. `isGridPosition`: fixed lines count.
  virtual TKTItemProp* FindItemProp(int col, int row, bool isGridPosition) const;
  virtual QString GetCell(int col, int row);
  /// The font for the in-place editor: deliberately that of the current value field, whatever the cell. To look at, not
  /// to change: an item that inherits its font answers whose it is.
  virtual TFont& GetCellFont(int col, int row);
  /// Has the item's handler, or else the editor's, fill `values`; whether they hold anything then. On a line without a
  /// name nothing happens.
  virtual bool GetPickList(TKTItemProp* item, TStrings& values, bool clearFirst);
  virtual void SetCell(int col, int row, const QString& value);
  virtual void SetArrangeByCategory(bool value) { FArrangeByCategory = value; }
  virtual void SetDisplayOptions(TILEDisplayOptions value);
  virtual void SetColumnTitles(bool value);
  virtual void SetGridCount(int kind, int value);
  virtual void FullCollapse();
  virtual void FullExpand();
  /// Moves an item under the category that the map has for its name; with `multipleCategories`, copies of it under each
  /// category that the map has.
  virtual void Categorize(TKTItemProp* item, TStrings& categoryMap, bool multipleCategories);
  /// Each item of a collection.
  virtual void Categorize(TKTItemProps& items, TStrings& categoryMap, bool multipleCategories);
  /// Each top-level item that is no category. Always moves, never copies; the flag is deliberately not used.
  virtual void Categorize(TStrings& categoryMap, bool multipleCategories);
  /// By the map of Items.
  virtual void Categorize(bool multipleCategories);
  virtual void DeleteItem(int col, int row);
  /// Brings the grid in step with the rows, unless locked.
  virtual void Refresh();

  /// The category for an item under a name, found or made; null when there is none for it. The item's parent while
  /// loading.
  TKTItemProp* Categorize(TKTItemProp* item, const QString& propName, TStrings& categoryMap);
  /// The category of that name in a collection, found or made.
  TKTItemProp* Categorize(TKTItemProps& items, const QString& categoryName);

 protected:
  /// Makes the collection for the editor or for an item: `owner`.
  virtual std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner);
  virtual void OrientationChange();
  /// Makes the text of a cell's hint; empty for none.
  virtual void ShowHints(TKTItemProp* item, int col, int row, QString& hint);
  /// Font has changed.
  virtual void FontChanged();
  /// ValueFont has changed: items that inherit it follow.
  virtual void InternalValueFontChanged(TObject* sender);
  virtual void GetOriginalFont(TObject* sender, TFont*& font);

 private:
  // Drawing.
  void UseCellFont(const TGridInfo& info, TKTItemProp* item);
  void MakeFontLegible();
  void Indent(TKTItemProp& item, QRect& rect);
  QRect GlyphRect(const TKTItemProp& item, const QRect& cell, TPicture& glyph) const;
  void DrawGlyph(const TKTItemProp& item, const QRect& cell);
  void UseSelectionColors(const QRect& rect, TGridDrawState state);
  void DrawCellText(const QRect& rect, const QString& text);
  void GlyphChanged(TObject* sender);
  std::unique_ptr<TPicture> MakeGlyph(const QString& name);
  int TextRowHeight();
  void FitRowHeight();
  void MeasureItemFonts();
  bool NoteItemFont(const TFont& font);
  /// An item has got a font of its own.
  void ItemFontSet(const TFont& font);

  // Input.
  bool LeaveBlank(int col, int row);
  bool RestoreTyping();
  bool CanAddByKey();
  void AddByKey(bool append, quint16& key);
  void AcceptByKey();
  void GoToLine(int line, quint16& key);
  void HandleKey(quint16& key, TShiftState shift);
  bool PressItem(TShiftState shift, TGridCoord cell, QPoint point);
  bool PressGlyph(TGridCoord cell, QPoint point);
  void PressName(TGridCoord cell, TShiftState shift);
  bool PressMovedName();
  void MoveItem(int from, int to);
  void ValidateBlank();

  // Hints.
  void HintAt(TGridCoord cell);
  void ShowHintOf(TKTItemProp& item, TGridCoord cell, const QString& text);

  bool IsUpdating() const { return FItems->GetUpdateCount() > 0; }
  void ShowRows();
  int WantedLineCount() const;
  void GoToRow(int row);
  template <class F>
  void ChangeAll(F change);
  void FreeItem(TKTItemProp* item);
  void SwapCounts();
  void TurnSelection(const TGridRect& selection);
  void LeaveName();
  bool HasCountsOfForm() const;
  void RecountRows();
  TGridCoord CellOf(int row, int field) const;
  std::unique_ptr<TKTCustomDeltaFont> MakeFont();
  void CategoryFontChanged(TObject*);
  void FollowFonts();
  void TitleCaptionFontChanged(TObject*);
  void TitleCaptionsChange(TObject*);
  TKTItemProps& LevelOf(const TKTItemProp& item) const;
  void MoveTo(TKTItemProp& item, TKTItemProp* category);
  void MoveFurther(TKTItemProp& item, const QString& categoryName);
  void CopyTo(TKTItemProp& item, TKTItemProp* category);
  void PlaceCopy(TKTItemProp& item, TKTItemProp& category);
  void PlaceFurtherCopy(TKTItemProp& item, const QString& categoryName);
  class TKTInplaceEditList* ListEditor() const;
  void TypeInto(int col, int row, const QString& value);
  void NameCurrent(int col, int row, const QString& value);
  TKTItemProp* WriteTypedText(int col, int row, const QString& value);
  void FollowNamed(TKTItemProp& item, int field);
  bool HoldsBackName(const QString& value);

  std::unique_ptr<TKTItemProps> FItems;
  /// Stands for an object that an item does without, while that item is written.
  std::unique_ptr<TPersistent> FStandIn;
  std::unique_ptr<TKTItemStrings> FStrings;
  std::unique_ptr<TStringList> FTitleCaptions;
  std::unique_ptr<TKTCustomDeltaFont> FValueFont;
  std::unique_ptr<TKTCustomDeltaFont> FCategoryFont;
  std::unique_ptr<TKTCustomDeltaFont> FTitleCaptionFont;
  std::unique_ptr<TPicture> FMinusGlyph;
  std::unique_ptr<TPicture> FPlusGlyph;
  /// Owned as a component.
  TKTHintWindow* FHintWindow = nullptr;
  /// Where the mouse was last.
  QPoint FLastMouse;
  int FIndent = 0;
  int FRowHeight = 18;
  /// Of the highest font that an item ever had of its own, measured while there is a window.
  int FItemFontHeight = 0;
  QString FPathDelimiter;
  /// A name that was typed and rejected once.
  QString FPendingName;
  TILEPropOptions FPropertyOptions;
  TILEDisplayOptions FDisplayOptions;
  TKTGridOrientation FOrientation = goVertical;
  int FDropDownRows = 8;
  int FEditUpdateLock = 0;
  /// The number of rows when the lock was taken.
  int FSavedVisibleCount = 0;
  TGridShowHints FShowItemHintStyle = shValueAndHint;
  bool FDeleting = false;
  bool FAdjusting = false;
  /// The cursor is being taken along with what it stands on.
  bool FFollowing = false;
  /// There was a line for each row when the edit-update lock was taken.
  bool FWasInStep = false;
  /// The name of the item under the cursor is being typed.
  bool FIsNaming = false;
  bool FHideSelection = false;
  bool FIsRowHeightByHand = false;
  /// The number of lines waits for the end of the form.
  bool FAdjustsWhenLoaded = false;
  bool FHasItemFonts = false;
  bool FHasOwnMinusGlyph = false;
  bool FHasOwnPlusGlyph = false;
  bool FCaseSensitive = false;
  bool FDeleteBlanks = false;
  bool FArrangeByCategory = false;
};

/// The item list editor as applications place it on their forms: publishes what TKTCustomItemListEditor has.
class TKTItemListEditor : public TKTCustomItemListEditor {
 public:
  using Inherited = TKTCustomItemListEditor;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TKTItemListEditor(TComponent* owner = nullptr) : TKTCustomItemListEditor(owner) {}
};

}  // namespace kt
