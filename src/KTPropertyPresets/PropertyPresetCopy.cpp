// How presets change items.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/ktcommon/DeltaFont.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/strings/StringList.h"

#include <vector>

namespace kt {

void TKTPropertyPreset::CopyPreset(TKTItemProperty* item) {
  using T = TKTPropertyPreset;
  using TStep = void (T::*)(TKTItemProperty&);
  struct TAction {
    TKTPropertyPresetTypes Types;
    TStep Apply;
  };
  static constexpr TAction actions[] = {{{pftAlias}, &T::CopyAlias},
                                        {{pftReadOnly, pftWritable}, &T::CopyReadOnly},
                                        {{pftVisible, pftHidden}, &T::CopyVisible},
                                        {{pftHint}, &T::CopyHint},
                                        {{pftEditStyle}, &T::CopyEditStyle},
                                        {{pftEditMask}, &T::CopyEditMask},
                                        {{pftValidate}, &T::CopyValidation},
                                        {{pftFont}, &T::CopyFont},
                                        {{pftValueFont}, &T::CopyValueFont},
                                        {{pftCustom}, &T::RunCustom}};
  const TLifeWatch self(this);
  const TItemWatch watched(item);
  for (const TAction& action : actions) {
    // Whoever hears of a change may free either.
    if (!self.IsAlive() || !watched) return;
    if (!(FActions * action.Types).IsEmpty()) (this->*action.Apply)(*item);
  }
}

void TKTPropertyPreset::CopyAlias(TKTItemProperty& item) { item.SetName(FAlias); }
void TKTPropertyPreset::CopyReadOnly(TKTItemProperty& item) { item.SetReadOnly(FActions.Has(pftReadOnly)); }
void TKTPropertyPreset::CopyVisible(TKTItemProperty& item) { item.SetVisible(FActions.Has(pftVisible)); }
void TKTPropertyPreset::CopyHint(TKTItemProperty& item) { item.SetHint(FHint); }
void TKTPropertyPreset::CopyEditMask(TKTItemProperty& item) { item.SetEditMask(FEditMask); }
void TKTPropertyPreset::CopyFont(TKTItemProperty& item) { item.SetFont(*FFont); }
void TKTPropertyPreset::CopyValueFont(TKTItemProperty& item) { item.SetValueFont(*FValueFont); }

void TKTPropertyPreset::CopyEditStyle(TKTItemProperty& item) {
  const TEditStyle style = FEditStyle;
  const TLifeWatch self(this);
  const TItemWatch watched(&item);
  item.SetEditStyle(style);
  if (!self.IsAlive() || !watched) return;
  if (style == esEllipsis) item.SetOnEditButtonClick(Lent(OnEditButtonClick));
  if (style == esPickList) CopyPickList(item);
}

void TKTPropertyPreset::CopyPickList(TKTItemProperty& item) {
  const TLifeWatch self(this);
  const TItemWatch watched(&item);
  if (HasPickList()) item.SetPickList(*FPickList);
  if (self.IsAlive() && watched) item.SetOnGetPickList(Lent(OnGetPickList));
}

void TKTPropertyPreset::CopyValidation(TKTItemProperty& item) {
  item.SetOnValidate(Lent(OnValidate));
  item.SetOnValidated(Lent(OnValidated));
  item.SetOnValidateError(Lent(OnValidateError));
  item.SetOnSetProperty(Lent(OnSetProperty));
  item.SetOnGetProperty(Lent(OnGetProperty));
}

void TKTPropertyPreset::RunCustom(TKTItemProperty& item) {
  if (const TKTItemPropertyEvent handler = OnCustomPreset) {
    handler(this, &item);
  } else if (TKTCustomObjectInspector* inspector = GetInspector()) {
    inspector->CustomPreset(this, &item);
  }
}

// Handlers that are methods of the preset end with its time among the inspector's presets.

namespace {

template <auto Get, auto Set>
void GiveBack(TKTItemProperty& item, const TObject* lender) {
  if ((item.*Get)().Instance() == lender) (item.*Set)(nullptr);
}

void GiveBackHandlers(TKTItemProperty& item, const TObject* lender) {
  using T = TKTItemProperty;
  GiveBack<&T::GetOnEditButtonClick, &T::SetOnEditButtonClick>(item, lender);
  GiveBack<&T::GetOnGetPickList, &T::SetOnGetPickList>(item, lender);
  GiveBack<&T::GetOnValidate, &T::SetOnValidate>(item, lender);
  GiveBack<&T::GetOnValidated, &T::SetOnValidated>(item, lender);
  GiveBack<&T::GetOnValidateError, &T::SetOnValidateError>(item, lender);
  GiveBack<&T::GetOnSetProperty, &T::SetOnSetProperty>(item, lender);
  GiveBack<&T::GetOnGetProperty, &T::SetOnGetProperty>(item, lender);
}

}  // namespace

template <class E>
const E& TKTPropertyPreset::Lent(const E& event) {
  if (event.Instance() == this) FHasLentHandlers = true;
  return event;
}

void TKTPropertyPreset::TakeBackHandlers() {
  const TKTCustomObjectInspector* inspector = GetInspector();
  if (!FHasLentHandlers || !inspector || inspector->HasState(csDestroying)) return;
  FHasLentHandlers = false;
  std::vector<TKTItemProperties*> open = {&inspector->GetItems()};
  while (!open.empty()) {
    const TKTItemProperties& items = *open.back();
    open.pop_back();
    for (int i = 0; i < items.GetCount(); ++i) {
      TKTItemProperty* item = items.GetItem(i);
      GiveBackHandlers(*item, this);
      if (item->HasItems()) open.push_back(&item->GetItems());
    }
  }
}

}  // namespace kt
