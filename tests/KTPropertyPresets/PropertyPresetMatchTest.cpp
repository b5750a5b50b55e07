#include "KTPropertyPresets/PresetFixture.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"

namespace kt::tests {
namespace {

/// A class that streams do not know, and one below it.
class TMatchBase : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TMatchBase>("TMatchBase").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TMatchBase(TComponent* owner = nullptr) : TComponent(owner) {}
};

class TMatchButton : public TMatchBase {
 public:
  using Inherited = TMatchBase;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TMatchButton>("TMatchButton").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TMatchButton(TComponent* owner = nullptr) : TMatchBase(owner) {}
};

/// What is inspected: refers to a button.
class TMatchForm : public TMatchBase {
 public:
  using Inherited = TMatchBase;
  static const TClassInfo* Class() {
    static const TClassInfo info =
        TClassBuilder<TMatchForm>("TMatchForm").Property<&TMatchForm::Button>("Button").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TMatchButton* Button = nullptr;

 protected:
  explicit TMatchForm(TComponent* owner = nullptr) : TMatchBase(owner) {}
};

class PropertyPresetMatchTest : public TPresetTest {
 protected:
  void InspectForm() { FInspector->GetObjects().Add(FForm.get()); }
  /// The item of the form's property Button.
  TKTItemProperty* AddButton() {
    TKTItemProperty* item = Add("Button", tkClass, "TMatchButton");
    item->SetRealPropName("Button");
    item->SetIsRealProperty(true);
    return item;
  }

