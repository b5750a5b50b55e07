#include "kt/rtl/strings/StringList.h"
#include "support/ItemLists.h"

namespace kt::tests {
namespace {

class ItemListEditorCategoriesTest : public TItemListTest {
 protected:
  TStringList& Map(const char* lines) {
    FMap->SetCommaText(lines);
    return *FMap;
  }

  std::unique_ptr<TStringList> FMap = Make<TStringList>();
};

// The category of an item.

TEST_F(ItemListEditorCategoriesTest, TheCategoryOfAnItemIsTheOneInTheMap) {
  Fill("a");
  TKTItemProp* category = FEditor->Categorize(&Item("a"), "a", Map("a=A"));
  EXPECT_EQ("A", category->GetName());
  EXPECT_TRUE(category->GetCategory());
  EXPECT_EQ("a Miscellaneous A", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, TheNameToLookUpNeedNotBeTheItems) {
  Fill("a");
  EXPECT_EQ("B", FEditor->Categorize(&Item("a"), "b", Map("a=A,b=B"))->GetName());
}

TEST_F(ItemListEditorCategoriesTest, AnItemThatTheMapDoesNotHaveBelongsToTheDefaultCategory) {
  Fill("a");
  EXPECT_EQ("Miscellaneous", FEditor->Categorize(&Item("a"), "a", Map("b=B"))->GetName());
  EXPECT_EQ(&Item("Miscellaneous"), Items().GetDefaultCategory());
}

TEST_F(ItemListEditorCategoriesTest, WithoutADefaultCategoryNameAnItemThatTheMapDoesNotHaveStaysWhereItIs) {
  Fill("a");
  Items().SetDefaultCategoryName("");
  EXPECT_EQ(nullptr, FEditor->Categorize(&Item("a"), "a", Map("b=B")));
  FEditor->Categorize(&Item("a"), *FMap, false);
  EXPECT_EQ("a", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, TheHandlerKnowsTheMapsAnswerAndMayChangeIt) {
  Fill("a");
  QString asked;
  FEditor->OnCategorize = [&](TObject* sender, TKTItemProp* item, const QString& name, QString& category) {
    EXPECT_EQ(FEditor.get(), sender);
    asked = item->GetName() + u' ' + name + u' ' + category;
    category = "Z";
  };
  EXPECT_EQ("Z", FEditor->Categorize(&Item("a"), "x", Map("x=X"))->GetName());
  EXPECT_EQ("a x X", asked.toStdString());
}

TEST_F(ItemListEditorCategoriesTest, AHandlerThatClearsTheNameSendsAMappedItemToTheDefaultCategory) {
  Fill("a");
  FEditor->OnCategorize = [](TObject*, TKTItemProp*, const QString&, QString& category) { category.clear(); };
  FEditor->Categorize(&Item("a"), Map("a=A"), false);
  EXPECT_EQ("Miscellaneous [a]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, CategoriesAreSiblingsOfTheCategoryThatAnItemIsIn) {
  Fill("C [x]");
  Item("C").SetCategory(true);
  FEditor->Categorize(&Item("C.x"), Map("x=X"), false);
  EXPECT_EQ("C Miscellaneous X [x]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, BelowAnOrdinaryItemCategoriesAreItsChildren) {
  Fill("a [x]");
  FEditor->Categorize(&Item("a.x"), Map("x=X"), false);
  EXPECT_EQ("a [Miscellaneous X [x]]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, CategoryNamesAreFoundAsTheEditorCompares) {
  Fill("a b");
  FEditor->Categorize(Items(), Map("a=X,b=x"), false);
  EXPECT_EQ("Miscellaneous X [a b]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, ACategoryOfANameIsFoundOrAdded) {
  TKTItemProp* category = FEditor->Categorize(Items(), "A");
  EXPECT_EQ(category, FEditor->Categorize(Items(), "a"));
  EXPECT_EQ("A", TreeText());
  EXPECT_TRUE(category->IsReadOnly());
}

TEST_F(ItemListEditorCategoriesTest, ADefaultCategoryThatIsThereCountsWhateverItsName) {
  Fill("a");
  TKTItemProp* other = Items().AddCategory("Other", false);
  Items().SetDefaultCategory(other);
  EXPECT_EQ(other, FEditor->Categorize(&Item("a"), "a", Map("")));
  EXPECT_EQ("a Other", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, ANewEditorIsAskedForItsCategoryMapOnce) {
  struct TFillingEditor : TKTItemListEditor {
    using TKTItemListEditor::TKTItemListEditor;
    void FillCategories() override { GetItems().GetCategories().Add("a=A"); }
  };
  const auto editor = Make<TFillingEditor>();
  EXPECT_EQ("a=A", editor->GetItems().GetCategories().GetCommaText());
}

// Moving.

TEST_F(ItemListEditorCategoriesTest, ItemsKeepTheirOrderInsideTheirCategories) {
  Fill("d c b a");
  FEditor->Categorize(Map("a=X,c=X"), false);
  EXPECT_EQ("Miscellaneous [d b] X [c a]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, NewCategoriesAreCollapsed) {
  Fill("b a");
  FEditor->Categorize(Map("a=X"), false);
  EXPECT_EQ(">Miscellaneous | X", RowsText());
}

TEST_F(ItemListEditorCategoriesTest, TheOwnMapOfTheItemsIsTheOneWithoutAnother) {
  Fill("a b");
  Items().GetCategories().Add("b=X");
  FEditor->Categorize(false);
  EXPECT_EQ("Miscellaneous [a] X [b]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, CategoriesThemselvesStayWhereTheyAre) {
  Fill("a");
  Items().AddCategory("C", false);
  FEditor->Categorize(Map("C=X,a=X"), false);
  EXPECT_EQ("C Miscellaneous X [a]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, CategorizingTheTopLevelMovesEvenWhenCopiesAreAskedForDeliberately) {
  Fill("a b");
  FEditor->Categorize(Map("a=X,a=Y"), true);
  EXPECT_EQ("Miscellaneous [b] X [a]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, SeveralCategoriesWithoutCopiesNestDeliberately) {
  Fill("a");
  FEditor->Categorize(&Item("a"), Map("a=X,a=Y,a=Z"), false);
  EXPECT_EQ("Miscellaneous X [Y [Z [a]]]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, TheNameOfAFurtherCategoryIsAllBehindTheSeparator) {
  Fill("a");
  FEditor->Categorize(&Item("a"), Map("a=X,\"a=Y = 1\""), false);
  EXPECT_EQ("Miscellaneous X [Y = 1 [a]]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, OnASortedLevelCategoriesAreOrderedAmongTheItems) {
  FEditor->SetSorted(true);
  Fill("a m z");
  FEditor->Categorize(&Item("z"), Map("z=c"), false);
  EXPECT_EQ("a c [z] m Miscellaneous", TreeText());
}

// Copying.

TEST_F(ItemListEditorCategoriesTest, CopiesGoUnderEachCategoryAndTheItemStays) {
  Fill("C [x]");
  Item("C").SetCategory(true);
  Item("C.x").SetValue("1");
  FEditor->Categorize(&Item("C.x"), Map("x=A,x=B"), true);
  EXPECT_EQ("C [x] Miscellaneous A [x] B [x]", TreeText());
  EXPECT_EQ("x=1", Item("B.x").GetDisplayName().toStdString());
}

TEST_F(ItemListEditorCategoriesTest, TheCategoryThatAnItemIsInGetsNoCopy) {
  Fill("C [x]");
  Item("C").SetCategory(true);
  FEditor->Categorize(&Item("C.x"), Map("x=A,x=C,x=B"), true);
  EXPECT_EQ("C [x] Miscellaneous A [x] B [x]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, TheCategoryThatAnItemIsInGetsNoCopyEvenAsTheFirstOfTheMap) {
  Fill("C [x]");
  Item("C").SetCategory(true);
  FEditor->Categorize(&Item("C.x"), Map("x=c,x=B"), true);
  EXPECT_EQ("C [x] Miscellaneous B [x]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, AFurtherLineIsTheItemsOwnCategoryOnlyInTheSameCaseDeliberately) {
  Fill("C [x]");
  Item("C").SetCategory(true);
  FEditor->Categorize(&Item("C.x"), Map("x=A,x=c"), true);
  EXPECT_EQ("C [x x] Miscellaneous A [x]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, AnItemWithoutAParentGetsOneCopyOnly) {
  Fill("a");
  FEditor->Categorize(&Item("a"), Map("a=X,a=Y"), true);
  EXPECT_EQ("a Miscellaneous X [a]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, ManyItemsAreTakenAsTheyStoodBefore) {
  Fill("C [x y]");
  Item("C").SetCategory(true);
  FEditor->Categorize(Item("C").GetItems(), Map("x=A,y=A"), true);
  EXPECT_EQ("C [x y] Miscellaneous A [x y]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, ACategoryIsNotMovedIntoItselfOrBelow) {
  Items().AddCategory("X", false)->GetItems().AddCategory("Y", false);
  FEditor->Categorize(&Item("X"), Map("X=X"), false);
  EXPECT_EQ("X [Y] Miscellaneous", TreeText());
  FEditor->Categorize(Item("X").GetItems(), Map("Y=X"), false);
  EXPECT_EQ("X [Y] Miscellaneous", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, TheCursorStaysOnItsItemWhileACategoryAboveOpensAndCloses) {
  Fill("a b z");
  FEditor->Categorize(&Item("a"), Map("a=A"), false);
  Item("A").SetIndex(0);
  FEditor->SetSelected(&Item("z"));
  Item("A").Expand();
  EXPECT_EQ("A | a | b | >z | Miscellaneous", RowsText());
  Item("A").Collapse();
  EXPECT_EQ("A | b | >z | Miscellaneous", RowsText());
}

// Renaming.

TEST_F(ItemListEditorCategoriesTest, ARenamedItemMovesToItsNewCategoryWhileArranged) {
  Fill("a b");
  Items().GetCategories().SetCommaText("a=X,c=Y");
  FEditor->Categorize(false);
  EXPECT_EQ("Miscellaneous [b] X [a]", TreeText());
  FEditor->SetArrangeByCategory(true);
  // The map that counts is that of the item's own collection.
  Item("X").GetItems().GetCategories().Add("c=Y");
  Item("X.a").SetName("c");
  EXPECT_EQ("Miscellaneous [b] X Y [c]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, ARenamedItemGoesToItsSortedPlaceInItsNewCategory) {
  FEditor->SetSorted(true);
  TKTItemProps& below = Items().AddCategory("X", false)->GetItems();
  for (const char* name : {"b", "d"}) below.Add(name, {});
  Fill("a");
  Items().GetCategories().Add("c=X");
  FEditor->SetArrangeByCategory(true);
  Item("a").SetName("c");
  EXPECT_EQ("Miscellaneous X [b c d]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, ARenamedItemStaysUnlessArranged) {
  Fill("a");
  Items().GetCategories().Add("b=X");
  Item("a").SetName("b");
  EXPECT_EQ("b", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, ARenamedCategoryStaysThoughArranged) {
  Items().AddCategory("A", false);
  FEditor->SetArrangeByCategory(true);
  Items().GetCategories().Add("B=X");
  Item("A").SetName("B");
  EXPECT_EQ("B", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, NewNamedItemsGoToTheirCategoriesWhileArranged) {
  FEditor->SetArrangeByCategory(true);
  Items().GetCategories().Add("a=X");
  Items().Add("a", "1");
  Items().Add("b", "2");
  EXPECT_EQ("Miscellaneous [b] X [a]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest, SwitchingArrangeByCategoryOnMovesNothing) {
  Fill("a");
  Items().GetCategories().Add("a=X");
  FEditor->SetArrangeByCategory(true);
  EXPECT_EQ("a", TreeText());
  EXPECT_TRUE(FEditor->GetArrangeByCategory());
}

// Handlers that free what they are asked about.

TEST_F(ItemListEditorCategoriesTest, AHandlerMayFreeTheItemThatItIsAskedAbout) {
  Fill("a b c");
  FEditor->OnCategorize = [](TObject*, TKTItemProp* item, const QString& name, QString&) {
    if (name == QLatin1StringView("b")) delete item;
  };
  FEditor->Categorize(Map(""), false);
  EXPECT_EQ("Miscellaneous [a c]", TreeText());
  Fill("b");
  FEditor->Categorize(&Item("b"), Map("b=X,b=Y"), true);
  EXPECT_EQ("Miscellaneous [a c]", TreeText());
}

TEST_F(ItemListEditorCategoriesTest,
       NoCopyGoesUnderACategoryBesideWhenTheItemStandsInADefaultCategoryThatItsOwnListRecords) {
  Fill("C [x]");
  Item("C").SetCategory(true);
  Item("C").SetDefaultCategory(true);
  Item("C").GetItems().SetDefaultCategory(&Item("C"));
  FEditor->Categorize(&Item("C.x"), Map("x=A"), true);
  EXPECT_EQ("C [x] A", TreeText());
}

}  // namespace
}  // namespace kt::tests
