// What an item publishes of the lists that it makes at their first use.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/KTItemListEditor/ItemProps.h"

namespace kt {

/// What `make` makes, kept by the editor until the next one, if that is just being written; otherwise null.
template <class T, class F>
T* TKTItemProp::StandIn(F make) {
  TKTCustomItemListEditor* editor = GetEditor();
  if (!editor || !editor->HasState(csWriting)) return nullptr;
  std::unique_ptr<T> object = make();
  T* result = object.get();
  editor->FStandIn = std::move(object);
  return result;
}

TKTItemPropValueStrings& TKTItemProp::GetPublishedValues() {
  auto* values = FValues ? nullptr : StandIn<TKTItemPropValueStrings>([&] { return MakeValues(); });
  return values ? *values : GetValues();
}

TKTItemProps& TKTItemProp::GetPublishedItems() {
  TKTItemProps* items = FItems ? nullptr : StandIn<TKTItemProps>([&] { return MakeItems(); });
  return items ? *items : GetItems();
}

}  // namespace kt
