#include "designer/tree/ComponentTree.h"

#include "designer/palette/ClassIcons.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTreeWidgetItemIterator>

namespace designer {

using namespace kt;

namespace {

constexpr int kComponentRole = Qt::UserRole;

TComponent* ComponentOf(const QTreeWidgetItem* item) {
  return static_cast<TComponent*>(item->data(0, kComponentRole).value<void*>());
}

}  // namespace

TComponentTree::TComponentTree(TSession& session, QWidget* parent) : QTreeWidget(parent), FSession(session) {
  setObjectName(QStringLiteral("tree"));
  setAccessibleName(QStringLiteral("Components of the form"));
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setIndentation(16);
  connect(this, &QTreeWidget::itemSelectionChanged, this, [this] { GuardedCall([this] { SelectionPicked(); }); });
  connect(this, &QTreeWidget::itemCollapsed, this,
          [this](QTreeWidgetItem* item) { FCollapsed.insert(ComponentOf(item)->GetName()); });
  connect(this, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem* item) { FCollapsed.remove(ComponentOf(item)->GetName()); });
  session.Listen([this](TNews news) { Heard(news); });
  Refresh();
}

void TComponentTree::Heard(TNews news) {
  if (news == nwLeaving) {
    const QScopedValueRollback<bool> filling(FIsFilling, true);
    clear();
    FShown.clear();
    return;
  }
  if (news == nwSelection) return ShowSelection();
  Refresh();
}

/// A line for each component: what it is, and where.
QStringList TComponentTree::Signature(TComponent* component) const {
  QStringList lines(QStringLiteral("%1 %2").arg(TitleOf(*component)).arg(reinterpret_cast<quintptr>(component)));
  for (TComponent* child : FSession.Document().ChildrenOf(component)) {
    for (const QString& line : Signature(child)) lines.append(u' ' + line);
  }
  return lines;
}

void TComponentTree::Refresh() {
  const QStringList wanted = Signature(&FSession.Form());
  if (wanted != FShown) {
    FShown = wanted;
    const QScopedValueRollback<bool> filling(FIsFilling, true);
    clear();
    Fill(new QTreeWidgetItem(this), &FSession.Form());
  }
  ShowSelection();
}

void TComponentTree::Fill(QTreeWidgetItem* item, TComponent* component) {
  item->setText(0, TitleOf(*component));
  item->setIcon(0, ComponentIcon(*component));
  item->setData(0, kComponentRole, QVariant::fromValue(static_cast<void*>(component)));
  for (TComponent* child : FSession.Document().ChildrenOf(component)) Fill(new QTreeWidgetItem(item), child);
  item->setExpanded(!FCollapsed.contains(component->GetName()));
}

QTreeWidgetItem* TComponentTree::ItemOf(const TComponent* component) const {
  for (QTreeWidgetItemIterator at(const_cast<TComponentTree*>(this)); *at; ++at) {
    if (ComponentOf(*at) == component) return *at;
  }
  return nullptr;
}

// The selection.

void TComponentTree::ShowSelection() {
  if (FIsFilling) return;
  const QScopedValueRollback<bool> filling(FIsFilling, true);
  QTreeWidgetItem* main = ItemOf(FSession.Main());
  clearSelection();
  if (main) setCurrentItem(main, 0, QItemSelectionModel::NoUpdate);
  for (const TComponent* component : FSession.Selected()) {
    if (QTreeWidgetItem* item = ItemOf(component)) item->setSelected(true);
  }
  if (main) scrollToItem(main);
}

void TComponentTree::SelectionPicked() {
  if (FIsFilling) return;
  const QScopedValueRollback<bool> filling(FIsFilling, true);
  std::vector<TComponent*> picked;
  // Those that stay selected keep their order.
  for (TComponent* component : FSession.Selected()) {
    const QTreeWidgetItem* item = ItemOf(component);
    if (item && item->isSelected()) picked.push_back(component);
  }
  for (const QTreeWidgetItem* item : selectedItems()) {
    TComponent* component = ComponentOf(item);
    if (std::find(picked.begin(), picked.end(), component) == picked.end()) picked.push_back(component);
  }
  if (!picked.empty()) FSession.Select(picked);
}

void TComponentTree::keyPressEvent(QKeyEvent* event) {
  const bool inspects = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!inspects) return QTreeWidget::keyPressEvent(event);
  GuardedCall([this] {
    if (OnInspect) OnInspect();
  });
}

void TComponentTree::contextMenuEvent(QContextMenuEvent* event) {
  GuardedCall([&] {
    if (OnMenu) OnMenu(event->globalPos());
  });
}

}  // namespace designer
