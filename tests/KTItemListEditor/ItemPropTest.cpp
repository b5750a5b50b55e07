#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemPropTest : public TItemListTest {
 protected:
  ItemPropTest() { FEditor = Make<TProbeEditor>(); }

  std::unique_ptr<TKTItemProp> FAlone = Make<TKTItemProp>(nullptr);
};

// A tree of a million items pays for each byte.
TEST_F(ItemPropTest, AnItemTakes104Bytes) { EXPECT_EQ(104U, sizeof(TKTItemProp)); }

TEST_F(ItemPropTest, AnItemOutsideAnyCollectionHasNeitherEditorNorParentNorCollection) {
  EXPECT_EQ(nullptr, FAlone->GetEditor());
  EXPECT_EQ(nullptr, FAlone->GetParent());
  EXPECT_EQ(nullptr, FAlone->GetCollection());
  EXPECT_EQ(0, FAlone->GetLevel());
}

TEST_F(ItemPropTest, WithoutAnEditorThePathDelimiterIsAPeriod) {
  EXPECT_EQ(".", FAlone->GetPathDelimiter());
  EXPECT_EQ(".", FAlone->GetItems().GetPathDelimiter());
}

TEST_F(ItemPropTest, WithoutAnEditorBothPlacesAreMinusOne) {
  TKTItemProp* child = FAlone->GetItems().Add("x", "1");
  EXPECT_EQ(-1, FAlone->GetAbsoluteIndex());
  EXPECT_EQ(-1, FAlone->GetAbsoluteVIndex());
  EXPECT_EQ(-1, child->GetAbsoluteIndex());
  EXPECT_EQ(-1, child->GetAbsoluteVIndex());
}

TEST_F(ItemPropTest, WithoutAnEditorReadOnlyItemsShow) {
  FAlone->SetReadOnly(true);
  EXPECT_TRUE(FAlone->IsVisibleItem());
  EXPECT_TRUE(FAlone->IsVisible());
}

TEST_F(ItemPropTest, AnItemWithoutCollectionCanBeChangedAllTheSame) {
  FAlone->SetName("x");
  FAlone->SetValue("1");
  FAlone->SetCategory(true);
  FAlone->SetDefaultCategory(true);
  FAlone->SetEnabled(false);
  FAlone->SetVisible(false);
  FAlone->FullExpand();
  EXPECT_EQ("x=1", FAlone->GetDisplayName());
}

TEST_F(ItemPropTest, ChildrenKnowParentCollectionAndEditor) {
  Fill("a [b [c]]");
  TKTItemProp& c = Item("a.b.c");
  EXPECT_EQ(&Item("a.b"), c.GetParent());
  EXPECT_EQ(&Item("a.b").GetItems(), c.GetCollection());
  EXPECT_EQ(FEditor.get(), c.GetEditor());
  EXPECT_EQ(nullptr, Item("a").GetParent());
  EXPECT_EQ(nullptr, Items().GetParent());
  EXPECT_EQ(&Item("a"), Item("a").GetItems().GetParent());
}

TEST_F(ItemPropTest, TheLevelIsTheNumberOfAncestors) {
  Fill("a [b [c]]");
  EXPECT_EQ(0, Item("a").GetLevel());
  EXPECT_EQ(2, Item("a.b.c").GetLevel());
}

TEST_F(ItemPropTest, TheFullPathNameJoinsTheNamesWithTheEditorsDelimiter) {
  Fill("a [b [c]]");
  TKTItemProp& c = Item("a.b.c");
  EXPECT_EQ("a.b.c", c.GetFullPathName());
  FEditor->SetPathDelimiter("->");
  EXPECT_EQ("a->b->c", c.GetFullPathName());
  EXPECT_EQ("a", Item("a").GetFullPathName());
}

TEST_F(ItemPropTest, TheDisplayNameIsNameAndValueWithoutWhatIsBlankAtTheEnd) {
  FEditor->SetColCount(5);
  TKTItemProp* item = Items().Add("a", "  1 \r\n 2 \r\n\r\n");
  EXPECT_EQ("a=  1 \r\n 2", item->GetDisplayName());
}

TEST_F(ItemPropTest, AnItemWithChildrenIsExpandable) {
  Fill("a [b]");
  EXPECT_TRUE(Item("a").IsExpandable());
  EXPECT_FALSE(Item("a.b").IsExpandable());
}

