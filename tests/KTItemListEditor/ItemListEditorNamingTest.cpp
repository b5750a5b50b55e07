// Names that are typed take their items to other places.
#include "KTItemListEditor/ItemListEditorInputFixture.h"
#include "kt/rtl/collections/UpdateBracket.h"
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
  void Drag(QPoint from, QPoint to) {
    FWindow->Press(from);
    FWindow->MoveTo((from + to) / 2);
    FWindow->MoveTo(to);
    FWindow->Release(to);
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

// Columns that are moved.

TEST_F(ItemListEditorNamingTest, AMovedColumnLeavesTheCursorWithItsField) {
  Show("a b");
  Item("a").SetValue("va");
  Item("b").SetValue("vb");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goColMoving});
  Drag(CellCenter(1, 0), CellCenter(0, 0));
  EXPECT_EQ("1,1", Where().toStdString());
  EXPECT_EQ("va", EditorText().toStdString());
  Key(Qt::Key_Down);
  EXPECT_EQ("1,2", Where().toStdString());
  ClickCell(1, 1);
  EXPECT_EQ("a b", TreeText());
  EXPECT_EQ("va vb", (Item("a").GetValue() + ' ' + Item("b").GetValue()).toStdString());
}

TEST_F(ItemListEditorNamingTest, AcrossTheColumnsAMovedRowLeavesTheCursorWithItsField) {
  TurnAcross();
  Show("a b");
  FEditor->SetRowCount(3);
  Item("a").SetValuesText("1\r\n2");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRowMoving});
  FEditor->SetRow(1);
  Drag(CellCenter(0, 1), CellCenter(0, 2));
  EXPECT_EQ("1,1", Where().toStdString());
  EXPECT_EQ("1", EditorText().toStdString());
}

TEST_F(ItemListEditorNamingTest, AcrossTheColumnsAMovedColumnTakesItsItemAlong) {
  TurnAcross();
  Show("a b c");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goColMoving});
  FEditor->SetFixedRows(1);
  Drag(CellCenter(1, 0), CellCenter(3, 0));
  EXPECT_EQ("b c a", TreeText());
  EXPECT_EQ(&Item("a"), FEditor->GetSelected());
}

// Blank items and lines.

TEST_F(ItemListEditorNamingTest, AcrossTheColumnsABlankItemIsNotLeftHoweverFarTheWay) {
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

TEST_F(ItemListEditorNamingTest, LinesThatTheApplicationHasSetStayWhileAValueIsTyped) {
  Show("a b");
  FEditor->SetRowCount(6);
  FEditor->SetRow(1);
  Type("x");
  EXPECT_EQ("x", Item("a").GetValue());
  EXPECT_EQ(6, FEditor->GetRowCount());
}

}  // namespace
}  // namespace kt::tests
