#include "kt/KTItemListEditor/ItemRows.h"
#include "support/ItemLists.h"

namespace kt::tests {
namespace {

class ItemRowsTest : public TItemListTest {};

TEST_F(ItemRowsTest, AnEmptyEditorHasNoRowsAndOneBlankLine) {
  EXPECT_EQ("", RowsText());
  EXPECT_EQ(2, FEditor->GetRowCount());
}

TEST_F(ItemRowsTest, EntriesAreParentsBeforeTheirChildren) {
  Fill("a [b [c] d] e");
  EXPECT_EQ("a b c d e", EntriesText());
}

TEST_F(ItemRowsTest, NewItemsAreCollapsed) {
  Fill("a [b [c] d] e");
  EXPECT_EQ(">a | e", RowsText());
}

TEST_F(ItemRowsTest, ExpandingShowsTheChildrenOnly) {
  Fill("a [b [c] d] e");
  Item("a").Expand();
  EXPECT_EQ(">a | b | d | e", RowsText());
  EXPECT_EQ(5, FEditor->GetRowCount());
}

TEST_F(ItemRowsTest, CollapsingAParentHidesWhatIsExpandedBelowAndKeepsItSo) {
  Fill("a [b [c] d] e");
  FEditor->FullExpand();
  Item("a").Collapse();
  EXPECT_EQ(">a | e", RowsText());
  Item("a").Expand();
  EXPECT_EQ(">a | b | c | d | e", RowsText());
}

TEST_F(ItemRowsTest, ExpandingBelowACollapsedParentCountsWhenThatOpens) {
  Fill("a [b [c]]");
  Item("a.b").Expand();
  EXPECT_EQ(">a", RowsText());
  Item("a").Expand();
  EXPECT_EQ(">a | b | c", RowsText());
}

TEST_F(ItemRowsTest, AHiddenItemHasNoRowAndNeitherHasWhatIsBelow) {
  Fill("a [b] c");
  FEditor->FullExpand();
  Item("a").SetVisible(false);
  EXPECT_EQ(">c", RowsText());
  Item("a").SetVisible(true);
  EXPECT_EQ("a | b | >c", RowsText());
}

TEST_F(ItemRowsTest, RowsStandStillInAnUpdateBracket) {
  Fill("a b");
  Items().BeginUpdate();
  Items().Add("c", {});
  Item("a").SetVisible(false);
  EXPECT_EQ(">a | b", RowsText());
  EXPECT_EQ("a b c", EntriesText());
  Items().EndUpdate();
  EXPECT_EQ(">b | c", RowsText());
}

TEST_F(ItemRowsTest, AnItemDeletedInAnUpdateBracketTakesItsRowsWithItAtOnce) {
  Fill("a [x y] b");
  Item("a").Expand();
  Items().BeginUpdate();
  Items().Delete(0);
  EXPECT_EQ(">b", RowsText());
  Items().EndUpdate();
  EXPECT_EQ(">b", RowsText());
}

TEST_F(ItemRowsTest, AMovedItemTakesItsSubtreeAlong) {
  Fill("a [x [y]] b");
  FEditor->FullExpand();
  Item("a.x").SetCollection(&Item("b").GetItems());
  EXPECT_EQ("a b [x [y]]", TreeText());
  EXPECT_EQ("a b x y", EntriesText());
  EXPECT_EQ(">a | b | x | y", RowsText());
}

TEST_F(ItemRowsTest, PlacesAreThoseInTheLists) {
  Fill("a [b [c] d] e");
  Item("a").Expand();
  EXPECT_EQ(2, Item("a.b.c").GetAbsoluteIndex());
  EXPECT_EQ(-1, Item("a.b.c").GetAbsoluteVIndex());
  EXPECT_EQ(3, Item("a.d").GetAbsoluteIndex());
  EXPECT_EQ(2, Item("a.d").GetAbsoluteVIndex());
  EXPECT_EQ(4, Item("e").GetAbsoluteIndex());
  EXPECT_EQ(3, Item("e").GetAbsoluteVIndex());
}

TEST_F(ItemRowsTest, NumbersOutsideTheListsFindNothing) {
  Fill("a");
  EXPECT_EQ(nullptr, FEditor->GetItem(1));
  EXPECT_EQ(nullptr, FEditor->GetItem(-1));
  EXPECT_EQ(nullptr, FEditor->GetVisibleItem(1));
  EXPECT_EQ(nullptr, FEditor->GetVisibleItem(-1));
}

TEST_F(ItemRowsTest, ALongListFindsPlacesFromBothEnds) {
  for (int i = 0; i < 5000; ++i) Items().Add(QString::number(i), {});
  EXPECT_EQ("4999", FEditor->GetVisibleItem(4999)->GetName().toStdString());
  EXPECT_EQ(4999, Items().GetItem(4999)->GetAbsoluteVIndex());
  Items().Insert(0);
  Items().GetItem(2500)->SetVisible(false);
  EXPECT_EQ(4999, Items().GetItem(5000)->GetAbsoluteVIndex());
  EXPECT_EQ(5000, Items().GetItem(5000)->GetAbsoluteIndex());
  Items().Delete(1);
  EXPECT_EQ("2500", FEditor->GetVisibleItem(2499)->GetName().toStdString());
}

}  // namespace
}  // namespace kt::tests
