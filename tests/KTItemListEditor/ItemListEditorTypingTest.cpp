#include "KTItemListEditor/ItemListEditorInputFixture.h"

namespace kt::tests {
namespace {

/// What becomes of items while something is typed, and of what is typed while items come and go.
class ItemListEditorTypingTest : public TItemListInputTest {
 protected:
  /// Shows the names a and b, which have to be unique, with the editor over the second.
  void ShowUniqueNames() {
    Show("a b");
    FEditor->SetPropertyOptions({propEdit, propUnique});
    FEditor->SetRow(2);
    FEditor->SetCol(0);
    FEditor->SetEditorMode(true);
  }
};

TEST_F(ItemListEditorTypingTest, TypingIntoTheBlankLineMakesAnItem) {
  Show("");
  Type("x");
  ASSERT_EQ(1, FEditor->GetItemCount());
  EXPECT_EQ("x", Items().GetItem(0)->GetValue());
  EXPECT_EQ("x", EditorText());
}

TEST_F(ItemListEditorTypingTest, FurtherTypingGoesToTheItemThatWasMade) {
  Show("");
  Type("xyz");
  ASSERT_EQ(1, FEditor->GetItemCount());
  EXPECT_EQ("xyz", Items().GetItem(0)->GetValue());
}

TEST_F(ItemListEditorTypingTest, TypingIntoAFurtherFieldWritesAFurtherValue) {
  Show("a");
  Item("a").SetValue("1");
  FEditor->SetColCount(3);
  FEditor->SetCol(2);
  Type("xy");
  EXPECT_EQ("1\r\nxy\r\n", Item("a").GetValuesText());
}

TEST_F(ItemListEditorTypingTest, AcrossTheColumnsTypingGoesToTheItemOfTheColumn) {
  TurnAcross();
  Show("a b c");
  FEditor->SetCol(2);
  Type("xy");
  EXPECT_EQ("xy", Item("b").GetValue());
  EXPECT_EQ("a b c", TreeText());
}

TEST_F(ItemListEditorTypingTest, AcrossTheColumnsNamesAreTypedIntoTheFirstRow) {
  TurnAcross();
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(2);
  FEditor->SetRow(0);
  Retype("n");
  EXPECT_EQ("a n", TreeText());
}

TEST_F(ItemListEditorTypingTest, TypingWithoutTheEditorOpensItWithWhatIsTyped) {
  Show("a");
  Item("a").SetValue("1");
  CloseEditor();
  Type("x");
  EXPECT_EQ("x", EditorText());
  EXPECT_EQ("x", Item("a").GetValue());
}

// Names that have to be unique.

TEST_F(ItemListEditorTypingTest, ATakenNameIsHeldBackSilentlyWhileItIsTyped) {
  ShowUniqueNames();
  Retype("a");
  EXPECT_EQ("a | >b", RowsText());
  EXPECT_EQ("a", EditorText());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(ItemListEditorTypingTest, ATakenNameIsToldWhenTheCellIsLeftWithIt) {
  ShowUniqueNames();
  Retype("a");
  Key(Qt::Key_Up);
  EXPECT_EQ("Property name is not unique: a", TakeErrors());
  EXPECT_EQ("a b", TreeText());
}

TEST_F(ItemListEditorTypingTest, ANameThatBeginsLikeATakenOneIsWrittenOnceItDiffers) {
  ShowUniqueNames();
  Retype("ax");
  EXPECT_EQ("a | >ax", RowsText());
  Key(Qt::Key_Up);
  EXPECT_EQ("", TakeErrors());
}

TEST_F(ItemListEditorTypingTest, ATakenNameThatIsTypedOverIsForgotten) {
  ShowUniqueNames();
  Retype("a");
  Retype("c");
  Retype("a");
  EXPECT_EQ("a | >c", RowsText());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(ItemListEditorTypingTest, EscapeBringsBackTheNameBeforeATakenOne) {
  ShowUniqueNames();
  Retype("a");
  Key(Qt::Key_Escape);
  EXPECT_EQ("b", EditorText());
  Key(Qt::Key_Up);
  EXPECT_EQ("", TakeErrors());
  EXPECT_EQ("a b", TreeText());
}

// An open editor and what happens to its item.

TEST_F(ItemListEditorTypingTest, AnItemRemovedUnderTheOpenEditorLeavesTheOthersAsTheyAre) {
  Show("");
  Items().Add("a", "a");
  Items().Add("b", "b");
  Items().Add("c", "c");
  FEditor->SetRow(2);
  TWindowProbe::Settle();
  Items().Delete(1);
  EXPECT_EQ("c", Item("c").GetValue());
  FEditor->SetRow(2);
  Items().Delete(0);
  EXPECT_EQ("c", Item("c").GetValue());
}

TEST_F(ItemListEditorTypingTest, TheOnlyItemRemovedUnderTheOpenEditorStaysRemoved) {
  Show("");
  Items().Add("a", "1");
  TWindowProbe::Settle();
  Items().Delete(0);
  EXPECT_EQ(0, FEditor->GetItemCount());
}

TEST_F(ItemListEditorTypingTest, LinesThatTheApplicationHasSetStayWhileAValueIsTyped) {
  Show("a b");
  FEditor->SetRowCount(6);
  FEditor->SetRow(1);
  Type("x");
  EXPECT_EQ("x", Item("a").GetValue());
  EXPECT_EQ(6, FEditor->GetRowCount());
}

}  // namespace
}  // namespace kt::tests
