// What an object inspector publishes.
#include "kt/KTItemListEditor/PublishItemListEditor.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

namespace {

void PublishWhatIsListed(TClassBuilder<TKTObjectInspector>& builder) {
  using T = TKTObjectInspector;
  // Deliberately not what a new inspector has, which lists no arrays and records: so it is always written.
  builder.Property<&T::GetDisplayKinds, &T::SetDisplayKinds>("DisplayKinds")
      .Default(tkAny - TTypeKinds{tkUnknown, tkMethod});
  builder.Property<&T::GetInplaceCollections, &T::SetInplaceCollections>("InplaceCollections").Default(false);
  builder.Property<&T::GetInplaceComponents, &T::SetInplaceComponents>("InplaceComponents").Default(true);
  builder.Property<&T::GetInplaceTStrings, &T::SetInplaceTStrings>("InplaceTStrings").Default(false);
  builder.Property<&T::GetInplaceTStringsOptions, &T::SetInplaceTStringsOptions>("InplaceTStringsOptions");
  builder.Property<&T::GetStringsItemFormat, &T::SetStringsItemFormat>("StringsItemFormat");
  builder.Property<&T::GetCollectionItemFormat, &T::SetCollectionItemFormat>("CollectionItemFormat");
  builder.Property<&T::GetFiltersEnabled, &T::SetFiltersEnabled>("FiltersEnabled").Default(true);
  builder.Property<&T::GetFilterOptions, &T::SetFilterOptions>("FilterOptions").Default(TILEFilterOptions{});
  builder.Property<&T::GetFilters, &T::SetFilters>("Filters");
}

void PublishLook(TClassBuilder<TKTObjectInspector>& builder) {
  using T = TKTObjectInspector;
  builder.Property<&T::GetDynamicTitleCaptions, &T::SetDynamicTitleCaptions>("DynamicTitleCaptions").Default(false);
  Publish::FixedRows(builder);
  builder.Property<&T::GetVisibleRowCount>("VisibleRowCount");
  builder.Property<&T::GetShowValueChangedFont, &T::SetShowValueChangedFont>("ShowValueChangedFont").Default(true);
  builder.Property<&T::GetValueChangedFont, &T::SetValueChangedFont>("ValueChangedFont");
}

void PublishEvents(TClassBuilder<TKTObjectInspector>& builder) {
  using T = TKTObjectInspector;
  builder.Property<&T::OnRefreshValue>("OnRefreshValue");
  builder.Property<&T::OnAfterScan>("OnAfterScan");
  builder.Property<&T::OnBeforeScan>("OnBeforeScan");
  builder.Property<&T::OnCustomPreset>("OnCustomPreset");
  builder.Property<&T::OnMatchPreset>("OnMatchPreset");
  builder.Property<&T::OnFiltersChanging>("OnFiltersChanging");
  builder.Property<&T::OnFiltersChanged>("OnFiltersChanged");
  builder.Property<&T::OnPropertyChanging>("OnPropertyChanging");
  builder.Property<&T::OnPropertyChanged>("OnPropertyChanged");
}

}  // namespace

const TClassInfo* TKTObjectInspector::Class() {
  using T = TKTObjectInspector;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TKTObjectInspector");
    Publish::GridOfItems(builder);
    Publish::ItemListEditor(builder);
    PublishWhatIsListed(builder);
    PublishLook(builder);
    Publish::ItemListEvents(builder);
    PublishEvents(builder);
    builder.Property<&T::GetInspectedComponent, &T::SetInspectedComponent>("Component").NotStored();
    builder.Property<&T::GetObjects, &T::SetObjects>("Objects");
    builder.Property<&T::GetPresets, &T::SetPresets>("Presets").NotStored();
    builder.Property<&T::GetItems, &T::SetItems>("Items").NotStored();
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
