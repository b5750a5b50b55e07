#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemListEditorChangeTest : public TItemListTest {
 protected:
  ItemListEditorChangeTest() { FEditor = Make<TProbeEditor>(); }

  void DeleteRow(int row) { static_cast<TProbeEditor&>(*FEditor).DeleteRow(row); }
  QString DisplayNames() {
    QStringList names;
    for (int i = 0; i < FEditor->GetItemCount(); ++i) names += FEditor->GetItem(i)->GetDisplayName();
    return names.join(u' ');
  }
  TILEPropOptions Set(TILEPropOptions from, TILEPropOptions to) {
    FEditor->SetPropertyOptions({});
    FEditor->SetPropertyOptions(from);
    FEditor->SetPropertyOptions(to);
    return FEditor->GetPropertyOptions();
  }
};

// InsertItem.

TEST_F(ItemListEditorChangeTest, AnItemIsAppendedAtTheTopLevelAndItsLineAnswered) {
  Fill("a b");
  EXPECT_EQ(3, FEditor->InsertItem("x", "1", true));
  EXPECT_EQ("a= b= x=1", DisplayNames());
}

TEST_F(ItemListEditorChangeTest, AnItemIsInsertedBeforeTheCursorAndTheCursorsLineAnswered) {
  Fill("a b");
  FEditor->SetRow(2);
  EXPECT_EQ(2, FEditor->InsertItem("x", "1", false));
  EXPECT_EQ("a= x=1 b=", DisplayNames());
}

TEST_F(ItemListEditorChangeTest, TheEmptyItemUnderTheCursorIsReused) {
  Fill("a b c");
  Item("b").SetName("");
  FEditor->SetRow(2);
  EXPECT_EQ(2, FEditor->InsertItem("x", "1", true));
  EXPECT_EQ("a= x=1 c=", DisplayNames());
}

TEST_F(ItemListEditorChangeTest, TheLineOfAnAppendedItemCountsItemsOfTheTopLevelAndNotRows) {
  Fill("a [b c]");
  Item("a").Expand();
  EXPECT_EQ(2, FEditor->InsertItem("x", {}, true));
  EXPECT_EQ("a [b c] x", TreeText());
}

TEST_F(ItemListEditorChangeTest, InsertingBelowTheTopLevelIsCutToTheEndOfTheTopLevel) {
  Fill("a [b c]");
  FEditor->SetSelected(&Item("a.c"));
  EXPECT_EQ(3, FEditor->InsertItem("x", {}, false));
  EXPECT_EQ("a [b c] x", TreeText());
}

TEST_F(ItemListEditorChangeTest, AnEmptyEditorTakesItsFirstItemEitherWay) {
  EXPECT_EQ(1, FEditor->InsertItem("a", "1", false));
  EXPECT_EQ("a=1", DisplayNames());
}

TEST_F(ItemListEditorChangeTest, TheValueFollowsANameThatTakesTheReusedItemElsewhere) {
  FEditor->SetSorted(true);
  Fill("a b");
  Items().Insert(0);
  FEditor->SetSelected(Items().GetItem(0));
  EXPECT_EQ(1, FEditor->InsertItem("c", "1", true));
  EXPECT_EQ("a= b= c=1", DisplayNames());
}

TEST_F(ItemListEditorChangeTest, WhereColumnsAreItemsAnItemIsInsertedBeforeTheCursorsColumn) {
  Fill("a b");
  FEditor->SetOrientation(goHorizontal);
  FEditor->SetCol(2);
  EXPECT_EQ(2, FEditor->InsertItem("x", "1", false));
  EXPECT_EQ("a= x=1 b=", DisplayNames());
  EXPECT_EQ(4, FEditor->InsertItem("y", "2", true));
  EXPECT_EQ("a= x=1 b= y=2", DisplayNames());
}

TEST_F(ItemListEditorChangeTest, WhereColumnsAreItemsTheEmptyItemUnderTheCursorIsReused) {
  Fill("a b");
  FEditor->SetOrientation(goHorizontal);
  FEditor->SetCol(2);
  Items().GetItem(1)->SetName({});
  EXPECT_EQ(2, FEditor->InsertItem("x", "1", true));
  EXPECT_EQ("a= x=1", DisplayNames());
}

// Deleting.

TEST_F(ItemListEditorChangeTest, DeletingARowDeletesItsItemWithAllBelow) {
  Fill("a [x] b c");
  Item("a").Expand();
  DeleteRow(1);
  EXPECT_EQ("b c", TreeText());
}

TEST_F(ItemListEditorChangeTest, DeletingARowBelowTheTopLevelDeletesFromItsOwnCollection) {
  Fill("a [x y] b");
  Item("a").Expand();
  DeleteRow(3);
  EXPECT_EQ("a [x] b", TreeText());
}

