// String lists whose lines are listed in place.
#include "KTObjectInspector/InspectorFixture.h"
#include "KTObjectInspector/LinesHolder.h"

namespace kt::tests {
namespace {

class InspectorStringsTest : public TInspectorTest {
 protected:
  void InspectLines(const QString& lines, TInplaceTStringsOptions options = {}) {
    FHolder->GetLines().SetCommaText(lines);
    FInspector->SetInplaceTStringsOptions(options);
    FInspector->SetInplaceTStrings(true);
    Inspect({FHolder.get()});
  }
  QString Lines() { return FHolder->GetLines().GetCommaText(); }

  std::unique_ptr<TLinesHolder> FHolder = Make<TLinesHolder>();
  std::unique_ptr<TLinesHolder> FOther = Make<TLinesHolder>();
};

TEST_F(InspectorStringsTest, LinesAreListedOnlyWhenTheyAreWanted) {
  FHolder->GetLines().Add("one");
  Inspect({FHolder.get()});
  EXPECT_EQ("", NamesBelow("Lines"));
}

TEST_F(InspectorStringsTest, EachLineIsAnItemCalledByItsNumber) {
  InspectLines("b,a");
  EXPECT_EQ("Items[0] Items[1]", NamesBelow("Lines"));
  EXPECT_EQ("a", Value("Lines.Items[1]"));
  EXPECT_EQ("TStrings Item", Item("Lines.Items[1]").GetTypeName());
}

TEST_F(InspectorStringsTest, TheFormatOfTheNamesCanBeSet) {
  FInspector->SetStringsItemFormat("Line %d");
  InspectLines("b,a");
  EXPECT_EQ("Line 0 Line 1", NamesBelow("Lines"));
}

TEST_F(InspectorStringsTest, AnEditedLineIsWritten) {
  InspectLines("b,a");
  Edit("Lines.Items[1]", "new");
  EXPECT_EQ("b,new", Lines());
}

TEST_F(InspectorStringsTest, ARefreshShowsLinesThatChangedOutside) {
  InspectLines("b,a");
  FHolder->GetLines().SetStrings(0, "c");
  FInspector->RefreshProperties();
  EXPECT_EQ("c", Value("Lines.Items[0]"));
}

TEST_F(InspectorStringsTest, LinesWithNamesAreListedByNameWhenThatIsWanted) {
  InspectLines("x=1,plain,y=2", {isUseNameValue});
  EXPECT_EQ("x Items[1] y", NamesBelow("Lines"));
  EXPECT_EQ("2", Value("Lines.y"));
  Edit("Lines.y", "3");
  EXPECT_EQ("x=1,plain,y=3", Lines());
  FHolder->GetLines().SetValues("x", "9");
  FInspector->RefreshProperties();
  EXPECT_EQ("9", Value("Lines.x"));
}

TEST_F(InspectorStringsTest, TheListsOwnSeparatorSplitsNamesAndValues) {
  FHolder->GetLines().SetNameValueSeparator(u':');
  InspectLines("x:1", {isUseNameValue});
  Edit("Lines.x", "2");
  EXPECT_EQ("x:2", Lines());
}

TEST_F(InspectorStringsTest, ANameThatComesAgainStandsForItsOwnLine) {
  InspectLines("x=1,x=2", {isUseNameValue});
  FInspector->RefreshProperties();
  TKTItemProperty* second = Item("Lines").GetItems().GetItem(1);
  EXPECT_EQ("2", second->GetValueLine(0));
  second->SetValueLine(0, "3");
  second->Validate();
  EXPECT_EQ("x=1,x=3", Lines());
}

TEST_F(InspectorStringsTest, AnEmptiedValueStaysALine) {
  InspectLines("x=1,y=2", {isUseNameValue});
  Edit("Lines.x", "");
  EXPECT_EQ("x=,y=2", Lines());
}

TEST_F(InspectorStringsTest, ANameThatHoldsThePathDelimiterMakesItemsInBetween) {
  InspectLines("a.b=1,a.c=2", {isUseNameValue});
  EXPECT_EQ("a", NamesBelow("Lines"));
  EXPECT_EQ("b c", NamesBelow("Lines.a"));
  Edit("Lines.a.c", "3");
  EXPECT_EQ("a.b=1,a.c=3", Lines());
  FHolder->GetLines().SetValues("a.b", "7");
  FInspector->RefreshProperties();
  EXPECT_EQ("7", Value("Lines.a.b"));
}

TEST_F(InspectorStringsTest, LinesAreSortedWhenThatIsWanted) {
  InspectLines("y=1,x=2", {isUseNameValue, isSort});
  EXPECT_EQ("x y", NamesBelow("Lines"));
  EXPECT_TRUE(Item("Lines").GetItems().GetSorted());
}

TEST_F(InspectorStringsTest, ALineOfSeveralObjectsIsWrittenToAllThatHaveIt) {
  FHolder->GetLines().SetCommaText("a,b");
  FOther->GetLines().SetCommaText("c");
  FInspector->SetInplaceTStrings(true);
  Inspect({FHolder.get(), FOther.get()});
  Edit("Lines.Items[0]", "x");
  Edit("Lines.Items[1]", "y");
  EXPECT_EQ("x,y", Lines());
  EXPECT_EQ("x", FOther->GetLines().GetCommaText());
}

TEST_F(InspectorStringsTest, ALineIsTheSameWhereAllObjectsHaveItWithoutRegardToCase) {
  FHolder->GetLines().SetCommaText("a,b,c");
  FOther->GetLines().SetCommaText("A,x");
  FInspector->SetInplaceTStrings(true);
  Inspect({FHolder.get(), FOther.get()});
  EXPECT_TRUE(Item("Lines.Items[0]").IsAllEqual());
  EXPECT_FALSE(Item("Lines.Items[1]").IsAllEqual());
  EXPECT_FALSE(Item("Lines.Items[2]").IsAllEqual());
}

TEST_F(InspectorStringsTest, AValueIsTheSameWhereAllObjectsHaveItUnderThatName) {
  FHolder->GetLines().SetCommaText("a=1,b=2,c=3");
  FOther->GetLines().SetCommaText("b=2,a=7");
  FInspector->SetInplaceTStringsOptions({isUseNameValue});
  FInspector->SetInplaceTStrings(true);
  Inspect({FHolder.get(), FOther.get()});
  EXPECT_FALSE(Item("Lines.a").IsAllEqual());
  EXPECT_TRUE(Item("Lines.b").IsAllEqual());
  EXPECT_FALSE(Item("Lines.c").IsAllEqual());
}

TEST_F(InspectorStringsTest, ALineWhoseNameHoldsThePathDelimiterIsWrittenOnceToEachObject) {
  FHolder->GetLines().Add("a.b=1");
  FOther->GetLines().Add("a.b=1");
  FInspector->SetInplaceTStringsOptions({isUseNameValue});
  FInspector->SetInplaceTStrings(true);
  Inspect({FHolder.get(), FOther.get()});
  int changes = 0;
  for (TLinesHolder* holder : {FHolder.get(), FOther.get()}) {
    static_cast<TStringList&>(holder->GetLines()).OnChange = [&changes](TObject*) { ++changes; };
  }
  Edit("Lines.a.b", "2");
  EXPECT_EQ(2, changes);
  EXPECT_EQ("a.b=2", Lines());
  EXPECT_EQ("a.b=2", FOther->GetLines().GetCommaText());
}

TEST_F(InspectorStringsTest, LinesBelowASecondCategoryAreWrittenAndRefreshedToo) {
  Items().GetCategories().Add("Lines=One");
  Items().GetCategories().Add("Lines=Two");
  FInspector->SetArrangeByCategory(true);
  InspectLines("a,b");
  Edit("Two.Lines.Items[1]", "y");
  EXPECT_EQ("a,y", Lines());
  FInspector->RefreshProperties();
  EXPECT_EQ("y", Value("One.Lines.Items[1]"));
  EXPECT_EQ("a", Value("Two.Lines.Items[0]"));
}

}  // namespace
}  // namespace kt::tests
