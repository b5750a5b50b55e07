// Columns and rows that the user moves.
#include "KTItemListEditor/ItemListEditorInputFixture.h"

namespace kt::tests {
namespace {

class ItemListEditorMovedColumnsTest : public TItemListInputTest {
 protected:
  void Drag(QPoint from, QPoint to) {
    FWindow->Press(from);
    FWindow->MoveTo((from + to) / 2);
    FWindow->MoveTo(to);
    FWindow->Release(to);
  }
};

TEST_F(ItemListEditorMovedColumnsTest, AMovedColumnLeavesTheCursorWithItsField) {
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

TEST_F(ItemListEditorMovedColumnsTest, AcrossTheColumnsAMovedRowLeavesTheCursorWithItsField) {
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

TEST_F(ItemListEditorMovedColumnsTest, AcrossTheColumnsAMovedColumnTakesItsItemAlong) {
  TurnAcross();
  Show("a b c");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goColMoving});
  FEditor->SetFixedRows(1);
  Drag(CellCenter(1, 0), CellCenter(3, 0));
  EXPECT_EQ("b c a", TreeText());
  EXPECT_EQ(&Item("a"), FEditor->GetSelected());
}

}  // namespace
}  // namespace kt::tests