TEST_F(ItemListEditorChangeTest, DeletingTheLastRowMovesTheCursorUpFirst) {
  Fill("a b c");
  FEditor->SetRow(3);
  const std::string log = Heard([&] { DeleteRow(3); });
  EXPECT_EQ("editor.SelectCell(1,2)", log.substr(0, log.find(' ')));
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorChangeTest, DeletingTheOnlyRowLeavesTheBlankLine) {
  Fill("a");
  DeleteRow(1);
  EXPECT_EQ("", RowsText());
  EXPECT_EQ(2, FEditor->GetRowCount());
  EXPECT_EQ(1, FEditor->GetRow());
}

TEST_F(ItemListEditorChangeTest, ADeletionFromInsideADeletionDoesNothing) {
  Fill("a b c");
  FEditor->SetRow(3);
  FEditor->OnSelectCell = [this](TObject*, int, int, bool&) { DeleteRow(1); };
  FEditor->DeleteItem(1, 3);
  EXPECT_EQ("a b", TreeText());
}

TEST_F(ItemListEditorChangeTest, ADeletionWhoseHandlerThrowsDeletesNothingAndTheNextOneWorks) {
  Fill("a b c");
  FEditor->SetRow(3);
  FEditor->OnSelectCell = [](TObject*, int, int, bool&) { throw Exception(QStringLiteral("no")); };
  EXPECT_EQ("no", MessageOf<Exception>([&] { FEditor->DeleteItem(1, 3); }));
  EXPECT_EQ("a b c", TreeText());
  FEditor->OnSelectCell = nullptr;
  FEditor->DeleteItem(1, 3);
  EXPECT_EQ("a b", TreeText());
}

TEST_F(ItemListEditorChangeTest, WhereColumnsAreItemsDeleteItemTakesTheItemOfTheColumn) {
  Fill("a b c");
  FEditor->SetOrientation(goHorizontal);
  FEditor->DeleteItem(2, 0);
  EXPECT_EQ("a c", TreeText());
  FEditor->SetSelected(&Item("c"));
  FEditor->DeleteItem(2, 1);
  EXPECT_EQ(">a", RowsText());
}

TEST_F(ItemListEditorChangeTest, RestoringTheCurrentItemDeletesAnEmptyOneOnly) {
  Fill("a b");
  EXPECT_FALSE(FEditor->RestoreCurrentItem());
  Item("a").SetName("");
  EXPECT_TRUE(FEditor->RestoreCurrentItem());
  EXPECT_EQ("b", TreeText());
}

// Names and values by row.

TEST_F(ItemListEditorChangeTest, PropNamesAndPropValuesAreThoseOfARow) {
  Fill("a [b] c");
  Item("a").Expand();
  FEditor->SetPropNames(1, "x");
  FEditor->SetPropValues(2, "1");
  EXPECT_EQ("x", FEditor->GetPropNames(1));
  EXPECT_EQ("1", FEditor->GetPropValues(2));
  EXPECT_EQ("a= x= c=1", DisplayNames());
}

TEST_F(ItemListEditorChangeTest, WhereColumnsAreItemsPropNamesAndPropValuesAreThoseOfAColumn) {
  Fill("a b");
  FEditor->SetOrientation(goHorizontal);
  FEditor->SetPropNames(1, "x");
  FEditor->SetPropValues(0, "1");
  EXPECT_EQ("x", FEditor->GetPropNames(1));
  EXPECT_EQ("1", FEditor->GetPropValues(0));
  EXPECT_EQ("a=1 x=", DisplayNames());
}

// PropertyOptions.

TEST_F(ItemListEditorChangeTest, NoPropertyOptionIsOnAtFirst) {
  EXPECT_EQ(TILEPropOptions{}, FEditor->GetPropertyOptions());
  EXPECT_TRUE(FEditor->GetDeleteBlanks());
  EXPECT_FALSE(FEditor->GetCaseSensitive());
  EXPECT_FALSE(FEditor->IsSorted());
  EXPECT_EQ(".", FEditor->GetPathDelimiter());
}

TEST_F(ItemListEditorChangeTest, AddingBringsEditingWithIt) {
  EXPECT_EQ((TILEPropOptions{propEdit, propAdd}), Set({}, {propAdd}));
  EXPECT_EQ((TILEPropOptions{propEdit, propAdd, propUnique}), Set({propUnique}, {propUnique, propAdd}));
}

