#pragma once

#include "kt/vcl/controls/CustomControl.h"
#include "kt/vcl/grids/GridAccessibility.h"
#include "kt/vcl/grids/GridAxis.h"
#include "kt/vcl/grids/GridTypes.h"

#include <QPoint>
#include <QPointer>

#include <memory>

class QTimer;

namespace kt {

class TGridScrollBar;
class TInplaceEdit;

/// A control of cells in columns and rows, of which the first ones may be fixed: it scrolls the others, moves a current
/// cell and a selection, lets the user size and move columns and rows, and has an in-place editor. What the cells show
/// is up to descendants.
///
/// Counts and sizes cost nothing per cell: a grid of a million rows is as cheap as one of ten, as long as the rows have
/// the usual height. All of it works without a window; then the client area is what Width and Height leave without
/// scroll bars, nothing is painted, and the in-place editor does not exist.
class TCustomGrid : public TCustomControl {
 public:
  using Inherited = TCustomControl;
  /// The most columns or rows of which some can have sizes of their own.
  static constexpr int MaxCustomExtents = 134217727;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  // Counts. A count below 1 becomes 1, and fixed cells are given up where none but them would be left.
  int GetColCount() const { return FCols.Count; }
  void SetColCount(int value);
  int GetRowCount() const { return FRows.Count; }
  void SetRowCount(int value);
  /// Setting it scrolls to the start and makes the first cell that is not fixed the current one, without asking
  /// SelectCell(). Raises EInvalidGridOperation.
  int GetFixedCols() const { return FCols.Fixed; }
  void SetFixedCols(int value);
  int GetFixedRows() const { return FRows.Fixed; }
  void SetFixedRows(int value);

  // Sizes in pixels, without the lines between the cells. Below 0: hidden together with its line.
  int GetDefaultColWidth() const { return FCols.Sizes.GetUsual(); }
  /// Gives all columns that width.
  void SetDefaultColWidth(int value);
  int GetDefaultRowHeight() const { return FRows.Sizes.GetUsual(); }
  void SetDefaultRowHeight(int value);
  /// An index outside the grid has the default size. Setting raises EInvalidGridOperation "Grid index out of range".
  int GetColWidths(int index) const { return FCols.Sizes.Get(index); }
  void SetColWidths(int index, int value);
  int GetRowHeights(int index) const { return FRows.Sizes.Get(index); }
  void SetRowHeights(int index, int value);
  /// Whether the Tab key stops in a column.
  bool GetTabStops(int index) const { return FTabStops.Get(index) != 0; }
  void SetTabStops(int index, bool value);
  int GetGridLineWidth() const { return FGridLineWidth; }
  void SetGridLineWidth(int value);
  /// The size of all cells with their lines, cut to the client area.
  int GetGridWidth() const;
  int GetGridHeight() const;

  void Invalidate() override;

  // Current cell, selection and scroll position.
  int GetCol() const { return FCurrent.X; }
  /// Moves the current cell, if SelectCell() allows it, and scrolls it into view.
  void SetCol(int value);
  int GetRow() const { return FCurrent.Y; }
  void SetRow(int value);
  TGridRect GetSelection() const { return TGridRect::Spanning(FCurrent, FAnchor); }
  /// Makes the bottom right cell the current one, without asking SelectCell(). Raises EInvalidGridOperation "Grid index
  /// out of range".
  void SetSelection(const TGridRect& value);
  int GetLeftCol() const { return FCols.First; }
  void SetLeftCol(int value);
  int GetTopRow() const { return FRows.First; }
  void SetTopRow(int value);
  /// How many cells that are not fixed are wholly in view.
  int GetVisibleColCount() const;
  int GetVisibleRowCount() const;

  // Look and behaviour.
  TGridOptions GetOptions() const { return FOptions; }
  void SetOptions(TGridOptions value);
  TColor GetFixedColor() const { return FFixedColor; }
  void SetFixedColor(TColor value);
  TScrollStyle GetScrollBars() const { return FScrollBars; }
  void SetScrollBars(TScrollStyle value);
  TBorderStyle GetBorderStyle() const { return FBorderStyle; }
  void SetBorderStyle(TBorderStyle value);
  bool IsDefaultDrawing() const { return FDefaultDrawing; }
  void SetDefaultDrawing(bool value) { FDefaultDrawing = value; }

  // The in-place editor.
  bool IsEditorMode() const { return FEditorMode; }
  void SetEditorMode(bool value);
  /// Null while there is none.
  TInplaceEdit* InplaceEditor() const { return FInplaceEdit; }

  /// The cell at a position in the client area; (-1, -1) outside the cells.
  TGridCoord MouseCoord(int x, int y) const;
  void MouseToCell(int x, int y, int& col, int& row) const;
  /// The place of a cell in the client area, without its lines; empty when it is scrolled out of view.
  QRect CellRect(int col, int row) const;