  std::unique_ptr<TMatchForm> FForm = Make<TMatchForm>();
};

// No test, and the inversion.

TEST_F(PropertyPresetMatchTest, WithoutATestNothingMatches) { EXPECT_FALSE(FPreset->Matches(Add("a"))); }

TEST_F(PropertyPresetMatchTest, AnExclusivePresetWithoutATestMatchesEverything) {
  FPreset->SetInclusive(false);
  EXPECT_TRUE(FPreset->Matches(Add("a")));
}

TEST_F(PropertyPresetMatchTest, AnExclusivePresetMatchesWhatFailsAndNotWhatPasses) {
  FPreset->GetPropNames().Add("a");
  FPreset->SetInclusive(false);
  EXPECT_FALSE(FPreset->Matches(Add("a")));
  EXPECT_TRUE(FPreset->Matches(Add("b")));
}

TEST_F(PropertyPresetMatchTest, ActiveIsNoTest) {
  FPreset->GetPropNames().Add("a");
  FPreset->SetActive(false);
  EXPECT_TRUE(FPreset->Matches(Add("a")));
}

TEST_F(PropertyPresetMatchTest, AllTestsHaveToBePassed) {
  FPreset->GetPropNames().Add("a");
  FPreset->GetTypeNames().Add("Integer");
  FPreset->SetTypeKinds({tkInteger});
  EXPECT_TRUE(FPreset->Matches(Add("a", tkInteger, "Integer")));
  EXPECT_FALSE(FPreset->Matches(Add("b", tkInteger, "Integer")));
  EXPECT_FALSE(FPreset->Matches(Add("a", tkFloat, "Integer")));
}

TEST_F(PropertyPresetMatchTest, NoItemFailsTheTestsOnItems) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  preset->GetPropNames().Add("");
  EXPECT_FALSE(preset->Matches(nullptr));
  preset->SetMatchTypes({mtPropertyType});
  preset->SetTypeKinds({tkUnknown});
  EXPECT_FALSE(preset->Matches(nullptr));
  preset->SetMatchTypes({mtParentPropertyType});
  preset->SetParentTypeKinds({tkUnknown});
  EXPECT_FALSE(preset->Matches(nullptr));
}

// Names.

TEST_F(PropertyPresetMatchTest, NamesMatchWithoutRegardToCase) {
  FPreset->GetPropNames().SetCommaText("x,Width");
  EXPECT_TRUE(FPreset->Matches(Add("wIDTH")));
  EXPECT_FALSE(FPreset->Matches(Add("Wid")));
}

TEST_F(PropertyPresetMatchTest, ANameMatchesAtAnyLevel) {
  FPreset->GetPropNames().Add("b");
  EXPECT_TRUE(FPreset->Matches(AddTo(Add("a")->GetItems(), "b")));
}

TEST_F(PropertyPresetMatchTest, WithTheFullNameOnlyAShortNameDoesNotMatch) {
  TKTItemProperty* item = AddTo(Add("a")->GetItems(), "b");
  FPreset->GetPropNames().Add("b");
  FPreset->SetMatchTypes({mtFullPropertyName});
  EXPECT_FALSE(FPreset->Matches(item));
  FPreset->GetPropNames().Add("A.B");
  FPreset->SetMatchTypes({mtFullPropertyName});
  EXPECT_TRUE(FPreset->Matches(item));
}

TEST_F(PropertyPresetMatchTest, WithTheShortNameOnlyAFullNameDoesNotMatch) {
  FPreset->GetPropNames().Add("a.b");
  EXPECT_FALSE(FPreset->Matches(AddTo(Add("a")->GetItems(), "b")));
}

TEST_F(PropertyPresetMatchTest, WithBothNamesEitherIsEnough) {
  TKTItemProperty* a = Add("a");
  TKTItemProperty* b = AddTo(a->GetItems(), "b");
  TKTItemProperty* c = AddTo(a->GetItems(), "c");
  FPreset->GetPropNames().SetCommaText("b,a.c");
  FPreset->SetMatchTypes({mtPropertyName, mtFullPropertyName});
  EXPECT_TRUE(FPreset->Matches(b));
  EXPECT_TRUE(FPreset->Matches(c));
  EXPECT_FALSE(FPreset->Matches(a));
}

TEST_F(PropertyPresetMatchTest, AnEmptyListOfNamesMatchesNoName) {
  FPreset->SetMatchTypes({mtPropertyName});
  EXPECT_FALSE(FPreset->Matches(Add("a")));
}

// Types.

TEST_F(PropertyPresetMatchTest, WithoutKindsNothingMatches) {
  FPreset->GetTypeNames().Add("Integer");
  EXPECT_FALSE(FPreset->Matches(Add("a", tkInteger, "Integer")));
  EXPECT_FALSE(FPreset->Matches(Add("b")));
}

TEST_F(PropertyPresetMatchTest, TheUnknownKindAloneStandsForAnyTypeWhateverTheNames) {
  FPreset->GetTypeNames().Add("TColor");
  FPreset->SetTypeKinds({tkUnknown});
  EXPECT_TRUE(FPreset->Matches(Add("a", tkInteger, "Integer")));
  EXPECT_TRUE(FPreset->Matches(Add("b", tkClass, "TFont")));
}

TEST_F(PropertyPresetMatchTest, TheUnknownKindAmongOthersIsAKind) {
  FPreset->SetTypeKinds({tkUnknown, tkInteger});
  FPreset->SetMatchTypes({mtPropertyType});
  EXPECT_TRUE(FPreset->Matches(Add("a")));
  EXPECT_TRUE(FPreset->Matches(Add("b", tkInteger)));
  EXPECT_FALSE(FPreset->Matches(Add("c", tkFloat)));
}

TEST_F(PropertyPresetMatchTest, WithoutTypeNamesTheKindIsEnough) {
  FPreset->SetTypeKinds({tkInteger});
  FPreset->SetMatchTypes({mtPropertyType});
  EXPECT_TRUE(FPreset->Matches(Add("a", tkInteger, "TColor")));
  EXPECT_FALSE(FPreset->Matches(Add("b", tkClass, "TFont")));
}

TEST_F(PropertyPresetMatchTest, TypeNamesMatchWithoutRegardToCaseAndOnlyWithTheKind) {
  FPreset->SetTypeKinds({tkInteger});
  FPreset->GetTypeNames().SetCommaText("TCursor,TColor");
  EXPECT_TRUE(FPreset->Matches(Add("a", tkInteger, "tcolor")));
  EXPECT_FALSE(FPreset->Matches(Add("b", tkInteger, "Integer")));
  EXPECT_FALSE(FPreset->Matches(Add("c", tkInt64, "TColor")));
}

TEST_F(PropertyPresetMatchTest, ARegisteredClassMatchesByAnyAncestor) {
  RegisterClass(TMatchButton::Class());
  FPreset->SetTypeKinds({tkClass});
  FPreset->GetTypeNames().Add("tcomponent");
  EXPECT_TRUE(FPreset->Matches(Add("a", tkClass, "TMatchButton")));
  UnRegisterClasses({TMatchButton::Class(), TMatchBase::Class()});
}

TEST_F(PropertyPresetMatchTest, AClassThatIsNotRegisteredIsWhatThePropertyDeclares) {
  InspectForm();
  FPreset->SetTypeKinds({tkClass});
  FPreset->GetTypeNames().Add("TMatchBase");
  EXPECT_TRUE(FPreset->Matches(AddButton()));
}

TEST_F(PropertyPresetMatchTest, AClassWithoutAListedAncestorDoesNotMatch) {
  InspectForm();
  FPreset->SetTypeKinds({tkClass});
  FPreset->GetTypeNames().Add("TStrings");
  EXPECT_FALSE(FPreset->Matches(AddButton()));
}

TEST_F(PropertyPresetMatchTest, WhatIsNoRealPropertyHasNoClass) {
  InspectForm();
  FPreset->SetTypeKinds({tkClass});
  FPreset->GetTypeNames().Add("TMatchBase");
  TKTItemProperty* element = Add("Items[0]", tkClass, "TMatchButton");
  EXPECT_FALSE(FPreset->Matches(element));
  FPreset->GetTypeNames().Add("TMatchButton");
  EXPECT_TRUE(FPreset->Matches(element));
}

TEST_F(PropertyPresetMatchTest, WithoutAnInspectorAnUnregisteredClassIsUnknown) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  preset->SetTypeKinds({tkClass});
  preset->GetTypeNames().Add("TMatchBase");
  const auto items = Make<TKTItemProperties>(nullptr);
  TKTItemProperty* item = AddTo(*items, "Button", tkClass, "TMatchButton");
  item->SetIsRealProperty(true);
  EXPECT_FALSE(preset->Matches(item));
}

