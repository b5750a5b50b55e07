#include "KTItemListEditor/ItemListEditorInputFixture.h"

namespace kt::tests {
namespace {

class TDeletingEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::DeleteColumn;
  using TKTItemListEditor::DeleteRow;
  using TKTItemListEditor::TKTItemListEditor;
};

/// What is deleted when handlers change rows, or free the editor, while the cursor makes way.
class ItemListEditorDeletingTest : public TItemListInputTest {
 protected:
  ItemListEditorDeletingTest() { FEditor = Make<TDeletingEditor>(); }

  TDeletingEditor& Deleting() { return static_cast<TDeletingEditor&>(*FEditor); }
  /// Once, when the cursor is about to move.
  void WhenTheCursorMoves(std::function<void()> deed) {
    FEditor->OnSelectCell = [this, deed = std::move(deed)](TObject*, int, int, bool&) {
      if (!std::exchange(FIsDone, true)) deed();
    };
  }
  void FreeTheEditorWhenTheCursorMoves() {
    WhenTheCursorMoves([this] { FEditor.reset(); });
  }

  bool FIsDone = false;
};

TEST_F(ItemListEditorDeletingTest, DeletingTheLastRowDeletesThatItemWhateverOnSelectCellDoes) {
  Fill("a b c");
  FEditor->SetRow(3);
  WhenTheCursorMoves([this] { Items().Insert(0)->SetName("new"); });
  Deleting().DeleteRow(3);
  EXPECT_TRUE(FIsDone);
  EXPECT_EQ("new a b", TreeText());
}

TEST_F(ItemListEditorDeletingTest, DeletingTheLastItemDeletesThatItemWhateverOnSelectCellDoes) {
  Fill("a b c");
  FEditor->SetRow(3);
  WhenTheCursorMoves([this] { delete &Item("a"); });
  FEditor->DeleteItem(1, 3);
  EXPECT_TRUE(FIsDone);
  EXPECT_EQ("b", TreeText());
}

TEST_F(ItemListEditorDeletingTest, DeletingAColumnDeletesTheItemOfThatNumberWhateverOnSelectCellDoes) {
  Fill("a b c");
  FEditor->SetCol(1);
  FEditor->SetPropertyOptions({propEdit});
  WhenTheCursorMoves([this] { Items().Insert(0)->SetName("new"); });
  Deleting().DeleteColumn(1);
  EXPECT_TRUE(FIsDone);
  EXPECT_EQ("new a c", TreeText());
}

TEST_F(ItemListEditorDeletingTest, AnItemThatOnSelectCellFreesIsGoneOnce) {
  Fill("a b c");
  FEditor->SetRow(3);
  WhenTheCursorMoves([this] { delete &Item("c"); });
  Deleting().DeleteRow(3);
  EXPECT_EQ("a b", TreeText());
}

TEST_F(ItemListEditorDeletingTest, AnItemThatOnSelectCellTakesElsewhereStaysThere) {
  Fill("a b c");
  FEditor->SetRow(3);
  const auto other = Make<TKTItemListEditor>();
  WhenTheCursorMoves([&] { Item("c").SetCollection(&other->GetItems()); });
  Deleting().DeleteRow(3);
  EXPECT_EQ("a b", TreeText());
  EXPECT_EQ("c", Tree(other->GetItems()));
}

TEST_F(ItemListEditorDeletingTest, OnSelectCellMayFreeTheEditorDuringControlDelete) {
  Show("a b c");
  FEditor->SetPropertyOptions({propDelete});
  FEditor->SetRow(3);
  FreeTheEditorWhenTheCursorMoves();
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(nullptr, FEditor);
  EXPECT_EQ("", TakeErrors());
}

TEST_F(ItemListEditorDeletingTest, OnSelectCellMayFreeTheEditorWhileRowsGoWithTheirParent) {
  Show("a p [b c]");
  FEditor->FullExpand();
  FEditor->SetPropertyOptions({propDelete});
  FEditor->SetRow(2);
  FreeTheEditorWhenTheCursorMoves();
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(nullptr, FEditor);
}

TEST_F(ItemListEditorDeletingTest, OnSelectCellMayFreeTheEditorWhileItsCursorFollowsAnItem) {
  Fill("a [b] c");
  FEditor->SetRow(2);
  FreeTheEditorWhenTheCursorMoves();
  Item("a").Expand();
  EXPECT_EQ(nullptr, FEditor);
}

TEST_F(ItemListEditorDeletingTest, OnSelectCellMayFreeTheEditorWhileABlankItemIsLeft) {
  Show("a b");
  Items().Add();
  FEditor->SetRow(3);
  FreeTheEditorWhenTheCursorMoves();
  Key(Qt::Key_Up);
  EXPECT_EQ(nullptr, FEditor);
}

TEST_F(ItemListEditorDeletingTest, OnSetEditTextMayFreeTheEditorDuringEscape) {
  Show("a b");
  Type("x");
  FEditor->OnSetEditText = [this](TObject*, int, int, const QString&) { FEditor.reset(); };
  Key(Qt::Key_Escape);
  EXPECT_EQ(nullptr, FEditor);
}

TEST_F(ItemListEditorDeletingTest, OnSelectCellMayFreeTheEditorThatAddsAnItem) {
  Show("a");
  FEditor->SetPropertyOptions({propAdd});
  FreeTheEditorWhenTheCursorMoves();
  Key(Qt::Key_Down);
  EXPECT_EQ(nullptr, FEditor);
}

}  // namespace
}  // namespace kt::tests
