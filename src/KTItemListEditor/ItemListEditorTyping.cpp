// How what is typed into the cells of TKTCustomItemListEditor gets into its items.
#include "kt/KTItemListEditor/EditUpdateLock.h"
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt {

namespace {

/// What is selected in an editor, to be selected there again.
struct TTextSelection {
  explicit TTextSelection(const TInplaceEdit* editor)
      : Start(editor ? editor->GetSelStart() : 0), Length(editor ? editor->GetSelLength() : 0) {}
  void PutInto(TInplaceEdit& editor) const {
    editor.SetSelStart(Start);
    editor.SetSelLength(Length);
  }

  int Start;
  int Length;
};

}  // namespace

void TKTCustomItemListEditor::SetEditText(int col, int row, const QString& value) {
  if (IsEditUpdateLocked()) return;
  const TLifeWatch self(this);
  const TItemWatch edited(FindItemProp(col, row, true));
  const bool hadItem = static_cast<bool>(edited);
  const QString shown = InplaceEditor() ? InplaceEditor()->GetText() : QString();
  TCustomDrawGrid::SetEditText(col, row, value);
  if (!self.IsAlive()) return;
  const TKTItemProp* present = FindItemProp(col, row, true);
  const bool isOther = hadItem && (!edited || edited.Get() != present);
  // A handler has put another item into the cell, for which the text was not typed.
  if (isOther && present) return;
  const bool hasReadAgain = InplaceEditor() && InplaceEditor()->GetText() != shown;
  TypeInto(col, row, value);
  // A handler has had the editor read the cell before the text was there, that of an item that is new perhaps.
  if (hasReadAgain && self.IsAlive()) InvalidateEditor();
}

void TKTCustomItemListEditor::TypeInto(int col, int row, const QString& value) {
  const bool namesCurrent = !IsValueCell(col, row) && col == GetCol() && row == GetRow();
  if (namesCurrent) return NameCurrent(col, row, value);
  TEditUpdateLock lock(*this);
  const TUpdateBracket bracket(lock);
  WriteTypedText(col, row, value);
}

/// A new name takes an item to another place in its order, or below a category. Cursor and editor go with it, since
/// what is typed next is meant for it too.
void TKTCustomItemListEditor::NameCurrent(int col, int row, const QString& value) {
  const TLifeWatch self(this);
  const TTextSelection selection(InplaceEditor());
  {
    TEditUpdateLock lock(*this);
    const TUpdateBracket bracket(lock);
    const TLiveFlag naming(this, FIsNaming);
    const TItemWatch named(WriteTypedText(col, row, value));
    if (self.IsAlive() && named) FollowNamed(*named, GetGridInfo(col, row).Field);
  }
  // Rows that come or go have the editor read its text again.
  if (self.IsAlive() && InplaceEditor() && InplaceEditor()->GetText() == value) selection.PutInto(*InplaceEditor());
}

/// Answers the item that was written to; null when there is none, or none any more.
TKTItemProp* TKTCustomItemListEditor::WriteTypedText(int col, int row, const QString& value) {
  const TLifeWatch self(this);
  // Deliberately the row, even where the columns are the items.
  if (row - GetFixedRows() >= GetVisibleItemCount() && !value.isEmpty()) {
    FItems->Add();
    if (!self.IsAlive()) return nullptr;
    FSavedVisibleCount = GetVisibleItemCount();
  }
  const TItemWatch written(FindItemProp(col, row, true));
  if (GetCell(col, row) == value) return written.Get();
  if (!IsValueCell(col, row) && HoldsBackName(value)) return written.Get();
  FPendingName.clear();
  SetCell(col, row, value);
  return written.Get();
}

/// A rejected name waits until it comes a second time in a row.
bool TKTCustomItemListEditor::HoldsBackName(const QString& value) {
  if (FItems->IsValid(value, false) || value == FPendingName) return false;
  FPendingName = value;
  return true;
}

void TKTCustomItemListEditor::FollowNamed(TKTItemProp& item, int field) {
  const TLifeWatch self(this);
  const TItemWatch named(&item);
  for (TItemWatch above(item.GetParent()); above && named; above = above->GetParent()) {
    if (!above->IsExpanded()) above->SetExpanded(true);
    if (!above) return;
  }
  if (!self.IsAlive() || !named) return;
  const int index = named->GetAbsoluteVIndex();
  if (index < 0) return;
  if (index + GetGridCount(gcFixedLines) >= GetGridCount(gcLineCount)) AdjustGridCount();
  if (self.IsAlive() && index + GetGridCount(gcFixedLines) < GetGridCount(gcLineCount)) {
    CarryCurrent(CellOf(index, field));
  }
}

}  // namespace kt
