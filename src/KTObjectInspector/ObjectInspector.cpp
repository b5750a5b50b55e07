#include "kt/KTObjectInspector/ObjectInspector.h"

#include "kt/KTObjectInspector/DefaultCategories.h"
#include "kt/KTObjectInspector/PropertyWatch.h"
#include "kt/KTPropertyPresets/PresetRegistry.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/ktcommon/SpecialFiler.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Color.h"

namespace kt {

const TClassInfo* TKTCustomObjectInspector::Class() {
  static const TClassInfo info = TClassBuilder<TKTCustomObjectInspector>("TKTCustomObjectInspector").Done();
  return &info;
}

TKTCustomObjectInspector::TKTCustomObjectInspector(TComponent* owner) : TKTCustomItemListEditor(owner) {}

TKTCustomObjectInspector::~TKTCustomObjectInspector() = default;

void TKTCustomObjectInspector::Construct() {
  FWatch = std::make_unique<TPropertyWatch>(*this);
  FObjects = Make<TKTInspectorObjects>(this);
  FPresets = CreatePresets();
  FFilters = Make<TStringList>();
  FFilters->OnChange = {this, &TKTCustomObjectInspector::ChangeFilters};
  FFilters->OnChanging = {this, &TKTCustomObjectInspector::ChangingFilters};
  FValueChangedFont = Make<TKTCustomDeltaFont>();
  TKTCustomItemListEditor::Construct();
  GetValueFont().SetColor(clNavy);
  SetSorted(true);
  FValueChangedFont->Assign(&GetValueFont());
  FValueChangedFont->OnChange = {this, &TKTCustomObjectInspector::ValueChangedFontChanged};
  FValueChangedFont->SetOnGetOriginalFont({this, &TKTCustomObjectInspector::GetOriginalFont});
  FValueChangedFont->SetStyle(FValueChangedFont->GetStyle() + TFontStyles{fsBold});
  FShowValueChangedFont = true;
  FCollectionItemFormat = FStringsItemFormat = QStringLiteral("Items[%d]");
  SetDisplayKinds(tkAny - TTypeKinds{tkUnknown, tkMethod});
  SetColor(clBtnFace);
  FInplaceComponents = true;
  FFiltersEnabled = true;
  SetCaseSensitive(false);
  SetDeleteBlanks(false);
  ResetDefaultPresets();
  FIsConstructing = false;
}

void TKTCustomObjectInspector::BeforeDestruction() {
  FObjects->Clear();
  TKTCustomItemListEditor::BeforeDestruction();
}

void TKTCustomObjectInspector::Destruct() {
  FWatch.reset();
  FObjects.reset();
  FPresets.reset();
  FFilters.reset();
  FValueChangedFont.reset();
  TKTCustomItemListEditor::Destruct();
}

std::unique_ptr<TKTItemProps> TKTCustomObjectInspector::CreateItems(TPersistent* owner) {
  return Make<TKTItemProperties>(owner);
}

std::unique_ptr<TKTPropertyPresets> TKTCustomObjectInspector::CreatePresets() { return Make<TKTPropertyPresets>(this); }

void TKTCustomObjectInspector::FillCategories() {
  TKTCustomItemListEditor::FillCategories();
  for (const QLatin1StringView line : kDefaultCategories) GetItems().GetCategories().Add(line);
}

void TKTCustomObjectInspector::ResetDefaultPresets() {
  TThreadList* registered = RegisteredPresets();
  if (!registered) return;
  const TUpdateBracket bracket(*FPresets);
  const TThreadListLock list(*registered);
  for (int i = 0; i < list->GetCount(); ++i) {
    const auto* presetClass = static_cast<const TClassInfo*>(list->GetItems(i));
    if (FPresets->IndexOf(presetClass) < 0) FPresets->Add(presetClass);
  }
}

// What is inspected.

TComponent* TKTCustomObjectInspector::GetInspectedComponent() const {
  return FObjects->GetCount() > 0 ? FObjects->GetItem(0)->GetComponent() : nullptr;
}

void TKTCustomObjectInspector::SetInspectedComponent(TComponent* value) {
  if (!value) {
    if (FObjects->GetCount() > 0) FObjects->Remove(nullptr);
  } else if (FObjects->GetCount() > 0) {
    FObjects->GetItem(0)->SetComponent(value);
  } else {
    FObjects->Add(value);
  }
}

/// A component that dies takes along every entry that it is named in.
void TKTCustomObjectInspector::Notification(TComponent* component, TOperation operation) {
  const TLifeWatch self(this);
  TKTCustomItemListEditor::Notification(component, operation);
  if (self.IsAlive() && operation == opRemove && FObjects) FObjects->LetGo(component);
}

// Streams.

void TKTCustomObjectInspector::Loaded() {
  const TLifeWatch self(this);
  TKTCustomItemListEditor::Loaded();
  CopyPresetsToProperties();
  // The objects came while nothing could be asked for.
  if (self.IsAlive() && FObjects->GetCount() > 0) InvalidateScan();
}

void TKTCustomObjectInspector::DefineProperties(TFiler& filer) {
  TKTCustomItemListEditor::DefineProperties(filer);
  filer.DefineProperty(
      u"HPresets", [this](TReader& reader) { TGSpecialFiler::ReadCollection(reader, *FPresets); },
      [this](TWriter& writer) { TGSpecialFiler::WriteCollection(writer, *FPresets); }, FPresets->GetCount() > 0);
  filer.DefineProperty(
      u"HItems", [this](TReader& reader) { LoadItemsProperty(reader); },
      [this](TWriter& writer) { StoreItemsProperty(writer); }, GetItems().GetCount() > 0);
}

void TKTCustomObjectInspector::LoadItemsProperty(TReader& reader) {
  reader.ReadValue();
  reader.ReadCollection(GetItems());
}

void TKTCustomObjectInspector::StoreItemsProperty(TWriter& writer) { writer.WriteCollection(GetItems()); }

void TKTCustomObjectInspector::Assign(TPersistent* source) {
  if (auto* other = dynamic_cast<TKTCustomObjectInspector*>(source); other && other != this) {
    CopyInspector(*other);
  }
  // Deliberately not the inherited one, and also after the copy.
  TPersistent::Assign(source);
}

/// Whoever hears of a change may free either inspector; there is nobody to go on with, then.
void TKTCustomObjectInspector::CopyInspector(TKTCustomObjectInspector& other) {
  const TLifeWatch self(this);
  const TLifeWatch watchOfOther(&other);
  const auto checkBoth = [&] {
    if (!self.IsAlive() || !watchOfOther.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
  };
  const auto copyFilters = [&] {
    // The lines are copied out first: the other list may go before it is read.
    const auto filters = Make<TStringList>();
    filters->Assign(other.FFilters.get());
    FFilters->Assign(filters.get());
    checkBoth();
  };
  CopySettings(other);
  copyFilters();
  FPresets->Assign(other.FPresets.get());
  checkBoth();
  FObjects->Assign(other.FObjects.get());
  checkBoth();
  FFiltersEnabled = other.FFiltersEnabled;
  FFilterOptions = other.FFilterOptions;
  // A list does not take over how another one compares.
  FFilters->SetCaseSensitive(FFilterOptions.Has(foCaseSensitive));
  checkBoth();
  copyFilters();
  FValueChangedFont->Assign(other.FValueChangedFont.get());
}

void TKTCustomObjectInspector::CopySettings(const TKTCustomObjectInspector& other) {
  FCollectionItemFormat = other.FCollectionItemFormat;
  FShowValueChangedFont = other.FShowValueChangedFont;
  FInplaceCollections = other.FInplaceCollections;
  FInplaceComponents = other.FInplaceComponents;
  FInplaceTStrings = other.FInplaceTStrings;
  FInplaceTStringsOptions = other.FInplaceTStringsOptions;
  FStringsItemFormat = other.FStringsItemFormat;
  FDisplayKinds = other.FDisplayKinds;
  FDynamicTitleCaptions = other.FDynamicTitleCaptions;
}

// Messages.

void TKTCustomObjectInspector::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case KT_INVALIDATEPROPERTY:
      return KTInvalidateProperty(message);
    case KT_INVALIDATESCAN:
      return KTInvalidateScan();
    case KT_INVALIDATEVALUES:
      return KTInvalidateValues();
    default:
      TKTCustomItemListEditor::Dispatch(message);
  }
}

// Fonts.

void TKTCustomObjectInspector::FontChanged() {
  // Whoever hears of a preset's change may free the inspector.
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && FPresets && i < FPresets->GetCount(); ++i) {
    FPresets->GetItem(i)->InspectorFontChanged();
  }
  if (self.IsAlive()) TKTCustomItemListEditor::FontChanged();
}

void TKTCustomObjectInspector::InternalValueFontChanged(TObject* sender) {
  const TLifeWatch self(this);
  if (FValueChangedFont) FValueChangedFont->BaseFontChanged(&GetValueFont());
  for (int i = 0; self.IsAlive() && FPresets && i < FPresets->GetCount(); ++i) {
    FPresets->GetItem(i)->InspectorValueFontChanged();
  }
  if (self.IsAlive()) TKTCustomItemListEditor::InternalValueFontChanged(sender);
}

void TKTCustomObjectInspector::GetOriginalFont(TObject* sender, TFont*& font) {
  if (sender == FValueChangedFont.get()) {
    font = &GetValueFont();
  } else {
    TKTCustomItemListEditor::GetOriginalFont(sender, font);
  }
}

void TKTCustomObjectInspector::ValueChangedFontChanged(TObject*) { Invalidate(); }

}  // namespace kt
