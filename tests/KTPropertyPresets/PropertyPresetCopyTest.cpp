#include "KTPropertyPresets/PresetFixture.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/objects/Exceptions.h"

namespace kt::tests {
namespace {

/// A preset whose handlers are its own methods.
class TServingPreset : public TKTPropertyPreset {
 public:
  using Inherited = TKTPropertyPreset;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TServingPreset>("TServingPreset").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  void Click(TObject* sender) { Clicked = sender; }
  void Fill(TObject*, const QString&, TStrings& values) { values.Add("filled"); }
  void Get(TObject*, TObject*, const QString&, QString& value) { value = "got"; }
  void Put(TObject*, TObject*, const QString&, const QString&) {}
  void Check(TObject*, TKTItemProp*, int) {}
  void Fail(TObject*, TKTItemProp*, int, const Exception&) {}

  TObject* Clicked = nullptr;

 protected:
  explicit TServingPreset(TCollection* collection) : TKTPropertyPreset(collection) {}

  void Construct() override {
    TKTPropertyPreset::Construct();
    OnEditButtonClick = {this, &TServingPreset::Click};
    OnGetPickList = {this, &TServingPreset::Fill};
    OnGetProperty = {this, &TServingPreset::Get};
    OnSetProperty = {this, &TServingPreset::Put};
    OnValidate = {this, &TServingPreset::Check};
    OnValidated = {this, &TServingPreset::Check};
    OnValidateError = {this, &TServingPreset::Fail};
  }
};

class PropertyPresetCopyTest : public TPresetTest {
 protected:
  void Copy() { FPreset->CopyPreset(FItem); }
  void CopyOf(TKTPropertyPresetTypes actions) {
    FPreset->SetActions(actions);
    Copy();
  }

