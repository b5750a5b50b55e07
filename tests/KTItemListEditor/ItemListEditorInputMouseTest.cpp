#include "KTItemListEditor/ItemListEditorInputFixture.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Picture.h"

namespace kt::tests {
namespace {

/// What a press on names, values, titles and glyphs does.
class ItemListEditorInputMouseTest : public TItemListInputTest {
 protected:
  /// Somewhere on the glyph of a row.
  QPoint OnGlyph(int row, int level) {
    return InWindow(FEditor->CellRect(0, row).topLeft() + QPoint(level * 11 + 4, 8));
  }
  void ClickGlyph(int row, int level) { FWindow->Click(OnGlyph(row, level)); }
  /// The selected cells: "1,1-1,3".
  QString Selection() const {
    const TGridRect cells = FEditor->GetSelection();
    return QStringLiteral("%1,%2-%3,%4").arg(cells.Left).arg(cells.Top).arg(cells.Right).arg(cells.Bottom);
  }
  /// Writes down which cells are asked for.
  void LogSelections() {
    FEditor->OnSelectCell = [this](TObject*, int col, int row, bool&) {
      FLog += QStringLiteral("%1,%2").arg(col).arg(row);
    };
  }
};

// Names.

TEST_F(ItemListEditorInputMouseTest, AClickOnANameLeadsToTheValue) {
  Show("a b c");
  Item("b").SetValue("2");
  ClickCell(0, 2);
  EXPECT_EQ("1,2", Where());
  EXPECT_EQ("2", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, NamesAreSelectedOnlyWhereTheyCanBeEdited) {
  Show("a b");
  FEditor->SetCol(0);
  EXPECT_EQ("1,1", Where());
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(0);
  EXPECT_EQ("0,1", Where());
}

TEST_F(ItemListEditorInputMouseTest, WhereNamesCanBeEditedAClickOnOneGoesOnFromTheValueToTheName) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  LogSelections();
  ClickCell(0, 2);
  EXPECT_EQ("1,2 0,2", TakeLog());
  EXPECT_EQ("0,2", Where());
  EXPECT_EQ("b", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, ASecondClickOnANameLeavesItsEditorOpen) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  ClickCell(0, 2);
  ClickCell(0, 2);
  EXPECT_EQ("0,2", Where());
  EXPECT_EQ("b", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, ASecondClickOnANameThatCannotBeEditedStaysAtTheValue) {
  Show("a b");
  ClickCell(0, 2);
  ClickCell(0, 2);
  EXPECT_EQ("1,2", Where());
}

TEST_F(ItemListEditorInputMouseTest, RowSelectSelectsNamesToo) {
  Show("a b");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRowSelect});
  ClickCell(0, 2);
  EXPECT_EQ("b", SelectedText());
  EXPECT_EQ("0,2", Where());
  EXPECT_EQ("0,2-1,2", Selection());
}

TEST_F(ItemListEditorInputMouseTest, AcrossTheColumnsAClickOnANameLeadsToItsValueToo) {
  TurnAcross();
  Show("a b c");
  ClickCell(2, 0);
  EXPECT_EQ("2,1", Where());
}

TEST_F(ItemListEditorInputMouseTest, AClickOnATitleLeadsNowhere) {
  Show("a b");
  ClickCell(0, 0);
  EXPECT_EQ("1,1", Where());
}

TEST_F(ItemListEditorInputMouseTest, AcrossTheColumnsAClickOnATitleLeadsNowhere) {
  TurnAcross();
  Show("a b");
  ClickCell(0, 0);
  EXPECT_EQ("1,1", Where());
}

TEST_F(ItemListEditorInputMouseTest, WithShiftAClickOnANameLeavesTheOtherEndOfTheSelection) {
  Show("a b c");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRangeSelect});
  ClickCell(0, 3, Qt::ShiftModifier);
  EXPECT_EQ("1,3", Where());
  EXPECT_EQ("1,1-1,3", Selection());
}

TEST_F(ItemListEditorInputMouseTest, WithoutShiftAClickOnANameSelectsItsValueAlone) {
  Show("a b c");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRangeSelect});
  ClickCell(0, 3);
  EXPECT_EQ("1,3-1,3", Selection());
}

