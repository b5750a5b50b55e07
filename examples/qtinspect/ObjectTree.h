#pragma once

#include "qtinspect/Selection.h"

#include <QPointer>
#include <QSet>
#include <QTreeWidget>

#include <functional>
#include <vector>

namespace qtinspect {

/// Objects of Qt's with all that is listed below them, as a tree that follows them, with the selection that the whole
/// window shares.
class TObjectTree : public QTreeWidget {
 public:
  using TRoots = std::function<std::vector<QObject*>()>;

  /// `roots` answers what stands at the top, each time that something may have changed.
  TObjectTree(TSelection& selection, TRoots roots, QWidget* parent = nullptr);
  ~TObjectTree() override;

  /// The Return key.
  std::function<void()> OnInspect;

  QTreeWidgetItem* ItemOf(const QObject* object) const;
  /// Shows at once what has changed.
  void Refresh();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QObject* ObjectOf(const QTreeWidgetItem* item) const;
  void RefreshLater();
  void Fill(QTreeWidgetItem* item, QObject* object);
  void ShowSelection();
  void SelectionPicked();

  TSelection& FSelection;
  TRoots FRoots;
  /// What the tree shows now, and the objects of its items; the tree is only made anew when that changes.
  QStringList FShown;
  std::vector<QPointer<QObject>> FObjects;
  std::vector<QMetaObject::Connection> FWatches;
  /// Never looked into, as they may be gone.
  QSet<const QObject*> FCollapsed;
  bool FIsFilling = false;
  bool FIsRefreshPosted = false;
};

}  // namespace qtinspect
