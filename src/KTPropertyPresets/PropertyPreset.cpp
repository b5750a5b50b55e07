#include "kt/KTPropertyPresets/PropertyPreset.h"

#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/ktcommon/DeltaFont.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <utility>

namespace kt {

const TClassInfo* TKTPropertyPreset::Class() {
  using T = TKTPropertyPreset;
  static const TClassInfo info = TClassBuilder<T>("TKTPropertyPreset")
                                     .Property<&T::GetActive, &T::SetActive>("Active")
                                     .Default(true)
                                     .Property<&T::GetMatchTypes, &T::SetMatchTypes>("MatchTypes")
                                     .Default(TKTPresetMatchTypes{})
                                     .Property<&T::GetTypeKinds, &T::SetTypeKinds>("TypeKinds")
                                     .Default(TTypeKinds{})
                                     .Property<&T::GetTypeNames, &T::SetTypeNames>("TypeNames")
                                     .Property<&T::GetParentClassNames, &T::SetParentClassNames>("ParentClassNames")
                                     .Property<&T::GetAlias, &T::SetAlias>("Alias")
                                     .Property<&T::GetInclusive, &T::SetInclusive>("Inclusive")
                                     .Default(true)
                                     .Property<&T::GetFont, &T::SetFont>("Font")
                                     .Property<&T::GetValueFont, &T::SetValueFont>("ValueFont")
                                     .Property<&T::GetName, &T::SetName>("Name")
                                     .Property<&T::GetPropNames, &T::SetPropNames>("PropNames")
                                     .Property<&T::GetParentPropNames, &T::SetParentPropNames>("ParentPropNames")
                                     .Property<&T::GetParentTypeKinds, &T::SetParentTypeKinds>("ParentTypeKinds")
                                     .Default(TTypeKinds{})
                                     .Property<&T::GetParentTypeNames, &T::SetParentTypeNames>("ParentTypeNames")
                                     .Property<&T::GetHint, &T::SetHint>("Hint")
                                     .Property<&T::GetEditStyle, &T::SetEditStyle>("EditStyle")
                                     .Default(esSimple)
                                     .Property<&T::GetEditMask, &T::SetEditMask>("EditMask")
                                     .Property<&T::OnCustomPreset>("OnCustomPreset")
                                     .Property<&T::OnMatchPreset>("OnMatchPreset")
                                     .Property<&T::OnEditButtonClick>("OnEditButtonClick")
                                     .Property<&T::OnGetPickList>("OnGetPickList")
                                     .Property<&T::OnGetProperty>("OnGetProperty")
                                     .Property<&T::OnSetProperty>("OnSetProperty")
                                     .Property<&T::OnValidate>("OnValidate")
                                     .Property<&T::OnValidated>("OnValidated")
                                     .Property<&T::OnValidateError>("OnValidateError")
                                     .Property<&T::GetPickList, &T::SetPickList>("PickList")
                                     // Last, so that what is read before it switches nothing on for good.
                                     .Property<&T::GetActions, &T::SetActions>("Actions")
                                     .Creatable()
                                     .Done();
  return &info;
}

TKTPropertyPreset::TKTPropertyPreset(TCollection* collection) : TCollectionItem(collection) {}

TKTPropertyPreset::~TKTPropertyPreset() = default;

void TKTPropertyPreset::Construct() {
  FPropNames = MakeNames();
  FTypeNames = MakeNames();
  FParentClassNames = MakeNames();
  FParentPropNames = MakeNames();
  FParentTypeNames = MakeNames();
  MakeFonts();
  // Last, so that whoever hears of the new preset finds it complete.
  TCollectionItem::Construct();
}

std::unique_ptr<TStringList> TKTPropertyPreset::MakeNames() {
  auto names = Make<TStringList>();
  names->OnChange = {this, &TKTPropertyPreset::StringsChange};
  return names;
}

void TKTPropertyPreset::MakeFonts() {
  FFont = Make<TKTCustomDeltaFont>();
  if (auto* inspector = GetInspector()) FFont->Assign(&inspector->GetFont());
  FValueFont = Make<TKTCustomDeltaFont>();
  for (TKTCustomDeltaFont* font : {FFont.get(), FValueFont.get()}) {
    font->OnChange = {this, &TKTPropertyPreset::FontChanged};
    font->SetOnGetOriginalFont({this, &TKTPropertyPreset::GetOriginalFont});
  }
}

TKTCustomObjectInspector* TKTPropertyPreset::GetInspector() const {
  // While it is being made, the preset counts as being in the collection that it is about to enter.
  auto* presets = dynamic_cast<TKTPropertyPresets*>(CollectionToEnter());
  return presets ? presets->GetOwner() : nullptr;
}

QString TKTPropertyPreset::GetDisplayName() { return FName.isEmpty() ? TCollectionItem::GetDisplayName() : FName; }

TKTItemProperty* TKTPropertyPreset::GetItemProperty(TObject* sender, const QString& propName) const {
  if (auto* item = dynamic_cast<TKTItemProperty*>(sender)) return item;
  const TKTCustomObjectInspector* inspector = GetInspector();
  return inspector ? inspector->GetItems().FindItemByFullPathName(propName) : nullptr;
}

// Plain values.

template <class V>
void TKTPropertyPreset::Store(V& field, const V& value) {
  if (field == value) return;
  field = value;
  Changed(false);
}

void TKTPropertyPreset::StoreText(QString& field, const QString& value, TKTPropertyPresetType action) {
  if (field == value) return;
  field = value;
  FActions.Put(action, !field.isEmpty());
  Changed(false);
}

void TKTPropertyPreset::SetActive(bool value) { Store(FActive, value); }
void TKTPropertyPreset::SetInclusive(bool value) { Store(FInclusive, value); }
void TKTPropertyPreset::SetName(const QString& value) { Store(FName, value); }
void TKTPropertyPreset::SetMatchTypes(TKTPresetMatchTypes value) { Store(FMatchTypes, value); }
void TKTPropertyPreset::SetTypeKinds(TTypeKinds value) { Store(FTypeKinds, value); }
void TKTPropertyPreset::SetParentTypeKinds(TTypeKinds value) { Store(FParentTypeKinds, value); }
void TKTPropertyPreset::SetAlias(const QString& value) { StoreText(FAlias, value, pftAlias); }
void TKTPropertyPreset::SetHint(const QString& value) { StoreText(FHint, value, pftHint); }
void TKTPropertyPreset::SetEditMask(const QString& value) { StoreText(FEditMask, value, pftEditMask); }

void TKTPropertyPreset::SetEditStyle(TEditStyle value) {
  if (FEditStyle == value) return;
  FEditStyle = value;
  FActions.Include(pftEditStyle);
  Changed(false);
}

void TKTPropertyPreset::SetActions(TKTPropertyPresetTypes value) {
  constexpr TKTPropertyPresetTypes access = {pftReadOnly, pftWritable};
  constexpr TKTPropertyPresetTypes visibility = {pftVisible, pftHidden};
  if (!access.IsSubsetOf(value) && !visibility.IsSubsetOf(value)) Store(FActions, value);
}

// Lists of names.

TStrings& TKTPropertyPreset::GetTypeNames() const { return *FTypeNames; }
TStrings& TKTPropertyPreset::GetParentClassNames() const { return *FParentClassNames; }
TStrings& TKTPropertyPreset::GetPropNames() const { return *FPropNames; }
TStrings& TKTPropertyPreset::GetParentPropNames() const { return *FParentPropNames; }
TStrings& TKTPropertyPreset::GetParentTypeNames() const { return *FParentTypeNames; }
void TKTPropertyPreset::SetTypeNames(TStrings& value) { FTypeNames->Assign(&value); }
void TKTPropertyPreset::SetParentClassNames(TStrings& value) { FParentClassNames->Assign(&value); }
void TKTPropertyPreset::SetPropNames(TStrings& value) { FPropNames->Assign(&value); }
void TKTPropertyPreset::SetParentPropNames(TStrings& value) { FParentPropNames->Assign(&value); }
void TKTPropertyPreset::SetParentTypeNames(TStrings& value) { FParentTypeNames->Assign(&value); }

void TKTPropertyPreset::StringsChange(TObject* sender) {
  if (FIsAssigning) return;
  if (sender == FParentClassNames.get()) UpdateMatchTypes(*FParentClassNames, mtClassName);
  if (sender == FTypeNames.get()) UpdateMatchTypes(*FTypeNames, mtPropertyType);
  if (sender == FPropNames.get()) UpdateMatchTypes(*FPropNames, mtPropertyName);
  if (sender == FParentPropNames.get()) UpdateMatchTypes(*FParentPropNames, mtParentPropertyName);
  if (sender == FParentTypeNames.get()) UpdateMatchTypes(*FParentTypeNames, mtParentPropertyType);
  Changed(false);
}

void TKTPropertyPreset::UpdateMatchTypes(TStringList& list, TKTPresetMatchType type) {
  FMatchTypes.Put(type, list.GetCount() > 0);
}

// The pick list.

TStrings& TKTPropertyPreset::GetPickList() {
  if (!FPickList) {
    FPickList = Make<TStringList>();
    FPickList->OnChange = {this, &TKTPropertyPreset::PickListChange};
  }
  return *FPickList;
}

void TKTPropertyPreset::SetPickList(TStrings& value) { GetPickList().Assign(&value); }

bool TKTPropertyPreset::HasPickList() const { return FPickList && FPickList->GetCount() > 0; }

void TKTPropertyPreset::PickListChange(TObject*) {
  if (FIsAssigning) return;
  const bool hasLines = HasPickList();
  if (FEditStyle == esSimple && hasLines) return SetEditStyle(esPickList);
  if (FEditStyle == esPickList && !hasLines) return SetEditStyle(esSimple);
  Changed(false);
}

// Fonts.

TFont& TKTPropertyPreset::GetFont() const { return *FFont; }
TFont& TKTPropertyPreset::GetValueFont() const { return *FValueFont; }
void TKTPropertyPreset::SetFont(TFont& value) { FFont->Assign(&value); }
void TKTPropertyPreset::SetValueFont(TFont& value) { FValueFont->Assign(&value); }

void TKTPropertyPreset::FontChanged(TObject* sender) {
  if (FIsAssigning) return;
  // What handlers of this change do to the fonts is a choice again.
  if (!std::exchange(FIsFollowing, false)) FActions.Include(sender == FFont.get() ? pftFont : pftValueFont);
  Changed(false);
}

void TKTPropertyPreset::GetOriginalFont(TObject* sender, TFont*& font) {
  TKTCustomObjectInspector* inspector = GetInspector();
  if (!inspector) return;
  if (sender == FFont.get()) {
    font = &inspector->GetFont();
  } else {
    font = &inspector->GetValueFont();
  }
}

void TKTPropertyPreset::InspectorFontChanged() {
  if (TKTCustomObjectInspector* inspector = GetInspector()) Follow(*FFont, inspector->GetFont());
}

void TKTPropertyPreset::InspectorValueFontChanged() {
  if (TKTCustomObjectInspector* inspector = GetInspector()) Follow(*FValueFont, inspector->GetValueFont());
}

void TKTPropertyPreset::Follow(TKTCustomDeltaFont& font, TFont& base) {
  const TLiveFlag following(this, FIsFollowing);
  font.BaseFontChanged(&base);
}

// Copying.

void TKTPropertyPreset::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TKTPropertyPreset*>(source);
  if (!other) return TCollectionItem::Assign(source);
  const TLifeWatch self(this);
  {
    const TLiveFlag assigning(this, FIsAssigning);
    AssignValues(*other);
    AssignEvents(*other);
    AssignLists(*other);
  }
  if (self.IsAlive()) Changed(false);
}