  TKTItemProperty* FItem = Add("a");
};

TEST_F(PropertyPresetCopyTest, WithoutActionsNothingIsCopied) {
  FPreset->SetAlias("x");
  FPreset->SetHint("x");
  FPreset->SetEditMask("x");
  FPreset->SetEditStyle(esEllipsis);
  FPreset->GetFont().SetColor(clRed);
  FPreset->OnValidate = [](TObject*, TKTItemProp*, int) {};
  FPreset->OnCustomPreset = [](TObject*, TKTItemProperty* item) { item->SetTag(1); };
  CopyOf({});
  EXPECT_EQ("a", FItem->GetName());
  EXPECT_EQ("", FItem->GetHint());
  EXPECT_EQ("", FItem->GetEditMask());
  EXPECT_EQ(esSimple, FItem->GetEditStyle());
  EXPECT_TRUE(FItem->GetParentFont());
  EXPECT_FALSE(FItem->GetOnValidate());
  EXPECT_EQ(0, FItem->GetTag());
}

TEST_F(PropertyPresetCopyTest, TheAliasIsTheItemsNameAndNotItsPropertys) {
  FItem->SetRealPropName("a");
  FPreset->SetAlias("Alias");
  Copy();
  EXPECT_EQ("Alias", FItem->GetName());
  EXPECT_EQ("a", FItem->GetRealPropName());
}

TEST_F(PropertyPresetCopyTest, AnEmptyAliasThatIsChosenIsCopied) {
  CopyOf({pftAlias});
  EXPECT_EQ("", FItem->GetName());
}

TEST_F(PropertyPresetCopyTest, ItemsAreMadeReadOnlyAndWritable) {
  CopyOf({pftReadOnly});
  EXPECT_TRUE(FItem->GetReadOnly());
  CopyOf({pftWritable});
  EXPECT_FALSE(FItem->GetReadOnly());
}

TEST_F(PropertyPresetCopyTest, ItemsAreHiddenAndShown) {
  CopyOf({pftHidden});
  EXPECT_FALSE(FItem->GetVisible());
  CopyOf({pftVisible});
  EXPECT_TRUE(FItem->GetVisible());
}

TEST_F(PropertyPresetCopyTest, HintAndMaskAreCopied) {
  FPreset->SetHint("hint");
  FPreset->SetEditMask("000");
  Copy();
  EXPECT_EQ("hint", FItem->GetHint());
  EXPECT_EQ("000", FItem->GetEditMask());
}

TEST_F(PropertyPresetCopyTest, AnEllipsisComesWithItsHandlerAndWithoutAPickList) {
  int clicks = 0;
  FPreset->OnEditButtonClick = [&](TObject*) { ++clicks; };
  FPreset->OnGetPickList = [](TObject*, const QString&, TStrings&) {};
  FPreset->SetEditStyle(esEllipsis);
  FPreset->GetPickList().Add("x");
  Copy();
  EXPECT_EQ(esEllipsis, FItem->GetEditStyle());
  FItem->GetOnEditButtonClick()(FItem);
  EXPECT_EQ(1, clicks);
  EXPECT_FALSE(FItem->GetOnGetPickList());
  EXPECT_FALSE(FItem->HasPickList());
}

TEST_F(PropertyPresetCopyTest, AnEllipsisWithoutHandlerTakesTheItemsAway) {
  FItem->SetOnEditButtonClick([](TObject*) {});
  FPreset->SetEditStyle(esEllipsis);
  Copy();
  EXPECT_FALSE(FItem->GetOnEditButtonClick());
}

TEST_F(PropertyPresetCopyTest, APickListComesWithItsLinesAndHandler) {
  FPreset->OnGetPickList = [](TObject*, const QString&, TStrings& values) { values.Add("filled"); };
  FPreset->OnEditButtonClick = [](TObject*) {};
  FPreset->GetPickList().SetCommaText("x,y");
  Copy();
  EXPECT_EQ(esPickList, FItem->GetEditStyle());
  EXPECT_EQ("x,y", FItem->GetPickList().GetCommaText());
  EXPECT_TRUE(FItem->GetOnGetPickList() == FPreset->OnGetPickList);
  EXPECT_FALSE(FItem->GetOnEditButtonClick());
}

TEST_F(PropertyPresetCopyTest, AnEmptyPickListLeavesTheItemsLinesAndTakesItsHandler) {
  FItem->GetPickList().Add("own");
  FItem->SetOnGetPickList([](TObject*, const QString&, TStrings&) {});
  FPreset->SetEditStyle(esPickList);
  Copy();
  EXPECT_EQ("own", FItem->GetPickList().GetCommaText());
  EXPECT_FALSE(FItem->GetOnGetPickList());
}

TEST_F(PropertyPresetCopyTest, ASimpleStyleComesWithoutHandlers) {
  FItem->SetEditStyle(esEllipsis);
  FItem->SetOnEditButtonClick([](TObject*) {});
  CopyOf({pftEditStyle});
  EXPECT_EQ(esSimple, FItem->GetEditStyle());
  EXPECT_TRUE(FItem->GetOnEditButtonClick());
}

TEST_F(PropertyPresetCopyTest, TheHandlersOfValidationAreCopied) {
  FPreset->OnValidate = [](TObject*, TKTItemProp*, int) {};
  FPreset->OnValidated = [](TObject*, TKTItemProp*, int) {};
  FPreset->OnValidateError = [](TObject*, TKTItemProp*, int, const Exception&) {};
  FPreset->OnGetProperty = [](TObject*, TObject*, const QString&, QString&) {};
  FPreset->OnSetProperty = [](TObject*, TObject*, const QString&, const QString&) {};
  CopyOf({pftValidate});
  EXPECT_TRUE(FPreset->OnValidate == FItem->GetOnValidate());
  EXPECT_TRUE(FPreset->OnValidated == FItem->GetOnValidated());
  EXPECT_TRUE(FPreset->OnValidateError == FItem->GetOnValidateError());
  EXPECT_TRUE(FPreset->OnGetProperty == FItem->GetOnGetProperty());
  EXPECT_TRUE(FPreset->OnSetProperty == FItem->GetOnSetProperty());
}

TEST_F(PropertyPresetCopyTest, MissingHandlersOfValidationTakeTheItemsAway) {
  FItem->SetOnValidate([](TObject*, TKTItemProp*, int) {});
  FItem->SetOnValidated([](TObject*, TKTItemProp*, int) {});
  FItem->SetOnValidateError([](TObject*, TKTItemProp*, int, const Exception&) {});
  FItem->SetOnGetProperty([](TObject*, TObject*, const QString&, QString&) {});
  FItem->SetOnSetProperty([](TObject*, TObject*, const QString&, const QString&) {});
  CopyOf({pftValidate});
  EXPECT_FALSE(FItem->GetOnValidate());
  EXPECT_FALSE(FItem->GetOnValidated());
  EXPECT_FALSE(FItem->GetOnValidateError());
  EXPECT_FALSE(FItem->GetOnGetProperty());
  EXPECT_FALSE(FItem->GetOnSetProperty());
}

TEST_F(PropertyPresetCopyTest, FontsAreCopiedEachByItsAction) {
  FPreset->GetFont().SetColor(clRed);
  FPreset->GetValueFont().SetColor(clBlue);
  CopyOf({pftFont});
  EXPECT_EQ(clRed, FItem->GetFont().GetColor());
  EXPECT_FALSE(FItem->GetParentFont());
  EXPECT_TRUE(FItem->GetParentValueFont());
  CopyOf({pftValueFont});
  EXPECT_EQ(clBlue, FItem->GetValueFont().GetColor());
}

// The custom action.

TEST_F(PropertyPresetCopyTest, ThePresetsHandlerIsTheCustomAction) {
  FPreset->OnCustomPreset = [&](TObject* sender, TKTItemProperty* item) { item->SetTag(sender == FPreset ? 1 : 2); };
  EXPECT_EQ("", [&] {
    FPreset->SetActions({pftCustom});
    return Heard([&] { Copy(); });
  }());
  EXPECT_EQ(1, FItem->GetTag());
}

TEST_F(PropertyPresetCopyTest, WithoutAHandlerTheInspectorsIsTheCustomAction) {
  FInspector->OnCustomPreset = [&](TObject* sender, TKTPropertyPreset* preset, TKTItemProperty* item) {
    item->SetTag(sender == FInspector.get() && preset == FPreset ? 1 : 2);
  };
  FPreset->SetActions({pftCustom});
  EXPECT_EQ("custom(p,a)", Heard([&] { Copy(); }));
  EXPECT_EQ(1, FItem->GetTag());
}

TEST_F(PropertyPresetCopyTest, TheCustomActionIsTheLast) {
  FPreset->SetHint("hint");
  FPreset->GetFont().SetColor(clRed);
  FPreset->GetValueFont().SetColor(clBlue);
  FPreset->OnValidate = [](TObject*, TKTItemProp*, int) {};
  FPreset->SetActions(FPreset->GetActions() + TKTPropertyPresetTypes{pftCustom, pftValidate});
  QString seen;
  FPreset->OnCustomPreset = [&](TObject*, TKTItemProperty* item) {
    seen = item->GetHint() + (item->GetOnValidate() ? " validates" : "");
    seen += item->GetFont().GetColor() == clRed && item->GetValueFont().GetColor() == clBlue ? " fonts" : "";
  };
  Copy();
  EXPECT_EQ("hint validates fonts", seen);
}

TEST_F(PropertyPresetCopyTest, ALaterCopyWinsOverAnEarlierOne) {
  FPreset->SetHint("first");
  FPreset->SetEditMask("000");
  TKTPropertyPreset* second = Presets().Add();
  second->SetHint("second");
  Copy();
  second->CopyPreset(FItem);
  EXPECT_EQ("second", FItem->GetHint());
  EXPECT_EQ("000", FItem->GetEditMask());
}

TEST_F(PropertyPresetCopyTest, EverythingIsCopiedWithoutAnInspector) {
  const auto preset = Make<TKTPropertyPreset>(nullptr);
  const auto item = Make<TKTItemProperty>(nullptr);
  preset->SetAlias("alias");
  preset->SetHint("hint");
  preset->GetPickList().Add("x");
  preset->GetFont().SetColor(clRed);
  preset->GetValueFont().SetColor(clBlue);
  preset->SetActions(preset->GetActions() + TKTPropertyPresetTypes{pftReadOnly, pftHidden, pftCustom, pftValidate});
  preset->CopyPreset(item.get());
  EXPECT_EQ("alias", item->GetName());
  EXPECT_EQ("hint", item->GetHint());
  EXPECT_EQ(esPickList, item->GetEditStyle());
  EXPECT_TRUE(item->GetReadOnly());
  EXPECT_FALSE(item->GetVisible());
  EXPECT_EQ(clRed, item->GetFont().GetColor());
}

TEST_F(PropertyPresetCopyTest, AssigningAPresetToAnItemCopiesIt) {
  FPreset->SetHint("hint");
  FItem->Assign(FPreset);
  EXPECT_EQ("hint", FItem->GetHint());
  EXPECT_EQ("a", FItem->GetName());
}

TEST_F(PropertyPresetCopyTest, OtherThingsTakeNoPreset) { EXPECT_THROW(Make<TFont>()->Assign(FPreset), EConvertError); }

// Handlers that are methods of the preset.

class PropertyPresetHandlersTest : public TPresetTest {
 protected:
  /// An item with all handlers of a serving preset.
  PropertyPresetHandlersTest() {
    FServing = static_cast<TServingPreset*>(Presets().Add(TServingPreset::Class()));
    FItem = AddTo(Add("a")->GetItems(), "b");
    FServing->SetActions({pftEditStyle, pftValidate});
    FServing->SetEditStyle(esEllipsis);
    FServing->CopyPreset(FItem);
    FServing->SetEditStyle(esPickList);
    FServing->CopyPreset(FItem);
  }
  int HandlerCount() {
    return bool(FItem->GetOnEditButtonClick()) + bool(FItem->GetOnGetPickList()) + bool(FItem->GetOnValidate()) +
           bool(FItem->GetOnValidated()) + bool(FItem->GetOnValidateError()) + bool(FItem->GetOnGetProperty()) +
           bool(FItem->GetOnSetProperty());
  }

  TServingPreset* FServing;
  TKTItemProperty* FItem;
};

TEST_F(PropertyPresetHandlersTest, RunOnThePresetWithTheItemAsSender) {
  EXPECT_EQ(7, HandlerCount());
  FItem->GetOnEditButtonClick()(FItem);
  EXPECT_EQ(FItem, FServing->Clicked);
}

TEST_F(PropertyPresetHandlersTest, GoWithThePreset) {
  delete FServing;
  EXPECT_EQ(0, HandlerCount());
}

TEST_F(PropertyPresetHandlersTest, GoWhenThePresetLeavesTheInspector) {
  const std::unique_ptr<TServingPreset> kept(FServing);
  kept->SetCollection(nullptr);
  EXPECT_EQ(0, HandlerCount());
}

TEST_F(PropertyPresetHandlersTest, OfOthersStay) {
  FItem->SetOnEditButtonClick([](TObject*) {});
  Presets().Clear();
  EXPECT_EQ(1, HandlerCount());
}

}  // namespace
}  // namespace kt::tests
