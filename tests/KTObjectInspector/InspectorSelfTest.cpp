// An inspector that inspects itself.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/typeinfo/PropLists.h"

namespace kt::tests {
namespace {

using InspectorSelfTest = TInspectorTest;

TEST_F(InspectorSelfTest, AnInspectorListsItselfWithPresetsAndItemsInPlace) {
  FInspector->SetName("Self");
  FInspector->GetPresets().Add()->SetName("preset");
  FInspector->SetDisplayKinds(FInspector->GetDisplayKinds() + TTypeKinds{tkMethod});
  FInspector->SetInplaceCollections(true);
  FInspector->SetInplaceTStrings(true);
  Inspect({FInspector.get()});
  EXPECT_EQ("True", Value("InplaceCollections"));
  EXPECT_EQ("preset", Value("Presets.Items[0].Name"));
  EXPECT_EQ("Self", Value("Objects.Items[0].Component"));
  // The items that are there while they are listed, each with its properties and nothing below its own items.
  EXPECT_NE("", Value("Items.Items[0].Name"));
  EXPECT_NE(nullptr, Find("Items.Items[0].OnGetPickList"));
  EXPECT_EQ("Categories DefaultCategoryName", NamesBelow("Items.Items[0].Items"));
  for (const TPropInfo* property : GetPropList(TKTObjectInspector::Class(), FInspector->GetDisplayKinds())) {
    EXPECT_NE(nullptr, Find(property->Name())) << property->Name().toStdString();
  }
  FInspector->RefreshProperties();
  Deliver();
}

TEST_F(InspectorSelfTest, AnInspectorEditsItsOwnFont) {
  Inspect({FInspector.get()});
  Edit("Font.Size", "20");
  EXPECT_EQ(20, FInspector->GetFont().GetSize());
  Deliver();
  EXPECT_EQ("20", Value("Font.Size"));
}

}  // namespace
}  // namespace kt::tests