 protected:
  friend class TInplaceEdit;
  friend class TGridCellAccessible;
  friend class TGridAccessible;
  friend void GridAccessibility::TellCurrentCell(const TCustomGrid& grid);
  friend void GridAccessibility::TellSize(const TCustomGrid& grid);

  explicit TCustomGrid(TComponent* owner = nullptr);
  ~TCustomGrid() override;

  void Construct() override;
  void Notification(TComponent* component, TOperation operation) override;
  void Dispatch(TMessage& message) override;
  void DefaultHandler(TMessage& message) override;
  QMargins GetClientMargins() const override;
  void Resize() override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void Paint() override;
  void PaintBorder(QPainter& painter) override;
  void DoExit() override;
  void KeyDown(quint16& key, TShiftState shift) override;
  void KeyPress(QChar& key) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void MouseMove(TShiftState shift, int x, int y) override;
  void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  bool WantsKey(quint16 key) override;
  bool InputText(const QString& text) override;
  void CMExit(TMessage& message) override;
  void CMBiDiModeChanged(TMessage& message) override;
  void CMCancelMode(TMessage& message) override;
  void CMShowingChanged(TMessage& message) override;
  void CMWantSpecialKey(TMessage& message) override;
  void WMCancelMode(TMessage& message) override;
  void WMKillFocus(TMessage& message) override;
  void WMSetFocus(TMessage& message) override;

  // Overridable operations in the framework's order.
  virtual TInplaceEdit* CreateEditor();
  /// Draws one cell whose background is done when DefaultDrawing is set. `rect` lies in the client area.
  virtual void DrawCell(int col, int row, const QRect& rect, TGridDrawState state) = 0;
  virtual bool CanEditAcceptKey(QChar key);
  virtual bool CanEditModify() { return FCanEditModify; }
  virtual bool CanEditShow();
  virtual bool CanGridAcceptKey(quint16 key, TShiftState shift);
  virtual QString GetEditText(int col, int row);
  virtual void SetEditText(int col, int row, const QString& value);
  virtual QString GetEditMask(int col, int row);
  /// The most characters that the editor takes; 0 for any number.
  virtual int GetEditLimit() { return 0; }
  virtual TEditStyle GetEditStyle(int col, int row);
  virtual bool SelectCell(int col, int row);
  virtual void SizeChanged(int oldColCount, int oldRowCount);
  virtual void TopLeftChanged();
  virtual void ColWidthsChanged();
  virtual void RowHeightsChanged();
  virtual void ColumnMoved(int fromIndex, int toIndex);
  virtual void RowMoved(int fromIndex, int toIndex);
  virtual void DeleteColumn(int col);
  virtual void DeleteRow(int row);
  virtual void MoveColumn(int fromIndex, int toIndex);
  virtual void MoveRow(int fromIndex, int toIndex);
  /// What a press at a position would size: leaves `state` gsNormal, or gives the cell, and the end of it on the screen
  /// with the distance of the position from there.
  virtual void CalcSizingState(int x, int y, TGridState& state, int& index, int& sizingPos, int& sizingOfs,
                               TGridDrawInfo& fixedInfo);

  /// What assistive technology is told of a cell; here, that it has no text.
  virtual TGridCellDescription DescribeCell(int col, int row);
  /// Expands or collapses what the cell stands for.
  virtual void ToggleCell(int, int) {}

  /// Makes a cell the current one, if SelectCell() allows it. `moveAnchor`: the selection becomes that cell alone.
  /// Raises EInvalidGridOperation "Grid index out of range".
  void FocusCell(int col, int row, bool moveAnchor);
  void MoveCurrent(int col, int row, bool moveAnchor, bool show);
  /// Scrolls a cell into view.
  void ClampInView(TGridCoord cell);

  /// Hides the editor, whatever its text is; a cell that its user leaves is validated before.
  void HideEditor();
  void ShowEditor();
  /// Shows the editor and has it type `character`.
  void ShowEditorChar(QChar character);
  /// Has the editor read its text again.
  void InvalidateEditor();

  void InvalidateCell(int col, int row);
  void InvalidateCol(int col);
  void InvalidateRow(int row);
  void InvalidateCells(const TGridRect& cells);
  void InvalidateGrid() { Invalidate(); }

