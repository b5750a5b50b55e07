// What presets stream besides their published properties.
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

/// Marks of the lists without lines, of which nothing else is written: a list that the constructor fills stays empty
/// so.
void TKTPropertyPreset::DefineProperties(TFiler& filer) {
  using T = TKTPropertyPreset;
  struct TMark {
    QStringView Name;
    std::unique_ptr<TStringList> T::*List;
  };
  static constexpr TMark marks[] = {{u"TypeNamesEmpty", &T::FTypeNames},
                                    {u"ParentClassNamesEmpty", &T::FParentClassNames},
                                    {u"PropNamesEmpty", &T::FPropNames},
                                    {u"ParentPropNamesEmpty", &T::FParentPropNames},
                                    {u"ParentTypeNamesEmpty", &T::FParentTypeNames},
                                    {u"PickListEmpty", &T::FPickList}};
  TCollectionItem::DefineProperties(filer);
  for (const TMark& mark : marks) {
    TStringList* list = (this->*mark.List).get();
    filer.DefineProperty(
        mark.Name,
        [list](TReader& reader) {
          if (reader.ReadBoolean() && list) list->Clear();
        },
        [](TWriter& writer) { writer.WriteBoolean(true); }, !list || list->GetCount() == 0);
  }
}

}  // namespace kt
