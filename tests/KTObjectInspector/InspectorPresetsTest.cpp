// What the presets of an inspector do to the items that a scan has made.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"

#include <algorithm>
#include <set>
#include <vector>

namespace kt::tests {
namespace {

class InspectorPresetsTest : public TInspectorTest {
 protected:
  InspectorPresetsTest() { FInspector->GetPresets().Clear(); }

  TKTPropertyPreset& AddPreset(const QString& propertyName) {
    TKTPropertyPreset* preset = FInspector->GetPresets().Add();
    preset->SetMatchTypes({mtPropertyName});
    preset->GetPropNames().Add(propertyName);
    return *preset;
  }
  /// Has every preset write down which items it is asked about.
  void LogMatches() {
    FInspector->OnMatchPreset = [this](TObject*, TKTPropertyPreset*, TKTItemProperty* item, bool&) {
      FAsked.push_back(item);
    };
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::vector<TKTItemProperty*> FAsked;
};

TEST_F(InspectorPresetsTest, EveryItemIsAskedAboutOnceThoughAnAliasMovesOne) {
  AddPreset("Color").SetAlias("Zebra");
  LogMatches();
  Inspect({FSample.get()});
  EXPECT_EQ(static_cast<size_t>(FInspector->GetItemCount()), FAsked.size());
  EXPECT_EQ(FAsked.size(), std::set<TKTItemProperty*>(FAsked.begin(), FAsked.end()).size());
  EXPECT_TRUE(Names(Items()).endsWith("Zebra"));
}

TEST_F(InspectorPresetsTest, ItemsOfAllLevelsAreAskedAbout) {
  AddPreset("ssBold").SetHint("heavy");
  Inspect({FSample.get()});
  EXPECT_EQ("heavy", Item("Styles.ssBold").GetHint());
}

TEST_F(InspectorPresetsTest, ALaterPresetOverridesAnEarlierOne) {
  AddPreset("Whole").SetHint("first");
  AddPreset("Whole").SetHint("second");
  Inspect({FSample.get()});
  EXPECT_EQ("second", Item("Whole").GetHint());
}

TEST_F(InspectorPresetsTest, TheInspectorsHandlersHearOfItsPresets) {
  TKTPropertyPreset& preset = AddPreset("Whole");
  preset.SetActions({pftCustom});
  TObject* sender = nullptr;
  QStringList items;
  FInspector->OnCustomPreset = [&](TObject* from, TKTPropertyPreset* which, TKTItemProperty* item) {
    sender = from;
    if (which == &preset) items += item->GetName();
  };
  Inspect({FSample.get()});
  EXPECT_EQ(FInspector.get(), sender);
  EXPECT_EQ(QStringList("Whole"), items);
}

// The list of categories that counts for the new name is that of the level, which is another one below a category.
TEST_F(InspectorPresetsTest, AnAliasBelowACategoryMovesItsItemToTheDefaultCategory) {
  Items().GetCategories().Add("Whole=One");
  Items().GetCategories().Add("Parted=Two");
  FInspector->SetArrangeByCategory(true);
  AddPreset("Whole").SetAlias("Parted");
  LogMatches();
  Inspect({FSample.get()});
  TKTItemProperty& item = Item("Miscellaneous.Parted");
  EXPECT_EQ("Whole", item.GetRealPropName());
  EXPECT_EQ(1, std::count(FAsked.begin(), FAsked.end(), &item));
}

/// Publishes something else from one moment on.
class TTurncoat : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Before() {
    static const TClassInfo info = TClassBuilder<TTurncoat>("TTurncoat")
                                       .Property<&TTurncoat::GetNumber, &TTurncoat::SetNumber>("One")
                                       .Property<&TTurncoat::GetNumber, &TTurncoat::SetNumber>("Two")
                                       .Done();
    return &info;
  }
  static const TClassInfo* After() {
    static const TClassInfo info =
        TClassBuilder<TTurncoat>("TTurncoat").Property<&TTurncoat::GetNumber, &TTurncoat::SetNumber>("One").Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return HasTurned ? After() : Before(); }

  int GetNumber() const { return FNumber; }
  void SetNumber(int value) { FNumber = value; }

  bool HasTurned = false;

 protected:
  explicit TTurncoat(TComponent* owner = nullptr) : TComponent(owner) {}

 private:
  int FNumber = 0;
};

TEST_F(InspectorPresetsTest, APropertyThatIsNotPublishedAnyMoreWhenItsTurnComesRaises) {
  const auto turncoat = Make<TTurncoat>();
  Inspect({turncoat.get()});
  EXPECT_NE(nullptr, Find("Two"));
  FInspector->SetArrangeByCategory(true);
  FInspector->OnCategorize = [&](TObject*, TKTItemProp* item, const QString&, QString&) {
    turncoat->HasTurned |= item != nullptr;
  };
  EXPECT_EQ("Property Two does not exist", MessageOf<EPropertyError>([&] { Rescan(); }));
  EXPECT_FALSE(FInspector->IsEditUpdateLocked());
  EXPECT_EQ(0, Items().GetUpdateCount());
}

}  // namespace
}  // namespace kt::tests
