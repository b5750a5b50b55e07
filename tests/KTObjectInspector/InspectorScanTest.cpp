// When an inspector builds its tree, and what the user finds again.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Exceptions.h"

namespace kt::tests {
namespace {

class InspectorScanTest : public TInspectorTest {
 protected:
  InspectorScanTest() {
    FInspector->OnBeforeScan = [this](TObject*, TKTItemProperty* item, bool&) {
      FLog += "before(" + NameOf(item) + ")";
    };
    FInspector->OnAfterScan = [this](TObject*, TKTItemProperty* item) { FLog += "after(" + NameOf(item) + ")"; };
  }
  static QString NameOf(TKTItemProperty* item) { return item ? item->GetName() : QStringLiteral("-"); }
  QString TakeLog() { return std::exchange(FLog, {}).join(u' '); }
  bool IsLocked() const { return FInspector->IsEditUpdateLocked() || FInspector->GetItems().GetUpdateCount() != 0; }

  QStringList FLog;
  std::unique_ptr<TSamplePart> FPart = Make<TSamplePart>();
  std::unique_ptr<TSample> FSample = Make<TSample>();
};

TEST_F(InspectorScanTest, AScanIsToldOfAsAWholeAndForEachItemThatIsEntered) {
  FInspector->GetObjects().Add(FSample.get());
  EXPECT_EQ("", TakeLog());
  Deliver();
  EXPECT_EQ("before(-) before(Items) after(Items) before(Part) after(Part) after(-)", TakeLog());
  EXPECT_FALSE(IsLocked());
}

TEST_F(InspectorScanTest, ElementsAndWhatInterfacesLeadToAreToldOfInTheOrderOfTheTree) {
  const auto other = Make<TComponent>();
  FSample->GetItems().AddItem("one");
  FSample->GetItems().AddItem("two");
  FSample->Reference = other.get();
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  EXPECT_EQ(
      "before(-) before(Items) before(Items[0]) before(Children) after(Children) after(Items[0]) before(Items[1]) "
      "before(Children) after(Children) after(Items[1]) after(Items) before(Part) after(Part) before(Reference) "
      "after(Reference) after(-)",
      TakeLog());
}

TEST_F(InspectorScanTest, ChangesOfOneHandlerAreFoldedIntoOneScan) {
  FInspector->GetObjects().Add(FPart.get());
  FInspector->SetInplaceCollections(true);
  FInspector->SetInplaceComponents(false);
  FInspector->SetInplaceTStrings(true);
  FInspector->SetInplaceTStringsOptions({isSort});
  FInspector->SetCollectionItemFormat("a%d");
  FInspector->SetStringsItemFormat("b%d");
  FInspector->SetDisplayKinds({tkInteger});
  FInspector->SetFiltersEnabled(false);
  FInspector->SetArrangeByCategory(true);
  EXPECT_EQ(0, Items().GetCount());
  Deliver();
  EXPECT_EQ("before(-) after(-)", TakeLog());
}

TEST_F(InspectorScanTest, SettingWhatIsSetAsksForNothing) {
  Inspect({FPart.get()});
  TakeLog();
  FInspector->SetInplaceCollections(false);
  FInspector->SetInplaceComponents(true);
  FInspector->SetInplaceTStrings(false);
  FInspector->SetInplaceTStringsOptions({});
  FInspector->SetCollectionItemFormat("Items[%d]");
  FInspector->SetStringsItemFormat("Items[%d]");
  FInspector->SetDisplayKinds(FInspector->GetDisplayKinds());
  FInspector->SetFiltersEnabled(true);
  FInspector->SetFilterOptions({});
  FInspector->SetArrangeByCategory(false);
  FInspector->SetShowValueChangedFont(false);
  FInspector->SetDynamicTitleCaptions(true);
  Deliver();
  EXPECT_EQ("", TakeLog());
}

TEST_F(InspectorScanTest, FilterOptionsAskForAScanOnlyWhileFiltersAreEnabled) {
  FInspector->SetFiltersEnabled(false);
  Inspect({FPart.get()});
  TakeLog();
  FInspector->SetFilterOptions({foInclusive});
  FInspector->GetFilters().Add("Size");
  Deliver();
  EXPECT_EQ("", TakeLog());
}

TEST_F(InspectorScanTest, AChangeOfTheFiltersIsToldBeforeAndAfterAndAsksForAScan) {
  FInspector->OnFiltersChanging = [this](TObject*) { FLog += QStringLiteral("changing"); };
  FInspector->OnFiltersChanged = [this](TObject*) { FLog += QStringLiteral("changed"); };
  Inspect({FPart.get()});
  TakeLog();
  FInspector->GetFilters().Add("Size");
  EXPECT_EQ("changing changed", TakeLog());
  Deliver();
  EXPECT_EQ("Style Title", Names(Items()));
}

TEST_F(InspectorScanTest, AChangeOfTheObjectsClearsTheTreeAtOnce) {
  Inspect({FPart.get()});
  FInspector->GetObjects().Add(FSample.get());
  EXPECT_EQ(0, Items().GetCount());
}

TEST_F(InspectorScanTest, InABracketOfTheObjectsNothingIsScannedOrRefreshed) {
  FInspector->GetObjects().Add(FPart.get());
  {
    const TUpdateBracket bracket(FInspector->GetObjects());
    Deliver();
    FInspector->Rescan();
    FInspector->RefreshProperties();
    EXPECT_EQ("", TakeLog());
  }
  Deliver();
  EXPECT_EQ("before(-) after(-)", TakeLog());
}

TEST_F(InspectorScanTest, AVetoLeavesTheTreeEmptyAndIsToldAfterwardsAllTheSame) {
  FInspector->OnBeforeScan = [](TObject*, TKTItemProperty*, bool& result) { result = false; };
  Inspect({FPart.get()});
  EXPECT_EQ(0, Items().GetCount());
  EXPECT_EQ("after(-)", TakeLog());
  EXPECT_FALSE(IsLocked());
}

TEST_F(InspectorScanTest, AVetoedScanEndsABracketThatSomebodyElseBeganDeliberately) {
  FInspector->OnBeforeScan = [](TObject*, TKTItemProperty*, bool& result) { result = false; };
  FInspector->GetObjects().Add(FPart.get());
  Items().BeginUpdate();
  FInspector->Rescan();
  EXPECT_EQ(0, Items().GetUpdateCount());
}

TEST_F(InspectorScanTest, AnItemsVetoKeepsWhatIsBelowOut) {
  FInspector->OnBeforeScan = [](TObject*, TKTItemProperty* item, bool& result) {
    result = !item || item->GetName() != QLatin1StringView("Part");
  };
  Inspect({FSample.get()});
  EXPECT_EQ("", NamesBelow("Part"));
  EXPECT_TRUE(TakeLog().contains("after(Part)"));
}

TEST_F(InspectorScanTest, AScanThatThrowsLeavesNoLockBehind) {
  FInspector->OnBeforeScan = [](TObject*, TKTItemProperty* item, bool&) {
    if (item) throw EConvertError("no");
  };
  FInspector->GetObjects().Add(FSample.get());
  EXPECT_THROW(FInspector->Rescan(), EConvertError);
  EXPECT_FALSE(IsLocked());
  FInspector->OnBeforeScan = {};
  FInspector->Rescan();
  EXPECT_NE(nullptr, Find("Part.Size"));
}

TEST_F(InspectorScanTest, AskingForARescanFromInsideAScanHasOneFollow) {
  bool asked = false;
  FInspector->OnBeforeScan = [&](TObject*, TKTItemProperty* item, bool&) {
    FLog += "before(" + NameOf(item) + ")";
    if (item || std::exchange(asked, true)) return;
    FInspector->Rescan();
  };
  FInspector->GetObjects().Add(FPart.get());
  Deliver();
  EXPECT_EQ("before(-) after(-)", TakeLog());
  Deliver();
  EXPECT_EQ("before(-) after(-)", TakeLog());
  EXPECT_EQ("Size Style Title", Names(Items()));
}

TEST_F(InspectorScanTest, ChangingTheObjectsFromInsideAScanHasTheNewOnesListed) {
  bool changed = false;
  FInspector->OnBeforeScan = [&](TObject*, TKTItemProperty* item, bool&) {
    if (!item || std::exchange(changed, true)) return;
    FInspector->GetObjects().Clear();
    FInspector->GetObjects().Add(FPart.get());
  };
  FInspector->GetObjects().Add(FSample.get());
  Deliver();
  EXPECT_FALSE(IsLocked());
  Deliver();
  EXPECT_EQ("Size Style Title", Names(Items()));
}

// What the user finds again.

TEST_F(InspectorScanTest, TheSelectedItemIsSelectedAgain) {
  Inspect({FSample.get()});
  FInspector->SetSelected(Find("Part.Size"));
  ASSERT_EQ("Part.Size", FInspector->GetSelected()->GetFullPathName());
  Rescan();
  EXPECT_EQ("Part.Size", FInspector->GetSelected()->GetFullPathName());
}

TEST_F(InspectorScanTest, TheSameItemIsSelectedForAnotherObject) {
  const auto other = Make<TSample>();
  Inspect({FSample.get()});
  FInspector->SetSelected(Find("Tag"));
  Rescan();
  FInspector->SetSelected(Find("Text"));
  FInspector->SetInspectedComponent(other.get());
  Deliver();
  EXPECT_EQ("Text", FInspector->GetSelected()->GetName());
}

TEST_F(InspectorScanTest, ExpandedItemsAreExpandedAgain) {
  Inspect({FSample.get()});
  Item("Part").Expand();
  Item("Part.Style").Expand();
  Rescan();
  EXPECT_TRUE(Item("Part").IsExpanded());
  EXPECT_TRUE(Item("Part.Style").IsExpanded());
  EXPECT_FALSE(Item("Styles").IsExpanded());
  Item("Part").Collapse();
  Rescan();
  EXPECT_FALSE(Item("Part").IsExpanded());
}

TEST_F(InspectorScanTest, ExpandedItemsAreExpandedAgainForAnotherObjectToo) {
  const auto other = Make<TSample>();
  Inspect({FSample.get()});
  Item("Part").Expand();
  FInspector->SetInspectedComponent(other.get());
  Deliver();
  EXPECT_TRUE(Item("Part").IsExpanded());
}

TEST_F(InspectorScanTest, TheRowAtTheTopStaysThere) {
  FInspector->SetHeight(100);
  Inspect({FSample.get()});
  FInspector->SetSelected(Find("Color"));
  FInspector->SetTopRow(6);
  const QString top = FInspector->GetVisibleItem(5)->GetName();
  Rescan();
  EXPECT_EQ(6, FInspector->GetTopRow());
  EXPECT_EQ(top, FInspector->GetVisibleItem(5)->GetName());
}

TEST_F(InspectorScanTest, NothingIsAskedForAtTheStart) {
  Items().Add()->SetName("own");
  Deliver();
  EXPECT_EQ("own", Names(Items()));
}

}  // namespace
}  // namespace kt::tests
