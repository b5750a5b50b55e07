// What an inspector is set to list, and how it shows it.
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

void TKTCustomObjectInspector::SetObjects(TKTInspectorObjects& value) { FObjects->Assign(&value); }

void TKTCustomObjectInspector::SetItems(TKTItemProperties& value) { GetItems().Assign(&value); }

void TKTCustomObjectInspector::SetPresets(TKTPropertyPresets& value) { FPresets->Assign(&value); }

void TKTCustomObjectInspector::SetFilters(TStrings& value) { FFilters->Assign(&value); }

void TKTCustomObjectInspector::SetValueChangedFont(TFont& value) { FValueChangedFont->Assign(&value); }

void TKTCustomObjectInspector::SetDisplayKinds(TTypeKinds value) {
  value = value - TTypeKinds{tkArray, tkRecord, tkDynArray};
  if (FDisplayKinds == value) return;
  FDisplayKinds = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetInplaceCollections(bool value) {
  if (FInplaceCollections == value) return;
  FInplaceCollections = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetInplaceComponents(bool value) {
  if (FInplaceComponents == value) return;
  FInplaceComponents = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetInplaceTStrings(bool value) {
  if (FInplaceTStrings == value) return;
  FInplaceTStrings = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetInplaceTStringsOptions(TInplaceTStringsOptions value) {
  if (FInplaceTStringsOptions == value) return;
  FInplaceTStringsOptions = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetCollectionItemFormat(const QString& value) {
  if (FCollectionItemFormat == value) return;
  FCollectionItemFormat = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetStringsItemFormat(const QString& value) {
  if (FStringsItemFormat == value) return;
  FStringsItemFormat = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetFiltersEnabled(bool value) {
  if (FFiltersEnabled == value) return;
  FFiltersEnabled = value;
  InvalidateScan();
}

void TKTCustomObjectInspector::SetFilterOptions(TILEFilterOptions value) {
  if (FFilterOptions == value) return;
  FFilterOptions = value;
  FFilters->SetCaseSensitive(value.Has(foCaseSensitive));
  if (FFiltersEnabled) InvalidateScan();
}

void TKTCustomObjectInspector::SetShowValueChangedFont(bool value) {
  if (FShowValueChangedFont == value) return;
  FShowValueChangedFont = value;
  Invalidate();
}

void TKTCustomObjectInspector::SetDynamicTitleCaptions(bool value) {
  if (FDynamicTitleCaptions == value) return;
  FDynamicTitleCaptions = value;
  Refresh();
}

void TKTCustomObjectInspector::SetArrangeByCategory(bool value) {
  if (GetArrangeByCategory() == value) return;
  TKTCustomItemListEditor::SetArrangeByCategory(value);
  InvalidateScan();
}

void TKTCustomObjectInspector::SetDisplayOptions(TILEDisplayOptions value) {
  const TLifeWatch self(this);
  if (value.Has(doMultiColValues) != GetDisplayOptions().Has(doMultiColValues)) {
    SetSelected(nullptr);
    if (self.IsAlive()) InvalidateScan();
  }
  if (self.IsAlive()) TKTCustomItemListEditor::SetDisplayOptions(value);
}

void TKTCustomObjectInspector::SetColumnTitles(bool value) {
  const TLifeWatch self(this);
  TKTCustomItemListEditor::SetColumnTitles(value);
  if (self.IsAlive() && GetGridCount(gcCurrentField) == 0) SetGridCount(gcCurrentField, 1);
}

}  // namespace kt
