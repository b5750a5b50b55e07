#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemProps.h"

#include <QString>

#include <algorithm>
#include <set>
#include <vector>

namespace kt::tests {

/// A naive full walk over the bare flags of a tree: what the two lists of its editor have to be.
class TItemTreeWalk {
 public:
  explicit TItemTreeWalk(TKTCustomItemListEditor& editor)
      : FEditor(editor), FShowsReadOnly(editor.GetDisplayOptions().Has(doShowReadOnly)) {
    Visit(editor.GetItems(), true);
  }

  /// How what the items say of themselves differs from the walk; empty when it does not.
  const QString& ItemFault() const { return FItemFault; }

  QString EntriesFault() const {
    if (FEditor.GetItemCount() != Count(FEntries)) return QStringLiteral("%1 entries").arg(FEditor.GetItemCount());
    for (int i = 0; i < Count(FEntries); ++i) {
      TKTItemProp* item = FEntries[static_cast<size_t>(i)];
      if (FEditor.GetItem(i) != item || item->GetAbsoluteIndex() != i) return QStringLiteral("entry %1").arg(i);
    }
    return {};
  }

  QString RowsFault() const {
    if (FEditor.GetVisibleItemCount() != Count(FRows)) {
      return QStringLiteral("%1 rows instead of %2").arg(FEditor.GetVisibleItemCount()).arg(Count(FRows));
    }
    for (int i = 0; i < Count(FRows); ++i) {
      TKTItemProp* item = FRows[static_cast<size_t>(i)];
      if (FEditor.GetVisibleItem(i) != item || item->GetAbsoluteVIndex() != i) return QStringLiteral("row %1").arg(i);
    }
    return {};
  }

  /// Where rows stand still while the tree changes, they agree with themselves all the same.
  QString StandingRowsFault() const {
    std::set<const TKTItemProp*> rows;
    for (int i = 0; i < FEditor.GetVisibleItemCount(); ++i) {
      const TKTItemProp* item = FEditor.GetVisibleItem(i);
      if (!item || !rows.insert(item).second || item->GetAbsoluteVIndex() != i) {
        return QStringLiteral("standing row %1").arg(i);
      }
    }
    return {};
  }

  /// Of the grid's lines, once nothing keeps it from following.
  QString LineFault() const {
    const int lines = std::max(Count(FRows), 1) + FEditor.GetGridCount(gcFixedLines);
    const int shown = FEditor.GetGridCount(gcLineCount);
    return shown == lines ? QString() : QStringLiteral("%1 lines instead of %2").arg(shown).arg(lines);
  }

 private:
  static int Count(const std::vector<TKTItemProp*>& items) { return static_cast<int>(items.size()); }

  bool Shows(const TKTItemProp& item) const {
    return item.GetVisible() && (item.GetCategory() || FShowsReadOnly || (!item.GetReadOnly() && item.GetEnabled()));
  }
  void Expect(bool isRight, const char* what, TKTItemProp* item) {
    if (isRight || !FItemFault.isEmpty()) return;
    FItemFault = QString::fromUtf8(what) + (item ? QStringLiteral(" of ") + item->GetFullPathName() : QString());
  }
  void Visit(TKTItemProps& items, bool isShown) {
    const TKTItemProp* category = items.GetDefaultCategory();
    const bool isKnown = !category || (category->GetDefaultCategory() && category->GetCollection() == &items);
    Expect(isKnown, "default category below", items.GetParent());
    for (int i = 0; i < items.GetCount(); ++i) {
      TKTItemProp* item = items.GetItem(i);
      FEntries.push_back(item);
      const bool hasRow = isShown && Shows(*item);
      Expect(item->IsVisible() == hasRow, "IsVisible", item);
      if (hasRow) FRows.push_back(item);
      CheckChildren(*item);
      if (item->HasItems()) Visit(item->GetItems(), hasRow && item->IsExpanded());
    }
  }
  void CheckChildren(TKTItemProp& item) {
    const bool isOpen = item.GetVisible() && item.IsExpanded();
    Expect(item.GetVisibleChildCount() == (isOpen ? RowsBelow(item) : 0), "GetVisibleChildCount", &item);
    bool hasVisible = false;
    for (int i = 0; item.HasItems() && i < item.GetItems().GetCount(); ++i) {
      hasVisible |= Shows(*item.GetItems().GetItem(i));
    }
    Expect(item.HasVisibleChildren() == hasVisible, "HasVisibleChildren", &item);
  }
  int RowsBelow(TKTItemProp& item) const {
    int rows = 0;
    for (int i = 0; item.HasItems() && i < item.GetItems().GetCount(); ++i) {
      TKTItemProp& child = *item.GetItems().GetItem(i);
      if (Shows(child)) rows += 1 + (child.IsExpanded() ? RowsBelow(child) : 0);
    }
    return rows;
  }

  TKTCustomItemListEditor& FEditor;
  const bool FShowsReadOnly;
  std::vector<TKTItemProp*> FEntries;
  std::vector<TKTItemProp*> FRows;
  QString FItemFault;
};

}  // namespace kt::tests