TEST_F(PropertyPresetMatchTest, OnlyClassesMatchByAncestors) {
  FPreset->SetTypeKinds({tkInteger, tkClass});
  FPreset->GetTypeNames().Add("TPersistent");
  // An integer type that happens to be called as a class.
  EXPECT_FALSE(FPreset->Matches(Add("a", tkInteger, "TComponent")));
}

// The class of the inspected object.

TEST_F(PropertyPresetMatchTest, TheFirstInspectedObjectsClassOrAncestorHasToBeListed) {
  InspectForm();
  const auto other = Make<TMatchButton>();
  FInspector->GetObjects().Add(other.get());
  TKTItemProperty* item = Add("a");
  FPreset->GetParentClassNames().SetCommaText("TStrings,TMATCHBASE");
  EXPECT_TRUE(FPreset->Matches(item));
  FPreset->GetParentClassNames().SetCommaText("TMatchButton");
  EXPECT_FALSE(FPreset->Matches(item));
}

TEST_F(PropertyPresetMatchTest, WithoutClassNamesAnyClassMatchesAndNoneToo) {
  FPreset->SetMatchTypes({mtClassName});
  EXPECT_TRUE(FPreset->Matches(Add("a")));
  const auto alone = Make<TKTPropertyPreset>(nullptr);
  alone->SetMatchTypes({mtClassName});
  EXPECT_TRUE(alone->Matches(Add("b")));
}

TEST_F(PropertyPresetMatchTest, WithClassNamesNothingMatchesWithoutAnInspectedObject) {
  FPreset->GetParentClassNames().Add("TObject");
  EXPECT_FALSE(FPreset->Matches(Add("a")));
}

TEST_F(PropertyPresetMatchTest, WithClassNamesNothingMatchesWithoutAnInspector) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  preset->GetParentClassNames().Add("TObject");
  EXPECT_FALSE(preset->Matches(Add("a")));
}

TEST_F(PropertyPresetMatchTest, AnEntryWithoutAnObjectHasNoClass) {
  FInspector->GetObjects().Add();
  FPreset->GetParentClassNames().Add("TObject");
  EXPECT_FALSE(FPreset->Matches(Add("a")));
}

// The item above that holds an object.

class PropertyPresetParentMatchTest : public TPresetTest {
 protected:
  /// form.font.style.bold, where the style is a set.
  PropertyPresetParentMatchTest() {
    TKTItemProperty* form = Add("form", tkClass, "TMatchForm");
    FFont = AddTo(form->GetItems(), "font", tkClass, "TFont");
    FStyle = AddTo(FFont->GetItems(), "style", tkSet, "TFontStyles");
    FBold = AddTo(FStyle->GetItems(), "bold", tkEnumeration, "Boolean");
  }

  TKTItemProperty* FFont;
  TKTItemProperty* FStyle;
  TKTItemProperty* FBold;
};

TEST_F(PropertyPresetParentMatchTest, TheNameIsThatOfTheNearestItemWithAnObject) {
  FPreset->GetParentPropNames().Add("FONT");
  EXPECT_TRUE(FPreset->Matches(FStyle));
  EXPECT_TRUE(FPreset->Matches(FBold));
  EXPECT_FALSE(FPreset->Matches(FFont));
  FPreset->GetParentPropNames().SetCommaText("style");
  EXPECT_FALSE(FPreset->Matches(FBold));
}

TEST_F(PropertyPresetParentMatchTest, TheFullNameHasToBeChosen) {
  FPreset->GetParentPropNames().Add("form.font");
  EXPECT_FALSE(FPreset->Matches(FStyle));
  FPreset->SetMatchTypes({mtParentFullPropertyName});
  EXPECT_TRUE(FPreset->Matches(FStyle));
  FPreset->GetParentPropNames().SetCommaText("font");
  FPreset->SetMatchTypes({mtParentFullPropertyName});
  EXPECT_FALSE(FPreset->Matches(FStyle));
}

