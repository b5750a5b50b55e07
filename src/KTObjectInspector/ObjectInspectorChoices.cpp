// What an inspector offers to choose from where the type of a property has no names.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/PropViews.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/PropLists.h"

namespace kt {

/// What can be chosen is asked for when the user does.
void TKTCustomObjectInspector::OfferChoices(TKTItemProperty& item, TObject& object, const TPropInfo& property) {
  IPropView* view = PropViewOf(&object);
  if (!view || !view->HasPropChoices(property)) return;
  const TItemWatch watched(&item);
  item.SetOnGetPickList({this, &TKTCustomObjectInspector::ListChoices});
  if (watched) item.SetEditStyle(esPickList);
}

void TKTCustomObjectInspector::ListChoices(TObject* sender, const QString&, TStrings& values) {
  auto* item = dynamic_cast<TKTItemProperty*>(sender);
  QString name;
  TObject* holder = item ? item->HolderOf(0, name) : nullptr;
  IPropView* view = PropViewOf(holder);
  const TPropInfo* property = view ? GetPropInfo(holder, name) : nullptr;
  if (!property) return;
  for (const QString& choice : view->PropChoices(*property)) values.Add(choice);
}

}  // namespace kt
