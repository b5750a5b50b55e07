#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemRows.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/collections/UpdateBracket.h"

namespace kt {

namespace {

/// The children of an item, for a bracket: whoever frees the item meanwhile ends that too.
struct TChildren {
  TItemWatch Parent;

  void BeginUpdate() { Parent->GetItems().BeginUpdate(); }
  void EndUpdate() {
    if (Parent) Parent->GetItems().EndUpdate();
  }
};

}  // namespace

bool TKTItemProp::IsVisibleItem() {
  if (!GetVisible()) return false;
  if (FCategory || !IsReadOnly()) return true;
  const TKTCustomItemListEditor* editor = GetEditor();
  return !editor || editor->GetDisplayOptions().Has(doShowReadOnly);
}

bool TKTItemProp::IsVisible() {
  if (!WantsRow()) return false;
  TKTItemProp* parent = GetParent();
  return !parent || (parent->IsExpanded() && parent->IsVisible());
}

bool TKTItemProp::HasVisibleChildren() {
  for (int i = 0; FItems && i < FItems->GetCount(); ++i) {
    if (FItems->GetItem(i)->IsVisibleItem()) return true;
  }
  return false;
}

int TKTItemProp::GetVisibleChildCount() {
  if (!GetVisible() || !FExpanded || !FItems) return 0;
  // The counts are right unless a change waits for the end of an update bracket.
  const bool isStale = FItems->FAllStale || FItems->FStale;
  return isStale ? CountVisibleChildren() : FItems->FSpan.Rows;
}

int TKTItemProp::CountVisibleChildren() {
  int count = 0;
  for (int i = 0; i < FItems->GetCount(); ++i) {
    TKTItemProp* child = FItems->GetItem(i);
    if (child->WantsRow()) count += 1 + child->GetVisibleChildCount();
  }
  return count;
}

void TKTItemProp::SetExpanded(bool value) {
  if (IsExpanded() == value) return;
  if (value) {
    Expand();
  } else {
    Collapse();
  }
}

void TKTItemProp::SetExpandedFlag(bool value) {
  if (FExpanded == value) return;
  FExpanded = value;
  if (IsVisible()) return VisibleChanged();
  // No row comes or goes now, but there is something to count for when the ancestors open.
  TItemRows::MarkStale(*this);
  TItemRows::Settle(*this);
}

void TKTItemProp::Expand() { SetExpandedFlag(true); }

void TKTItemProp::Collapse() { SetExpandedFlag(false); }

template <void (TKTItemProp::*Change)()>
void TKTItemProp::ChangeFully(bool isExpanded) {
  if (!FItems) {
    FExpanded = isExpanded;
    return VisibleChanged();
  }
  const TItemWatch self(this);
  TChildren children{TItemWatch(this)};
  const TUpdateBracket bracket(children);
  if (!self) return;
  FExpanded = isExpanded;
  // At once, so that the end of the bracket counts right also when one of the children throws.
  TItemRows::MarkStale(*this);
  for (int i = 0; self && i < FItems->GetCount(); ++i) (FItems->GetItem(i)->*Change)();
  if (self) VisibleChanged();
}

void TKTItemProp::FullExpand() { ChangeFully<&TKTItemProp::FullExpand>(true); }

void TKTItemProp::FullCollapse() { ChangeFully<&TKTItemProp::FullCollapse>(false); }

void TKTItemProp::InvalidateRow() {
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && IsVisible()) editor->InvalidateItem(*this);
}

}  // namespace kt
