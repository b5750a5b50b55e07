#include "KTItemListEditor/ItemListEditorInputFixture.h"

namespace kt::tests {
namespace {

class TMovingEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::MoveRow;
  using TKTItemListEditor::TKTItemListEditor;
};

/// Items that follow their rows.
class ItemListEditorRowMoveTest : public TItemListInputTest {
 protected:
  ItemListEditorRowMoveTest() { FEditor = Make<TMovingEditor>(); }
  void Move(int from, int to) { static_cast<TMovingEditor&>(*FEditor).MoveRow(from, to); }
  void LogMoves() {
    FEditor->OnRowMoved = [this](TObject*, int from, int to) {
      FLog += QStringLiteral("%1>%2:").arg(from).arg(to) + QString::fromStdString(TreeText());
    };
  }
  /// Shows the names fixed, so that rows can be taken by them.
  void ShowMovable(const std::string& tree) {
    FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRowMoving});
    FEditor->SetFixedCols(1);
    Show(tree);
  }
  void Drag(int fromRow, int toRow) {
    // Behind the room of a glyph.
    FWindow->Press(CellCenter(0, fromRow));
    FWindow->MoveTo(CellCenter(0, toRow));
    FWindow->Release(CellCenter(0, toRow));
  }
};

TEST_F(ItemListEditorRowMoveTest, AMovedRowTakesItsItemAlong) {
  Fill("a b c");
  Move(1, 3);
  EXPECT_EQ("b c a", TreeText());
}

TEST_F(ItemListEditorRowMoveTest, AnItemMovesAmongItsSiblingsOnly) {
  Fill("a [b c] d");
  FEditor->FullExpand();
  Move(4, 2);
  EXPECT_EQ("d a [b c]", TreeText());
  Move(3, 1);
  EXPECT_EQ("d a [b c]", TreeText());
}

TEST_F(ItemListEditorRowMoveTest, OnRowMovedIsToldAfterTheItemHasMoved) {
  Fill("a b");
  LogMoves();
  Move(2, 1);
  EXPECT_EQ("2>1:b a", TakeLog());
}

TEST_F(ItemListEditorRowMoveTest, HiddenItemsDoNotCountAsRows) {
  Fill("a h b c");
  Item("h").SetVisible(false);
  Move(1, 3);
  EXPECT_EQ("b | c | >a", RowsText());
}

TEST_F(ItemListEditorRowMoveTest, AcrossTheColumnsNoItemMovesButTheEventIsRaised) {
  Fill("a b");
  TurnAcross();
  LogMoves();
  Move(0, 1);
  EXPECT_EQ("0>1:a b", TakeLog());
}

TEST_F(ItemListEditorRowMoveTest, ARowThatIsDraggedDownTakesItsItemAlong) {
  ShowMovable("a b c");
  Drag(1, 3);
  EXPECT_EQ("b c a", TreeText());
}

TEST_F(ItemListEditorRowMoveTest, ARowThatIsDraggedUpTakesItsItemAlong) {
  ShowMovable("a b c");
  Drag(3, 1);
  EXPECT_EQ("c a b", TreeText());
}

TEST_F(ItemListEditorRowMoveTest, WithoutTheOptionNoRowIsDragged) {
  ShowMovable("a b c");
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goRowMoving});
  Drag(1, 3);
  EXPECT_EQ("a b c", TreeText());
}

TEST_F(ItemListEditorRowMoveTest, AValueStaysWithItsItemThatIsDraggedWithTheEditorOpen) {
  ShowMovable("a b c");
  Item("a").SetValue("1");
  FEditor->SetEditorMode(true);
  Retype("7");
  Drag(1, 3);
  EXPECT_EQ("7", Item("a").GetValue());
  EXPECT_EQ("", Item("b").GetValue());
  EXPECT_EQ("", Item("c").GetValue());
}

}  // namespace
}  // namespace kt::tests
