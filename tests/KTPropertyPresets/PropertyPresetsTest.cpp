#include "KTPropertyPresets/PresetFixture.h"
#include "kt/rtl/objects/Exceptions.h"

namespace kt::tests {
namespace {

class TDerivedPreset : public TKTPropertyPreset {
 public:
  using Inherited = TKTPropertyPreset;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TDerivedPreset>("TDerivedPreset").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TDerivedPreset(TCollection* collection) : TKTPropertyPreset(collection) {}
};

/// An item that says whether its value can be read.
class TRefreshedItem : public TKTItemProperty {
 public:
  using Inherited = TKTItemProperty;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TRefreshedItem>("TRefreshedItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  bool RefreshValue() override {
    Seen += GetHint();
    return IsFresh && TKTItemProperty::RefreshValue();
  }

  /// The hints at each time.
  QStringList Seen;
  bool IsFresh = true;

 protected:
  explicit TRefreshedItem(TCollection* collection) : TKTItemProperty(collection) {}
};

class PropertyPresetsTest : public TPresetTest {
 protected:
  /// A preset for all items, which gives them its name as hint.
  TKTPropertyPreset* AddHinting(const QString& name) {
    TKTPropertyPreset* preset = Presets().Add();
    preset->SetName(name);
    preset->SetInclusive(false);
    preset->SetHint(name);
    return preset;
  }
  std::string Applied(TKTItemProperty* item) {
    Presets().CopyPresetsToProperty(item);
    return item->GetHint().toStdString();
  }
};

// The collection.

TEST_F(PropertyPresetsTest, BelongsToTheInspector) {
  EXPECT_EQ(FInspector.get(), Presets().GetOwner());
  EXPECT_EQ(FInspector.get(), Presets().OwnerOf());
  EXPECT_EQ(nullptr, Make<TKTPropertyPresets>(nullptr)->GetOwner());
}

TEST_F(PropertyPresetsTest, AddsPresetsOfTheBaseClassAndOfOthers) {
  EXPECT_EQ(TKTPropertyPreset::Class(), Presets().Add()->ClassType());
  TKTPropertyPreset* derived = Presets().Add(TDerivedPreset::Class());
  EXPECT_EQ(TDerivedPreset::Class(), derived->ClassType());
  EXPECT_EQ(derived, Presets().GetItem(2));
  EXPECT_EQ(FInspector.get(), derived->GetInspector());
}

TEST_F(PropertyPresetsTest, AddsNothingOfAForeignClass) {
  EXPECT_THROW(Presets().Add(TComponent::Class()), EInvalidCast);
  EXPECT_EQ(1, Presets().GetCount());
}

TEST_F(PropertyPresetsTest, InsertsFindsAndCopies) {
  TKTPropertyPreset* first = Presets().Insert(0);
  EXPECT_EQ(first, Presets().GetItem(0));
  EXPECT_EQ(first, Presets().FindItemID(first->GetID()));
  Presets().SetItem(0, FPreset);
  EXPECT_EQ("p", first->GetName());
}

TEST_F(PropertyPresetsTest, FindsTheFirstOfExactlyAClass) {
  Presets().Clear();
  Presets().Add(TDerivedPreset::Class());
  EXPECT_EQ(-1, Presets().IndexOf(TKTPropertyPreset::Class()));
  Presets().Add();
  Presets().Add();
  EXPECT_EQ(1, Presets().IndexOf(TKTPropertyPreset::Class()));
  EXPECT_EQ(0, Presets().IndexOf(TDerivedPreset::Class()));
}

TEST_F(PropertyPresetsTest, FindsTheFirstOfADisplayNameWithRegardToCase) {
  Presets().Add();
  Presets().Add()->SetName("p");
  EXPECT_EQ(0, Presets().IndexOf("p"));
  EXPECT_EQ(-1, Presets().IndexOf("P"));
  EXPECT_EQ(1, Presets().IndexOf("TKTPropertyPreset"));
}

TEST_F(PropertyPresetsTest, TheInspectorHearsOfPresetsThatComeAndGo) {
  EXPECT_EQ("added(TKTPropertyPreset) update(nil)", Heard([&] { Presets().Add(); }));
  EXPECT_EQ("deleting(p) extracting(p) update(nil)", Heard([&] { Presets().Delete(0); }));
}

TEST_F(PropertyPresetsTest, TheInspectorHearsOfChangesOnceAtTheEndOfABracket) {
  EXPECT_EQ("update(nil)", Heard([&] {
              Presets().BeginUpdate();
              FPreset->SetHint("a");
              FPreset->SetActive(false);
              Presets().EndUpdate();
            }));
}

TEST_F(PropertyPresetsTest, EverythingWorksWithoutAnInspector) {
  const auto presets = Make<TKTPropertyPresets>(nullptr);
  TKTPropertyPreset* preset = presets->Add();
  preset->SetInclusive(false);
  preset->SetHint("hint");
  const auto item = Make<TKTItemProperty>(nullptr);
  presets->CopyPresetsToProperty(item.get());
  EXPECT_EQ("hint", item->GetHint());
  presets->Delete(0);
  EXPECT_EQ(0, presets->GetCount());
}

TEST_F(PropertyPresetsTest, AssigningCopiesThePresets) {
  const auto other = Make<TKTPropertyPresets>(nullptr);
  other->Assign(&Presets());
  ASSERT_EQ(1, other->GetCount());
  EXPECT_EQ("p", other->GetItem(0)->GetName());
}

// Applying.

TEST_F(PropertyPresetsTest, ALaterPresetWins) {
  AddHinting("1");
  AddHinting("2");
  EXPECT_EQ("2", Applied(Add("a")));
}

TEST_F(PropertyPresetsTest, TheOrderIsThatOfTheCollectionAtTheTime) {
  AddHinting("1");
  AddHinting("2")->SetIndex(0);
  EXPECT_EQ("1", Applied(Add("a")));
}

TEST_F(PropertyPresetsTest, OnlyPresetsThatMatchAreApplied) {
  AddHinting("1");
  AddHinting("2")->SetInclusive(true);
  EXPECT_EQ("1", Applied(Add("a")));
}

TEST_F(PropertyPresetsTest, InactivePresetsAreNotEvenAsked) {
  bool isAsked = false;
  FPreset->OnMatchPreset = [&](TObject*, TKTItemProperty*, bool&) { isAsked = true; };
  FPreset->SetActive(false);
  EXPECT_EQ("", Applied(Add("a")));
  EXPECT_FALSE(isAsked);
}

TEST_F(PropertyPresetsTest, TheValueIsReadAgainAfterEachPresetThatMatches) {
  AddHinting("1");
  AddHinting("2")->SetInclusive(true);
  AddHinting("3");
  const auto item = Make<TRefreshedItem>(nullptr);
  Presets().CopyPresetsToProperty(item.get());
  EXPECT_EQ("1 3", item->Seen.join(u' '));
}

TEST_F(PropertyPresetsTest, AValueThatCannotBeReadEndsTheWalk) {
  AddHinting("1");
  AddHinting("2");
  const auto item = Make<TRefreshedItem>(nullptr);
  item->IsFresh = false;
  Presets().CopyPresetsToProperty(item.get());
  EXPECT_EQ("1", item->GetHint());
}

TEST_F(PropertyPresetsTest, AnAliasCountsForThePresetsBehind) {
  TKTPropertyPreset* naming = AddHinting("1");
  naming->SetAlias("other");
  TKTPropertyPreset* named = AddHinting("2");
  named->SetInclusive(true);
  named->GetPropNames().Add("other");
  EXPECT_EQ("2", Applied(Add("a")));
}

}  // namespace
}  // namespace kt::tests
