#include "kt/rtl/strings/StringList.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemListEditorGridTest : public TItemListTest {
 protected:
  /// The cells of the grid, a line a row: "Property|Value / a|1".
  QString Cells() {
    QStringList rows;
    for (int row = 0; row < FEditor->GetRowCount(); ++row) {
      QStringList cells;
      for (int col = 0; col < FEditor->GetColCount(); ++col) cells += FEditor->GetCell(col, row);
      rows += cells.join(u'|');
    }
    return rows.join(QStringLiteral(" / "));
  }
};

TEST_F(ItemListEditorGridTest, ANewEditorHasATitleLineABlankLineAndTheCursorInTheValueColumn) {
  EXPECT_EQ("Property|Value / |", Cells());
  EXPECT_EQ(1, FEditor->GetCol());
  EXPECT_EQ(1, FEditor->GetRow());
  EXPECT_EQ(1, FEditor->GetFixedRows());
  EXPECT_EQ(0, FEditor->GetFixedCols());
}

TEST_F(ItemListEditorGridTest, GridInfoHasTheEightNumbersInEitherOrientation) {
  const auto numbers = [this](int col, int row) {
    const TGridInfo info = FEditor->GetGridInfo(col, row);
    return QStringLiteral("field %1 line %2 at %3 %4 fixed %5 %6 of %7 %8")
        .arg(info.Field)
        .arg(info.Line)
        .arg(info.CurField)
        .arg(info.CurLine)
        .arg(info.FixedFields)
        .arg(info.FixedLines)
        .arg(info.FieldCount)
        .arg(info.LineCount);
  };
  Fill("a b c d");
  FEditor->SetRow(3);
  EXPECT_EQ("field 0 line 2 at 1 3 fixed 0 1 of 2 5", numbers(0, 2));
  FEditor->SetOrientation(goHorizontal);
  EXPECT_EQ("field 0 line 2 at 1 3 fixed 0 1 of 2 5", numbers(2, 0));
}

TEST_F(ItemListEditorGridTest, ItemsAreRowsOfNameAndValue) {
  Items().Add("a", "1");
  Items().Add("b", "2");
  EXPECT_EQ("Property|Value / a|1 / b|2", Cells());
}

TEST_F(ItemListEditorGridTest, CategoriesAreRowsLikeAnyOther) {
  Items().AddCategory("C", false)->GetItems().Add("x", "1");
  EXPECT_EQ("Property|Value / C|", Cells());
  FEditor->FullExpand();
  EXPECT_EQ("Property|Value / C| / x|1", Cells());
}

TEST_F(ItemListEditorGridTest, WhereColumnsAreItemsNamesAreTheFirstRow) {
  Items().Add("a", "1");
  Items().Add("b", "2");
  FEditor->SetOrientation(goHorizontal);
  EXPECT_EQ("Property|a|b / Value|1|2", Cells());
}

TEST_F(ItemListEditorGridTest, TurningTheGridTwiceIsAsIfNothingHadHappened) {
  Items().Add("a", "1");
  Items().Add("b", "2");
  FEditor->SetRow(2);
  FEditor->SetOrientation(goHorizontal);
  EXPECT_EQ("a | >b", RowsText());
  FEditor->SetOrientation(goVertical);
  EXPECT_EQ("Property|Value / a|1 / b|2", Cells());
  EXPECT_EQ("a | >b", RowsText());
}

TEST_F(ItemListEditorGridTest, WithoutTitlesTheFirstRowIsTheFirstItem) {
  Items().Add("a", "1");
  FEditor->SetDisplayOptions({doShowReadOnly});
  EXPECT_EQ("a|1", Cells());
  EXPECT_EQ(">a", RowsText());
}

TEST_F(ItemListEditorGridTest, FurtherColumnsShowFurtherLinesOfTheValues) {
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() + TILEDisplayOptions{doMultiColValues});
  FEditor->SetColCount(3);
  Items().Add("a", "1\r\n2");
  EXPECT_EQ("Property|Value| / a|1|2", Cells());
}

TEST_F(ItemListEditorGridTest, WritingACellWritesTheNameOrTheLineOfTheValues) {
  FEditor->SetColCount(3);
  Items().Add("a", "1");
  FEditor->SetCell(0, 1, "b");
  FEditor->SetCell(2, 1, "2");
  EXPECT_EQ("b=1\r\n2", Items().GetItem(0)->GetDisplayName());
}

TEST_F(ItemListEditorGridTest, WritingACellBehindTheLastItemAddsOne) {
  FEditor->SetCell(0, 1, "a");
  EXPECT_EQ("a", TreeText());
}

TEST_F(ItemListEditorGridTest, TheNumberOfLinesIsThatOfRowsAndTitlesButNeverWithoutABlankLine) {
  Fill("a b c");
  EXPECT_EQ(4, FEditor->GetGridCount(gcLineCount));
  Items().Clear();
  EXPECT_EQ(2, FEditor->GetGridCount(gcLineCount));
}

TEST_F(ItemListEditorGridTest, TitlesAreStoredOnlyWhenTheyAreNotTheUsualOnes) {
  EXPECT_FALSE(FEditor->TitleCaptionsStored());
  FEditor->GetTitleCaptions().SetStrings(0, "Name");
  EXPECT_TRUE(FEditor->TitleCaptionsStored());
  EXPECT_EQ("Name", FEditor->GetCell(0, 0));
}

}  // namespace
}  // namespace kt::tests