TEST_F(ItemPropTest, ANewItemHasTheDefaultsOfTheTable) {
  EXPECT_EQ("", FAlone->GetName());
  EXPECT_EQ("", FAlone->GetHint());
  EXPECT_FALSE(FAlone->GetReadOnly());
  EXPECT_TRUE(FAlone->GetVisible());
  EXPECT_EQ(esSimple, FAlone->GetEditStyle());
  EXPECT_EQ("", FAlone->GetEditMask());
  EXPECT_FALSE(FAlone->GetExpressionMask());
  EXPECT_FALSE(FAlone->IsExpanded());
  EXPECT_EQ(nullptr, FAlone->GetItemObject());
  EXPECT_EQ(0, FAlone->GetTag());
  EXPECT_TRUE(FAlone->GetParentFont());
  EXPECT_TRUE(FAlone->GetParentValueFont());
  EXPECT_TRUE(FAlone->GetEnabled());
  EXPECT_FALSE(FAlone->GetCategory());
  EXPECT_FALSE(FAlone->GetDefaultCategory());
  EXPECT_EQ(0, FAlone->GetValues().GetCount());
}

TEST_F(ItemPropTest, ChildCollectionsAreOfTheKindThatTheEditorMakes) {
  Fill("a");
  EXPECT_TRUE(Item("a").GetItems().InheritsFrom(TProbeItems::Class()));
  EXPECT_EQ(TKTItemProps::Class(), FAlone->GetItems().ClassType());
  EXPECT_EQ(TKTItemProp::Class(), FAlone->GetItems().GetItemClass());
}

TEST_F(ItemPropTest, AnItemMadeAloneKeepsItsOwnKindOfChildrenInAnEditor) {
  Fill("a");
  TKTItemProp* item = Make<TProbeItem>(nullptr).release();
  item->SetCollection(&Item("a").GetItems());
  EXPECT_EQ(TKTItemProps::Class(), item->GetItems().ClassType());
  EXPECT_EQ(TKTItemProp::Class(), item->GetItems().Add("x", {})->ClassType());
}

TEST_F(ItemPropTest, AnItemOfAnEditorHasItsChildrenMadeByTheEditorThatItIsInAtTheirFirstUse) {
  const auto plain = Make<TKTItemListEditor>();
  Fill("a b");
  TKTItemProp& a = Item("a");
  TKTItemProp& b = Item("b");
  a.GetItems();
  a.SetCollection(&plain->GetItems());
  b.SetCollection(&plain->GetItems());
  EXPECT_TRUE(a.GetItems().InheritsFrom(TProbeItems::Class()));
  EXPECT_EQ(TKTItemProps::Class(), b.GetItems().ClassType());
}

TEST_F(ItemPropTest, ANewItemsChildrenAreSortedAsItsCollectionIs) {
  FEditor->SetSorted(true);
  EXPECT_TRUE(Items().Add("a", {})->GetItems().GetSorted());
  EXPECT_FALSE(FAlone->GetItems().GetSorted());
}

TEST_F(ItemPropTest, DestroyingAnItemFreesItsSubtree) {
  Fill("a [b [c] d] e");
  delete &Item("a");
  EXPECT_EQ("e", TreeText());
  EXPECT_EQ(1, FEditor->GetItemCount());
}

// How notifications climb.

TEST_F(ItemPropTest, AChangeClimbsThroughEveryLevelToTheEditor) {
  Fill("a [b [c]]");
  EXPECT_EQ("[].Update(c) a.UpdateItemProp(c) [a].Update(c) b.UpdateItemProp(c) [b].Update(c)",
            Heard([&] { Item("a.b.c").SetHint("h"); }));
}

TEST_F(ItemPropTest, AChangeInsideABracketOfItsLevelClimbsAtItsEnd) {
  Fill("a [b]");
  TKTItemProps& items = Item("a").GetItems();
  items.BeginUpdate();
  EXPECT_EQ("", Heard([&] { items.GetItem(0)->SetHint("h"); }));
  EXPECT_EQ("editor.AdjustGridCount editor.Invalidate [].Update(nil) a.UpdateItemProp(nil) [a].Update(nil)",
            Heard([&] { items.EndUpdate(); }));
}

TEST_F(ItemPropTest, VisibleChangedClimbsFromParentToParent) {
  Fill("a [b [c]]");
  FEditor->FullExpand();
  EXPECT_EQ(
      "editor.Refresh editor.AdjustGridCount editor.Invalidate editor.SizeChanged editor.Invalidate "
      "[].VisibleChanged(a) "
      "a.VisibleChanged [a].VisibleChanged(b) b.VisibleChanged [b].VisibleChanged(c) c.VisibleChanged",
      Heard([&] { Item("a.b.c").SetVisible(false); }));
}

TEST_F(ItemPropTest, ARenameInABracketTellsOfNoUpdateBeforeItsEnd) {
  Fill("a");
  Items().BeginUpdate();
  EXPECT_EQ("a.SetName(b) a.Changing a.MoveProp(b) editor.Invalidate", Heard([&] { Item("a").SetName("b"); }));
  Items().EndUpdate();
}

}  // namespace
}  // namespace kt::tests
