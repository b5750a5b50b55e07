#pragma once

#include <QTreeWidget>

#include <functional>

namespace kt {
class TClassInfo;
}

namespace designer {

/// The classes of components to place, by groups. A click, or the space bar, takes a class, which the next click on the
/// form places; a double click, or Return, places it at once.
class TPaletteList : public QTreeWidget {
 public:
  explicit TPaletteList(QWidget* parent = nullptr);

  /// A class was taken; null: laid aside.
  std::function<void(const kt::TClassInfo* classInfo)> OnTake;
  std::function<void(const kt::TClassInfo* classInfo)> OnPlace;

  /// Nothing is taken any more.
  void LayAside();
  /// The item of a class; null for one that is not offered.
  QTreeWidgetItem* ItemOf(const QString& className) const;
  static const kt::TClassInfo* ClassOf(const QTreeWidgetItem* item);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void Fill();
  void Take(const QTreeWidgetItem* item);
  void Place(const QTreeWidgetItem* item);
};

}  // namespace designer