TEST_F(ItemListEditorChangeTest, WithoutEditingThereIsNoAddingAnyMore) {
  EXPECT_EQ(TILEPropOptions{}, Set({propEdit, propAdd}, {propAdd}));
  EXPECT_EQ(TILEPropOptions{propDelete}, Set({propEdit, propAdd, propDelete}, {propAdd, propDelete}));
}

TEST_F(ItemListEditorChangeTest, ExchangingEditingForAddingLeavesNeither) {
  EXPECT_EQ(TILEPropOptions{}, Set({propEdit}, {propAdd}));
}

TEST_F(ItemListEditorChangeTest, WithoutEditingTheCursorLeavesTheNameColumn) {
  Fill("a");
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(0);
  FEditor->SetPropertyOptions({propDelete});
  EXPECT_EQ(1, FEditor->GetCol());
}

// Notifications.

TEST_F(ItemListEditorChangeTest, ABracketEndsInOneRebuildHoweverManyItemsCameMeanwhile) {
  Items().BeginUpdate();
  Fill("a b c d");
  EXPECT_EQ("editor.AdjustGridCount editor.Invalidate editor.SizeChanged editor.Invalidate [].Update(nil)",
            Heard([&] { Items().EndUpdate(); }));
  EXPECT_EQ(5, FEditor->GetRowCount());
}

TEST_F(ItemListEditorChangeTest, WhileTheEditUpdateIsLockedTheGridStaysAsItIs) {
  Fill("a");
  FEditor->DisableEditUpdate();
  FEditor->DisableEditUpdate();
  Fill("b c");
  FEditor->EnableEditUpdate();
  EXPECT_EQ(2, FEditor->GetRowCount());
  FEditor->EnableEditUpdate();
  EXPECT_EQ(4, FEditor->GetRowCount());
  EXPECT_EQ(">a | b | c", RowsText());
  EXPECT_FALSE(FEditor->IsEditUpdateLocked());
}

TEST_F(ItemListEditorChangeTest, RefreshDoesNothingWhileTheEditUpdateIsLocked) {
  FEditor->DisableEditUpdate();
  EXPECT_EQ("editor.Refresh", Heard([&] { FEditor->Refresh(); }));
  FEditor->EnableEditUpdate();
  EXPECT_EQ("editor.Refresh editor.AdjustGridCount editor.Invalidate", Heard([&] { FEditor->Refresh(); }));
}

TEST_F(ItemListEditorChangeTest, AcrossTheColumnsWithoutEditingTheCursorLeavesTheNameRow) {
  Fill("a b");
  FEditor->SetOrientation(goHorizontal);
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(2);
  FEditor->SetRow(0);
  FEditor->SetPropertyOptions({});
  EXPECT_EQ(1, FEditor->GetRow());
  EXPECT_EQ(2, FEditor->GetCol());
}

TEST_F(ItemListEditorChangeTest, TheCursorStaysOnItsItemWhenRowsComeAndGoAbove) {
  Fill("a [x y] b c");
  FEditor->SetSelected(&Item("b"));
  Item("a").Expand();
  EXPECT_EQ("a | x | y | >b | c", RowsText());
  Item("a.x").SetVisible(false);
  EXPECT_EQ("a | y | >b | c", RowsText());
  Item("a").Collapse();
  EXPECT_EQ("a | >b | c", RowsText());
}

TEST_F(ItemListEditorChangeTest, WhenTheSelectedItemLosesItsRowTheCursorStaysWhereItWas) {
  Fill("a b c");
  FEditor->SetSelected(&Item("b"));
  Item("b").SetVisible(false);
  EXPECT_EQ("a | >c", RowsText());
}

TEST_F(ItemListEditorChangeTest, FullCollapseThenFullExpandRestoresEveryRowWithOneRebuildEach) {
  Fill("a [b [c] d] e [f]");
  FEditor->FullExpand();
  const std::string rows = RowsText();
  const std::string collapse = Heard([&] { FEditor->FullCollapse(); });
  EXPECT_EQ(">a | e", RowsText());
  const std::string expand = Heard([&] { FEditor->FullExpand(); });
  EXPECT_EQ(rows, RowsText());
  EXPECT_EQ(1, QString::fromStdString(collapse).count("editor.SizeChanged"));
  EXPECT_EQ(1, QString::fromStdString(expand).count("editor.SizeChanged"));
}

TEST_F(ItemListEditorChangeTest, AnEditorThatDiesHearsOfItsItemsWithoutTouchingTheGrid) {
  Fill("a [b c] d");
  FEditor->FullExpand();
  const std::string log = Heard([&] { FEditor.reset(); });
  EXPECT_NE(std::string::npos, log.find("[].Notify(a,cnExtracting)"));
  EXPECT_EQ(std::string::npos, log.find("editor."));
}

}  // namespace
}  // namespace kt::tests
