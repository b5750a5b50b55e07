#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Make.h"

#include <vector>

namespace kt::benchmarks {

/// How the items of a tree are arranged: all at the top level, or twenty children a parent.
enum TShape { Flat, Nested };
inline constexpr int ChildrenPerParent = 20;

using TEditorPointer = std::unique_ptr<TKTItemListEditor>;

/// Adds a leaf with a name and a value of 12 characters each, whose texts are its own.
inline TKTItemProp* AddLeaf(TKTItemProps& items, int number) {
  const QString text = QStringLiteral("Item ") + QString::number(1000000 + number);
  return items.Add(QString(text.constData(), text.size()), QString(text.constData(), text.size()));
}

/// Adds `count` items in all.
inline void FillTree(TKTItemProps& items, TShape shape, int count) {
  if (shape == Flat) {
    for (int i = 0; i < count; ++i) AddLeaf(items, i);
    return;
  }
  std::vector<TKTItemProp*> parents;
  int added = 0;
  for (; added < std::min(count, ChildrenPerParent); ++added) parents.push_back(AddLeaf(items, added));
  for (size_t next = 0; added < count; ++next) {
    for (int i = 0; i < ChildrenPerParent && added < count; ++i, ++added) {
      parents.push_back(AddLeaf(parents[next]->GetItems(), added));
    }
  }
}

inline TEditorPointer MakeTree(TShape shape, int count) {
  TEditorPointer editor = Make<TKTItemListEditor>();
  const TUpdateBracket<TKTItemProps> bracket(editor->GetItems());
  FillTree(editor->GetItems(), shape, count);
  return editor;
}

}  // namespace kt::benchmarks
