#pragma once

#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/stdctrls/ListBox.h"

#include <QAbstractListModel>
#include <QListView>

#include <vector>

namespace kt {

/// The lines of a list box, which tell it of their changes.
class TCustomListBox::TLines : public TStringList {
 public:
  using Inherited = TStringList;

  void Delete(int index) override;
  void Clear() override;

 protected:
  explicit TLines(TCustomListBox& box) : FBox(box) {}

  void InsertItem(int index, const QString& text, TObject* object) override;
  void Changed() override;

 private:
  TCustomListBox& FBox;
};

/// The lines as Qt asks for them. Between two resets their number stays what it was, whatever happens to the lines.
class TCustomListBox::TModel : public QAbstractListModel {
 public:
  TModel(TCustomListBox& box, QObject* parent) : QAbstractListModel(parent), FBox(&box) { Reset(); }

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : FRows; }
  QVariant data(const QModelIndex& index, int role) const override;

  void Reset();
  /// The list box is no more.
  void Detach();

 private:
  TCustomListBox* FBox;
  int FRows = 0;
};

/// The window of a list box. The mouse is the list box's; Qt scrolls and paints.
class TCustomListBox::TView : public QListView, public TControlBody {
 public:
  TView(TCustomListBox& box, QWidget* parent);

  bool event(QEvent* event) override;

  TModel& Model() { return FModel; }
  /// The pixels around the lines.
  QMargins Margins() const;
  void SetBordered(bool value);
  int GetTop() const;
  void SetTop(int row);
  void SetLayout(int columns, int scrollWidth, bool isUniform);
  void ShowSelection(const std::vector<bool>& selected, int current);
  /// In the client area; -1 for no line.
  int LineAt(QPoint point) const { return indexAt(point).row(); }
  QRect RectOf(int row) const { return visualRect(FModel.index(row)); }
  /// How many lines there is room for from one on; at least one.
  int LinesBelow(int row) const;

 protected:
  bool viewportEvent(QEvent* event) override;
  /// Selects nothing by itself, as views of Qt's do.
  void focusInEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override {
    return MoveFocusPastOwner(next) || QListView::focusNextPrevChild(next);
  }

 private:
  int LinesInColumn() const;

  TModel FModel;
};

}  // namespace kt
