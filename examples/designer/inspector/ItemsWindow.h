#pragma once

#include "kt/rtl/objects/ObjectRef.h"

#include <QDialog>

#include <functional>

class QListWidget;
class QPushButton;

namespace kt {
class TCollection;
}

namespace designer {

/// A window for the items of a collection: adds, deletes and orders them. Each of these is done at once.
class TItemsWindow : public QDialog {
 public:
  TItemsWindow(const QString& title, kt::TCollection& items, QWidget* parent);

  /// The collection is about to change.
  std::function<void()> OnChanging;
  /// The collection has changed; what was done: "Add item to".
  std::function<void(const QString& what)> OnChanged;

 private:
  kt::TCollection* Items() const;
  QPushButton* MakeButton(const QString& text, const char* name, const QString& what, void (TItemsWindow::*change)());
  void AddItem();
  void DeleteItem();
  void MoveUp() { MoveBy(-1); }
  void MoveDown() { MoveBy(1); }
  void MoveBy(int by);
  void Fill(int current);
  void UpdateButtons();

  kt::TObjectRef FItems;
  QListWidget* FList;
  QPushButton* FDelete = nullptr;
  QPushButton* FUp = nullptr;
  QPushButton* FDown = nullptr;
};

}  // namespace designer