  /// Where the cells lie; the scrolled ones too, for the present client area.
  TGridDrawInfo CalcDrawInfo() const;
  /// The fixed cells only.
  TGridDrawInfo CalcFixedInfo() const;
  /// The test of CalcSizingState() in one direction; true when `position` is on an edge.
  bool CalcAxisSizing(const TGridAxisDrawInfo& info, int position, bool isMirrored, int& index, int& sizingPos,
                      int& sizingOfs) const;
  /// The selection's other end moves to `cell`.
  void MoveAnchor(TGridCoord cell);
  /// What is in the current cell has come to another one: selection and editor follow, and nobody is asked or told.
  /// Scrolls the cell into view. Raises EInvalidGridOperation for what is no cell.
  void CarryCurrent(TGridCoord cell);
  /// What the mouse is doing.
  TGridState GetGridState() const { return FGridState; }
  /// Whether the grid is where the keys go: its form's ActiveControl, be the form active or not; without a form,
  /// whether the focus is in the grid's window. Its editor counts as the grid.
  bool IsActiveControl() const;
  /// The sum of all column widths, without lines. Takes time for the columns of unusual width only.
  qint64 GetColWidthsSum() const { return FCols.Sizes.Sum(0, FCols.Count - 1); }

  /// Changes the height of the rows that have no height of their own, and tells nobody.
  void SetUsualRowHeight(int value);

  TGridOptions FDesignOptionsBoost = {goColSizing, goRowSizing};

 private:
  class TPainting;
  struct TKeyMove;
  /// What is being sized or moved: the column or row, the place it has come to, and how far from there it was pressed.
  struct TMouseWork {
    int Index = -1;
    int Position = 0;
    int Offset = 0;
  };

  // Counts, sizes, selection.
  void Initialize();
  void ChangeSize(int newColCount, int newRowCount);
  void KeepCurrentInside();
  void SetSize(TGridAxis& axis, int index, int value);
  void SizesChanged();
  void SelectionMoved(const TGridRect& oldSelection);
  void CheckIndex(const TGridAxis& axis, int index) const;
  int LineWidth(TGridOption fixedLine, TGridOption line) const;
  QRect CellsRect(const TGridDrawInfo& info, const TGridRect& cells) const;

  // The editor.
  void UpdateEdit();
  bool UpdateEditor();
  void UpdateText();
  void HideEdit();
  void ValidateEditor();
  void MoveEditor();
  bool IsUnderEditor(int col, int row) const;

  // Scrolling.
  void MoveTopLeft(int leftCol, int topRow);
  void ScrollCells(const TGridDrawInfo& before, int oldLeft, int oldTop);
  void ScrolledTo(int leftCol, int topRow);
  void UpdateTracking();
  void ScrollBarsNeedUpdate();
  void ShowScrollBars();
  void PlaceScrollBars();
  bool HasScrollBar(TScrollStyle style) const;
  static bool IsScrollBarShown(const TGridScrollBar* bar);
  static bool NeedsScrolling(const TGridAxis& axis, int lineWidth, int extent);

  // Keys.
  bool MoveByKey(quint16 key, TShiftState shift, TKeyMove& move);
  bool MoveByCtrlKey(quint16 key, TKeyMove& move, const TGridDrawInfo& info);
  void MoveByTab(bool isBack, TGridCoord& cell) const;

  // The mouse.
  void PressCell(TShiftState shift, int x, int y);
  void PressInnerCell(TShiftState shift, TGridCoord hit);
  void BeginMoving(TGridState state, int index);
  void DragEdge(int x, int y);
  void DragTo(int x, int y);
  void EndSizing(TGridState state);
  void CancelMouse();
  void UpdateCursorAt(int x, int y);
  void StartScrollTimer();
  void ScrollByTimer();
  TGridCoord NearestCell(int x, int y) const;
  int FromStart(int x) const;
  QRect MouseLineRect() const;
  void InvalidateMouseLine();
  void PaintMouseLine();

  TGridAxis FCols{5, 1, 64};
  TGridAxis FRows{5, 1, 24};
  TSparseSizes FTabStops{1};
  TGridCoord FCurrent{1, 1};
  TGridCoord FAnchor{1, 1};
  int FGridLineWidth = 1;
  TGridOptions FOptions = {goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goRangeSelect};
  TColor FFixedColor = clBtnFace;
  TScrollStyle FScrollBars = ssBoth;
  TBorderStyle FBorderStyle = bsSingle;
  bool FDefaultDrawing = true;
  bool FEditorMode = false;
  bool FCanEditModify = true;
  TInplaceEdit* FInplaceEdit = nullptr;
  /// The cell that the editor edits; {-1, -1} for none.
  TGridCoord FInplaceCell{-1, -1};

  QPointer<TGridScrollBar> FHorzBar;
  QPointer<TGridScrollBar> FVertBar;
  int FBarWidth = 0;
  bool FIsUpdatingBars = false;
  TWheelSteps FWheelAcross;
  TWheelSteps FWheelDown;

  TGridState FGridState = gsNormal;
  TMouseWork FMouse;
  QPoint FMousePoint;
  std::unique_ptr<QTimer> FScrollTimer;
  bool FIsKeyUsed = false;
};

}  // namespace kt
