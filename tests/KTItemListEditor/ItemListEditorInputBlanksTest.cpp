#include "KTItemListEditor/ItemListEditorInputFixture.h"
#include "kt/rtl/collections/UpdateBracket.h"

namespace kt::tests {
namespace {

/// What becomes of blank items that the cursor leaves.
class ItemListEditorInputBlanksTest : public TItemListInputTest {
 protected:
  /// Shows named items with a blank one before the second, and the cursor on that.
  void ShowOnBlank(const std::string& tree) {
    Show(tree);
    Items().Insert(1);
    FEditor->SetGridCount(gcCurrentLine, 2);
  }
};

TEST_F(ItemListEditorInputBlanksTest, LeavingABlankItemDownwardsLandsOnTheLineThatWasBelow) {
  ShowOnBlank("a b c");
  Key(Qt::Key_Down);
  EXPECT_EQ("a | >b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, LeavingABlankItemDownwardsByMoreLinesLandsWhereItWasSent) {
  ShowOnBlank("a b c d");
  FEditor->SetRow(4);
  EXPECT_EQ("a | b | >c | d", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, LeavingABlankItemUpwardsDeletesItToo) {
  ShowOnBlank("a b c");
  Key(Qt::Key_Up);
  EXPECT_EQ(">a | b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, LeavingABlankItemUpwardsByMoreLinesLandsWhereItWasSent) {
  Show("a b c");
  Items().Insert(2);
  FEditor->SetRow(3);
  FEditor->SetRow(1);
  EXPECT_EQ(">a | b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, LeavingABlankItemAtTheEndLandsOnTheItemAbove) {
  Show("a b");
  Items().Add();
  FEditor->SetRow(3);
  Key(Qt::Key_Up);
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, DownFromABlankItemAtTheEndLeavesItThere) {
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  Items().Add();
  FEditor->SetRow(3);
  Key(Qt::Key_Down);
  EXPECT_EQ("a | b | >", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, ControlDownFromABlankItemLandsOnTheLastItem) {
  ShowOnBlank("a b c");
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ("a | b | >c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, ControlUpFromABlankItemLandsOnTheFirstItem) {
  ShowOnBlank("a b c");
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(">a | b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, AClickOnAValueBelowLandsOnThatItem) {
  ShowOnBlank("a b c");
  ClickCell(1, 3);
  EXPECT_EQ("a | >b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, AClickOnANameBelowLandsOnTheValueOfThatItem) {
  ShowOnBlank("a b c");
  ClickCell(0, 3);
  EXPECT_EQ("a | >b | c", RowsText());
  EXPECT_EQ("1,2", Where());
}

TEST_F(ItemListEditorInputBlanksTest, AClickOnANameBelowLandsOnThatNameWhereNamesCanBeEdited) {
  ShowOnBlank("a b c");
  FEditor->SetPropertyOptions({propAdd, propEdit});
  ClickCell(0, 3);
  EXPECT_EQ("a | >b | c", RowsText());
  EXPECT_EQ("0,2", Where());
  EXPECT_EQ("b", EditorText());
}

TEST_F(ItemListEditorInputBlanksTest, AnItemThatIsNotShownDoesNotKeepANewOneFromBeingReached) {
  Show("a h b");
  Item("h").SetVisible(false);
  FEditor->SetPropertyOptions({propAdd, propEdit});
  FEditor->SetRow(2);
  Key(Qt::Key_Down);
  EXPECT_EQ("a | b | >", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, AClickOnTheLastNameLandsOnTheValueOfThatItem) {
  ShowOnBlank("a b c");
  ClickCell(0, 4);
  EXPECT_EQ("a | b | >c", RowsText());
  EXPECT_EQ("1,3", Where());
}

TEST_F(ItemListEditorInputBlanksTest, AClickAboveDeletesTheBlankItemToo) {
  ShowOnBlank("a b c");
  ClickCell(1, 1);
  EXPECT_EQ(">a | b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, WithoutDeleteBlanksTheyStay) {
  Show("a b");
  FEditor->SetDeleteBlanks(false);
  Items().Insert(1);
  FEditor->SetRow(2);
  Key(Qt::Key_Down);
  EXPECT_EQ("a |  | >b", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, AMoveFromFieldToFieldDeletesNothing) {
  FEditor->SetPropertyOptions({propEdit});
  ShowOnBlank("a b");
  FEditor->SetCol(0);
  EXPECT_EQ("a | > | b", RowsText());
  EXPECT_EQ("0,2", Where());
}

TEST_F(ItemListEditorInputBlanksTest, ABlankItemWithChildrenTakesThemAlongAndTheCursorStillGoesWhereItWasSent) {
  Show("a b c");
  TKTItemProp* blank = Items().Insert(1);
  blank->GetItems().Add("x", "");
  blank->GetItems().Add("y", "");
  blank->Expand();
  FEditor->SetRow(2);
  FEditor->SetRow(6);
  EXPECT_EQ("a | b | >c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, ABlankItemThatIsLeftIsNotValidated) {
  ShowOnBlank("a b");
  FEditor->OnValidate = [this](TObject*, TKTItemProp*, int) { FLog += QStringLiteral("validate"); };
  FEditor->InplaceEditor()->SetModified(true);
  Key(Qt::Key_Up);
  EXPECT_EQ("", TakeLog());
  EXPECT_EQ(">a | b", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, ABlankItemInsertedUnderTheCursorStays) {
  Show("a");
  Items().Insert(0);
  EXPECT_EQ("> | a", RowsText());
}

// Items across the columns: the deletion deletes nothing, and the move to the right still loses a column.

TEST_F(ItemListEditorInputBlanksTest, AcrossTheColumnsAMoveToTheNextItemEndsWhereItBeganDeliberately) {
  TurnAcross();
  ShowOnBlank("a b c");
  FEditor->SetCol(3);
  EXPECT_EQ("a | > | b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, AcrossTheColumnsAMoveToTheLeftLeavesTheBlankItemDeliberately) {
  TurnAcross();
  ShowOnBlank("a b c");
  FEditor->SetCol(1);
  EXPECT_EQ(">a |  | b | c", RowsText());
}

/// Each column that the move loses is a move from the same blank item again.
TEST_F(ItemListEditorInputBlanksTest, AcrossTheColumnsAMoveFurtherToTheRightLosesAllItsColumnsDeliberately) {
  TurnAcross();
  ShowOnBlank("a b c");
  FEditor->SetCol(4);
  EXPECT_EQ("a | > | b | c", RowsText());
}

TEST_F(ItemListEditorInputBlanksTest, AcrossTheColumnsABlankItemIsNotLeftHoweverFarTheWay) {
  TurnAcross();
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doAutoColResize});
  Show("");
  {
    const TUpdateBracket bracket(Items());
    for (int i = 0; i < 20000; ++i) Items().Add(i == 0 ? QString() : QString::number(i), {});
  }
  FEditor->SetDeleteBlanks(true);
  FEditor->SetCol(1);
  int clicks = 0;
  FEditor->OnClick = [&clicks](TObject*) { ++clicks; };
  FEditor->SetCol(20000);
  EXPECT_EQ(1, FEditor->GetCol());
  EXPECT_LE(clicks, 3);
}

}  // namespace
}  // namespace kt::tests
