#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Font.h"
#include "support/Expect.h"

#include <QCoreApplication>

namespace kt::tests {
namespace {

TEST(BarePresetTest, PresetsMatchAndChangeItemsWithoutDisplayAndApplicationObject) {
  ASSERT_EQ(nullptr, QCoreApplication::instance());
  const auto inspector = Make<TKTObjectInspector>();
  TKTItemProperty* item = inspector->GetItems().Add();
  item->SetName("Color");
  TKTPropertyPreset* preset = inspector->GetPresets().Add();
  preset->GetPropNames().Add("color");
  preset->SetHint("hint");
  preset->GetPickList().Add("red");
  preset->GetFont().SetColor(clRed);
  inspector->GetPresets().CopyPresetsToProperty(item);
  EXPECT_EQ("hint", item->GetHint());
  EXPECT_EQ(esPickList, item->GetEditStyle());
  EXPECT_EQ(clRed, item->GetFont().GetColor());
}

}  // namespace
}  // namespace kt::tests
