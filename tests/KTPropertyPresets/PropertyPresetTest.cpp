#include "KTPropertyPresets/PresetFixture.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

namespace kt::tests {
namespace {

class PropertyPresetTest : public TPresetTest {};

// What a fresh one is like.

TEST_F(PropertyPresetTest, AFreshPresetIsActiveAndDoesNothing) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  EXPECT_TRUE(preset->GetActive());
  EXPECT_TRUE(preset->GetInclusive());
  EXPECT_TRUE(preset->GetMatchTypes().IsEmpty());
  EXPECT_TRUE(preset->GetTypeKinds().IsEmpty());
  EXPECT_TRUE(preset->GetParentTypeKinds().IsEmpty());
  EXPECT_TRUE(preset->GetActions().IsEmpty());
  EXPECT_EQ(esSimple, preset->GetEditStyle());
  EXPECT_FALSE(preset->HasPickList());
}

TEST_F(PropertyPresetTest, APresetPublishesInThisOrder) {
  QStringList names;
  for (const TPropInfo* property : TKTPropertyPreset::Class()->Props()) names += property->Name();
  EXPECT_EQ(
      "Active MatchTypes TypeKinds TypeNames ParentClassNames Alias Inclusive Font ValueFont Name PropNames "
      "ParentPropNames ParentTypeKinds ParentTypeNames Hint EditStyle EditMask OnCustomPreset OnMatchPreset "
      "OnEditButtonClick OnGetPickList OnGetProperty OnSetProperty OnValidate OnValidated OnValidateError PickList "
      "Actions",
      names.join(u' '));
}

TEST_F(PropertyPresetTest, APresetPublishesTheseTypes) {
  QStringList names;
  for (const TPropInfo* property : TKTPropertyPreset::Class()->Props()) names += property->PropType()->Name();
  EXPECT_EQ(
      "Boolean TKTPresetMatchTypes TTypeKinds TStrings TStrings string Boolean TFont TFont string TStrings TStrings "
      "TTypeKinds TStrings string TEditStyle string TKTItemPropertyEvent TKTItemPropertyQueryEvent TNotifyEvent "
      "TKTGetPickListEvent TKTItemGetPropertyEvent TKTItemSetPropertyEvent TKTOnValidateEvent TKTOnValidateEvent "
      "TKTOnValidateErrorEvent TStrings TKTPropertyPresetTypes",
      names.join(u' '));
}

TEST_F(PropertyPresetTest, OrdinalsAreAtTheirDefaultsAndActionsHaveNone) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  QStringList different;
  QStringList without;
  for (const TPropInfo* property : TKTPropertyPreset::Class()->Props()) {
    if (!TTypeKinds{tkEnumeration, tkSet}.Has(property->Kind())) continue;
    if (!property->HasDefault()) without += property->Name();
    if (property->HasDefault() && GetOrdProp(preset.get(), property) != property->Default()) {
      different += property->Name();
    }
  }
  EXPECT_EQ("", different.join(u' '));
  EXPECT_EQ("Actions", without.join(u' '));
}

TEST_F(PropertyPresetTest, SetsHaveABitForEachName) {
  EXPECT_EQ(1u << 6, TKTPresetMatchTypes{mtParentPropertyType}.Bits());
  EXPECT_EQ(1u << 11, TKTPropertyPresetTypes{pftValueFont}.Bits());
}

// Setters.

struct TPresetSetting {
  const char* Name;
  std::function<void(TKTPropertyPreset&)> Set;
};

void PrintTo(const TPresetSetting& setting, std::ostream* out) { *out << setting.Name; }

const TPresetSetting PresetSettings[] = {
    {"Active", [](TKTPropertyPreset& preset) { preset.SetActive(false); }},
    {"MatchTypes", [](TKTPropertyPreset& preset) { preset.SetMatchTypes({mtClassName}); }},
    {"TypeKinds", [](TKTPropertyPreset& preset) { preset.SetTypeKinds({tkClass}); }},
    {"ParentTypeKinds", [](TKTPropertyPreset& preset) { preset.SetParentTypeKinds({tkClass}); }},
    {"Alias", [](TKTPropertyPreset& preset) { preset.SetAlias("a"); }},
    {"Inclusive", [](TKTPropertyPreset& preset) { preset.SetInclusive(false); }},
    {"Name", [](TKTPropertyPreset& preset) { preset.SetName("P"); }},
    {"Hint", [](TKTPropertyPreset& preset) { preset.SetHint("a"); }},
    {"EditMask", [](TKTPropertyPreset& preset) { preset.SetEditMask("a"); }},
    {"EditStyle", [](TKTPropertyPreset& preset) { preset.SetEditStyle(esEllipsis); }},
    {"Actions", [](TKTPropertyPreset& preset) { preset.SetActions({pftHidden}); }},
    {"FontColor", [](TKTPropertyPreset& preset) { preset.GetFont().SetColor(clRed); }},
    {"ValueFontColor", [](TKTPropertyPreset& preset) { preset.GetValueFont().SetColor(clRed); }},
};

