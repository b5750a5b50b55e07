// The presets that an inspector makes of the registered classes.
#include "KTPropertyPresets/PresetFixture.h"
#include "kt/KTPropertyPresets/PresetRegistry.h"
#include "kt/rtl/objects/ClassRegistry.h"

namespace kt::tests {
namespace {

template <const char* Name, class Base>
class TNamedPreset : public Base {
 public:
  using Inherited = Base;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TNamedPreset>(Name).Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TNamedPreset(TCollection* collection) : Base(collection) {}
};

constexpr char NameOfFirst[] = "TFirstPreset";
constexpr char NameOfSecond[] = "TSecondPreset";
constexpr char NameOfThird[] = "TThirdPreset";
using TFirstPreset = TNamedPreset<NameOfFirst, TKTPropertyPreset>;
using TSecondPreset = TNamedPreset<NameOfSecond, TKTPropertyPreset>;
using TThirdPreset = TNamedPreset<NameOfThird, TFirstPreset>;

class InspectorPresetsTest : public testing::Test {
 protected:
  InspectorPresetsTest() { RegisterPresets({TFirstPreset::Class(), TSecondPreset::Class()}); }
  ~InspectorPresetsTest() override {
    UnregisterPresets({TFirstPreset::Class(), TSecondPreset::Class()});
    UnRegisterClasses({TFirstPreset::Class(), TSecondPreset::Class()});
  }
  /// The classes of the presets that are of these two, and of the base.
  static std::string Classes(TKTPropertyPresets& presets) {
    QStringList names;
    for (int i = 0; i < presets.GetCount(); ++i) {
      const TClassInfo* presetClass = presets.GetItem(i)->ClassType();
      const bool isOwn = presetClass == TFirstPreset::Class() || presetClass == TSecondPreset::Class();
      if (isOwn || presetClass == TKTPropertyPreset::Class()) names += presetClass->ClassName();
    }
    return names.join(u' ').toStdString();
  }
};

TEST_F(InspectorPresetsTest, ANewInspectorHasAPresetOfEachRegisteredClassInTheirOrder) {
  const auto inspector = Make<TKTObjectInspector>();
  EXPECT_EQ("TFirstPreset TSecondPreset", Classes(inspector->GetPresets()));
}

TEST_F(InspectorPresetsTest, ResettingAddsOnlyWhatIsMissing) {
  const auto inspector = Make<TKTObjectInspector>();
  TKTPropertyPresets& presets = inspector->GetPresets();
  const int count = presets.GetCount();
  inspector->ResetDefaultPresets();
  EXPECT_EQ(count, presets.GetCount());
  TKTPropertyPreset* second = presets.GetItem(presets.IndexOf(TSecondPreset::Class()));
  second->SetName("kept");
  presets.Add()->SetName("own");
  delete presets.GetItem(presets.IndexOf(TFirstPreset::Class()));
  inspector->ResetDefaultPresets();
  EXPECT_EQ("TSecondPreset TKTPropertyPreset TFirstPreset", Classes(presets));
  EXPECT_EQ("kept", second->GetName());
}

TEST_F(InspectorPresetsTest, APresetOfADescendantDoesNotStandForItsAncestor) {
  const auto inspector = Make<TKTObjectInspector>();
  inspector->GetPresets().Clear();
  inspector->GetPresets().Add(TThirdPreset::Class());
  inspector->ResetDefaultPresets();
  EXPECT_EQ("TFirstPreset TSecondPreset", Classes(inspector->GetPresets()));
}

}  // namespace
}  // namespace kt::tests
