#include "designer/palette/PaletteList.h"

#include "designer/palette/ClassIcons.h"
#include "designer/palette/PaletteTable.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTreeWidgetItemIterator>

namespace designer {

using namespace kt;

namespace {

constexpr int kClassRole = Qt::UserRole;

}  // namespace

TPaletteList::TPaletteList(QWidget* parent) : QTreeWidget(parent) {
  setObjectName(QStringLiteral("palette"));
  setAccessibleName(QStringLiteral("Components to place"));
  setHeaderHidden(true);
  setRootIsDecorated(true);
  setIndentation(14);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Fill();
  expandAll();
}

void TPaletteList::Fill() {
  for (const TPaletteGroup& group : PaletteGroups()) {
    auto* title = new QTreeWidgetItem(this, {group.Title});
    QFont bold = font();
    bold.setBold(true);
    title->setFont(0, bold);
    title->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    for (const TClassInfo* info : group.Classes) {
      auto* item = new QTreeWidgetItem(title, {info->ClassName().mid(1)});
      item->setIcon(0, ClassIcon(*info));
      item->setToolTip(0, info->ClassName());
      item->setData(0, kClassRole, QVariant::fromValue(const_cast<void*>(static_cast<const void*>(info))));
    }
  }
}

const TClassInfo* TPaletteList::ClassOf(const QTreeWidgetItem* item) {
  return item ? static_cast<const TClassInfo*>(item->data(0, kClassRole).value<void*>()) : nullptr;
}

QTreeWidgetItem* TPaletteList::ItemOf(const QString& className) const {
  for (QTreeWidgetItemIterator at(const_cast<TPaletteList*>(this)); *at; ++at) {
    const TClassInfo* info = ClassOf(*at);
    if (info && info->ClassNameIs(className)) return *at;
  }
  return nullptr;
}

void TPaletteList::Take(const QTreeWidgetItem* item) {
  GuardedCall([&] {
    if (OnTake) OnTake(ClassOf(item));
  });
}

void TPaletteList::Place(const QTreeWidgetItem* item) {
  GuardedCall([&] {
    const TClassInfo* info = ClassOf(item);
    if (info && OnPlace) OnPlace(info);
  });
}

void TPaletteList::LayAside() { clearSelection(); }

void TPaletteList::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Place(currentItem());
    case Qt::Key_Space:
      if (currentItem()) currentItem()->setSelected(true);
      return Take(currentItem());
    case Qt::Key_Escape:
      LayAside();
      return Take(nullptr);
    default:
      QTreeWidget::keyPressEvent(event);
  }
}

void TPaletteList::mousePressEvent(QMouseEvent* event) {
  QTreeWidget::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) Take(itemAt(event->pos()));
}

void TPaletteList::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeWidget::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Place(itemAt(event->pos()));
}

}  // namespace designer