class PropertyPresetSettersTest : public TPresetTest, public testing::WithParamInterface<TPresetSetting> {};

TEST_P(PropertyPresetSettersTest, ANewValueTellsOneChange) {
  const std::string heard = Heard([&] { GetParam().Set(*FPreset); });
  EXPECT_EQ("update(" + FPreset->GetDisplayName().toStdString() + ")", heard);
}

TEST_P(PropertyPresetSettersTest, ThePresentValueTellsNobodyAndSwitchesNothing) {
  GetParam().Set(*FPreset);
  FPreset->SetActions({pftCustom});
  const TKTPropertyPresetTypes actions = FPreset->GetActions();
  FInspector->Log.clear();
  // For Actions itself that is the value of just now.
  if (std::string("Actions") != GetParam().Name) GetParam().Set(*FPreset);
  FPreset->SetActions(actions);
  EXPECT_EQ(QStringList(), FInspector->Log);
  EXPECT_EQ(actions, FPreset->GetActions());
}

TEST_P(PropertyPresetSettersTest, WorksWithoutAnInspector) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  EXPECT_NO_THROW(GetParam().Set(*preset));
}

INSTANTIATE_TEST_SUITE_P(Settings, PropertyPresetSettersTest, testing::ValuesIn(PresetSettings),
                         [](const auto& test) { return std::string(test.param.Name); });

TEST_F(PropertyPresetTest, TextsOfAnotherCaseAreAnotherValue) {
  FPreset->SetAlias("a");
  FPreset->SetAlias("A");
  EXPECT_EQ("A", FPreset->GetAlias());
}

// What setters switch on and off.

TEST_F(PropertyPresetTest, AnAliasSwitchesItsActionOnAndAnEmptyOneOff) {
  FPreset->SetAlias("a");
  EXPECT_EQ(TKTPropertyPresetTypes{pftAlias}, FPreset->GetActions());
  FPreset->SetAlias("");
  EXPECT_EQ(TKTPropertyPresetTypes{}, FPreset->GetActions());
}

TEST_F(PropertyPresetTest, AHintSwitchesItsActionOnAndAnEmptyOneOff) {
  FPreset->SetHint("a");
  EXPECT_EQ(TKTPropertyPresetTypes{pftHint}, FPreset->GetActions());
  FPreset->SetHint("");
  EXPECT_EQ(TKTPropertyPresetTypes{}, FPreset->GetActions());
}

TEST_F(PropertyPresetTest, AMaskSwitchesItsActionOnAndAnEmptyOneOff) {
  FPreset->SetEditMask("000");
  EXPECT_EQ(TKTPropertyPresetTypes{pftEditMask}, FPreset->GetActions());
  FPreset->SetEditMask("");
  EXPECT_EQ(TKTPropertyPresetTypes{}, FPreset->GetActions());
}

TEST_F(PropertyPresetTest, AnyNewEditStyleSwitchesItsActionOn) {
  FPreset->SetEditStyle(esEllipsis);
  FPreset->SetActions({});
  FPreset->SetEditStyle(esSimple);
  EXPECT_EQ(TKTPropertyPresetTypes{pftEditStyle}, FPreset->GetActions());
}

TEST_F(PropertyPresetTest, OtherSettersSwitchNothing) {
  FPreset->SetActive(false);
  FPreset->SetInclusive(false);
  FPreset->SetName("other");
  FPreset->SetMatchTypes({mtFullPropertyName});
  FPreset->SetTypeKinds({tkClass});
  FPreset->SetParentTypeKinds({tkClass});
  EXPECT_EQ(TKTPropertyPresetTypes{}, FPreset->GetActions());
  EXPECT_EQ(TKTPresetMatchTypes{mtFullPropertyName}, FPreset->GetMatchTypes());
}

