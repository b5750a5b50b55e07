// An inspector that inspects itself, and random edits against plain reflection.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <random>

namespace kt::tests {
namespace {

using InspectorSelfTest = TInspectorTest;

TEST_F(InspectorSelfTest, AnInspectorListsItselfWithPresetsAndItemsInPlace) {
  FInspector->SetName("Self");
  FInspector->GetPresets().Add()->SetName("preset");
  FInspector->SetInplaceCollections(true);
  FInspector->SetInplaceTStrings(true);
  Inspect({FInspector.get()});
  EXPECT_EQ("True", Value("InplaceCollections"));
  EXPECT_EQ("preset", Value("Presets.Items[0].Name"));
  EXPECT_EQ("Self", Value("Objects.Items[0].Component"));
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

/// Writes the same texts to one sample through an inspector and to another by reflection.
TEST_F(InspectorSelfTest, RandomEditsDoWhatReflectionDoes) {
  const auto inspected = Make<TSample>();
  const auto second = Make<TSample>();
  const auto plain = Make<TSample>();
  Inspect({inspected.get(), second.get()});
  const QStringList names = {"Whole", "Small",     "Color",    "Flag", "Align",  "Ratio", "Price",
                             "Text",  "ShortText", "WideText", "Big",  "Styles", "Tag"};
  const QStringList texts = {
      "0", "7", "-3", "300", "abc", "", "True", "saTop", "1.25", "[ssBold,ssItalic]", "ssBold", "$F", "99999999999999"};
  std::mt19937 random(1);
  for (int step = 0; step < 3000; ++step) {
    const QString name = names[int(random() % unsigned(names.size()))];
    const QString text = texts[int(random() % unsigned(texts.size()))];
    QString expected, actual;
    try {
      SetPropValue(plain.get(), name, Variant(text));
    } catch (const Exception& error) {
      expected = error.Message();
    }
    try {
      Edit(name, text);
    } catch (const Exception& error) {
      actual = error.Message();
    }
    ASSERT_EQ(expected, actual) << step << ' ' << name.toStdString() << '=' << text.toStdString();
    for (TSample* sample : {inspected.get(), second.get()}) {
      ASSERT_EQ(VarToStr(GetPropValue(plain.get(), name)), VarToStr(GetPropValue(sample, name)))
          << step << ' ' << name.toStdString() << '=' << text.toStdString();
    }
    if (random() % 8 == 0) Deliver();
  }
}

}  // namespace
}  // namespace kt::tests
