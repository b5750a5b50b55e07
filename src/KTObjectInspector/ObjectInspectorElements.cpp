// How an inspector lists the elements of collections in place.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/Scan.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

namespace kt {

namespace {

TCollection* CollectionAt(TKTInspectorObjects& objects, int index) {
  return dynamic_cast<TCollection*>(objects.GetItem(index)->GetObjects());
}

bool HaveSameCount(TKTInspectorObjects& collections) {
  const TCollection* first = CollectionAt(collections, 0);
  for (int i = 0; i < collections.GetCount(); ++i) {
    const TCollection* collection = CollectionAt(collections, i);
    if (!first || !collection || collection->GetCount() != first->GetCount()) return false;
  }
  return true;
}

}  // namespace

void TKTCustomObjectInspector::BuildCollectionItems(TScan& scan, TKTInspectorObjects& collections,
                                                    TKTItemProperty& owner) {
  if (!HaveSameCount(collections)) return;
  // The items of this very tree grow while they are listed: those that are there at the top now, and none below.
  const auto* own = dynamic_cast<TKTItemProps*>(CollectionAt(collections, 0));
  if (own && own != &GetItems() && own->GetEditor() == this) return;
  const TItemWatch watched(&owner);
  TKTItemProperties& items = owner.GetItems();
  const int count = CollectionAt(collections, 0)->GetCount();
  // In the order of their indexes, whatever they are called.
  if (count > 0) items.SetSorted(false);
  for (int i = 0; i < count && HaveSameCount(collections) && i < CollectionAt(collections, 0)->GetCount(); ++i) {
    const TItemWatch item(items.Add());
    if (item) BuildCollectionItemProperty(scan, collections, i, static_cast<TKTItemProperty&>(*item));
    if (!watched || !scan.IsGoing()) return;
  }
}

void TKTCustomObjectInspector::BuildCollectionItemProperty(TScan& scan, TKTInspectorObjects& collections, int index,
                                                           TKTItemProperty& item) {
  const TItemWatch watched(&item);
  const QString name = Format(FCollectionItemFormat, {index});
  {
    const TLiveFlag parts(this, FIsListingParts);
    item.SetName(name);
  }
  const TCollection* first = CollectionAt(collections, 0);
  if (!watched || !scan.IsGoing() || !first) return;
  item.SetRealPropName(name);
  item.SetTypeKind(tkClass);
  item.SetTypeName(first->GetItemClass()->ClassName());
  item.SetPropertyKind(pkCollectionItem);
  item.SetAllEqual(true);
  item.SetReadOnly(true);
  const auto elements = Make<TKTInspectorObjects>(nullptr);
  for (int i = 0; i < collections.GetCount(); ++i) {
    // What elements are called is theirs to say, and they may do anything on that occasion.
    const TCollection* collection = CollectionAt(collections, i);
    if (!collection || index >= collection->GetCount()) return;
    TCollectionItem* element = collection->GetItem(index);
    const TObjectRef watchedElement(element);
    const QString text = element->GetDisplayName();
    if (!watched || !scan.IsGoing() || !watchedElement) return;
    std::vector<Variant>& indexes = item.GetRealValues();
    if (static_cast<size_t>(i) < indexes.size()) {
      indexes[static_cast<size_t>(i)] = index;
      item.SetValueLine(i, text);
    }
    if (!watched || !scan.IsGoing()) return;
    if (!scan.HasEntered(element)) elements->Add()->SetObjects(watchedElement.Get());
  }
  item.GetItems().SetSorted(IsSorted());
  if (elements->GetCount() > 0) BuildBelow(scan, item, *elements);
}

}  // namespace kt
