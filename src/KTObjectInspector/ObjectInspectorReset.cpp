// How an inspector gives properties the values that they had before any change.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/PropViews.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/PropLists.h"

namespace kt {

bool TKTCustomObjectInspector::CanResetProperty(TKTItemProperty& item) {
  if (!item.IsRealProperty()) return false;
  const TLifeWatch self(this);
  const TItemWatch watched(&item);
  bool canAny = false;
  for (int i = 0; i < FObjects->GetCount(); ++i) {
    if (!item.IsWrittenBy(i, -1)) continue;
    QString name;
    TObject* holder = item.HolderOf(i, name);
    if (!self.IsAlive() || !watched) return false;
    IPropView* view = PropViewOf(holder);
    const TPropInfo* property = view ? GetPropInfo(holder, name) : nullptr;
    if (!property || !view->CanResetProp(*property) || !self.IsAlive() || !watched) return false;
    canAny = true;
  }
  return canAny;
}

void TKTCustomObjectInspector::ResetProperty(TKTItemProperty& item) {
  const TLifeWatch self(this);
  const TItemWatch watched(&item);
  if (!CanResetProperty(item)) return;
  const int index = item.GetAbsoluteIndex();
  // What was typed and not accepted must not come back over the value.
  if (GetSelected() == &item) HideEditor();
  if (!self.IsAlive() || !watched) return;
  PropertyChanging(&item);
  // Setters and handlers may change the inspected objects.
  for (int i = 0; self.IsAlive() && watched && i < FObjects->GetCount(); ++i) {
    if (!item.IsWrittenBy(i, -1)) continue;
    QString name;
    TObject* holder = item.HolderOf(i, name);
    IPropView* view = watched ? PropViewOf(holder) : nullptr;
    const TPropInfo* property = view ? GetPropInfo(holder, name) : nullptr;
    if (property) view->ResetProp(*property);
  }
  if (self.IsAlive()) PropertyChanged(index);
}

}  // namespace kt
