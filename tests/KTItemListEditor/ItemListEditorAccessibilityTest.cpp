#include "InplaceEditListFixture.h"

#include <QAccessible>

namespace kt::tests {
namespace {

/// Items a=1 [x=9], b=2, c=3 for a screen reader.
class ItemListEditorAccessibilityTest : public TInplaceEditListTest {
 protected:
  ItemListEditorAccessibilityTest() {
    Item(0).GetItems().Add(QStringLiteral("x"), QStringLiteral("9"));
    Show();
  }

  QAccessibleInterface& Table() { return *QAccessible::queryAccessibleInterface(Editor.GetHandle()); }
  QAccessibleInterface& Cell(int col, int row) { return *Table().tableInterface()->cellAt(row, col); }
  std::string Text(int col, int row, QAccessible::Text what) { return Cell(col, row).text(what).toStdString(); }
};

TEST_F(ItemListEditorAccessibilityTest, TheEditorIsATableOfItsCells) {
  EXPECT_EQ(QAccessible::Table, Table().role());
  EXPECT_EQ(4, Table().tableInterface()->rowCount());
  EXPECT_EQ(2, Table().tableInterface()->columnCount());
  EXPECT_EQ(8, Table().childCount());
  EXPECT_EQ(&Cell(1, 2), Table().child(5));
  EXPECT_EQ(5, Table().indexOfChild(&Cell(1, 2)));
  EXPECT_EQ(&Table(), Cell(1, 2).parent());
  EXPECT_EQ(nullptr, Table().child(8));
}

TEST_F(ItemListEditorAccessibilityTest, ValuesHaveTheNameOfTheirItem) {
  EXPECT_EQ("b", Text(0, 2, QAccessible::Name));
  EXPECT_EQ("", Text(0, 2, QAccessible::Value));
  EXPECT_EQ("b", Text(1, 2, QAccessible::Name));
  EXPECT_EQ("2", Text(1, 2, QAccessible::Value));
}

TEST_F(ItemListEditorAccessibilityTest, TheHintOfAnItemDescribesIt) {
  Item(1).SetHint(QStringLiteral("in pixels"));
  EXPECT_EQ("in pixels", Text(1, 2, QAccessible::Description));
}

TEST_F(ItemListEditorAccessibilityTest, TitlesAreTheHeadersOfTheirColumns) {
  EXPECT_EQ(QAccessible::ColumnHeader, Cell(1, 0).role());
  EXPECT_EQ("Value", Text(1, 0, QAccessible::Name));
  EXPECT_EQ(QList{&Cell(1, 0)}, Cell(1, 2).tableCellInterface()->columnHeaderCells());
}

TEST_F(ItemListEditorAccessibilityTest, TheCellUnderTheCursorIsSelected) {
  EXPECT_TRUE(Cell(1, 1).state().selected);
  EXPECT_FALSE(Cell(1, 2).state().selected);
  EXPECT_EQ(QList{&Cell(1, 1)}, Table().tableInterface()->selectedCells());
}

TEST_F(ItemListEditorAccessibilityTest, ReadOnlyAndDisabledItemsSaySo) {
  Item(1).SetReadOnly(true);
  Item(2).SetEnabled(false);
  EXPECT_TRUE(Cell(1, 1).state().editable);
  EXPECT_TRUE(Cell(1, 2).state().readOnly);
  EXPECT_FALSE(Cell(1, 2).state().editable);
  EXPECT_TRUE(Cell(1, 3).state().disabled);
}

TEST_F(ItemListEditorAccessibilityTest, ItemsWithChildrenCanBeExpanded) {
  EXPECT_TRUE(Cell(0, 1).state().collapsed);
  EXPECT_FALSE(Cell(0, 2).state().expandable);
  Cell(0, 1).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(Item(0).IsExpanded());
  EXPECT_TRUE(Cell(0, 1).state().expanded);
  EXPECT_EQ("x", Text(0, 2, QAccessible::Name));
}

TEST_F(ItemListEditorAccessibilityTest, ACellCanBeMadeTheCurrentOne) {
  Cell(1, 3).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(3, Editor.GetRow());
}

TEST_F(ItemListEditorAccessibilityTest, ACellLiesWhereItIsSeen) {
  const QRect cell = Editor.CellRect(1, 2);
  EXPECT_EQ(QRect(Editor.ClientToScreen(cell.topLeft()), cell.size()), Cell(1, 2).rect());
  const QPoint inside = Cell(1, 2).rect().center();
  EXPECT_EQ(&Cell(1, 2), Table().childAt(inside.x(), inside.y()));
}

TEST_F(ItemListEditorAccessibilityTest, CellsThatAreGoneAreInvalid) {
  QAccessibleInterface& last = Cell(1, 3);
  const QAccessible::Id id = QAccessible::uniqueId(&last);
  Editor.GetItems().Clear();
  QAccessibleInterface* now = QAccessible::accessibleInterface(id);
  EXPECT_TRUE(!now || !now->isValid());
}

TEST_F(ItemListEditorAccessibilityTest, TheInplaceEditorIsNamedAfterItsItem) {
  QAccessibleInterface* edit = QAccessible::queryAccessibleInterface(Edit().GetHandle());
  EXPECT_EQ("a", edit->text(QAccessible::Name).toStdString());
  EXPECT_EQ("1", edit->text(QAccessible::Value).toStdString());
}

}  // namespace
}  // namespace kt::tests
