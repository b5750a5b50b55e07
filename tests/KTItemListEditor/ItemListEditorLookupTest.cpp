#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemListEditorLookupTest : public TItemListTest {
 protected:
  /// "a=1", "Color=", "c [d]", with c expanded.
  void FillWithValues() {
    Fill("a Color c [d]");
    Item("a").SetValue("1");
    FEditor->FullExpand();
  }
  QString At(int col, int row, bool isGridPosition) {
    return NameOf(static_cast<const TKTItemListEditor&>(*FEditor).FindItemProp(col, row, isGridPosition));
  }
  QString Found(const Variant& key) { return NameOf(FEditor->FindItemProp(key, false)); }
};

// By cell.

TEST_F(ItemListEditorLookupTest, ACellFindsTheItemOfItsRow) {
  FillWithValues();
  EXPECT_EQ("a", At(0, 1, true));
  EXPECT_EQ("d", At(1, 4, true));
  EXPECT_EQ("nil", At(1, 0, true));
  EXPECT_EQ("nil", At(1, 5, true));
}

TEST_F(ItemListEditorLookupTest, WithoutFixedRowsTheRowIsTheNumberOfTheItem) {
  FillWithValues();
  EXPECT_EQ("a", At(0, 0, false));
  EXPECT_EQ("d", At(9, 3, false));
  EXPECT_EQ("nil", At(0, 4, false));
  EXPECT_EQ("nil", At(0, -1, false));
}

TEST_F(ItemListEditorLookupTest, WhereColumnsAreItemsACellFindsTheItemOfItsColumn) {
  FillWithValues();
  FEditor->SetOrientation(goHorizontal);
  EXPECT_EQ("a", At(1, 0, true));
  EXPECT_EQ("Color", At(1, 7, false));
  EXPECT_EQ("nil", At(0, 1, true));
}

TEST_F(ItemListEditorLookupTest, WithoutRowsNothingIsFound) {
  EXPECT_EQ("nil", At(0, 1, true));
  EXPECT_EQ("nil", NameOf(FEditor->GetSelected()));
  EXPECT_EQ("nil", Found(0));
}

// By key.

TEST_F(ItemListEditorLookupTest, AnOrdinalKeyIsTheNumberOfARow) {
  FillWithValues();
  EXPECT_EQ("c", Found(2));
  EXPECT_EQ("nil", Found(4));
  EXPECT_EQ("nil", Found(-1));
}

TEST_F(ItemListEditorLookupTest, ATextIsComparedWithNameAndValueSoThatTheNameAloneFindsNothing) {
  FillWithValues();
  Item("Color").SetValue("clRed");
  EXPECT_EQ("nil", Found("Color"));
  EXPECT_EQ("Color", Found("Color=clRed"));
  EXPECT_EQ("nil", Found("color=clRed"));
}

TEST_F(ItemListEditorLookupTest, TheFirstOfSeveralMatchesWins) {
  Items().Add("a", "1");
  Items().Add("a", "1");
  EXPECT_EQ(Items().GetItem(0), FEditor->FindItemProp("a=1", false));
}

TEST_F(ItemListEditorLookupTest, OnlyRowsAreSearchedByKey) {
  FillWithValues();
  EXPECT_EQ("d", Found("d="));
  Item("c").Collapse();
  EXPECT_EQ("nil", Found("d="));
}

TEST_F(ItemListEditorLookupTest, ATextNotFoundIsNotCreated) {
  FillWithValues();
  EXPECT_EQ("Property not found: x", MessageOf<ETORVException>([&] { FEditor->FindItemProp("x", true); }));
  EXPECT_EQ("a Color c [d]", TreeText());
}

TEST_F(ItemListEditorLookupTest, AnOrdinalKeyNotFoundIsCreatedAtTheTopLevel) {
  Fill("a b");
  FEditor->FindItemProp(2, true)->SetName("x");
  EXPECT_EQ("a b x", TreeText());
}

TEST_F(ItemListEditorLookupTest, AnOrdinalKeyThatIsNoPlaceOfTheTopLevelRaisesTheListError) {
  FillWithValues();
  EXPECT_EQ("List index out of bounds (4)", MessageOf<EListError>([&] { FEditor->FindItemProp(4, true); }));
  EXPECT_EQ("List index out of bounds (-1)", MessageOf<EListError>([&] { FEditor->FindItemProp(-1, true); }));
}

TEST_F(ItemListEditorLookupTest, WithoutRowsNothingIsCreated) { EXPECT_EQ(nullptr, FEditor->FindItemProp(0, true)); }

// By name.

TEST_F(ItemListEditorLookupTest, FindItemAnswersFalseEvenWhenFound) {
  FillWithValues();
  int index = 7;
  EXPECT_FALSE(FEditor->FindItem("C", index));
  EXPECT_EQ(2, index);
  EXPECT_FALSE(FEditor->FindItem("x", index));
  EXPECT_EQ(-1, index);
}

TEST_F(ItemListEditorLookupTest, FindItemSearchesRowsOnly) {
  FillWithValues();
  int index = 7;
  FEditor->FindItem("d", index);
  EXPECT_EQ(3, index);
  Item("c").Collapse();
  FEditor->FindItem("d", index);
  EXPECT_EQ(-1, index);
}

