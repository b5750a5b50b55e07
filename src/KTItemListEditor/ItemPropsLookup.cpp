#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"

namespace kt {

int TKTItemProps::CompareStrings(const QString& s1, const QString& s2) {
  TKTCustomItemListEditor* editor = GetEditor();
  return editor ? editor->CompareStrings(s1, s2) : AnsiCompareText(s1, s2);
}

int TKTItemProps::IndexOf(const QString& name) {
  for (int i = 0; i < GetCount(); ++i) {
    if (CompareStrings(GetItem(i)->GetName(), name) == 0) return i;
  }
  return -1;
}

int TKTItemProps::IndexOf(const QString& name, const QString& value) {
  const QString text = name + QLatin1Char('=') + value;
  for (int i = 0; i < GetCount(); ++i) {
    if (CompareStrings(GetItem(i)->GetDisplayName(), text) == 0) return i;
  }
  return -1;
}

TKTItemProp* TKTItemProps::GetItemByName(const QString& name) {
  const int index = IndexOf(name);
  return index < 0 ? nullptr : GetItem(index);
}

bool TKTItemProps::Find(const QString& s, int& index) {
  int low = 0;
  int high = GetCount() - 1;
  bool found = false;
  while (low <= high) {
    const int middle = low + (high - low) / 2;
    const int order = CompareStrings(GetItem(middle)->GetName(), s);
    if (order < 0) {
      low = middle + 1;
    } else {
      high = middle - 1;
      found = found || order == 0;
    }
  }
  index = low;
  return found;
}

struct TKTItemProps::TPathHead {
  QString Name;
  QString Rest;
  bool HasRest;
};

TKTItemProps::TPathHead TKTItemProps::SplitPath(const QString& path) const {
  const QString delimiter = GetPathDelimiter();
  const qsizetype end = delimiter.isEmpty() ? -1 : path.indexOf(delimiter);
  if (end < 0) return {path, {}, false};
  return {path.left(end), path.mid(end + delimiter.size()), true};
}

TKTItemProp* TKTItemProps::FindItemByFullPathName(const QString& path) {
  const TPathHead head = SplitPath(path);
  TKTItemProp* item = GetItemByName(head.Name);
  if (!item || !head.HasRest) return item;
  return item->HasItems() ? item->GetItems().FindItemByFullPathName(head.Rest) : nullptr;
}

TKTItemProp* TKTItemProps::AddFullPath(const QString& path, const QString& value, bool allowDuplicate) {
  const TLifeWatch self(this);
  Changing();
  if (!self.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
  const TPathHead head = SplitPath(path);
  TItemWatch item(head.HasRest || !allowDuplicate ? GetItemByName(head.Name) : nullptr);
  if (!item) {
    // Nothing is added that would have to stay without its name.
    IsValid(head.Name, true);
    item = AddNewItem();
    item->SetName(head.Name);
  }
  if (!item) return nullptr;
  if (head.HasRest) {
    item = item->GetItems().AddFullPath(head.Rest, value, allowDuplicate);
  } else {
    item->SetValuesText(value);
  }
  if (self.IsAlive()) TOwnedCollection::Changed();
  return item.Get();
}

TKTItemProp* TKTItemProps::FindItemProp(const Variant& key, bool create) {
  if (GetCount() == 0) return nullptr;
  const bool isIndex = VarIsOrdinal(key);
  const int index = isIndex ? key.ToInt() : IndexOf(VarToStr(key));
  if (!isIndex && index < 0 && create) throw ETORVException(Format(SPropertyNotFound, {VarToStr(key)}));
  if (index < GetCount()) return GetItem(index);
  return create ? Insert(index) : nullptr;
}

}  // namespace kt
