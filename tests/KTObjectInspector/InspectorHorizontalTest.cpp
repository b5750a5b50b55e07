// An inspector whose items run across the columns.
#include "KTObjectInspector/InspectorFixture.h"

namespace kt::tests {
namespace {

class InspectorHorizontalTest : public TInspectorTest {
 protected:
  InspectorHorizontalTest() {
    FOther->Whole = 7;
    FSample->SetName("First");
    FOther->SetName("Second");
    FInspector->SetOrientation(goHorizontal);
  }
  /// The titles take the first column.
  int ColOf(const QString& path) { return Item(path).GetAbsoluteVIndex() + 1; }
  QString Cell(const QString& path, int row) { return FInspector->GetCell(ColOf(path), row); }
  void GoTo(const QString& path, int row) {
    FInspector->SetSelected(&Item(path));
    FInspector->SetRow(row);
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(InspectorHorizontalTest, ItemsAreColumnsAndThereIsOneRowOfValues) {
  Inspect({FSample.get(), FOther.get()});
  EXPECT_EQ(2, FInspector->GetRowCount());
  EXPECT_EQ(FInspector->GetVisibleItemCount() + 1, FInspector->GetColCount());
  EXPECT_EQ("Tag", Cell("Tag", 0));
  EXPECT_EQ("0", Cell("Tag", 1));
}

TEST_F(InspectorHorizontalTest, EachObjectHasARowWhenEachShallHaveItsValues) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  EXPECT_EQ(3, FInspector->GetRowCount());
  EXPECT_EQ("0", Cell("Whole", 1));
  EXPECT_EQ("7", Cell("Whole", 2));
  FInspector->GetObjects().Clear();
  Deliver();
  EXPECT_EQ(2, FInspector->GetRowCount());
}

TEST_F(InspectorHorizontalTest, TitlesStandInTheFirstColumn) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_EQ("First", FInspector->GetCell(0, 1));
  EXPECT_EQ("Second", FInspector->GetCell(0, 2));
}

TEST_F(InspectorHorizontalTest, AValueThatIsNotTheSameInAllObjectsShowsOnlyWhereTheCursorIs) {
  Inspect({FSample.get(), FOther.get()});
  GoTo("Tag", 1);
  EXPECT_EQ("", Cell("Whole", 1));
  EXPECT_EQ("Whole", Cell("Whole", 0));
  GoTo("Whole", 1);
  EXPECT_EQ("0", Cell("Whole", 1));
}

TEST_F(InspectorHorizontalTest, MinusOneMeansTheObjectOfTheCurrentRow) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  GoTo("Whole", 2);
  EXPECT_EQ(7, Item("Whole").GetOrdProperty(-1));
  Item("Whole").SetOrdProperty(8, -1);
  EXPECT_EQ(0, FSample->Whole);
  EXPECT_EQ(8, FOther->Whole);
  GoTo("Whole", 1);
  EXPECT_EQ(0, Item("Whole").GetOrdProperty(-1));
}

TEST_F(InspectorHorizontalTest, TheItemThatStandsFirstAndTheSelectedOneStayAfterARescan) {
  FInspector->SetWidth(300);
  Inspect({FSample.get()});
  FInspector->SetSelected(Find("Letter"));
  FInspector->SetLeftCol(6);
  const QString first = FInspector->GetVisibleItem(5)->GetName();
  Rescan();
  EXPECT_EQ(6, FInspector->GetLeftCol());
  EXPECT_EQ(first, FInspector->GetVisibleItem(5)->GetName());
  EXPECT_EQ("Letter", FInspector->GetSelected()->GetName());
  // An item that comes before moves it along.
  FInspector->GetFilters().Add("Align");
  Rescan();
  EXPECT_EQ(first, FInspector->GetVisibleItem(FInspector->GetLeftCol() - 1)->GetName());
  EXPECT_EQ(5, FInspector->GetLeftCol());
}

TEST_F(InspectorHorizontalTest, TurningTheGridKeepsValuesInTheirPlaces) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  FInspector->SetOrientation(goVertical);
  EXPECT_EQ(3, FInspector->GetColCount());
  EXPECT_EQ("7", FInspector->GetCell(2, Item("Whole").GetAbsoluteVIndex() + 1));
}

}  // namespace
}  // namespace kt::tests
