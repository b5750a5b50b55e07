#include "kt/KTItemListEditor/ItemPropValueStrings.h"

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QScopedValueRollback>

namespace kt {

const TClassInfo* TKTItemPropValueStrings::Class() {
  static const TClassInfo info = TClassBuilder<TKTItemPropValueStrings>("TKTItemPropValueStrings").Done();
  return &info;
}

TPersistent* TKTItemPropValueStrings::GetOwner() { return &FItem; }

void TKTItemPropValueStrings::Changing() {
  if (!FInitializing) TStringList::Changing();
}

void TKTItemPropValueStrings::Changed() {
  if (!FInitializing) TStringList::Changed();
}

void TKTItemPropValueStrings::BringTo(int count) {
  const QScopedValueRollback initializing(FInitializing, true);
  while (GetCount() < count) Add(QString());
  while (GetCount() > count) Delete(GetCount() - 1);
}

QString TKTItemPropValueStrings::Get(int index) {
  const TKTCustomItemListEditor* editor = FItem.GetEditor();
  const int columns = editor ? editor->GetValueCount() : 0;
  if (index < columns && GetCount() != columns) BringTo(columns);
  return TStringList::Get(index);
}

void TKTItemPropValueStrings::Put(int index, const QString& text) {
  if (Get(index) != text) TStringList::Put(index, text);
}

}  // namespace kt
