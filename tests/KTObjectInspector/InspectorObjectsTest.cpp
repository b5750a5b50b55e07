#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/menus/PopupMenu.h"

namespace kt::tests {
namespace {

/// Writes down what the list of inspected objects tells its inspector.
class TListeningInspector : public TKTObjectInspector {
 public:
  QStringList Log;

 protected:
  TListeningInspector() = default;
  void ListUpdating() override {
    Log += QStringLiteral("updating");
    TKTObjectInspector::ListUpdating();
  }
  void ListUpdate(TKTInspectorObject* item) override {
    Log += item ? QStringLiteral("update(%1)").arg(item->GetIndex()) : QStringLiteral("update");
    TKTObjectInspector::ListUpdate(item);
  }
};

class InspectorObjectsTest : public testing::Test {
 protected:
  QString TakeLog() { return std::exchange(FInspector->Log, {}).join(u' '); }
  TKTInspectorObjects& Objects() { return FInspector->GetObjects(); }

  std::unique_ptr<TListeningInspector> FInspector = Make<TListeningInspector>();
  std::unique_ptr<TSample> FFirst = Make<TSample>();
  std::unique_ptr<TSample> FSecond = Make<TSample>();
};

TEST_F(InspectorObjectsTest, AnObjectAddedTwiceIsHeldOnce) {
  TKTInspectorObject* entry = Objects().Add(FFirst.get());
  EXPECT_EQ(entry, Objects().Add(FFirst.get()));
  EXPECT_EQ(1, Objects().GetCount());
  EXPECT_EQ(FFirst.get(), entry->GetObjects());
}

TEST_F(InspectorObjectsTest, AddingTellsTheInspectorBeforeAndAfter) {
  Objects().Add(FFirst.get());
  EXPECT_EQ("updating update", TakeLog());
}

TEST_F(InspectorObjectsTest, ReplacingAnObjectTellsTheInspectorOfTheEntry) {
  Objects().Add(FFirst.get());
  TakeLog();
  Objects().GetItem(0)->SetObjects(FSecond.get());
  EXPECT_EQ("updating update(0)", TakeLog());
}

TEST_F(InspectorObjectsTest, SettingTheSameObjectOrComponentTellsNothing) {
  Objects().Add(FFirst.get());
  TakeLog();
  Objects().GetItem(0)->SetObjects(FFirst.get());
  Objects().GetItem(0)->SetComponent(FFirst.get());
  EXPECT_EQ("", TakeLog());
}

TEST_F(InspectorObjectsTest, SettingTheOwnerComponentTellsNothing) {
  Objects().Add(FFirst.get());
  TakeLog();
  Objects().GetItem(0)->SetOwnerComponent(FSecond.get());
  EXPECT_EQ("", TakeLog());
}

TEST_F(InspectorObjectsTest, InABracketTheInspectorIsToldOnceBeforeAndOnceAfter) {
  {
    const TUpdateBracket bracket(Objects());
    Objects().Add(FFirst.get());
    Objects().Add(FSecond.get());
  }
  EXPECT_EQ("updating update", TakeLog());
}

TEST_F(InspectorObjectsTest, AnOwnerThatDiesTakesItsEntriesAlong) {
  const auto font = Make<TFont>();
  const auto other = Make<TFont>();
  Objects().Add(FSecond.get(), font.get());
  Objects().Add(FSecond.get(), other.get());
  FSecond.reset();
  EXPECT_EQ(0, Objects().GetCount());
}

TEST_F(InspectorObjectsTest, AComponentThatDiesTakesItsEntryAlong) {
  Objects().Add(FFirst.get());
  Objects().Add(FSecond.get());
  FFirst.reset();
  ASSERT_EQ(1, Objects().GetCount());
  EXPECT_EQ(FSecond.get(), Objects().GetItem(0)->GetObjects());
}

TEST_F(InspectorObjectsTest, AReplacedComponentLeavesTheListAloneWhenItDies) {
  const auto third = Make<TSample>();
  Objects().Add(FFirst.get());
  Objects().Add(third.get());
  Objects().GetItem(0)->SetObjects(FSecond.get());
  TakeLog();
  FFirst.reset();
  EXPECT_EQ("", TakeLog());
  ASSERT_EQ(2, Objects().GetCount());
  EXPECT_EQ(FSecond.get(), Objects().GetItem(0)->GetObjects());
  EXPECT_EQ(third.get(), Objects().GetItem(1)->GetObjects());
}

TEST_F(InspectorObjectsTest, TheInspectorsMenuMayBeInspectedReplacedAndFreed) {
  auto menu = Make<TPopupMenu>();
  FInspector->SetPopupMenu(menu.get());
  Objects().Add(menu.get());
  FInspector->SetInspectedComponent(FFirst.get());
  menu.reset();
  EXPECT_EQ(nullptr, FInspector->GetPopupMenu());
  ASSERT_EQ(1, Objects().GetCount());
  EXPECT_EQ(FFirst.get(), FInspector->GetInspectedComponent());
}

TEST_F(InspectorObjectsTest, AComponentThatIsStillTheOwnerOfAnEntryStaysWatched) {
  const auto font = Make<TFont>();
  Objects().Add(FFirst.get());
  Objects().Add(FFirst.get(), font.get());
  Objects().GetItem(0)->SetObjects(FSecond.get());
  FFirst.reset();
  EXPECT_EQ(1, Objects().GetCount());
}

TEST_F(InspectorObjectsTest, AnObjectThatIsNoComponentLeavesAnEntryWithoutObject) {
  auto font = Make<TFont>();
  Objects().Add(font.get());
  font.reset();
  ASSERT_EQ(1, Objects().GetCount());
  EXPECT_EQ(nullptr, Objects().GetItem(0)->GetObjects());
}

TEST_F(InspectorObjectsTest, RemovingAnOwnerOfTwoEntriesRemovesTheFirst) {
  const auto font = Make<TFont>();
  const auto other = Make<TFont>();
  Objects().Add(FFirst.get(), font.get());
  Objects().Add(FFirst.get(), other.get());
  EXPECT_EQ(0, Objects().Remove(FFirst.get()));
  ASSERT_EQ(1, Objects().GetCount());
  EXPECT_EQ(other.get(), Objects().GetItem(0)->GetObjects());
}

TEST_F(InspectorObjectsTest, RemovingWhatIsNotThereChangesNothing) {
  Objects().Add(FFirst.get());
  TakeLog();
  EXPECT_EQ(-1, Objects().Remove(FSecond.get()));
  EXPECT_EQ("", TakeLog());
}

TEST_F(InspectorObjectsTest, EntriesAreFoundByObjectAndByOwner) {
  const auto font = Make<TFont>();
  Objects().Add(FFirst.get());
  Objects().Add(FSecond.get(), font.get());
  EXPECT_EQ(1, Objects().IndexOf(font.get()));
  EXPECT_EQ(-1, Objects().IndexOf(FSecond.get()));
  EXPECT_EQ(1, Objects().IndexOfOwner(FSecond.get()));
  EXPECT_EQ(-1, Objects().IndexOfOwner(FFirst.get()));
}

TEST_F(InspectorObjectsTest, OnlyEntriesWithAnObjectAreCopied) {
  Objects().Add(FFirst.get());
  Objects().Add();
  Objects().Add(FSecond.get());
  const auto copy = Make<TKTInspectorObjects>(nullptr);
  copy->AssignNonEmpty(Objects());
  ASSERT_EQ(2, copy->GetCount());
  EXPECT_EQ(FSecond.get(), copy->GetItem(1)->GetObjects());
}

TEST_F(InspectorObjectsTest, AnEntryIsCalledByItsComponentsNameOrItsObjectsClass) {
  const auto font = Make<TFont>();
  FFirst->SetName("First");
  EXPECT_EQ("First", Objects().Add(FFirst.get())->GetDisplayName());
  EXPECT_EQ("TFont", Objects().Add(font.get())->GetDisplayName());
  EXPECT_EQ("TKTInspectorObject", Objects().Add(FSecond.get())->GetDisplayName());
  EXPECT_EQ("TKTInspectorObject", Objects().Add()->GetDisplayName());
}

TEST_F(InspectorObjectsTest, OnlyAComponentIsTheEntrysComponent) {
  const auto font = Make<TFont>();
  EXPECT_EQ(FFirst.get(), Objects().Add(FFirst.get())->GetComponent());
  EXPECT_EQ(nullptr, Objects().Add(font.get())->GetComponent());
}

TEST_F(InspectorObjectsTest, AnEntryTakesObjectAndOwnerOverFromAnother) {
  const auto font = Make<TFont>();
  TKTInspectorObject* source = Objects().Add(FFirst.get(), font.get());
  TKTInspectorObject* target = Objects().Add();
  target->Assign(source);
  EXPECT_EQ(font.get(), target->GetObjects());
  EXPECT_EQ(FFirst.get(), target->GetOwnerComponent());
}

TEST_F(InspectorObjectsTest, AListWithoutOwnerTellsNobody) {
  const auto objects = Make<TKTInspectorObjects>(nullptr);
  EXPECT_EQ(nullptr, objects->NotifyComponent());
  EXPECT_EQ(nullptr, objects->GetInspector());
  objects->Add(FFirst.get());
  FFirst.reset();
  EXPECT_EQ(nullptr, objects->GetItem(0)->GetObjects());
}

// The one component.

TEST_F(InspectorObjectsTest, TheFirstComponentIsThatOfTheInspector) {
  EXPECT_EQ(nullptr, FInspector->GetInspectedComponent());
  FInspector->SetInspectedComponent(FFirst.get());
  EXPECT_EQ(FFirst.get(), FInspector->GetInspectedComponent());
}

TEST_F(InspectorObjectsTest, SettingTheComponentReplacesTheFirstEntryAlone) {
  Objects().Add(FFirst.get());
  Objects().Add(FSecond.get());
  const auto third = Make<TSample>();
  FInspector->SetInspectedComponent(third.get());
  ASSERT_EQ(2, Objects().GetCount());
  EXPECT_EQ(third.get(), Objects().GetItem(0)->GetObjects());
  EXPECT_EQ(FSecond.get(), Objects().GetItem(1)->GetObjects());
}

TEST_F(InspectorObjectsTest, SettingNoComponentInAnEmptyListDoesNothing) {
  FInspector->SetInspectedComponent(nullptr);
  EXPECT_EQ(0, Objects().GetCount());
  EXPECT_EQ("", TakeLog());
}

TEST_F(InspectorObjectsTest, SettingNoComponentRemovesTheFirstEntryThatLacksAnObjectOrOwner) {
  const auto font = Make<TFont>();
  Objects().Add(FFirst.get(), font.get());
  Objects().Add(FSecond.get());
  FInspector->SetInspectedComponent(nullptr);
  ASSERT_EQ(1, Objects().GetCount());
  EXPECT_EQ(font.get(), Objects().GetItem(0)->GetObjects());
  FInspector->SetInspectedComponent(nullptr);
  EXPECT_EQ(1, Objects().GetCount());
}

}  // namespace
}  // namespace kt::tests
