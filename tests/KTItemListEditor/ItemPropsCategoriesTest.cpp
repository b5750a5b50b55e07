#include "kt/rtl/strings/StringList.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemPropsCategoriesTest : public TItemListTest {};

TEST_F(ItemPropsCategoriesTest, ANewCategoryIsReadOnlyAndCollapsed) {
  TKTItemProp* category = Items().AddCategory("A", false);
  EXPECT_TRUE(category->GetCategory());
  EXPECT_TRUE(category->GetReadOnly());
  EXPECT_FALSE(category->IsExpanded());
  EXPECT_EQ("A", category->GetName());
}

TEST_F(ItemPropsCategoriesTest, ACategoryIsMadeACategoryThenReadOnlyThenNamed) {
  FEditor = Make<TProbeEditor>();
  const std::string log = Heard([&] { Items().AddCategory("A", false); });
  EXPECT_EQ("?.SetCategory ?.SetReadOnly ?.SetName(A)",
            QString::fromStdString(log).split(u' ').filter(".Set").join(u' '));
}

TEST_F(ItemPropsCategoriesTest, ACategoryOfThatNameIsReusedUnlessDuplicatesAreAllowed) {
  TKTItemProp* category = Items().AddCategory("A", false);
  EXPECT_EQ(category, Items().AddCategory("a", false));
  EXPECT_NE(category, Items().AddCategory("A", true));
  EXPECT_EQ("A A", TreeText());
}

TEST_F(ItemPropsCategoriesTest, AnOrdinaryItemOfThatNameIsNoCategory) {
  Fill("A");
  EXPECT_EQ(-1, Items().IndexOfCategory("A"));
  Items().AddCategory("A", false);
  EXPECT_EQ(1, Items().IndexOfCategory("a"));
}

TEST_F(ItemPropsCategoriesTest, ACategoryWhoseNameAnItemHasIsRefusedBeforeItIsMadeWhileNamesAreUnique) {
  Fill("a");
  FEditor->SetPropertyOptions({propUnique});
  EXPECT_EQ("Property name is not unique: a", MessageOf<ETORVException>([&] { Items().AddCategory("a", false); }));
  EXPECT_EQ("Property name is not unique: a",
            MessageOf<ETORVException>([&] { FEditor->Categorize(Items(), QStringLiteral("a")); }));
  EXPECT_EQ("a", TreeText());
}

TEST_F(ItemPropsCategoriesTest, DeletingACategoryLiftsItsChildrenToItsLevel) {
  Fill("a C [x [y] z] b");
  Item("C").SetCategory(true);
  Items().DeleteCategory(1, false);
  EXPECT_EQ("a b x [y] z", TreeText());
}

TEST_F(ItemPropsCategoriesTest, DeletingACategoryWithItsChildren) {
  Fill("a C [x [y] z] b");
  Item("C").SetCategory(true);
  Items().DeleteCategory(1, true);
  EXPECT_EQ("a b", TreeText());
}

TEST_F(ItemPropsCategoriesTest, WhatIsNoCategoryIsNotDeleted) {
  Fill("a [x] b");
  EXPECT_EQ("Cannot delete item, not a category", MessageOf<ETORVException>([&] { Items().DeleteCategory(0, false); }));
  EXPECT_EQ("a [x] b", TreeText());
}

TEST_F(ItemPropsCategoriesTest, RemovingACategoryByNameIsNoErrorWithoutOne) {
  Fill("C [x] b");
  Item("C").SetCategory(true);
  Items().RemoveCategory("b", true);
  Items().RemoveCategory("nothing", true);
  EXPECT_EQ("C [x] b", TreeText());
  Items().RemoveCategory("c", false);
  EXPECT_EQ("b x", TreeText());
}

TEST_F(ItemPropsCategoriesTest, ClearingCategoriesTakesAllOfTheLevel) {
  Fill("C [x] a D [y]");
  Item("C").SetCategory(true);
  Item("D").SetCategory(true);
  Items().ClearCategories(false);
  EXPECT_EQ("a x y", TreeText());
}

TEST_F(ItemPropsCategoriesTest, ClearingCategoriesTakesACategoryThatCameUpFromOneBelow) {
  Fill("C [D [x]] a");
  Item("C").SetCategory(true);
  Item("C.D").SetCategory(true);
  Items().ClearCategories(false);
  EXPECT_EQ("a x", TreeText());
}

TEST_F(ItemPropsCategoriesTest, ClearingCategoriesWithTheirChildren) {
  Fill("C [x] a D [y]");
  Item("C").SetCategory(true);
  Item("D").SetCategory(true);
  Items().ClearCategories(true);
  EXPECT_EQ("a", TreeText());
}

