// What the user sees of an inspector's tree, and finds again after a rescan.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt {

namespace {

QString PathBelow(const QString& parent, const TKTItemProp& item, const QString& delimiter) {
  return parent.isNull() ? item.GetName() : parent + delimiter + item.GetName();
}

void KeepExpansion(TKTItemProps& items, const QString& parent, const QString& delimiter, QSet<QString>& expanded) {
  for (int i = 0; i < items.GetCount(); ++i) {
    TKTItemProp& item = *items.GetItem(i);
    if (!item.HasItems()) continue;
    const QString path = PathBelow(parent, item, delimiter);
    if (item.IsExpanded()) {
      expanded.insert(path);
    } else {
      expanded.remove(path);
    }
    KeepExpansion(item.GetItems(), path, delimiter, expanded);
  }
}

void Expand(TKTItemProps& items, const QString& parent, const QString& delimiter, const QSet<QString>& expanded) {
  const TLifeWatch self(&items);
  for (int i = 0; self.IsAlive() && i < items.GetCount(); ++i) {
    const TItemWatch item(items.GetItem(i));
    if (!item->HasItems()) continue;
    const QString path = PathBelow(parent, *item, delimiter);
    if (expanded.contains(path)) item->SetExpanded(true);
    if (item) Expand(item->GetItems(), path, delimiter, expanded);
  }
}

}  // namespace

void TKTCustomObjectInspector::KeepSelected() {
  if (TKTItemProperty* item = GetSelected()) FView.Selected = item->GetFullPathName();
}

/// An empty tree, as between a change of the objects and the rescan, leaves what is kept as it is.
void TKTCustomObjectInspector::KeepView() {
  if (GetItems().GetCount() == 0) return;
  KeepExpansion(GetItems(), {}, GetPathDelimiter(), FView.Expanded);
  const int line = GetOrientation() == goVertical ? GetTopRow() : GetLeftCol();
  TKTItemProperty* top = GetVisibleItem(line - GetGridCount(gcFixedLines));
  FView.Top = top ? top->GetFullPathName() : QString();
}

void TKTCustomObjectInspector::RestoreExpansion() {
  if (!FView.Expanded.isEmpty()) Expand(GetItems(), {}, GetPathDelimiter(), FView.Expanded);
}

void TKTCustomObjectInspector::RestoreView() {
  const TLifeWatch self(this);
  if (!FView.Selected.isEmpty()) SetSelected(GetItems().FindItemByFullPathName(FView.Selected));
  if (!self.IsAlive() || FView.Top.isEmpty()) return;
  TKTItemProperty* top = GetItems().FindItemByFullPathName(FView.Top);
  const int row = top ? top->GetAbsoluteVIndex() : -1;
  if (row < 0) return;
  const int line = row + GetGridCount(gcFixedLines);
  if (GetOrientation() == goVertical) {
    SetTopRow(line);
  } else {
    SetLeftCol(line);
  }
}

}  // namespace kt