TEST_F(PropertyPresetTest, FontsSwitchTheirActionsOn) {
  FPreset->GetFont().SetColor(clRed);
  EXPECT_EQ(TKTPropertyPresetTypes{pftFont}, FPreset->GetActions());
  FPreset->GetValueFont().SetColor(clRed);
  EXPECT_EQ((TKTPropertyPresetTypes{pftFont, pftValueFont}), FPreset->GetActions());
}

TEST_F(PropertyPresetTest, ActionsThatContradictEachOtherAreRefusedSilently) {
  FPreset->SetActions({pftHint});
  EXPECT_EQ("", Heard([&] { FPreset->SetActions({pftReadOnly, pftWritable}); }));
  FPreset->SetActions({pftVisible, pftHidden, pftAlias});
  EXPECT_EQ(TKTPropertyPresetTypes{pftHint}, FPreset->GetActions());
}

TEST_F(PropertyPresetTest, ActionsThatDoNotContradictEachOtherAreTaken) {
  FPreset->SetActions({pftReadOnly, pftHidden});
  EXPECT_EQ((TKTPropertyPresetTypes{pftReadOnly, pftHidden}), FPreset->GetActions());
  FPreset->SetActions({pftWritable, pftVisible});
  EXPECT_EQ((TKTPropertyPresetTypes{pftWritable, pftVisible}), FPreset->GetActions());
}

// Lists of names.

struct TPresetNames {
  const char* Name;
  TStrings& (TKTPropertyPreset::*Get)() const;
  void (TKTPropertyPreset::*Set)(TStrings&);
  TKTPresetMatchType Test;
};

void PrintTo(const TPresetNames& names, std::ostream* out) { *out << names.Name; }

using TPreset = TKTPropertyPreset;
const TPresetNames PresetNames[] = {
    {"ParentClassNames", &TPreset::GetParentClassNames, &TPreset::SetParentClassNames, mtClassName},
    {"TypeNames", &TPreset::GetTypeNames, &TPreset::SetTypeNames, mtPropertyType},
    {"PropNames", &TPreset::GetPropNames, &TPreset::SetPropNames, mtPropertyName},
    {"ParentPropNames", &TPreset::GetParentPropNames, &TPreset::SetParentPropNames, mtParentPropertyName},
    {"ParentTypeNames", &TPreset::GetParentTypeNames, &TPreset::SetParentTypeNames, mtParentPropertyType},
};

class PropertyPresetNamesTest : public TPresetTest, public testing::WithParamInterface<TPresetNames> {
 protected:
  TStrings& Names() { return (FPreset->*GetParam().Get)(); }
};

TEST_P(PropertyPresetNamesTest, LinesSwitchTheTestOnAndTellOneChange) {
  EXPECT_EQ("update(p)", Heard([&] { Names().Add("x"); }));
  EXPECT_EQ(TKTPresetMatchTypes{GetParam().Test}, FPreset->GetMatchTypes());
}

TEST_P(PropertyPresetNamesTest, WithoutLinesTheTestIsSwitchedOff) {
  FPreset->SetMatchTypes({mtFullPropertyName, mtParentFullPropertyName});
  Names().Add("x");
  EXPECT_EQ("update(p)", Heard([&] { Names().Clear(); }));
  EXPECT_EQ((TKTPresetMatchTypes{mtFullPropertyName, mtParentFullPropertyName}), FPreset->GetMatchTypes());
}

TEST_P(PropertyPresetNamesTest, AnotherChoiceMadeAfterwardsStays) {
  Names().Add("x");
  FPreset->SetMatchTypes({});
  EXPECT_EQ(TKTPresetMatchTypes{}, FPreset->GetMatchTypes());
}

TEST_P(PropertyPresetNamesTest, SettingCopiesTheLinesIntoTheSameList) {
  const TStrings* list = &Names();
  const auto other = Make<TStringList>();
  other->SetCommaText("x,y");
  TKTPropertyPreset& preset = *FPreset;
  const auto set = GetParam().Set;
  EXPECT_EQ("update(p)", Heard([&] { (preset.*set)(*other); }));
  EXPECT_EQ(list, &Names());
  EXPECT_EQ("x,y", Names().GetCommaText());
  EXPECT_TRUE(FPreset->GetMatchTypes().Has(GetParam().Test));
}

INSTANTIATE_TEST_SUITE_P(Lists, PropertyPresetNamesTest, testing::ValuesIn(PresetNames),
                         [](const auto& test) { return std::string(test.param.Name); });

// The pick list.

