#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/forms/Application.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QLineEdit>

namespace kt::tests {
namespace {

/// Keys and mouse on a real window.
class ItemListEditorInputTest : public TItemListTest {
 protected:
  ItemListEditorInputTest() {
    Application().OnException = [this](TObject*, const Exception& error) { FErrors += error.Message(); };
  }
  ~ItemListEditorInputTest() override { Application().OnException = nullptr; }

  void Show(const std::string& tree) {
    Fill(tree);
    FWindow = std::make_unique<TWindowProbe>(*FEditor);
    FEditor->SetFocus();
    TWindowProbe::Settle();
  }
  QString Where() const { return QStringLiteral("%1,%2").arg(FEditor->GetCol()).arg(FEditor->GetRow()); }
  QPoint InWindow(QPoint point) { return FWindow->Body()->mapFromGlobal(FEditor->ClientToScreen(point)); }
  void ClickCell(int col, int row) { FWindow->Click(InWindow(FEditor->CellRect(col, row).center())); }
  void ClickGlyph(int row, int level) {
    FWindow->Click(InWindow(FEditor->CellRect(0, row).topLeft() + QPoint(level * 11 + 4, 8)));
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { TWindowProbe::Key(key, modifiers); }

  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FErrors;
};

// Names.

TEST_F(ItemListEditorInputTest, AClickOnANameLeadsToTheValue) {
  Show("a b c");
  ClickCell(0, 2);
  EXPECT_EQ("1,2", Where());
}

TEST_F(ItemListEditorInputTest, NamesAreSelectedOnlyWhereTheyCanBeEdited) {
  Show("a b");
  FEditor->SetCol(0);
  EXPECT_EQ("1,1", Where());
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(0);
  EXPECT_EQ("0,1", Where());
}

TEST_F(ItemListEditorInputTest, ASecondClickOnANameSelectsItWhereItCanBeEdited) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  ClickCell(0, 2);
  ClickCell(0, 2);
  EXPECT_EQ("0,2", Where());
}

TEST_F(ItemListEditorInputTest, RowSelectSelectsNamesToo) {
  Show("a b");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRowSelect});
  ClickCell(0, 2);
  EXPECT_EQ("b", SelectedText());
}

TEST_F(ItemListEditorInputTest, AcrossTheColumnsAClickOnANameLeadsToItsValueToo) {
  FEditor->SetOrientation(goHorizontal);
  Show("a b c");
  ClickCell(2, 0);
  EXPECT_EQ("2,1", Where());
}

// Glyphs.

TEST_F(ItemListEditorInputTest, AClickOnTheGlyphExpandsWithoutMovingTheSelectionOrOpeningTheEditor) {
  Show("a b [c]");
  FEditor->SetEditorMode(false);
  ClickGlyph(2, 0);
  EXPECT_EQ("a | b | c", Rows(*FEditor).replace(0, 1, ""));
  EXPECT_EQ("1,1", Where());
  EXPECT_FALSE(FEditor->IsEditorMode());
}

TEST_F(ItemListEditorInputTest, AClickOnTheGlyphOfAnExpandedItemCollapsesIt) {
  Show("a [b [c]]");
  FEditor->FullExpand();
  ClickGlyph(2, 1);
  EXPECT_EQ(">a | b", RowsText());
}

TEST_F(ItemListEditorInputTest, AClickBesideTheGlyphExpandsNothing) {
  Show("a b [c]");
  ClickCell(0, 2);
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorInputTest, ADoubleClickOnTheGlyphTogglesOnce) {
  Show("a b [c]");
  ClickGlyph(2, 0);
  const QPoint glyph = InWindow(FEditor->CellRect(0, 2).topLeft() + QPoint(4, 8));
  QTest::mouseDClick(FWindow->Body(), Qt::LeftButton, {}, glyph);
  QTest::mouseRelease(FWindow->Body(), Qt::LeftButton, {}, glyph);
  EXPECT_TRUE(Item("b").IsExpanded());
}

TEST_F(ItemListEditorInputTest, OtherButtonsExpandNothing) {
  Show("a b [c]");
  QTest::mouseClick(FWindow->Body(), Qt::RightButton, {}, InWindow(FEditor->CellRect(0, 2).topLeft() + QPoint(4, 8)));
  EXPECT_EQ(">a | b", RowsText());
}

// Keys.

TEST_F(ItemListEditorInputTest, ArrowsMoveFromItemToItem) {
  Show("a b c");
  Key(Qt::Key_Down);
  EXPECT_EQ("b", SelectedText());
  Key(Qt::Key_Up);
  EXPECT_EQ("a", SelectedText());
}

TEST_F(ItemListEditorInputTest, ControlDownGoesToTheLastItemAndControlUpToTheFirst) {
  Show("a b c");
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ("c", SelectedText());
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ("a", SelectedText());
}

