#include "KTPropertyPresets/PresetFixture.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

namespace kt::tests {
namespace {

class PropertyPresetAssignTest : public TPresetTest {
 protected:
  PropertyPresetAssignTest() {
    FSource->SetActive(false);
    FSource->SetAlias("alias");
    FSource->SetInclusive(false);
    FSource->SetHint("hint");
    FSource->SetEditMask("000");
    FSource->SetName("source");
    FSource->GetPropNames().Add("1");
    FSource->GetParentClassNames().Add("2");
    FSource->GetParentPropNames().Add("3");
    FSource->GetParentTypeNames().Add("4");
    FSource->GetTypeNames().Add("5");
    FSource->SetTypeKinds({tkClass});
    FSource->SetParentTypeKinds({tkInteger});
    FSource->GetPickList().Add("6");
    FSource->GetFont().SetColor(clRed);
    FSource->GetValueFont().SetColor(clBlue);
  }
  static std::string Lists(TKTPropertyPreset& preset) {
    return (preset.GetPropNames().GetCommaText() + preset.GetParentClassNames().GetCommaText() +
            preset.GetParentPropNames().GetCommaText() + preset.GetParentTypeNames().GetCommaText() +
            preset.GetTypeNames().GetCommaText() + preset.GetPickList().GetCommaText())
        .toStdString();
  }
  /// The names of the ordinal and text properties that differ.
  static QString Differences(TKTPropertyPreset& a, TKTPropertyPreset& b) {
    QStringList names;
    for (const TPropInfo* property : TKTPropertyPreset::Class()->Props()) {
      const bool isOrdinal = TTypeKinds{tkEnumeration, tkSet}.Has(property->Kind());
      if (isOrdinal && GetOrdProp(&a, property) != GetOrdProp(&b, property)) names += property->Name();
      if (property->Kind() == tkLString && GetStrProp(&a, property) != GetStrProp(&b, property)) {
        names += property->Name();
      }
    }
    return names.join(u' ');
  }

  std::unique_ptr<TKTPropertyPreset> FSource = Make<TKTPropertyPreset>(nullptr);
};

TEST_F(PropertyPresetAssignTest, CopiesValuesListsAndFonts) {
  FPreset->Assign(FSource.get());
  EXPECT_EQ("", Differences(*FSource, *FPreset));
  EXPECT_EQ("123456", Lists(*FPreset));
  EXPECT_EQ(clRed, FPreset->GetFont().GetColor());
  EXPECT_EQ(clBlue, FPreset->GetValueFont().GetColor());
}

TEST_F(PropertyPresetAssignTest, TellsOneChange) {
  EXPECT_EQ("update(source)", Heard([&] { FPreset->Assign(FSource.get()); }));
}

TEST_F(PropertyPresetAssignTest, SwitchesNothingOnOrOff) {
  FSource->SetActions({pftCustom});
  FSource->SetMatchTypes({mtFullPropertyName});
  FSource->SetEditStyle(esSimple);
  FSource->SetActions({pftCustom});
  FPreset->GetTypeNames().Add("x");
  FPreset->GetPickList().Add("x");
  FPreset->Assign(FSource.get());
  EXPECT_EQ(TKTPropertyPresetTypes{pftCustom}, FPreset->GetActions());
  EXPECT_EQ(TKTPresetMatchTypes{mtFullPropertyName}, FPreset->GetMatchTypes());
  EXPECT_EQ(esSimple, FPreset->GetEditStyle());
}

TEST_F(PropertyPresetAssignTest, KeepsATestOfAnEmptyList) {
  FSource->GetTypeNames().Clear();
  FSource->SetMatchTypes({mtPropertyType});
  FPreset->GetTypeNames().Add("x");
  FPreset->Assign(FSource.get());
  EXPECT_EQ(TKTPresetMatchTypes{mtPropertyType}, FPreset->GetMatchTypes());
}

TEST_F(PropertyPresetAssignTest, CopiesTheHandlersOfItemsAndDeliberatelyNotThoseOfThePreset) {
  const TKTItemPropertyEvent custom = [](TObject*, TKTItemProperty*) {};
  const TKTItemPropertyQueryEvent match = [](TObject*, TKTItemProperty*, bool&) {};
  FPreset->OnCustomPreset = custom;
  FPreset->OnMatchPreset = match;
  FSource->OnCustomPreset = [](TObject*, TKTItemProperty*) {};
  FSource->OnMatchPreset = nullptr;
  FSource->OnEditButtonClick = [](TObject*) {};
  FSource->OnGetPickList = [](TObject*, const QString&, TStrings&) {};
  FSource->OnValidate = [](TObject*, TKTItemProp*, int) {};
  FSource->OnValidated = [](TObject*, TKTItemProp*, int) {};
  FSource->OnValidateError = [](TObject*, TKTItemProp*, int, const Exception&) {};
  FSource->OnGetProperty = [](TObject*, TObject*, const QString&, QString&) {};
  FSource->OnSetProperty = [](TObject*, TObject*, const QString&, const QString&) {};
  FPreset->Assign(FSource.get());
  EXPECT_TRUE(FPreset->OnCustomPreset == custom);
  EXPECT_TRUE(FPreset->OnMatchPreset == match);
  EXPECT_TRUE(FPreset->OnEditButtonClick == FSource->OnEditButtonClick);
  EXPECT_TRUE(FPreset->OnGetPickList == FSource->OnGetPickList);
  EXPECT_TRUE(FPreset->OnValidate == FSource->OnValidate);
  EXPECT_TRUE(FPreset->OnValidated == FSource->OnValidated);
  EXPECT_TRUE(FPreset->OnValidateError == FSource->OnValidateError);
  EXPECT_TRUE(FPreset->OnGetProperty == FSource->OnGetProperty);
  EXPECT_TRUE(FPreset->OnSetProperty == FSource->OnSetProperty);
}

TEST_F(PropertyPresetAssignTest, CopiesMissingHandlersToo) {
  FPreset->OnValidate = [](TObject*, TKTItemProp*, int) {};
  FPreset->Assign(FSource.get());
  EXPECT_FALSE(FPreset->OnValidate);
}

TEST_F(PropertyPresetAssignTest, AnEmptyPickListTakesTheOwnOneAway) {
  FPreset->GetPickList().Add("own");
  FSource->GetPickList().Clear();
  FPreset->Assign(FSource.get());
  EXPECT_FALSE(FPreset->HasPickList());
  EXPECT_EQ("", FPreset->GetPickList().GetText());
}

TEST_F(PropertyPresetAssignTest, APresetAssignedToItselfStaysAsItIs) {
  FSource->Assign(FSource.get());
  EXPECT_EQ("123456", Lists(*FSource));
  EXPECT_EQ("alias", FSource->GetAlias());
}

TEST_F(PropertyPresetAssignTest, OtherSourcesAreRefused) {
  EXPECT_THROW(FPreset->Assign(Make<TFont>().get()), EConvertError);
  EXPECT_THROW(FPreset->Assign(nullptr), EConvertError);
}

}  // namespace
}  // namespace kt::tests
