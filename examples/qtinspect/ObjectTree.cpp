#include "qtinspect/ObjectTree.h"

#include "qtinspect/ListedObjects.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <utility>

namespace qtinspect {

namespace {

constexpr int kPlaceRole = Qt::UserRole;

/// A line for each object: what it is, and where.
void AddSignature(QObject* object, int level, QStringList& lines) {
  lines.append(QStringLiteral("%1 %2 %3").arg(level).arg(reinterpret_cast<quintptr>(object)).arg(TitleOf(*object)));
  for (QObject* child : ListedChildren(*object)) AddSignature(child, level + 1, lines);
}

}  // namespace

TObjectTree::TObjectTree(TSelection& selection, TRoots roots, QWidget* parent)
    : QTreeWidget(parent), FSelection(selection), FRoots(std::move(roots)) {
  setObjectName(QStringLiteral("tree"));
  setAccessibleName(QStringLiteral("Objects"));
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setIndentation(16);
  connect(this, &QTreeWidget::itemSelectionChanged, this, [this] { SelectionPicked(); });
  connect(this, &QTreeWidget::itemCollapsed, this,
          [this](QTreeWidgetItem* item) { FCollapsed.insert(ObjectOf(item)); });
  connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { FCollapsed.remove(ObjectOf(item)); });
  selection.Listen([this] { ShowSelection(); });
  // The window that this tree is to stand in is only being made.
  RefreshLater();
  QCoreApplication::instance()->installEventFilter(this);
}

TObjectTree::~TObjectTree() { QCoreApplication::instance()->removeEventFilter(this); }

/// Whose event it is does not count: it may be in the middle of its destruction.
bool TObjectTree::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool isWindowShown = type == QEvent::Show && watched->isWindowType();
  if (isWindowShown || type == QEvent::ChildAdded || type == QEvent::ChildRemoved) RefreshLater();
  return QTreeWidget::eventFilter(watched, event);
}

void TObjectTree::RefreshLater() {
  if (std::exchange(FIsRefreshPosted, true)) return;
  QTimer::singleShot(0, this, [this] { Refresh(); });
}

void TObjectTree::Refresh() {
  FIsRefreshPosted = false;
  const std::vector<QObject*> roots = FRoots();
  QStringList wanted;
  for (QObject* root : roots) AddSignature(root, 0, wanted);
  if (wanted != FShown) {
    FShown = wanted;
    const QScopedValueRollback<bool> filling(FIsFilling, true);
    for (const QMetaObject::Connection& watch : FWatches) disconnect(watch);
    FWatches.clear();
    FObjects.clear();
    clear();
    for (QObject* root : roots) Fill(new QTreeWidgetItem(this), root);
  }
  ShowSelection();
}

void TObjectTree::Fill(QTreeWidgetItem* item, QObject* object) {
  item->setText(0, TitleOf(*object));
  item->setData(0, kPlaceRole, static_cast<int>(FObjects.size()));
  FObjects.emplace_back(object);
  FWatches.push_back(connect(object, &QObject::objectNameChanged, this, [this] { RefreshLater(); }));
  FWatches.push_back(connect(object, &QObject::destroyed, this, [this] { RefreshLater(); }));
  for (QObject* child : ListedChildren(*object)) Fill(new QTreeWidgetItem(item), child);
  item->setExpanded(!FCollapsed.contains(object));
}

QObject* TObjectTree::ObjectOf(const QTreeWidgetItem* item) const {
  return FObjects[static_cast<size_t>(item->data(0, kPlaceRole).toInt())];
}

QTreeWidgetItem* TObjectTree::ItemOf(const QObject* object) const {
  for (QTreeWidgetItemIterator at(const_cast<TObjectTree*>(this)); *at; ++at) {
    if (ObjectOf(*at) == object) return *at;
  }
  return nullptr;
}

// The selection.

void TObjectTree::ShowSelection() {
  if (FIsFilling) return;
  const QScopedValueRollback<bool> filling(FIsFilling, true);
  QTreeWidgetItem* main = FSelection.Main() ? ItemOf(FSelection.Main()) : nullptr;
  clearSelection();
  if (main && (!currentItem() || !FSelection.Has(ObjectOf(currentItem())))) {
    setCurrentItem(main, 0, QItemSelectionModel::NoUpdate);
  }
  for (const QObject* object : FSelection.Objects()) {
    if (QTreeWidgetItem* item = ItemOf(object)) item->setSelected(true);
  }
  if (main) scrollToItem(main);
}

void TObjectTree::SelectionPicked() {
  if (FIsFilling) return;
  std::vector<QObject*> picked;
  // Those that stay selected keep their order.
  for (QObject* object : FSelection.Objects()) {
    const QTreeWidgetItem* item = ItemOf(object);
    if (item && item->isSelected()) picked.push_back(object);
  }
  for (const QTreeWidgetItem* item : selectedItems()) {
    QObject* object = ObjectOf(item);
    if (object && std::find(picked.begin(), picked.end(), object) == picked.end()) picked.push_back(object);
  }
  const QScopedValueRollback<bool> filling(FIsFilling, true);
  FSelection.Select(picked);
}

void TObjectTree::keyPressEvent(QKeyEvent* event) {
  const bool inspects = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!inspects) return QTreeWidget::keyPressEvent(event);
  if (OnInspect) OnInspect();
}

}  // namespace qtinspect