TEST_F(ItemListEditorLookupTest, IndexOfNameSkipsLinesWithoutASeparatorAndStartsWhereItIsTold) {
  const auto lines = Make<TStringList>();
  lines->SetText("a\r\nA=1\r\nb=2\r\na==3\r\n=4");
  EXPECT_EQ(1, FEditor->IndexOfName(*lines, 0, "a"));
  EXPECT_EQ(3, FEditor->IndexOfName(*lines, 2, "a"));
  EXPECT_EQ(4, FEditor->IndexOfName(*lines, 0, ""));
  EXPECT_EQ(-1, FEditor->IndexOfName(*lines, 0, "c"));
  EXPECT_EQ(-1, FEditor->IndexOfName(*lines, 5, "a"));
}

TEST_F(ItemListEditorLookupTest, IndexOfNameComparesAsTheEditorDoes) {
  const auto lines = Make<TStringList>();
  lines->SetText("A=1\r\na=2");
  FEditor->SetCaseSensitive(true);
  EXPECT_EQ(1, FEditor->IndexOfName(*lines, 0, "a"));
}

TEST_F(ItemListEditorLookupTest, StringsCompareWithoutRegardToCaseUnlessTold) {
  EXPECT_EQ(0, FEditor->CompareStrings("a", "A"));
  EXPECT_GT(0, FEditor->CompareStrings("a", "B"));
  FEditor->SetCaseSensitive(true);
  EXPECT_NE(0, FEditor->CompareStrings("a", "A"));
}

// The selection.

TEST_F(ItemListEditorLookupTest, TheSelectedItemIsTheOneUnderTheCursor) {
  Fill("a b c");
  FEditor->SetRow(2);
  EXPECT_EQ("a | >b | c", RowsText());
  EXPECT_EQ(&Item("b"), FEditor->GetSelected());
}

TEST_F(ItemListEditorLookupTest, SelectingAnItemExpandsItsAncestorsAndMovesTheCursorThere) {
  Fill("a [b [c]] d");
  FEditor->SetSelected(&Item("a.b.c"));
  EXPECT_EQ("a | b | >c | d", RowsText());
  EXPECT_FALSE(Item("a.b.c").IsExpanded());
}

TEST_F(ItemListEditorLookupTest, AncestorsAreExpandedTheInnermostFirst) {
  FEditor = Make<TProbeEditor>();
  Fill("a [b [c]] d");
  const std::string log = Heard([&] { FEditor->SetSelected(&Item("a.b.c")); });
  EXPECT_EQ("a.VisibleChanged", QString::fromStdString(log).split(u' ').filter(".VisibleChanged").last());
  EXPECT_TRUE(Item("a.b").IsExpanded());
}

TEST_F(ItemListEditorLookupTest, SelectingAHiddenItemLeavesTheCursor) {
  Fill("a [b] d");
  Item("a.b").SetVisible(false);
  FEditor->SetRow(2);
  FEditor->SetSelected(&Item("a.b"));
  EXPECT_EQ("a | >d", RowsText());
  EXPECT_TRUE(Item("a").IsExpanded());
}

TEST_F(ItemListEditorLookupTest, SelectingNothingLeavesTheCursor) {
  Fill("a b");
  FEditor->SetRow(2);
  FEditor->SetSelected(nullptr);
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorLookupTest, WhereColumnsAreItemsSelectingMovesTheCursorToTheColumn) {
  Fill("a b c");
  FEditor->SetOrientation(goHorizontal);
  FEditor->SetSelected(&Item("c"));
  EXPECT_EQ(3, FEditor->GetCol());
  EXPECT_EQ("a | b | >c", RowsText());
}

TEST_F(ItemListEditorLookupTest, AnEmptyItemHasNeitherNameNorValue) {
  EXPECT_FALSE(FEditor->IsEmptyItem());
  Items().Add();
  EXPECT_TRUE(FEditor->IsEmptyItem());
  Items().GetItem(0)->SetValuesText(" ");
  EXPECT_TRUE(FEditor->IsEmptyItem());
  Items().GetItem(0)->SetValuesText("x");
  EXPECT_FALSE(FEditor->IsEmptyItem());
}

// Lists.

TEST_F(ItemListEditorLookupTest, CountsAreThoseOfAllItemsAndOfRows) {
  Fill("a [b c] d");
  EXPECT_EQ(4, FEditor->GetItemCount());
  EXPECT_EQ(2, FEditor->GetVisibleItemCount());
  EXPECT_EQ(&Item("a.c"), FEditor->GetItem(2));
  EXPECT_EQ(&Item("d"), FEditor->GetVisibleItem(1));
}

TEST_F(ItemListEditorLookupTest, AKeyThatCannotBeComparedWithATextFindsNothing) {
  FillWithValues();
  EXPECT_EQ("nil", Found(1.5));
  EXPECT_EQ("nil", Found(Variant::Null()));
}

}  // namespace
}  // namespace kt::tests
