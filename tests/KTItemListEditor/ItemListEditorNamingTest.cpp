// Names that are typed take their items to other places.
#include "KTItemListEditor/ItemListEditorInputFixture.h"
#include "kt/rtl/strings/StringList.h"

namespace kt::tests {
namespace {

class ItemListEditorNamingTest : public TItemListInputTest {
 protected:
  /// Puts the editor over the name of an item.
  void EditName(const QString& name) {
    FEditor->SetPropertyOptions(FEditor->GetPropertyOptions() + TILEPropOptions{propEdit});
    FEditor->SetRow(Item(name).GetAbsoluteVIndex() + 1);
    FEditor->SetCol(0);
    FEditor->SetEditorMode(true);
  }
  /// The editor lies over the current cell and shows what is in it.
  void ExpectEditorInPlace() {
    EXPECT_TRUE(IsEditorOpen());
    EXPECT_EQ(FEditor->GetSelected()->GetName(), EditorText());
    EXPECT_EQ(FEditor->CellRect(FEditor->GetCol(), FEditor->GetRow()), FEditor->InplaceEditor()->GetBoundsRect());
  }
};

TEST_F(ItemListEditorNamingTest, InASortedListTheEditorGoesWithTheItem) {
  FEditor->SetSorted(true);
  Show("a b c");
  EditName("a");
  Retype("x");
  EXPECT_EQ("b | c | >x", RowsText());
  ExpectEditorInPlace();
  Type("y");
  EXPECT_EQ("b | c | >xy", RowsText());
  ExpectEditorInPlace();
  Key(Qt::Key_Backspace);
  EXPECT_EQ("b | c | >x", RowsText());
  ExpectEditorInPlace();
  Key(Qt::Key_Backspace);
  EXPECT_EQ("> | b | c", RowsText());
  ExpectEditorInPlace();
}

TEST_F(ItemListEditorNamingTest, EscapeBringsNameAndPlaceBack) {
  FEditor->SetSorted(true);
  Show("a b c");
  EditName("a");
  Retype("xy");
  EXPECT_EQ("b | c | >xy", RowsText());
  Key(Qt::Key_Escape);
  EXPECT_EQ("a", FEditor->GetSelected()->GetName());
  EXPECT_EQ(3, FEditor->GetItemCount());
  ExpectEditorInPlace();
}

TEST_F(ItemListEditorNamingTest, ANameInTheMiddleOfATextGoesOnThere) {
  FEditor->SetSorted(true);
  Show("aa b c");
  EditName("aa");
  FEditor->InplaceEditor()->SetSelStart(0);
  Type("xy");
  EXPECT_EQ("b | c | >xyaa", RowsText());
  EXPECT_EQ(2, FEditor->InplaceEditor()->GetSelStart());
}

TEST_F(ItemListEditorNamingTest, NobodyIsAskedWhetherTheCursorMayGoWithItsItem) {
  FEditor->SetSorted(true);
  Show("a b c");
  EditName("a");
  FEditor->OnSelectCell = [this](TObject*, int col, int row, bool& can) {
    FLog += QStringLiteral("%1,%2").arg(col).arg(row);
    can = false;
  };
  Retype("x");
  EXPECT_EQ("", TakeLog());
  EXPECT_EQ("b | c | >x", RowsText());
  ExpectEditorInPlace();
}

TEST_F(ItemListEditorNamingTest, TheItemIsScrolledIntoView) {
  FEditor->SetSorted(true);
  std::string tree = "a";
  for (int i = 10; i < 60; ++i) tree += " b" + std::to_string(i);
  Show(tree);
  EditName("a");
  Retype("x");
  EXPECT_EQ(51, FEditor->GetRow());
  EXPECT_GT(FEditor->GetTopRow(), 1);
  ExpectEditorInPlace();
}

TEST_F(ItemListEditorNamingTest, BelowACategoryTheEditorGoesWithTheItem) {
  Items().GetCategories().SetText("x=Cat\nxy=Dog");
  FEditor->SetArrangeByCategory(true);
  Show("a b");
  FEditor->FullExpand();
  const std::string before = RowsText();
  TKTItemProp* item = &Item("Miscellaneous.a");
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetRow(item->GetAbsoluteVIndex() + 1);
  FEditor->SetCol(0);
  FEditor->SetEditorMode(true);
  Retype("x");
  EXPECT_EQ(item, FEditor->GetSelected()) << before << " -> " << RowsText();
  ExpectEditorInPlace();
  Type("y");
  EXPECT_EQ(item, FEditor->GetSelected()) << before << " -> " << RowsText();
  EXPECT_EQ("xy", item->GetName());
  ExpectEditorInPlace();
  // And nobody else has got a name.
  EXPECT_NE(nullptr, FEditor->GetItems().FindItemByFullPathName("Miscellaneous.b"));
}

TEST_F(ItemListEditorNamingTest, AcrossTheColumnsTheEditorGoesWithTheItem) {
  TurnAcross();
  FEditor->SetSorted(true);
  Show("a b c");
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(1);
  FEditor->SetRow(0);
  FEditor->SetEditorMode(true);
  Retype("xy");
  EXPECT_EQ("b c xy", TreeText());
  EXPECT_EQ("3,0", Where().toStdString());
  ExpectEditorInPlace();
}

}  // namespace
}  // namespace kt::tests
