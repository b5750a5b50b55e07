#pragma once

#include "Views.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>
#include <QTreeWidget>

#include <vector>

namespace kt::benchmarks {

/// A model written by hand for the scene: one level of rows, one of which has children.
class TSceneModel : public QAbstractItemModel {
 public:
  explicit TSceneModel(const TScene& scene) : FScene(scene) {
    FValues.reserve(static_cast<size_t>(scene.Rows));
    FNames.reserve(static_cast<size_t>(scene.Rows));
    for (int row = 0; row < scene.Rows; ++row) {
      FNames.push_back(NameOf(row));
      FValues.push_back(ValueOf(row));
    }
  }

  void SetValue(int row, const QString& value) {
    FValues[static_cast<size_t>(row)] = value;
    const QModelIndex changed = index(row, 1, {});
    Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole});
  }

  QModelIndex index(int row, int column, const QModelIndex& parent) const override {
    return createIndex(row, column, quintptr{parent.isValid() ? 1U : 0U});
  }
  QModelIndex parent(const QModelIndex& child) const override {
    return child.internalId() == 0 ? QModelIndex() : createIndex(FScene.Parent(), 0, quintptr{0});
  }
  int rowCount(const QModelIndex& parent) const override {
    if (!parent.isValid()) return FScene.Rows;
    return IsParent(parent) ? TScene::kChildren : 0;
  }
  int columnCount(const QModelIndex&) const override { return 2; }
  bool hasChildren(const QModelIndex& parent) const override { return !parent.isValid() || IsParent(parent); }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    const auto row = static_cast<size_t>(index.row());
    return index.column() == 0 ? FNames[row] : FValues[row];
  }

 private:
  bool IsParent(const QModelIndex& index) const {
    return index.internalId() == 0 && index.row() == FScene.Parent() && index.column() == 0;
  }

  TScene FScene;
  std::vector<QString> FNames;
  std::vector<QString> FValues;
};

/// What both views of Qt share: told that all rows are of one height, as a careful user of theirs would.
inline void ShowTree(QTreeView& tree, const TScene& scene) {
  tree.setUniformRowHeights(true);
  tree.header()->resizeSection(0, TScene::kSize.width() / 2);
  Show(tree);
  tree.verticalScrollBar()->setValue(scene.First());
  PaintPending();
}

inline int RowsInTree(const QTreeView& tree) {
  return tree.viewport()->height() / std::max(1, tree.visualRect(tree.indexAt({0, 0})).height());
}

class TTreeViewView {
 public:
  explicit TTreeViewView(const TScene& scene) : FScene(scene), FModel(scene) {
    FTree.setModel(&FModel);
    ShowTree(FTree, scene);
  }

  void Repaint() { FTree.viewport()->repaint(); }
  void ScrollTo(int offset) { FTree.verticalScrollBar()->setValue(FScene.First() + offset); }
  void SetOne(const QString& value) { FModel.SetValue(FScene.Changing(), value); }
  void Expand(bool isExpanded) { FTree.setExpanded(FModel.index(FScene.Parent(), 0, {}), isExpanded); }
  int RowsInView() const { return RowsInTree(FTree); }

 private:
  TScene FScene;
  TSceneModel FModel;
  QTreeView FTree;
};

class TTreeWidgetView {
 public:
  explicit TTreeWidgetView(const TScene& scene) : FScene(scene) {
    FTree.setColumnCount(2);
    QList<QTreeWidgetItem*> items;
    items.reserve(scene.Rows);
    for (int row = 0; row < scene.Rows; ++row) items += new QTreeWidgetItem({NameOf(row), ValueOf(row)});
    for (int child = 0; child < TScene::kChildren; ++child) {
      items[scene.Parent()]->addChild(new QTreeWidgetItem({NameOf(child), ValueOf(child)}));
    }
    FTree.addTopLevelItems(items);
    FParent = items[scene.Parent()];
    FChanging = items[scene.Changing()];
    ShowTree(FTree, scene);
  }

  void Repaint() { FTree.viewport()->repaint(); }
  void ScrollTo(int offset) { FTree.verticalScrollBar()->setValue(FScene.First() + offset); }
  void SetOne(const QString& value) { FChanging->setText(1, value); }
  void Expand(bool isExpanded) { FParent->setExpanded(isExpanded); }
  int RowsInView() const { return RowsInTree(FTree); }

 private:
  TScene FScene;
  QTreeWidget FTree;
  QTreeWidgetItem* FParent = nullptr;
  QTreeWidgetItem* FChanging = nullptr;
};

}  // namespace kt::benchmarks
