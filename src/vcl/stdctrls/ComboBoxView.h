#pragma once

#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/stdctrls/ComboBox.h"

#include <QAbstractListModel>
#include <QComboBox>

namespace kt {

/// The lines of a combo box, which tell it of their changes.
class TCustomComboBox::TLines : public TStringList {
 public:
  using Inherited = TStringList;

  void Delete(int index) override;
  void Clear() override;

 protected:
  explicit TLines(TCustomComboBox& box) : FBox(box) {}

  void InsertItem(int index, const QString& text, TObject* object) override;
  void Changed() override;

 private:
  TCustomComboBox& FBox;
};

/// The lines as Qt asks for them. Between two resets their number stays what it was, whatever happens to the lines.
class TCustomComboBox::TModel : public QAbstractListModel {
 public:
  explicit TModel(TCustomComboBox& box) : FBox(&box), FRows(box.GetItemCount()) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : FRows; }
  QVariant data(const QModelIndex& index, int role) const override;

  void Reset();
  /// The combo box is no more.
  void Detach();

 private:
  TCustomComboBox* FBox;
  int FRows;
};

/// The window of a combo box. What the mouse does to the edit inside, and keys to the open list, they do to the
/// control.
class TCustomComboBox::TView : public QComboBox, public TControlBody {
 public:
  TView(TCustomComboBox& box, QWidget* parent);

  TModel& Model() { return FModel; }
  void SetEditable(bool value);
  void SetOwnerDrawn(bool value);
  bool IsOpen() const { return FIsOpen; }

  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void showPopup() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool next) override {
    return MoveFocusPastOwner(next) || QComboBox::focusNextPrevChild(next);
  }

 private:
  TCustomComboBox& Box() const { return *static_cast<TCustomComboBox*>(Control()); }
  void WatchList();
  void WatchLine();
  bool UseMouseOfLine(QMouseEvent* event);
  bool UseKeyOfList(QEvent* event);
  void ActOnKey(const QKeyEvent& event);
  void ListWasHidden();

  TModel FModel;
  bool FIsOpen = false;
  bool FIsActing = false;
};

}  // namespace kt
