#include "KTItemListEditor/ItemListEditorInputFixture.h"
#include "kt/vcl/controls/VirtualKeys.h"

namespace kt::tests {
namespace {

/// What the keys do that move, add, restore and delete.
class ItemListEditorInputKeysTest : public TItemListInputTest {
 protected:
  /// Shows a named item and a blank one behind it, which stays, with the cursor on that.
  void ShowWithBlank() {
    Show("a");
    FEditor->SetDeleteBlanks(false);
    Items().Add();
    FEditor->SetRow(2);
  }
};

TEST_F(ItemListEditorInputKeysTest, ArrowsMoveFromItemToItem) {
  Show("a b c");
  Key(Qt::Key_Down);
  EXPECT_EQ("b", SelectedText());
  Key(Qt::Key_Up);
  EXPECT_EQ("a", SelectedText());
}

TEST_F(ItemListEditorInputKeysTest, ControlDownGoesToTheLastItemAndControlUpToTheFirst) {
  Show("a b c");
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ("c", SelectedText());
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ("a", SelectedText());
}

TEST_F(ItemListEditorInputKeysTest, PageKeysMoveByAPageWithTheEditorOpen) {
  Show("a b c d e f g h i j k l m n o p q r s t u v w x y z");
  const int page = FEditor->GetVisibleRowCount();
  ASSERT_GT(page, 3);
  Key(Qt::Key_PageDown);
  EXPECT_EQ(page, FEditor->GetRow());
  EXPECT_EQ("", EditorText());
  Key(Qt::Key_PageUp);
  EXPECT_EQ("1,1", Where());
}

TEST_F(ItemListEditorInputKeysTest, HomeLeadsToANameThatCanBeEditedAndEndBackToTheValue) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  Key(Qt::Key_Home);
  EXPECT_EQ("0,1", Where());
  Key(Qt::Key_End);
  EXPECT_EQ("1,1", Where());
}

TEST_F(ItemListEditorInputKeysTest, FromNameToNameTheArrowsStayInTheNames) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(0);
  Key(Qt::Key_Down);
  EXPECT_EQ("0,2", Where());
  EXPECT_EQ("b", EditorText());
}

TEST_F(ItemListEditorInputKeysTest, NothingIsExpandedByKeys) {
  Show("a [b]");
  Key(Qt::Key_Plus);
  Key(Qt::Key_Right);
  EXPECT_EQ(">a", RowsText());
}

// Adding.

TEST_F(ItemListEditorInputKeysTest, DownOnTheLastItemAddsOneWhereItemsCanBeAdded) {
  Show("a");
  Key(Qt::Key_Down);
  EXPECT_EQ(1, FEditor->GetItemCount());
  FEditor->SetPropertyOptions({propAdd});
  Key(Qt::Key_Down);
  EXPECT_EQ(2, FEditor->GetItemCount());
  EXPECT_EQ(2, FEditor->GetRow());
}