TEST_F(ItemListEditorInputMouseTest, AcrossTheColumnsShiftLeavesTheOtherEndOfTheSelectionToo) {
  TurnAcross();
  Show("a b c");
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRangeSelect});
  ClickCell(3, 0, Qt::ShiftModifier);
  EXPECT_EQ("1,1-3,1", Selection());
}

TEST_F(ItemListEditorInputMouseTest, WithoutEditingAClickOnANameLeadsNowhere) {
  Show("a b");
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goEditing});
  ClickCell(0, 2);
  EXPECT_EQ("1,1", Where());
}

TEST_F(ItemListEditorInputMouseTest, WithoutEditingAClickOnAValueLeadsThereAndOpensNothing) {
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goEditing});
  Show("a b");
  ClickCell(1, 2);
  EXPECT_EQ("1,2", Where());
  EXPECT_EQ("-", EditorText());
}

// The in-place editor.

TEST_F(ItemListEditorInputMouseTest, AClickOnATitleOpensTheEditorOfTheCurrentCell) {
  Show("a b");
  Item("a").SetValue("1");
  CloseEditor();
  ClickCell(1, 0);
  EXPECT_EQ("1", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, AClickBelowTheRowsOpensTheEditorOfTheCurrentCell) {
  Show("a b");
  Item("a").SetValue("1");
  CloseEditor();
  FWindow->Click(CellCenter(1, 2) + QPoint(0, 100));
  EXPECT_EQ("1", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, AClickOnTheCurrentValueOpensItsEditor) {
  Show("a b");
  Item("a").SetValue("1");
  CloseEditor();
  ClickCell(1, 1);
  EXPECT_EQ("1", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, AClickOnANameOpensTheEditorOfItsValue) {
  Show("a b");
  Item("b").SetValue("2");
  CloseEditor();
  ClickCell(0, 2);
  EXPECT_EQ("2", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, WithoutEditingNoClickOpensTheEditor) {
  Show("a b");
  CloseEditor();
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goEditing});
  ClickCell(1, 0);
  ClickCell(1, 1);
  EXPECT_EQ("-", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, TheRightButtonNeitherMovesNorOpensTheEditor) {
  Show("a b");
  CloseEditor();
  QTest::mouseClick(FWindow->Body(), Qt::RightButton, {}, CellCenter(1, 2));
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ("-", EditorText());
}

// Glyphs.

TEST_F(ItemListEditorInputMouseTest, AClickOnTheGlyphExpandsWithoutMovingTheSelectionOrOpeningTheEditor) {
  Show("a b [c]");
  CloseEditor();
  ClickGlyph(2, 0);
  EXPECT_EQ(">a | b | c", RowsText());
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ("-", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, AClickOnTheGlyphIsNoMouseDownOfTheGrid) {
  Show("a b [c]");
  FEditor->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { FLog += QStringLiteral("down"); };
  ClickGlyph(2, 0);
  EXPECT_EQ("", TakeLog());
  ClickCell(0, 2);
  EXPECT_EQ("down", TakeLog());
}

TEST_F(ItemListEditorInputMouseTest, AClickOnTheGlyphOfAnExpandedItemCollapsesIt) {
  Show("a [b [c]]");
  FEditor->FullExpand();
  ClickGlyph(2, 1);
  EXPECT_EQ(">a | b", RowsText());
}

TEST_F(ItemListEditorInputMouseTest, AClickBesideTheGlyphExpandsNothingAndLeadsToTheValue) {
  Show("a b [c]");
  Item("b").SetValue("2");
  ClickCell(0, 2);
  EXPECT_EQ("a | >b", RowsText());
  EXPECT_EQ("1,2", Where());
  EXPECT_EQ("2", EditorText());
}

TEST_F(ItemListEditorInputMouseTest, WhereAGlyphWouldBeAnItemWithoutChildrenIsJustItsName) {
  Show("a b");
  ClickGlyph(2, 0);
  EXPECT_EQ("1,2", Where());
  EXPECT_FALSE(Item("b").IsExpanded());
}

TEST_F(ItemListEditorInputMouseTest, ADoubleClickOnTheGlyphTogglesOnceAndThenLeadsToTheValue) {
  Show("a b [c]");
  ClickGlyph(2, 0);
  const QPoint glyph = OnGlyph(2, 0);
  QTest::mouseDClick(FWindow->Body(), Qt::LeftButton, {}, glyph);
  QTest::mouseRelease(FWindow->Body(), Qt::LeftButton, {}, glyph);
  EXPECT_TRUE(Item("b").IsExpanded());
  EXPECT_EQ("1,2", Where());
}

TEST_F(ItemListEditorInputMouseTest, OtherButtonsExpandNothingAndMoveNothing) {
  Show("a b [c]");
  CloseEditor();
  QTest::mouseClick(FWindow->Body(), Qt::RightButton, {}, OnGlyph(2, 0));
  QTest::mouseClick(FWindow->Body(), Qt::MiddleButton, {}, OnGlyph(2, 0));
  EXPECT_EQ(">a | b", RowsText());
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ("-", EditorText());
}

/// Nothing is drawn there, yet the place counts.
TEST_F(ItemListEditorInputMouseTest, AnItemWithHiddenChildrenExpandsWhereItsGlyphWouldBeDeliberately) {
  Show("a b [c]");
  Item("b.c").SetVisible(false);
  ClickGlyph(2, 0);
  EXPECT_TRUE(Item("b").IsExpanded());
  EXPECT_EQ(">a | b", RowsText());
}

TEST_F(ItemListEditorInputMouseTest, ThePlaceOfAnyGlyphIsAsLargeAsTheOneOfExpandedItems) {
  Show("a b [c]");
  const auto large = Make<TBitmap>();
  large->SetSize(15, 15);
  const auto picture = Make<TPicture>();
  picture->SetGraphic(large.get());
  FEditor->SetMinusGlyph(*picture);
  FWindow->Click(InWindow(FEditor->CellRect(0, 2).topLeft() + QPoint(13, 8)));
  EXPECT_TRUE(Item("b").IsExpanded());
}

TEST_F(ItemListEditorInputMouseTest, FromRightToLeftTheGlyphIsAtTheRightEnd) {
  FEditor->SetBiDiMode(bdRightToLeft);
  Show("a b [c]");
  const QRect cell = FEditor->CellRect(0, 2);
  FWindow->Click(InWindow({cell.left() + 4, cell.top() + 8}));
  EXPECT_FALSE(Item("b").IsExpanded());
  FWindow->Click(InWindow({cell.right() - 4, cell.top() + 8}));
  EXPECT_TRUE(Item("b").IsExpanded());
}

TEST_F(ItemListEditorInputMouseTest, AcrossTheColumnsTheGlyphIsInTheColumnOfTheItem) {
  TurnAcross();
  Show("a b [c]");
  FWindow->Click(InWindow(FEditor->CellRect(2, 0).topLeft() + QPoint(4, 8)));
  EXPECT_EQ(">a | b | c", RowsText());
  EXPECT_EQ("1,1", Where());
}

// The edges of a glyph of nine by nine pixels in a row of eighteen.

struct TGlyphPlace {
  const char* Name;
  QPoint Point;
  bool IsInside;
};

void PrintTo(const TGlyphPlace& place, std::ostream* out) { *out << place.Name; }

class ItemListEditorGlyphEdgeTest : public TItemListInputTest, public testing::WithParamInterface<TGlyphPlace> {};

TEST_P(ItemListEditorGlyphEdgeTest, OnlyThePixelsOfTheGlyphCount) {
  FEditor->SetDefaultRowHeight(18);
  Show("a b [c]");
  FWindow->Click(InWindow(FEditor->CellRect(0, 2).topLeft() + GetParam().Point));
  EXPECT_EQ(GetParam().IsInside, Item("b").IsExpanded());
}

INSTANTIATE_TEST_SUITE_P(Places, ItemListEditorGlyphEdgeTest,
                         testing::Values(TGlyphPlace{"the first pixel", {0, 4}, true},
                                         TGlyphPlace{"the last pixel", {8, 12}, true},
                                         TGlyphPlace{"above", {0, 3}, false}, TGlyphPlace{"below", {8, 13}, false},
                                         TGlyphPlace{"behind", {9, 8}, false}));

}  // namespace
}  // namespace kt::tests
