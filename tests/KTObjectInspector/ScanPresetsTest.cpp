// What the presets of an inspector do to the items that a scan has made.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"

#include <algorithm>
#include <set>
#include <vector>

namespace kt::tests {
namespace {

class ScanPresetsTest : public TInspectorTest {
 protected:
  ScanPresetsTest() { FInspector->GetPresets().Clear(); }

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

TEST_F(ScanPresetsTest, EveryItemIsAskedAboutOnceThoughAnAliasMovesOne) {
  AddPreset("Color").SetAlias("Zebra");
  LogMatches();
  Inspect({FSample.get()});
  EXPECT_EQ(static_cast<size_t>(FInspector->GetItemCount()), FAsked.size());
  EXPECT_EQ(FAsked.size(), std::set<TKTItemProperty*>(FAsked.begin(), FAsked.end()).size());
  EXPECT_TRUE(Names(Items()).endsWith("Zebra"));
}

TEST_F(ScanPresetsTest, ItemsOfAllLevelsAreAskedAbout) {
  AddPreset("ssBold").SetHint("heavy");
  Inspect({FSample.get()});
  EXPECT_EQ("heavy", Item("Styles.ssBold").GetHint());
}

TEST_F(ScanPresetsTest, ALaterPresetOverridesAnEarlierOne) {
  AddPreset("Whole").SetHint("first");
  AddPreset("Whole").SetHint("second");
  Inspect({FSample.get()});
  EXPECT_EQ("second", Item("Whole").GetHint());
}

TEST_F(ScanPresetsTest, TheInspectorsHandlersHearOfItsPresets) {
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
TEST_F(ScanPresetsTest, AnAliasBelowACategoryMovesItsItemToTheDefaultCategory) {
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

/// Says what its presets are made of.
class TOwnPresets : public TKTPropertyPresets {
 public:
  using Inherited = TKTPropertyPresets;

 protected:
  explicit TOwnPresets(TKTCustomObjectInspector* inspector) : TKTPropertyPresets(inspector) {}
};

class TOwnPresetsInspector : public TKTObjectInspector {
 protected:
  TOwnPresetsInspector() = default;
  std::unique_ptr<TKTPropertyPresets> CreatePresets() override { return Make<TOwnPresets>(this); }
};

TEST_F(ScanPresetsTest, ADescendantMayMakeItsPresetsItself) {
  FInspector = Make<TOwnPresetsInspector>();
  EXPECT_NE(nullptr, dynamic_cast<TOwnPresets*>(&FInspector->GetPresets()));
  FInspector->GetPresets().Clear();
  AddPreset("Whole").SetHint("own");
  Inspect({FSample.get()});
  EXPECT_EQ("own", Item("Whole").GetHint());
}

TEST_F(ScanPresetsTest, AnInspectorThatGoesAsksForNothing) {
  Inspect({FSample.get()});
  int scans = 0;
  FInspector->OnBeforeScan = [&scans](TObject*, TKTItemProperty*, bool&) { ++scans; };
  FInspector.reset();
  Deliver();
  EXPECT_EQ(0, scans);
  FSample.reset();
}

}  // namespace
}  // namespace kt::tests
