#include "kt/KTItemListEditor/EditUpdateLock.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemRows.h"
#include "kt/KTItemListEditor/ItemSnapshot.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt {

TKTItemProp* TKTCustomItemListEditor::GetItem(int index) const { return TItemRows::FindEntry(*FItems, index); }

int TKTCustomItemListEditor::GetItemCount() const { return FItems ? FItems->GetSpan().Items : 0; }

TKTItemProp* TKTCustomItemListEditor::GetVisibleItem(int index) const { return TItemRows::FindRow(*FItems, index); }

int TKTCustomItemListEditor::GetVisibleItemCount() const { return FItems ? FItems->GetSpan().Rows : 0; }

// What the items tell.

void TKTCustomItemListEditor::ItemNotify(TKTItemProp* item, TCollectionNotification action) {
  // An editor that dies tells nobody about cells any more.
  if (HasState(csDestroying)) return;
  const TLifeWatch self(this);
  if (action == cnAdded) VisibleChanged(item);
  if (!self.IsAlive()) return;
  if (action != cnExtracting) return Refresh();
  // What leaves is still in its collection, and half dead perhaps: nothing for handlers to meet. The grid follows when
  // the collection tells that it has changed.
  UpdatingItemProp(item);
}

void TKTCustomItemListEditor::UpdatingItemProp(TKTItemProp*) {
  if (!IsEditUpdateLocked()) HideEditor();
}

void TKTCustomItemListEditor::UpdateItemProp(TKTItemProp* item) {
  if (HasState(csDestroying)) return;
  if (IsUpdating()) return;
  const TLifeWatch self(this);
  if (!item && !IsEditUpdateLocked()) {
    TEditUpdateLock lock(*this);
    const TUpdateBracket bracket(lock);
    ShowRows();
  } else if (!item) {
    TItemRows::Recount(*FItems);
  }
  if (self.IsAlive() && IsEditorMode() && !IsUpdating() && !IsEditUpdateLocked()) InvalidateEditor();
}

void TKTCustomItemListEditor::VisibleChanged(TKTItemProp*) {
  if (HasState(csDestroying) || IsUpdating()) return;
  const TItemWatch selected(GetSelected());
  const TLifeWatch self(this);
  TItemRows::Recount(*FItems);
  Refresh();
  if (!self.IsAlive() || !selected || FIsNaming) return;
  // The cursor follows its item; it does not leave what is under it meanwhile, an item that is being made perhaps.
  const TLiveFlag following(this, FFollowing);
  GoToRow(selected->GetAbsoluteVIndex());
}

void TKTCustomItemListEditor::InvalidateItem(const TKTItemProp& item) {
  const int row = item.GetAbsoluteVIndex();
  if (row < 0) return;
  if (FOrientation == goVertical) {
    InvalidateRow(row + GetFixedRows());
  } else {
    InvalidateCol(row + GetFixedCols());
  }
}

void TKTCustomItemListEditor::InvalidateValues(const TKTItemProp& item) {
  // The end of the bracket repaints everything.
  if (!HandleAllocated() || IsUpdating()) return;
  const int row = item.GetAbsoluteVIndex();
  if (row < 0) return;
  if (FOrientation == goVertical) {
    InvalidateCells({1, row + GetFixedRows(), GetColCount() - 1, row + GetFixedRows()});
  } else {
    InvalidateCells({row + GetFixedCols(), 1, row + GetFixedCols(), GetRowCount() - 1});
  }
}

// Bringing the grid in step.

void TKTCustomItemListEditor::ShowRows() {
  const TLifeWatch self(this);
  try {
    HideEditor();
  } catch (...) {
    // Whoever refused what was typed gets the rows and their lines all the same.
    if (self.IsAlive()) TItemRows::Recount(*FItems);
    if (self.IsAlive()) AdjustGridCount();
    throw;
  }
  if (!self.IsAlive()) return;
  TItemRows::Recount(*FItems);
  AdjustGridCount();
  if (!self.IsAlive()) return;
  // Rows that only changed places leave their number as it was.
  Invalidate();
  ShowEditor();
}

void TKTCustomItemListEditor::RefreshVisibleItems() {
  TItemRows::MarkAllStale(*FItems);
  ShowRows();
}

void TKTCustomItemListEditor::Refresh() {
  if (IsEditUpdateLocked()) return;
  const TLifeWatch self(this);
  AdjustGridCount();
  if (!self.IsAlive()) return;
  Invalidate();
  InvalidateEditor();
}

int TKTCustomItemListEditor::WantedLineCount() const {
  // An empty grid keeps one blank line.
  return GetGridCount(gcFixedLines) + std::max(GetVisibleItemCount(), 1);
}

void TKTCustomItemListEditor::AdjustGridCount() {
  const int wanted = WantedLineCount();
  if (wanted == GetGridCount(gcLineCount)) return;
  const TLiveFlag following(this, FFollowing);
  const TLifeWatch self(this);
  if (wanted < GetGridCount(gcCurrentLine)) SetGridCount(gcCurrentLine, wanted - 1);
  // Whoever heard of the new current line may have changed the rows, or freed the editor.
  if (self.IsAlive()) SetGridCount(gcLineCount, WantedLineCount());
  if (!self.IsAlive()) return;
  // While the grid turns, the title line may still be missing.
  const bool isOnTitles = FDisplayOptions.Has(doColumnTitles) && GetGridCount(gcCurrentLine) == 0;
  if (isOnTitles && GetGridCount(gcLineCount) > 1) SetGridCount(gcCurrentLine, 1);
}

void TKTCustomItemListEditor::DisableEditUpdate() {
  if (FEditUpdateLock++ > 0) return;
  FSavedVisibleCount = GetVisibleItemCount();
  FWasInStep = WantedLineCount() == GetGridCount(gcLineCount);
}

void TKTCustomItemListEditor::EnableEditUpdate() {
  Q_ASSERT(FEditUpdateLock > 0);
  if (--FEditUpdateLock > 0) return;
  // Rows may have come and gone while handlers ran. Lines that an application has set stay till there are other rows.
  const bool gotOutOfStep = FWasInStep && WantedLineCount() != GetGridCount(gcLineCount);
  if (GetVisibleItemCount() != FSavedVisibleCount || gotOutOfStep) Refresh();
}

// Expansion of the whole tree.

template <class F>
void TKTCustomItemListEditor::ChangeAll(F change) {
  const TLifeWatch self(this);
  {
    const TUpdateBracket bracket(*FItems);
    const TItemSnapshot snapshot(*FItems);
    for (int i = 0; i < snapshot.Count(); ++i) {
      if (snapshot[i]) change(*snapshot[i]);
    }
  }
  if (self.IsAlive()) ShowRows();
}

void TKTCustomItemListEditor::FullExpand() {
  ChangeAll([](TKTItemProp& item) { item.FullExpand(); });
}

void TKTCustomItemListEditor::FullCollapse() {
  ChangeAll([](TKTItemProp& item) { item.FullCollapse(); });
}

}  // namespace kt