TEST_F(ItemListEditorInputTest, DownOnTheLastItemAddsOneWhereItemsCanBeAdded) {
  Show("a");
  Key(Qt::Key_Down);
  EXPECT_EQ(1, FEditor->GetItemCount());
  FEditor->SetPropertyOptions({propAdd});
  Key(Qt::Key_Down);
  EXPECT_EQ(2, FEditor->GetItemCount());
  EXPECT_EQ(2, FEditor->GetRow());
}

TEST_F(ItemListEditorInputTest, DownOnALastItemWithoutNameAddsNothing) {
  Show("a");
  Items().Add("", "x");
  FEditor->SetPropertyOptions({propAdd});
  FEditor->SetRow(2);
  Key(Qt::Key_Down);
  EXPECT_EQ(2, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputTest, InsertAddsAnItemBeforeTheCursor) {
  Show("a b");
  FEditor->SetPropertyOptions({propAdd});
  FEditor->SetRow(2);
  Key(Qt::Key_Insert);
  ASSERT_EQ(3, FEditor->GetItemCount());
  EXPECT_EQ("", Items().GetItem(1)->GetName());
  EXPECT_EQ(2, FEditor->GetRow());
}

TEST_F(ItemListEditorInputTest, ControlDeleteDeletesWhereItemsCanBeDeleted) {
  Show("a b");
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(2, FEditor->GetItemCount());
  FEditor->SetPropertyOptions({propDelete});
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(">b", RowsText());
}

TEST_F(ItemListEditorInputTest, EscapeRemovesAnEmptyItem) {
  Show("a");
  Items().Add();
  FEditor->SetDeleteBlanks(false);
  FEditor->SetRow(2);
  Key(Qt::Key_Escape);
  EXPECT_EQ(">a", RowsText());
}

TEST_F(ItemListEditorInputTest, EscapeTakesBackWhatWasTyped) {
  Show("a");
  Item("a").SetValue("old");
  TWindowProbe::Type("new");
  ASSERT_EQ("new", Item("a").GetValue());
  Key(Qt::Key_Escape);
  EXPECT_EQ("old", Item("a").GetValue());
}

TEST_F(ItemListEditorInputTest, NothingIsExpandedByKeys) {
  Show("a [b]");
  Key(Qt::Key_Plus);
  Key(Qt::Key_Right);
  EXPECT_EQ(">a", RowsText());
}

// Blank items.

TEST_F(ItemListEditorInputTest, LeavingABlankItemDownwardsLandsOnTheLineThatWasBelow) {
  Show("a b c");
  Items().Insert(1);
  FEditor->SetRow(2);
  Key(Qt::Key_Down);
  EXPECT_EQ("a | >b | c", RowsText());
}

TEST_F(ItemListEditorInputTest, LeavingABlankItemUpwardsDeletesItToo) {
  Show("a b c");
  Items().Insert(1);
  FEditor->SetRow(2);
  Key(Qt::Key_Up);
  EXPECT_EQ(">a | b | c", RowsText());
}

TEST_F(ItemListEditorInputTest, WithoutDeleteBlanksTheyStay) {
  Show("a b");
  FEditor->SetDeleteBlanks(false);
  Items().Insert(1);
  FEditor->SetRow(2);
  Key(Qt::Key_Down);
  EXPECT_EQ(3, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputTest, ABlankItemWithChildrenTakesThemAlongAndTheCursorStillGoesWhereItWasSent) {
  Show("a b c");
  TKTItemProp* blank = Items().Insert(1);
  blank->GetItems().Add("x", "");
  blank->GetItems().Add("y", "");
  blank->Expand();
  FEditor->SetRow(2);
  FEditor->SetRow(6);
  EXPECT_EQ("a | b | >c", RowsText());
}

TEST_F(ItemListEditorInputTest, AcrossTheColumnsNothingIsDeletedButTheMoveEndsOneColumnEarlierDeliberately) {
  FEditor->SetOrientation(goHorizontal);
  Show("a b c");
  Items().Insert(1);
  FEditor->SetCol(2);
  FEditor->SetCol(4);
  EXPECT_EQ(4, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputTest, ABlankItemInsertedUnderTheCursorStays) {
  Show("a");
  Items().Insert(0);
  EXPECT_EQ("> | a", RowsText());
}

// Validation.

TEST_F(ItemListEditorInputTest, AnAcceptedValueIsValidatedBeforeAndAfter) {
  Show("a b");
  QStringList log;
  FEditor->OnValidate = [&](TObject*, TKTItemProp* item, int) { log += "OnValidate " + item->GetValue(); };
  FEditor->OnValidated = [&](TObject*, TKTItemProp* item, int) { log += "OnValidated " + item->GetValue(); };
  TWindowProbe::Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("OnValidate x, OnValidated x", log.join(", "));
}

TEST_F(ItemListEditorInputTest, EnterOnAnUnchangedItemValidatesNothing) {
  Show("a b");
  int count = 0;
  FEditor->OnValidate = [&](TObject*, TKTItemProp*, int) { ++count; };
  Key(Qt::Key_Return);
  Key(Qt::Key_Down);
  EXPECT_EQ(0, count);
}

TEST_F(ItemListEditorInputTest, EnterOnAnUnchangedItemWritesNothing) {
  Show("a b");
  Item("a").SetValue("stored");
  FEditor->OnGetEditText = [](TObject*, int, int, QString& text) { text = QStringLiteral("shown"); };
  FEditor->OnSetEditText = [this](TObject*, int, int, const QString& text) { FErrors += text; };
  FEditor->SetEditorMode(true);
  FErrors.clear();
  Key(Qt::Key_Return);
  EXPECT_EQ(QStringList(), FErrors);
  EXPECT_EQ("stored", Item("a").GetValue());
}

TEST_F(ItemListEditorInputTest, ARefusedValueKeepsTheCellAndIsTakenBack) {
  Show("a b");
  Item("a").SetValue("old");
  FEditor->OnValidate = [](TObject*, TKTItemProp*, int) { throw EConvertError("no number"); };
  TWindowProbe::Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("a", SelectedText());
  EXPECT_EQ("\"x\" is not a valid property value: no number", FErrors.join(", "));
  EXPECT_EQ("old", Item("a").GetValue());
}

TEST_F(ItemListEditorInputTest, AHandlerForErrorsSwallowsThem) {
  Show("a b");
  QString told;
  FEditor->OnValidate = [](TObject*, TKTItemProp*, int) { throw EConvertError("no number"); };
  FEditor->OnValidateError = [&](TObject*, TKTItemProp*, int, const Exception& error) { told = error.Message(); };
  TWindowProbe::Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("\"x\" is not a valid property value: no number", told);
  EXPECT_EQ("", FErrors.join(", "));
  EXPECT_EQ("b", SelectedText());
}

TEST_F(ItemListEditorInputTest, LosingTheFocusValidates) {
  Show("a b");
  int count = 0;
  FEditor->OnValidate = [&](TObject*, TKTItemProp*, int) { ++count; };
  QLineEdit other;
  FWindow->Window()->layout()->addWidget(&other);
  TWindowProbe::Type("x");
  other.setFocus();
  TWindowProbe::Settle();
  EXPECT_EQ(1, count);
  EXPECT_FALSE(FEditor->IsEditorMode());
}

TEST_F(ItemListEditorInputTest, ARefusedValueGivesTheFocusBack) {
  Show("a b");
  FEditor->OnValidate = [](TObject*, TKTItemProp*, int) { throw EConvertError("no number"); };
  QLineEdit other;
  FWindow->Window()->layout()->addWidget(&other);
  TWindowProbe::Type("x");
  other.setFocus();
  TWindowProbe::Settle();
  EXPECT_FALSE(other.hasFocus());
  EXPECT_EQ(1, FErrors.size());
}

TEST_F(ItemListEditorInputTest, TypingIntoTheBlankLineMakesAnItem) {
  Show("");
  TWindowProbe::Type("x");
  ASSERT_EQ(1, FEditor->GetItemCount());
  EXPECT_EQ("x", Items().GetItem(0)->GetValue());
}

// An open editor and what happens to its item.

TEST_F(ItemListEditorInputTest, AnItemRemovedUnderTheOpenEditorLeavesTheOthersAsTheyAre) {
  Show("");
  for (const char* name : {"a", "b", "c"}) Items().Add(name, name);
  FEditor->SetRow(2);
  TWindowProbe::Settle();
  Items().Delete(1);
  EXPECT_EQ("c", Item("c").GetValue());
  FEditor->SetRow(2);
  Items().Delete(0);
  EXPECT_EQ("c", Item("c").GetValue());
}

TEST_F(ItemListEditorInputTest, TheOnlyItemRemovedUnderTheOpenEditorStaysRemoved) {
  Show("");
  Items().Add("a", "1");
  TWindowProbe::Settle();
  Items().Delete(0);
  EXPECT_EQ(0, FEditor->GetItemCount());
}

TEST_F(ItemListEditorInputTest, ARefusalWithoutAnOpenEditorIsToldAsItIs) {
  Show("a");
  FEditor->OnValidate = [](TObject*, TKTItemProp*, int) { throw EConvertError("no number"); };
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goAlwaysShowEditor});
  FEditor->SetEditorMode(false);
  EXPECT_EQ("no number", MessageOf<EConvertError>([this] { Item("a").Validate(); }));
}

// Moving rows.

class TMovingEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::MoveRow;
  using TKTItemListEditor::TKTItemListEditor;
};

class ItemListEditorRowMoveTest : public TItemListTest {
 protected:
  ItemListEditorRowMoveTest() { FEditor = Make<TMovingEditor>(); }
  void Move(int from, int to) { static_cast<TMovingEditor&>(*FEditor).MoveRow(from, to); }
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
  std::string seen;
  FEditor->OnRowMoved = [&](TObject*, int from, int to) {
    seen = std::to_string(from) + " " + std::to_string(to) + " " + TreeText();
  };
  Move(2, 1);
  EXPECT_EQ("2 1 b a", seen);
}

}  // namespace
}  // namespace kt::tests