TEST_F(PropertyPresetParentMatchTest, OfBothNamesEitherIsEnough) {
  FPreset->SetMatchTypes({mtParentPropertyName, mtParentFullPropertyName});
  FPreset->GetParentPropNames().Add("form.font");
  EXPECT_TRUE(FPreset->Matches(FStyle));
  FPreset->GetParentPropNames().SetCommaText("font");
  EXPECT_TRUE(FPreset->Matches(FStyle));
}

TEST_F(PropertyPresetParentMatchTest, TheTypeIsThatOfTheNearestItemWithAnObject) {
  FPreset->SetParentTypeKinds({tkClass});
  FPreset->GetParentTypeNames().Add("tfont");
  EXPECT_TRUE(FPreset->Matches(FBold));
  EXPECT_FALSE(FPreset->Matches(FFont));
}

TEST_F(PropertyPresetParentMatchTest, TheTypeMatchesByAnAncestorToo) {
  RegisterClass(TFont::Class());
  FPreset->SetParentTypeKinds({tkClass});
  FPreset->GetParentTypeNames().Add("TPersistent");
  EXPECT_TRUE(FPreset->Matches(FStyle));
}

TEST_F(PropertyPresetParentMatchTest, ATopLevelItemFailsWhateverTheKinds) {
  TKTItemProperty* top = FFont->GetParent();
  FPreset->SetMatchTypes({mtParentPropertyType});
  FPreset->SetParentTypeKinds({tkUnknown});
  EXPECT_FALSE(FPreset->Matches(top));
  EXPECT_TRUE(FPreset->Matches(FFont));
  FPreset->SetMatchTypes({mtParentPropertyName});
  FPreset->GetParentPropNames().Add("");
  EXPECT_FALSE(FPreset->Matches(top));
}

TEST_F(PropertyPresetParentMatchTest, ItsListsAreNotThoseOfTheItem) {
  FPreset->SetMatchTypes({mtParentPropertyType});
  FPreset->SetTypeKinds({tkUnknown});
  EXPECT_FALSE(FPreset->Matches(FStyle));
}

// The last word.

class PropertyPresetLastWordTest : public TPresetTest {
 protected:
  TKTItemProperty* FItem = Add("a");
};

TEST_F(PropertyPresetLastWordTest, ThePresetsHandlerGetsTheOutcomeAndHasTheLastWord) {
  QStringList heard;
  FPreset->OnMatchPreset = [&](TObject* sender, TKTItemProperty* item, bool& result) {
    heard += QStringLiteral("%1 %2 %3").arg(sender == FPreset).arg(item->GetName()).arg(result);
    result = !result;
  };
  EXPECT_TRUE(FPreset->Matches(FItem));
  FPreset->GetPropNames().Add("a");
  EXPECT_FALSE(FPreset->Matches(FItem));
  FPreset->SetInclusive(false);
  EXPECT_TRUE(FPreset->Matches(FItem));
  EXPECT_EQ("1 a 0,1 a 1,1 a 0", heard.join(u','));
}

TEST_F(PropertyPresetLastWordTest, ThePresetsHandlerKeepsTheInspectorFromBeingAsked) {
  bool isAsked = false;
  FInspector->OnMatchPreset = [&](TObject*, TKTPropertyPreset*, TKTItemProperty*, bool&) { isAsked = true; };
  FPreset->OnMatchPreset = [](TObject*, TKTItemProperty*, bool&) {};
  EXPECT_EQ("", Heard([&] { FPreset->Matches(FItem); }));
  EXPECT_FALSE(isAsked);
}

TEST_F(PropertyPresetLastWordTest, WithoutAHandlerTheInspectorHasTheLastWord) {
  EXPECT_EQ("match(p,a,false)", Heard([&] { EXPECT_FALSE(FPreset->Matches(FItem)); }));
  FInspector->OnMatchPreset = [&](TObject* sender, TKTPropertyPreset* preset, TKTItemProperty* item, bool& result) {
    result = sender == FInspector.get() && preset == FPreset && item == FItem;
  };
  EXPECT_TRUE(FPreset->Matches(FItem));
}

TEST_F(PropertyPresetLastWordTest, TheInspectorIsAskedAfterTheInversion) {
  FPreset->SetInclusive(false);
  EXPECT_EQ("match(p,a,true)", Heard([&] { EXPECT_TRUE(FPreset->Matches(FItem)); }));
}

}  // namespace
}  // namespace kt::tests