TEST_F(ItemListEditorInputKeysTest, DownAddsNothingAheadOfTheLastItem) {
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  Key(Qt::Key_Down);
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, DownOnALastItemWithoutNameAddsNothing) {
  Show("a");
  Items().Add("", "x");
  FEditor->SetPropertyOptions({propAdd});
  FEditor->SetRow(2);
  Key(Qt::Key_Down);
  EXPECT_EQ(2, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputKeysTest, DownWithShiftAddsNothing) {
  Show("a");
  FEditor->SetPropertyOptions({propAdd});
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(1, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputKeysTest, InsertAddsAnItemBeforeTheCursor) {
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  FEditor->SetRow(2);
  Key(Qt::Key_Insert);
  EXPECT_EQ("a | > | b", RowsText());
  EXPECT_EQ("", EditorText());
}

TEST_F(ItemListEditorInputKeysTest, InsertAddsNothingWhereItemsCannotBeAdded) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit, propDelete});
  Key(Qt::Key_Insert);
  EXPECT_EQ(">a | b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, InsertOnAnItemWithoutNameAddsNothing) {
  Show("a");
  Items().Add("", "x");
  FEditor->SetPropertyOptions({propAdd});
  FEditor->SetRow(2);
  Key(Qt::Key_Insert);
  EXPECT_EQ(2, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputKeysTest, InsertOnTheBlankLineOfAnEmptyEditorAddsNothing) {
  Show("");
  FEditor->SetPropertyOptions({propAdd});
  Key(Qt::Key_Insert);
  EXPECT_EQ(0, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputKeysTest, WithoutTheEditorInsertAddsWhateverElseIsHeld) {
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  CloseEditor();
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ("> | a | b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, InTheEditorInsertWithShiftPastes) {
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(">a | b", RowsText());
}

// Escape.

TEST_F(ItemListEditorInputKeysTest, EscapeRemovesAnEmptyItem) {
  ShowWithBlank();
  Key(Qt::Key_Escape);
  EXPECT_EQ(">a", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, EscapeLeavesAnItemThatIsNotEmpty) {
  Show("a b");
  FEditor->SetRow(2);
  Key(Qt::Key_Escape);
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, EscapeOnTheBlankLineDoesNothing) {
  Show("");
  Key(Qt::Key_Escape);
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(ItemListEditorInputKeysTest, EscapeTakesBackWhatWasTypedAndSelectsAllOfIt) {
  Show("a");
  Item("a").SetValue("old");
  Type("new");
  ASSERT_EQ("new", Item("a").GetValue());
  Key(Qt::Key_Escape);
  EXPECT_EQ("old", Item("a").GetValue());
  EXPECT_EQ("old", EditorText());
  EXPECT_EQ(3, FEditor->InplaceEditor()->GetSelLength());
}

TEST_F(ItemListEditorInputKeysTest, EscapeTakesBackTheTypingIntoAnEmptyItemBeforeItRemovesTheItem) {
  ShowWithBlank();
  Type("x");
  Key(Qt::Key_Escape);
  EXPECT_EQ("a | >", RowsText());
  EXPECT_EQ("", EditorText());
  Key(Qt::Key_Escape);
  EXPECT_EQ(">a", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, EscapeGoesOnToTheHandlersOfTheGrid) {
  Show("a");
  CloseEditor();
  FEditor->OnKeyDown = [this](TObject*, quint16& key, TShiftState) { FLog += QString::number(key); };
  Key(Qt::Key_Escape);
  EXPECT_EQ(std::to_string(VK_ESCAPE), TakeLog());
}

// Deleting.

TEST_F(ItemListEditorInputKeysTest, ControlDeleteDeletesWhereItemsCanBeDeleted) {
  Show("a b");
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(2, FEditor->GetItemCount());
  FEditor->SetPropertyOptions({propDelete});
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(">b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, ControlDeleteOfTheLastItemLeadsToTheOneAbove) {
  Show("a b c");
  FEditor->SetPropertyOptions({propDelete});
  FEditor->SetRow(3);
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, ControlDeleteTakesTheChildrenAlong) {
  Show("a [b c] d");
  FEditor->FullExpand();
  FEditor->SetPropertyOptions({propDelete});
  FEditor->SetRow(1);
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(">d", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, ControlDeleteOnTheBlankLineDoesNothing) {
  Show("");
  FEditor->SetPropertyOptions({propDelete});
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(ItemListEditorInputKeysTest, DeleteAloneDeletesTextOnly) {
  Show("a b");
  Item("a").SetValue("1");
  FEditor->SetPropertyOptions({propDelete});
  FEditor->SetEditorMode(true);
  FEditor->InplaceEditor()->SelectAll();
  Key(Qt::Key_Delete);
  EXPECT_EQ("", Item("a").GetValue());
  EXPECT_EQ(">a | b", RowsText());
}

// Items across the columns.

TEST_F(ItemListEditorInputKeysTest, AcrossTheColumnsControlDownGoesToTheLastItemAndControlUpToTheFirst) {
  TurnAcross();
  Show("a b c");
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ("3,1", Where());
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ("1,1", Where());
}

TEST_F(ItemListEditorInputKeysTest, AcrossTheColumnsDownAheadOfTheLastItemLeadsNowhere) {
  TurnAcross();
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  Key(Qt::Key_Down);
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ(2, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputKeysTest, AcrossTheColumnsDownOnTheLastItemAddsOne) {
  TurnAcross();
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  FEditor->SetCol(2);
  Key(Qt::Key_Down);
  EXPECT_EQ("a | b | >", RowsText());
  EXPECT_EQ("3,1", Where());
}

TEST_F(ItemListEditorInputKeysTest, AcrossTheColumnsInsertAddsAnItemBeforeTheCursor) {
  TurnAcross();
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  FEditor->SetCol(2);
  Key(Qt::Key_Insert);
  EXPECT_EQ("a | > | b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, AcrossTheColumnsControlDeleteDeletesTheItemOfTheColumn) {
  TurnAcross();
  Show("a b c");
  FEditor->SetPropertyOptions({propDelete});
  FEditor->SetCol(2);
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ("a | >c", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, AcrossTheColumnsEscapeRemovesAnEmptyItem) {
  TurnAcross();
  Show("a b");
  Items().Insert(1);
  FEditor->SetCol(2);
  Key(Qt::Key_Escape);
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorInputKeysTest, AcrossTheColumnsEscapeTakesBackWhatWasTyped) {
  TurnAcross();
  Show("a b");
  Item("a").SetValue("old");
  FEditor->SetEditorMode(true);
  Retype("new");
  ASSERT_EQ("new", Item("a").GetValue());
  Key(Qt::Key_Escape);
  EXPECT_EQ("old", Item("a").GetValue());
}

}  // namespace
}  // namespace kt::tests