TEST_F(PropertyPresetTest, PickedLinesMakeASimpleStyleAPickList) {
  EXPECT_EQ("update(p)", Heard([&] { FPreset->GetPickList().Add("x"); }));
  EXPECT_EQ(esPickList, FPreset->GetEditStyle());
  EXPECT_EQ(TKTPropertyPresetTypes{pftEditStyle}, FPreset->GetActions());
  EXPECT_TRUE(FPreset->HasPickList());
}

TEST_F(PropertyPresetTest, WithoutPickedLinesAPickListBecomesSimple) {
  FPreset->GetPickList().Add("x");
  FPreset->SetActions({});
  EXPECT_EQ("update(p)", Heard([&] { FPreset->GetPickList().Clear(); }));
  EXPECT_EQ(esSimple, FPreset->GetEditStyle());
  EXPECT_EQ(TKTPropertyPresetTypes{pftEditStyle}, FPreset->GetActions());
  EXPECT_FALSE(FPreset->HasPickList());
}

TEST_F(PropertyPresetTest, PickedLinesLeaveAnEllipsisAlone) {
  FPreset->SetEditStyle(esEllipsis);
  EXPECT_EQ("update(p)", Heard([&] { FPreset->GetPickList().Add("x"); }));
  FPreset->GetPickList().Clear();
  EXPECT_EQ(esEllipsis, FPreset->GetEditStyle());
}

TEST_F(PropertyPresetTest, SettingThePickListCopiesIt) {
  const auto lines = Make<TStringList>();
  lines->SetCommaText("x,y");
  FPreset->SetPickList(*lines);
  EXPECT_EQ("x,y", FPreset->GetPickList().GetCommaText());
  EXPECT_EQ(esPickList, FPreset->GetEditStyle());
}

// Where it belongs.

TEST_F(PropertyPresetTest, IsDisplayedByItsNameOrElseItsClass) {
  EXPECT_EQ("p", FPreset->GetDisplayName());
  FPreset->SetName("");
  EXPECT_EQ("TKTPropertyPreset", FPreset->GetDisplayName());
}

TEST_F(PropertyPresetTest, KnowsTheInspectorWhosePresetsItIsAmong) {
  EXPECT_EQ(FInspector.get(), FPreset->GetInspector());
  const std::unique_ptr<TKTPropertyPreset> preset(FPreset);
  preset->SetCollection(nullptr);
  EXPECT_EQ(nullptr, preset->GetInspector());
}

/// Presets that belong to nobody's inspector.
class TOtherPresets : public TOwnedCollection {
 public:
  using Inherited = TOwnedCollection;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TOtherPresets>("TOtherPresets").Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TOtherPresets(TPersistent* owner) : TOwnedCollection(owner, TKTPropertyPreset::Class()) {}
};

TEST_F(PropertyPresetTest, KnowsNoInspectorInAnotherCollection) {
  const auto others = Make<TOtherPresets>(FInspector.get());
  EXPECT_EQ(nullptr, static_cast<TKTPropertyPreset*>(others->Add())->GetInspector());
  EXPECT_EQ(nullptr, Make<TKTPropertyPresets>(nullptr)->Add()->GetInspector());
}

TEST_F(PropertyPresetTest, TheItemOfAHandlerIsTheSenderOrElseFoundByItsPath) {
  TKTItemProperty* a = Add("a");
  TKTItemProperty* b = AddTo(a->GetItems(), "b");
  EXPECT_EQ(a, FPreset->GetItemProperty(a, "a.b"));
  EXPECT_EQ(b, FPreset->GetItemProperty(FInspector.get(), "a.b"));
  EXPECT_EQ(b, FPreset->GetItemProperty(nullptr, "a.b"));
  EXPECT_EQ(nullptr, FPreset->GetItemProperty(nullptr, "b"));
}

TEST_F(PropertyPresetTest, WithoutAnInspectorTheItemOfAHandlerIsTheSenderOnly) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  TKTItemProperty* a = Add("a");
  EXPECT_EQ(a, preset->GetItemProperty(a, "x"));
  EXPECT_EQ(nullptr, preset->GetItemProperty(nullptr, "a"));
}

/// What the inspector sees of a preset that comes: it is complete.
class TCuriousInspector : public TPresetInspector {
 public:
  QString Seen;

 protected:
  void PresetNotify(TKTPropertyPreset* preset, TCollectionNotification action) override {
    Seen = preset->GetFont().GetName() + preset->GetTypeNames().GetText() + preset->GetPickList().GetText();
    TPresetInspector::PresetNotify(preset, action);
  }
};

