#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/ItemLists.h"

namespace kt::tests {
namespace {

/// An item that remembers for which value it was asked for its font.
class TAskedItem : public TKTItemProp {
 public:
  using Inherited = TKTItemProp;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TAskedItem>("TAskedItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TFont& GetIndividualValueFont(int index) override {
    Asked += std::to_string(index) + ' ';
    return TKTItemProp::GetIndividualValueFont(index);
  }
  static inline std::string Asked;

 protected:
  explicit TAskedItem(TCollection* collection) : TKTItemProp(collection) {}
};

class TCountedEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::DeleteColumn;
  using TKTItemListEditor::DeleteRow;
  using TKTItemListEditor::TKTItemListEditor;

 protected:
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override {
    return Make<TKTItemProps>(owner, TAskedItem::Class());
  }
};

/// Lines and fields, and the columns and rows that they are.
class ItemListEditorCountsTest : public TItemListTest {
 protected:
  ItemListEditorCountsTest() { FEditor = Make<TCountedEditor>(); }

  TCountedEditor& Counted() { return static_cast<TCountedEditor&>(*FEditor); }
  /// "fields 2 fixed 0 at 1 lines 4 fixed 1 at 2".
  QString Counts() const {
    return QStringLiteral("fields %1 fixed %2 at %3 lines %4 fixed %5 at %6")
        .arg(FEditor->GetGridCount(gcFieldCount))
        .arg(FEditor->GetGridCount(gcFixedFields))
        .arg(FEditor->GetGridCount(gcCurrentField))
        .arg(FEditor->GetGridCount(gcLineCount))
        .arg(FEditor->GetGridCount(gcFixedLines))
        .arg(FEditor->GetGridCount(gcCurrentLine));
  }
  /// Columns and rows: "2x4 fixed 0,1 at 1,2".
  QString Grid() const {
    return QStringLiteral("%1x%2 fixed %3,%4 at %5,%6")
        .arg(FEditor->GetColCount())
        .arg(FEditor->GetRowCount())
        .arg(FEditor->GetFixedCols())
        .arg(FEditor->GetFixedRows())
        .arg(FEditor->GetCol())
        .arg(FEditor->GetRow());
  }
  void SetCounts() {
    FEditor->SetGridCount(gcFieldCount, 3);
    FEditor->SetGridCount(gcLineCount, 6);
    FEditor->SetGridCount(gcFixedFields, 1);
    FEditor->SetGridCount(gcFixedLines, 2);
    FEditor->SetGridCount(gcCurrentField, 2);
    FEditor->SetGridCount(gcCurrentLine, 4);
  }
  void Switch(TILEDisplayOption option, bool isOn) {
    TILEDisplayOptions options = FEditor->GetDisplayOptions();
    options.Put(option, isOn);
    FEditor->SetDisplayOptions(options);
  }
};

// Counts by name.

TEST_F(ItemListEditorCountsTest, LinesAreRowsAndFieldsAreColumns) {
  Fill("a b c");
  FEditor->SetRow(2);
  EXPECT_EQ("2x4 fixed 0,1 at 1,2", Grid());
  EXPECT_EQ("fields 2 fixed 0 at 1 lines 4 fixed 1 at 2", Counts());
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsLinesAreColumnsAndFieldsAreRows) {
  FEditor->SetOrientation(goHorizontal);
  Fill("a b c");
  FEditor->SetCol(2);
  EXPECT_EQ("4x2 fixed 1,0 at 2,1", Grid());
  EXPECT_EQ("fields 2 fixed 0 at 1 lines 4 fixed 1 at 2", Counts());
}

TEST_F(ItemListEditorCountsTest, EveryCountCanBeSet) {
  SetCounts();
  EXPECT_EQ("3x6 fixed 1,2 at 2,4", Grid());
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsEveryCountCanBeSet) {
  FEditor->SetOrientation(goHorizontal);
  SetCounts();
  EXPECT_EQ("6x3 fixed 2,1 at 4,2", Grid());
}

TEST_F(ItemListEditorCountsTest, AnyLargerKindOfCountIsThatOfFixedLines) {
  FEditor->SetGridCount(77, 0);
  EXPECT_EQ(0, FEditor->GetFixedRows());
  EXPECT_EQ(0, FEditor->GetGridCount(6));
  FEditor->SetOrientation(goHorizontal);
  EXPECT_EQ(1, FEditor->GetGridCount(6));
}

TEST_F(ItemListEditorCountsTest, AllButTheFirstFieldAreValues) {
  EXPECT_FALSE(FEditor->IsValueCell(0, 3));
  EXPECT_TRUE(FEditor->IsValueCell(1, 0));
  EXPECT_TRUE(FEditor->IsValueCell(2, 3));
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsAllRowsButTheFirstAreValues) {
  FEditor->SetOrientation(goHorizontal);
  EXPECT_FALSE(FEditor->IsValueCell(3, 0));
  EXPECT_TRUE(FEditor->IsValueCell(0, 1));
  EXPECT_TRUE(FEditor->IsValueCell(3, 2));
}

// The title line.

TEST_F(ItemListEditorCountsTest, ATitleLineNeedsASecondRow) {
  Switch(doColumnTitles, false);
  EXPECT_EQ("2x1", Grid().left(3));
  FEditor->SetColumnTitles(true);
  EXPECT_EQ("2x2 fixed 0,1", Grid().left(13));
  FEditor->SetColumnTitles(false);
  EXPECT_EQ("2x2 fixed 0,0", Grid().left(13));
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsATitleLineNeedsASecondColumn) {
  FEditor->SetOrientation(goHorizontal);
  Switch(doColumnTitles, false);
  EXPECT_EQ("1x2", Grid().left(3));
  FEditor->SetColumnTitles(true);
  EXPECT_EQ("2x2 fixed 1,0", Grid().left(13));
  FEditor->SetColumnTitles(false);
  EXPECT_EQ("2x2 fixed 0,0", Grid().left(13));
}

TEST_F(ItemListEditorCountsTest, ATitleLineLeavesMoreRowsAsTheyAre) {
  Fill("a b c");
  FEditor->SetColumnTitles(false);
  FEditor->SetColumnTitles(true);
  EXPECT_EQ("2x4 fixed 0,1", Grid().left(13));
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsTitlesComeAndGoWithTheirColumn) {
  FEditor->SetOrientation(goHorizontal);
  Fill("a b");
  Switch(doColumnTitles, false);
  EXPECT_EQ("2x2 fixed 0,0", Grid().left(13));
  EXPECT_EQ("a", FEditor->GetCell(0, 0));
  Switch(doColumnTitles, true);
  EXPECT_EQ("3x2 fixed 1,0", Grid().left(13));
  EXPECT_EQ("Property", FEditor->GetCell(0, 0));
}

/// What texts show follows the option, which rows are items follows the fixed ones.
TEST_F(ItemListEditorCountsTest, WithTitlesButNoFixedRowTheFirstItemIsHiddenBehindTheTitlesDeliberately) {
  Items().Add("a", "1");
  FEditor->SetFixedRows(0);
  EXPECT_EQ("Property", FEditor->GetCell(0, 0));
  EXPECT_EQ(&Item("a"), FEditor->FindItemProp(0, 0, true));
}

TEST_F(ItemListEditorCountsTest, WithAFixedRowButNoTitlesTheFirstLineIsEmptyDeliberately) {
  Items().Add("a", "1");
  Switch(doColumnTitles, false);
  FEditor->SetRowCount(2);
  FEditor->SetFixedRows(1);
  EXPECT_EQ("", FEditor->GetCell(0, 0));
  EXPECT_EQ("a", FEditor->GetCell(0, 1));
}

// Several values.

TEST_F(ItemListEditorCountsTest, AllowingSeveralValuesAddsNoField) {
  Switch(doMultiColValues, true);
  EXPECT_EQ(2, FEditor->GetColCount());
}

TEST_F(ItemListEditorCountsTest, NoLongerAllowingSeveralValuesLeavesOne) {
  Switch(doMultiColValues, true);
  FEditor->SetColCount(4);
  Switch(doKeyColFixed, false);
  EXPECT_EQ(4, FEditor->GetColCount());
  Switch(doMultiColValues, false);
  EXPECT_EQ(2, FEditor->GetColCount());
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsNoLongerAllowingSeveralValuesLeavesTwoRows) {
  FEditor->SetOrientation(goHorizontal);
  Fill("a b");
  Switch(doMultiColValues, true);
  FEditor->SetRowCount(4);
  Switch(doMultiColValues, false);
  EXPECT_EQ("3x2", Grid().left(3));
}

/// The in-place editor, which asks, always stands on the current cell.
TEST_F(ItemListEditorCountsTest, TheFontOfACellIsThatOfTheCurrentFieldWhateverTheCellDeliberately) {
  Items().Add("a", "1");
  FEditor->SetColCount(3);
  FEditor->SetCol(2);
  TAskedItem::Asked.clear();
  FEditor->GetCellFont(1, 1);
  FEditor->GetCellFont(0, 1);
  EXPECT_EQ("1 1 ", TAskedItem::Asked);
}

// Deleting columns.

TEST_F(ItemListEditorCountsTest, DeletingAColumnDeletesTheItemOfThatNumberDeliberately) {
  Fill("a b c");
  Counted().DeleteColumn(1);
  EXPECT_EQ("a c", TreeText());
  EXPECT_EQ(2, FEditor->GetColCount());
}

TEST_F(ItemListEditorCountsTest, DeletingAColumnDoesNotCountFixedColumns) {
  Fill("a b c");
  FEditor->SetFixedCols(1);
  Counted().DeleteColumn(1);
  EXPECT_EQ("b c", TreeText());
}

TEST_F(ItemListEditorCountsTest, DeletingAColumnMovesTheCursorOffTheLastOneFirst) {
  FEditor->SetPropertyOptions({propEdit});
  Fill("a b c");
  FEditor->SetCol(1);
  Counted().DeleteColumn(1);
  EXPECT_EQ(0, FEditor->GetCol());
}

TEST_F(ItemListEditorCountsTest, DeletingTheColumnOfTheOnlyItemLeavesTheCursor) {
  FEditor->SetPropertyOptions({propEdit});
  Fill("a");
  FEditor->SetCol(1);
  Counted().DeleteColumn(0);
  EXPECT_EQ(1, FEditor->GetCol());
  EXPECT_EQ("", TreeText());
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsDeletingAColumnMovesTheCursorAndDeletesNothingDeliberately) {
  FEditor->SetOrientation(goHorizontal);
  Fill("a b c");
  FEditor->SetCol(3);
  Counted().DeleteColumn(3);
  EXPECT_EQ("a | >b | c", RowsText());
}

TEST_F(ItemListEditorCountsTest, AcrossTheColumnsDeletingARowDeletesNothingDeliberately) {
  FEditor->SetOrientation(goHorizontal);
  Fill("a b c");
  Counted().DeleteRow(1);
  EXPECT_EQ("a b c", TreeText());
}

TEST_F(ItemListEditorCountsTest, AColumnDeletedFromInsideADeletionStays) {
  Fill("a b c");
  FEditor->SetRow(3);
  FEditor->OnSelectCell = [this](TObject*, int, int, bool&) { Counted().DeleteColumn(0); };
  Counted().DeleteRow(3);
  EXPECT_EQ("a b", TreeText());
}

/// The two disagree after a program has set the fixed rows by itself.
TEST_F(ItemListEditorCountsTest, TheTitleLineIsNotCurrentAnyMoreOnceLinesCome) {
  FEditor->SetFixedRows(0);
  FEditor->SetCol(1);
  ASSERT_EQ(0, FEditor->GetRow());
  Fill("a b c");
  EXPECT_EQ(1, FEditor->GetRow());
}

TEST_F(ItemListEditorCountsTest, TheTitleLineIsNotCurrentAnyMoreOnceLinesGo) {
  Fill("a b c");
  FEditor->SetFixedRows(0);
  FEditor->SetCol(1);
  FEditor->Refresh();
  EXPECT_EQ(3, FEditor->GetRowCount());
  EXPECT_EQ(1, FEditor->GetRow());
}

TEST_F(ItemListEditorCountsTest, WhereColumnsAreItemsTheTitleColumnIsNotCurrentAnyMoreOnceColumnsCome) {
  FEditor->SetOrientation(goHorizontal);
  FEditor->SetFixedCols(0);
  FEditor->SetRow(1);
  ASSERT_EQ(0, FEditor->GetCol());
  Fill("a b c");
  EXPECT_EQ(1, FEditor->GetCol());
}

TEST_F(ItemListEditorCountsTest, WithoutTitlesTheFirstLineStaysCurrent) {
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doColumnTitles});
  Fill("a b c");
  EXPECT_EQ(0, FEditor->GetRow());
}

}  // namespace
}  // namespace kt::tests
