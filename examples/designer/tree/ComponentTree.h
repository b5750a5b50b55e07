#pragma once

#include "designer/session/Session.h"

#include <QSet>
#include <QTreeWidget>

#include <functional>

namespace designer {

/// The components of the form as a tree, with the selection that the whole window shares.
class TComponentTree : public QTreeWidget {
 public:
  explicit TComponentTree(TSession& session, QWidget* parent = nullptr);

  /// The Return key.
  std::function<void()> OnInspect;
  std::function<void(QPoint globalPoint)> OnMenu;

  QTreeWidgetItem* ItemOf(const kt::TComponent* component) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Heard(TNews news);
  void Refresh();
  void Fill(QTreeWidgetItem* item, kt::TComponent* component);
  QStringList Signature(kt::TComponent* component) const;
  void ShowSelection();
  void SelectionPicked();

  TSession& FSession;
  /// What the tree shows now; it is only made anew when that changes.
  QStringList FShown;
  /// The names of components that were collapsed.
  QSet<QString> FCollapsed;
  bool FIsFilling = false;
};

}  // namespace designer