// The default category.

TEST_F(ItemPropsCategoriesTest, TheDefaultCategorysNameIsMiscellaneous) {
  EXPECT_EQ("Miscellaneous", Items().GetDefaultCategoryName());
  EXPECT_EQ(nullptr, Items().GetDefaultCategory());
  Items().CreateDefaultCategory();
  EXPECT_EQ("Miscellaneous", TreeText());
  EXPECT_EQ(&Item("Miscellaneous"), Items().GetDefaultCategory());
  EXPECT_TRUE(Item("Miscellaneous").GetDefaultCategory());
}

TEST_F(ItemPropsCategoriesTest, TheDefaultCategoryIsACategoryThatIsThereAlready) {
  TKTItemProp* category = Items().AddCategory("Miscellaneous", false);
  Items().CreateDefaultCategory();
  EXPECT_EQ(category, Items().GetDefaultCategory());
  EXPECT_EQ("Miscellaneous", TreeText());
}

TEST_F(ItemPropsCategoriesTest, WithoutANameNoDefaultCategoryIsCreated) {
  Items().SetDefaultCategoryName("");
  Items().CreateDefaultCategory();
  EXPECT_EQ("", TreeText());
}

TEST_F(ItemPropsCategoriesTest, SettingTheNameCreatesTheDefaultCategoryOnlyWhileArrangedByCategory) {
  Items().SetDefaultCategoryName("Rest");
  EXPECT_EQ("", TreeText());
  FEditor->SetArrangeByCategory(true);
  Items().SetDefaultCategoryName("Other");
  EXPECT_EQ("Other", TreeText());
  EXPECT_EQ(&Item("Other"), Items().GetDefaultCategory());
}

TEST_F(ItemPropsCategoriesTest, MakingAnItemTheDefaultCategoryMakesItACategory) {
  Fill("a");
  Item("a").SetDefaultCategory(true);
  EXPECT_TRUE(Item("a").GetCategory());
  EXPECT_EQ(&Item("a"), Items().GetDefaultCategory());
}

TEST_F(ItemPropsCategoriesTest, AnItemThatIsNoCategoryAnyMoreIsNoDefaultCategoryEither) {
  Fill("a");
  Item("a").SetDefaultCategory(true);
  Item("a").SetCategory(false);
  EXPECT_FALSE(Item("a").GetDefaultCategory());
  EXPECT_EQ(nullptr, Items().GetDefaultCategory());
}

TEST_F(ItemPropsCategoriesTest, ACollectionHasOneDefaultCategoryWhenItIsToldWhichOne) {
  Fill("a b");
  Items().SetDefaultCategory(&Item("a"));
  Items().SetDefaultCategory(&Item("b"));
  EXPECT_FALSE(Item("a").GetDefaultCategory());
  EXPECT_TRUE(Item("b").GetDefaultCategory());
  EXPECT_EQ(&Item("b"), Items().GetDefaultCategory());
  Items().SetDefaultCategory(nullptr);
  EXPECT_FALSE(Item("b").GetDefaultCategory());
}

TEST_F(ItemPropsCategoriesTest, FlaggingASecondItemLeavesTheFirstOnesFlag) {
  Fill("a b");
  Item("a").SetDefaultCategory(true);
  Item("b").SetDefaultCategory(true);
  EXPECT_TRUE(Item("a").GetDefaultCategory());
  EXPECT_EQ(&Item("b"), Items().GetDefaultCategory());
  Item("a").SetDefaultCategory(false);
  EXPECT_EQ(nullptr, Items().GetDefaultCategory());
}

TEST_F(ItemPropsCategoriesTest, ADefaultCategoryThatLeavesIsNoneAnyMore) {
  Fill("a b");
  Item("a").SetDefaultCategory(true);
  Item("a").SetCollection(&Item("b").GetItems());
  EXPECT_EQ(nullptr, Items().GetDefaultCategory());
  EXPECT_FALSE(Item("b.a").GetDefaultCategory());
  Item("b").SetDefaultCategory(true);
  delete &Item("b");
  EXPECT_EQ(nullptr, Items().GetDefaultCategory());
}

TEST_F(ItemPropsCategoriesTest, TheCategoryMapIsSortedAsTheCollectionIs) {
  EXPECT_FALSE(Items().GetCategories().GetSorted());
  const auto map = Make<TStringList>();
  map->SetCommaText("b=1,a=2");
  Items().SetCategories(*map);
  EXPECT_EQ("b=1,a=2", Items().GetCategories().GetCommaText());
  FEditor->SetSorted(true);
  EXPECT_EQ("a=2,b=1", Items().GetCategories().GetCommaText());
}

}  // namespace
}  // namespace kt::tests
