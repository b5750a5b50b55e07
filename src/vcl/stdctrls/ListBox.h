#pragma once

#include "kt/rtl/strings/Strings.h"
#include "kt/vcl/controls/WinControl.h"

#include <memory>

namespace kt {

/// A list of lines of which one can be selected. Its window is Qt's list view over the lines: a line costs nothing but
/// its text, so that tens of thousands are set and shown at once.
///
/// All of it works without a window. OnClick comes when the user selects a line, by mouse or by key. Lines keep the
/// height of the font while there is a window, and ItemHeight otherwise.
class TCustomListBox : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCustomListBox() override;

  /// Changes between BeginUpdate() and EndUpdate() are shown once. The selection stays with its line.
  TStrings& GetItems() const;
  void SetItems(TStrings& value);
  int GetCount() const { return GetItems().GetCount(); }
  /// The selected line, or -1. Setting scrolls it into view; what is no line selects none. Neither is a click.
  int GetItemIndex() const { return FItemIndex; }
  void SetItemIndex(int value);
  bool GetSelected(int index) const { return index >= 0 && index == FItemIndex; }
  /// Raises EListError for what is no line.
  void SetSelected(int index, bool value);
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
  void ClearSelection() { SetItemIndex(-1); }
  void DeleteSelected();
  /// Selects the first line that begins with a text, without regard to case; -1 and no change when there is none.
  int SelectPrefix(const QString& text);
  /// The width in pixels that the longest line takes, together with the room beside it.
  int LongestLineWidth() const;

  void DefaultHandler(TMessage& message) override;

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
  void SelectByUser(int index);
  bool MoveByKey(quint16 key);
  void HandleMouse(const TMessage& message);
  void FollowMouse(QPoint point);
  void FitHeight();
  void UpdateLook();
  int LinesInView() const;

  std::unique_ptr<TLines> FLines;
  int FItemIndex = -1;
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