void TKTPropertyPreset::AssignTo(TPersistent* dest) {
  if (auto* item = dynamic_cast<TKTItemProperty*>(dest)) return CopyPreset(item);
  TCollectionItem::AssignTo(dest);
}

void TKTPropertyPreset::AssignValues(const TKTPropertyPreset& source) {
  FActive = source.FActive;
  FAlias = source.FAlias;
  FActions = source.FActions;
  FInclusive = source.FInclusive;
  FHint = source.FHint;
  FEditStyle = source.FEditStyle;
  FEditMask = source.FEditMask;
  FMatchTypes = source.FMatchTypes;
  FName = source.FName;
  FTypeKinds = source.FTypeKinds;
  FParentTypeKinds = source.FParentTypeKinds;
}

void TKTPropertyPreset::AssignEvents(const TKTPropertyPreset& source) {
  OnEditButtonClick = source.OnEditButtonClick;
  OnGetPickList = source.OnGetPickList;
  OnValidate = source.OnValidate;
  OnValidated = source.OnValidated;
  OnValidateError = source.OnValidateError;
  OnGetProperty = source.OnGetProperty;
  OnSetProperty = source.OnSetProperty;
}

/// Lists and fonts, each of which may have somebody who hears of the change and frees either preset.
void TKTPropertyPreset::AssignLists(TKTPropertyPreset& source) {
  using T = TKTPropertyPreset;
  const TLifeWatch self(this);
  const TLifeWatch other(&source);
  for (const auto list :
       {&T::FPropNames, &T::FParentClassNames, &T::FParentPropNames, &T::FParentTypeNames, &T::FTypeNames}) {
    (this->*list)->Assign((source.*list).get());
    if (!self.IsAlive() || !other.IsAlive()) return;
  }
  if (source.HasPickList()) {
    SetPickList(source.GetPickList());
  } else {
    FPickList = nullptr;
  }
  for (const auto font : {&T::FFont, &T::FValueFont}) {
    if (!self.IsAlive() || !other.IsAlive()) return;
    (this->*font)->Assign((source.*font).get());
  }
}

}  // namespace kt