TEST(NewPropertyPresetTest, IsCompleteWhenTheInspectorHearsOfIt) {
  const auto inspector = Make<TCuriousInspector>();
  inspector->GetPresets().Add();
  EXPECT_EQ(inspector->GetFont().GetName(), inspector->Seen);
}

// Fonts.

class PropertyPresetFontsTest : public TPresetTest {
 protected:
  PropertyPresetFontsTest() {
    Presets().Clear();
    FInspector->GetFont().SetColor(clGreen);
    FInspector->GetValueFont().SetColor(clTeal);
    FPreset = Presets().Add();
    FPreset->SetName("p");
  }
};

TEST_F(PropertyPresetFontsTest, TheFontOfANewPresetIsTheInspectorsAndTheValueFontIsNot) {
  EXPECT_EQ(clGreen, FPreset->GetFont().GetColor());
  EXPECT_EQ(clWindowText, FPreset->GetValueFont().GetColor());
  EXPECT_EQ(TKTPropertyPresetTypes{}, FPreset->GetActions());
}

TEST_F(PropertyPresetFontsTest, ThoseOfAPresetWithoutInspectorAreFreshOnes) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  EXPECT_TRUE(preset->GetFont().IsSameAs(*Make<TFont>()));
  EXPECT_TRUE(preset->GetValueFont().IsSameAs(*Make<TFont>()));
}

TEST_F(PropertyPresetFontsTest, TheFontFollowsTheInspectorsAndThatIsNobodysChoice) {
  EXPECT_EQ("update(p)", Heard([&] { FInspector->GetFont().SetColor(clRed); }));
  EXPECT_EQ(clRed, FPreset->GetFont().GetColor());
  EXPECT_EQ(TKTPropertyPresetTypes{}, FPreset->GetActions());
}

TEST_F(PropertyPresetFontsTest, TheValueFontFollowsTheInspectorsAndThatIsNobodysChoice) {
  FInspector->GetValueFont().SetColor(clRed);
  EXPECT_EQ(clRed, FPreset->GetValueFont().GetColor());
  EXPECT_EQ(clGreen, FPreset->GetFont().GetColor());
  EXPECT_EQ(TKTPropertyPresetTypes{}, FPreset->GetActions());
}

TEST_F(PropertyPresetFontsTest, WhatIsThePresetsOwnDoesNotFollow) {
  FPreset->GetFont().SetColor(clMaroon);
  FInspector->GetFont().SetColor(clRed);
  FInspector->GetFont().SetStyle({fsItalic});
  EXPECT_EQ(clMaroon, FPreset->GetFont().GetColor());
  EXPECT_EQ(TFontStyles{fsItalic}, FPreset->GetFont().GetStyle());
}

TEST_F(PropertyPresetFontsTest, AChoiceAfterAFontHasFollowedCountsAgain) {
  FInspector->GetFont().SetColor(clRed);
  FPreset->GetFont().SetColor(clBlue);
  EXPECT_EQ(TKTPropertyPresetTypes{pftFont}, FPreset->GetActions());
}

TEST_F(PropertyPresetFontsTest, FollowingWithNothingToFollowLeavesLaterChoicesAlone) {
  FPreset->InspectorFontChanged();
  FPreset->InspectorValueFontChanged();
  EXPECT_EQ(TKTPropertyPresetTypes{pftValueFont}, [&] {
    FPreset->SetActions({});
    FPreset->GetValueFont().SetColor(clBlue);
    return FPreset->GetActions();
  }());
}

TEST_F(PropertyPresetFontsTest, WithoutAnInspectorThereIsNothingToFollow) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  preset->InspectorFontChanged();
  preset->InspectorValueFontChanged();
  EXPECT_TRUE(preset->GetFont().IsSameAs(*Make<TFont>()));
}

TEST_F(PropertyPresetFontsTest, SettingAFontCopiesIt) {
  const auto font = Make<TFont>();
  font->SetStyle({fsBold});
  FPreset->SetFont(*font);
  FPreset->SetValueFont(*font);
  EXPECT_TRUE(FPreset->GetFont().IsSameAs(*font));
  EXPECT_TRUE(FPreset->GetValueFont().IsSameAs(*font));
  EXPECT_EQ((TKTPropertyPresetTypes{pftFont, pftValueFont}), FPreset->GetActions());
}

}  // namespace
}  // namespace kt::tests
