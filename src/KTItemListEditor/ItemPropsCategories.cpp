#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"

namespace kt {

int TKTItemProps::IndexOfCategory(const QString& name) {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetItem(i)->GetCategory() && CompareStrings(GetItem(i)->GetName(), name) == 0) return i;
  }
  return -1;
}

TKTItemProp* TKTItemProps::AddCategory(const QString& name, bool allowDuplicate) {
  if (!allowDuplicate) {
    if (const int index = IndexOfCategory(name); index >= 0) return GetItem(index);
  }
  // Nothing is added that would have to stay without its name.
  IsValid(name, true);
  const TLifeWatch self(this);
  Changing();
  if (!self.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
  TItemWatch item(AddNewItem());
  item->SetCategory(true);
  if (item) item->SetReadOnly(true);
  if (item) item->SetName(name);
  if (self.IsAlive()) TOwnedCollection::Changed();
  return item.Get();
}

void TKTItemProps::RemoveCategory(const QString& name, bool deleteChildren) {
  if (const int index = IndexOfCategory(name); index >= 0) DeleteCategory(index, deleteChildren);
}

void TKTItemProps::DeleteCategory(int index, bool deleteChildren) {
  TItemWatch category(GetItem(index));
  if (!category->GetCategory()) throw ETORVException(SDeleteCategoryError.toString());
  while (!deleteChildren && category && category->HasItems()) {
    category->GetItems().GetItem(0)->SetCollection(category->GetCollection());
  }
  if (category) category->GetCollection()->Delete(category->GetIndex());
}

void TKTItemProps::ClearCategories(bool deleteChildren) {
  // Handlers of what goes may free the list.
  const TLifeWatch self(this);
  for (int index = 0; self.IsAlive() && index < GetCount();) {
    if (GetItem(index)->GetCategory()) {
      DeleteCategory(index, deleteChildren);
    } else {
      ++index;
    }
  }
}

void TKTItemProps::SetDefaultCategory(TKTItemProp* item) {
  if (FDefaultCategory == item) return;
  TKTItemProp* previous = FDefaultCategory;
  FDefaultCategory = item;
  if (previous) previous->FDefaultCategory = false;
  if (item) item->SetDefaultCategory(true);
}

void TKTItemProps::DefaultCategoryChanged(TKTItemProp* item) {
  FDefaultCategory = item->GetDefaultCategory() ? item : nullptr;
}

void TKTItemProps::CreateDefaultCategory() {
  if (FDefaultCategoryName.isEmpty()) return;
  const TLifeWatch self(this);
  const int index = IndexOfCategory(FDefaultCategoryName);
  TKTItemProp* category = index >= 0 ? GetItem(index) : AddCategory(FDefaultCategoryName, true);
  if (category && self.IsAlive()) SetDefaultCategory(category);
}

void TKTItemProps::SetDefaultCategoryName(const QString& value) {
  if (FDefaultCategoryName == value) return;
  FDefaultCategoryName = value;
  const TKTCustomItemListEditor* editor = GetEditor();
  if (editor && editor->GetArrangeByCategory()) CreateDefaultCategory();
}

}  // namespace kt
