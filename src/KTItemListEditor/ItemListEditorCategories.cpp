#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemSnapshot.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

TKTItemProps& TKTCustomItemListEditor::LevelOf(const TKTItemProp& item) const {
  const TKTItemProp* parent = item.GetParent();
  TKTItemProps* level = parent && parent->GetCategory() ? parent->GetCollection() : item.GetCollection();
  return level ? *level : *FItems;
}

TKTItemProp* TKTCustomItemListEditor::Categorize(TKTItemProp* item, const QString& propName, TStrings& categoryMap) {
  if (HasState(csLoading)) return item->GetParent();
  const TItemWatch watched(item);
  TKTItemProps& level = LevelOf(*item);
  if (!level.GetDefaultCategory()) level.CreateDefaultCategory();
  if (!watched) return nullptr;
  const int line = categoryMap.IndexOfName(propName);
  QString name = line < 0 ? QString() : categoryMap.GetValueFromIndex(line);
  OnCategorize(this, item, propName, name);
  if (!watched) return nullptr;
  TKTItemProps& levelNow = LevelOf(*item);
  return name.isEmpty() ? levelNow.GetDefaultCategory() : Categorize(levelNow, name);
}

TKTItemProp* TKTCustomItemListEditor::Categorize(TKTItemProps& items, const QString& categoryName) {
  const int index = items.IndexOfCategory(categoryName);
  return index < 0 ? items.AddCategory(categoryName, true) : items.GetItem(index);
}

void TKTCustomItemListEditor::MoveTo(TKTItemProp& item, TKTItemProp* category) {
  // A category that is its own, or lies below the item, cannot take it.
  for (const TKTItemProp* above = category; above; above = above->GetParent()) {
    if (above == &item) return;
  }
  item.SetCollection(&category->GetItems());
}

void TKTCustomItemListEditor::MoveFurther(TKTItemProp& item, const QString& categoryName) {
  if (!item.GetCollection()) return;
  const TItemWatch watched(&item);
  // Deliberately inside the category before: the item is in that by now.
  TKTItemProp* category = Categorize(*item.GetCollection(), categoryName);
  if (watched && category) MoveTo(item, category);
}

void TKTCustomItemListEditor::CopyTo(TKTItemProp& item, TKTItemProp* category) {
  const TItemWatch original(&item);
  const TItemWatch target(category);
  TKTItemProps* own = item.GetCollection();
  TItemWatch copy((own ? own : FItems.get())->Add());
  if (copy && original) copy->Assign(original.Get());
  if (copy && target) MoveTo(*copy, target.Get());
}

void TKTCustomItemListEditor::Categorize(TKTItemProp* item, TStrings& categoryMap, bool multipleCategories) {
  const TItemWatch watched(item);
  const int line = IndexOfName(categoryMap, 0, item->GetName());
  // By a name of its own: the handler that is asked may free the item.
  TKTItemProp* category = Categorize(item, QString(item->GetName()), categoryMap);
  // While loading, what is there stays where it is.
  if (!category || !watched || HasState(csLoading)) return;
  if (multipleCategories) {
    PlaceCopy(*item, *category);
  } else {
    MoveTo(*item, category);
  }
  for (int next = line; watched && next >= 0;) {
    next = IndexOfName(categoryMap, next + 1, item->GetName());
    if (next < 0) return;
    const QString name = categoryMap.GetStrings(next).mid(item->GetName().size() + 1);
    if (multipleCategories) {
      PlaceFurtherCopy(*item, name);
    } else {
      MoveFurther(*item, name);
    }
  }
}

void TKTCustomItemListEditor::PlaceCopy(TKTItemProp& item, TKTItemProp& category) {
  TKTItemProp* parent = item.GetParent();
  if (parent == &category) return;
  if (parent && parent->GetCategory() && item.GetCollection()->GetDefaultCategory() == parent) return;
  CopyTo(item, &category);
}

void TKTCustomItemListEditor::PlaceFurtherCopy(TKTItemProp& item, const QString& categoryName) {
  const TKTItemProp* parent = item.GetParent();
  if (!parent || (parent->GetCategory() && parent->GetName() == categoryName)) return;
  const TItemWatch watched(&item);
  TKTItemProp* category = Categorize(LevelOf(item), categoryName);
  if (watched && category) CopyTo(item, category);
}

void TKTCustomItemListEditor::Categorize(TKTItemProps& items, TStrings& categoryMap, bool multipleCategories) {
  const TItemSnapshot snapshot(items);
  for (int i = 0; i < snapshot.Count(); ++i) {
    if (snapshot[i]) Categorize(snapshot[i], categoryMap, multipleCategories);
  }
}

void TKTCustomItemListEditor::Categorize(TStrings& categoryMap, bool) {
  const TItemSnapshot snapshot(*FItems);
  for (int i = 0; i < snapshot.Count(); ++i) {
    TKTItemProp* item = snapshot[i];
    if (!item || item->GetCategory()) continue;
    TKTItemProp* category = Categorize(item, QString(item->GetName()), categoryMap);
    if (snapshot[i] && category) MoveTo(*item, category);
  }
}

void TKTCustomItemListEditor::Categorize(bool multipleCategories) {
  Categorize(FItems->GetCategories(), multipleCategories);
}

}  // namespace kt
