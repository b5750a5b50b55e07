#include "kt/KTItemListEditor/ItemStrings.h"

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TKTItemStrings::Class() {
  static const TClassInfo info =
      TClassBuilder<TKTItemStrings>("TKTItemStrings")
          .Property<&TKTItemStrings::GetShowVisibleOnly, &TKTItemStrings::SetShowVisibleOnly>("ShowVisibleOnly")
          .Default(false)
          .Done();
  return &info;
}

int TKTItemStrings::GetCount() const {
  return FShowVisibleOnly ? FEditor.GetVisibleItemCount() : FEditor.GetItemCount();
}

TKTItemProp& TKTItemStrings::ItemAt(int index) const {
  if (index < 0 || index >= GetCount()) Error(SListIndexError, index);
  return *(FShowVisibleOnly ? FEditor.GetVisibleItem(index) : FEditor.GetItem(index));
}

QString TKTItemStrings::Get(int index) {
  TKTItemProp& item = ItemAt(index);
  return item.GetFullPathName() + QLatin1Char('=') + TrimRight(item.GetValuesText());
}

TObject* TKTItemStrings::GetObject(int index) const { return ItemAt(index).GetItemObject(); }

void TKTItemStrings::PutObject(int index, TObject* object) { ItemAt(index).SetItemObject(object); }

void TKTItemStrings::Insert(int index, const QString& text) { AddLine(index, text); }

int TKTItemStrings::AddObject(const QString& text, TObject* object) {
  const int index = GetCount();
  InsertObject(index, text, object);
  return index;
}

void TKTItemStrings::InsertObject(int index, const QString& text, TObject* object) {
  if (TKTItemProp* item = AddLine(index, text)) item->SetItemObject(object);
}

TKTItemProp* TKTItemStrings::AddLine(int index, const QString& text) {
  if (index < 0 || index > GetCount()) Error(SListIndexError, index);
  const qsizetype end = text.indexOf(QLatin1Char('='));
  const QString name = end < 0 ? text : text.left(end);
  const QString value = end < 0 ? QString() : text.mid(end + 1);
  return FEditor.GetItems().AddFullPath(name, value, !FEditor.GetPropertyOptions().Has(propUnique));
}

void TKTItemStrings::Delete(int index) {
  // Whoever hears that something is going to change may free it first.
  const TItemWatch item(&ItemAt(index));
  const TUpdateBracket bracket(FEditor.GetItems());
  delete item.Get();
}

void TKTItemStrings::Clear() { FEditor.GetItems().Clear(); }

int TKTItemStrings::IndexOfName(QStringView name) {
  const TKTItemProp* item = FEditor.GetItems().FindItemByFullPathName(name.toString());
  if (!item) return -1;
  return FShowVisibleOnly ? item->GetAbsoluteVIndex() : item->GetAbsoluteIndex();
}

}  // namespace kt
