#include "kt/vcl/graphics/Font.h"
#include "support/ItemLists.h"

namespace kt::tests {
namespace {

/// What an item looks like must not depend on whether anybody asked for its fonts before.
class ItemPropFontsFollowTest : public TItemListTest, public testing::WithParamInterface<bool> {
 protected:
  ItemPropFontsFollowTest() { Fill("p [s [t]] q [u] C [x [y]]"); }

  /// With the parameter set, all items are asked for their fonts: from here on they have objects of their own.
  void AskForFonts() {
    for (int i = 0; GetParam() && i < FEditor->GetItemCount(); ++i) {
      FEditor->GetItem(i)->GetFont();
      FEditor->GetItem(i)->GetValueFont();
    }
  }
  TColor ColorOf(const QString& path) { return Item(path).GetFont().GetColor(); }
  TColor ValueColorOf(const QString& path) { return Item(path).GetValueFont().GetColor(); }
};

TEST_P(ItemPropFontsFollowTest, AMovedItemLooksLikeWhatItInheritsFromNow) {
  Item("p").GetFont().SetColor(clRed);
  Item("p").GetValueFont().SetColor(clRed);
  Item("q").GetFont().SetColor(clBlue);
  Item("q").GetValueFont().SetColor(clBlue);
  AskForFonts();
  Item("p.s").SetCollection(&Item("q").GetItems());
  EXPECT_EQ(clBlue, ColorOf("q.s"));
  EXPECT_EQ(clBlue, ColorOf("q.s.t"));
  EXPECT_EQ(clBlue, ValueColorOf("q.s.t"));
  EXPECT_TRUE(Item("q.s.t").GetParentFont() && Item("q.s.t").GetParentValueFont());
}

TEST_P(ItemPropFontsFollowTest, CategoriesFollowTheCategoryFont) {
  Item("C").SetCategory(true);
  AskForFonts();
  FEditor->GetCategoryFont().SetColor(clTeal);
  EXPECT_EQ(clTeal, ColorOf("C"));
  EXPECT_NE(clTeal, ColorOf("C.x"));
}

TEST_P(ItemPropFontsFollowTest, ItemsBelowCategoriesFollowTheEditorsFontAndSoDoTheCategories) {
  Item("C").SetCategory(true);
  AskForFonts();
  FEditor->GetFont().SetSize(21);
  EXPECT_EQ(21, Item("C").GetFont().GetSize());
  EXPECT_EQ(21, Item("C.x").GetFont().GetSize());
  EXPECT_EQ(21, Item("C.x.y").GetFont().GetSize());
}

TEST_P(ItemPropFontsFollowTest, ItemsBelowOneThatBecomesACategoryInheritFromElsewhere) {
  Item("p").GetFont().SetColor(clRed);
  AskForFonts();
  Item("p").SetCategory(true);
  EXPECT_EQ(clRed, ColorOf("p"));
  EXPECT_EQ(FEditor->GetFont().GetColor(), ColorOf("p.s"));
  EXPECT_EQ(FEditor->GetFont().GetColor(), ColorOf("p.s.t"));
}

TEST_P(ItemPropFontsFollowTest, ACopyOfAnItemThatLooksOtherwiseKeepsThatLookAsItsOwn) {
  Item("p").GetFont().SetColor(clRed);
  Item("p").GetValueFont().SetColor(clBlue);
  AskForFonts();
  Item("q.u").Assign(&Item("p.s"));
  EXPECT_EQ(clRed, ColorOf("q.s"));
  EXPECT_EQ(clBlue, ValueColorOf("q.s"));
  EXPECT_FALSE(Item("q.s").GetParentFont() || Item("q.s").GetParentValueFont());
}

TEST_P(ItemPropFontsFollowTest, ACopyThatLooksTheSameInheritsAsItsSourceDoes) {
  AskForFonts();
  Item("q.u").Assign(&Item("p.s"));
  EXPECT_TRUE(Item("q.s").GetParentFont() && Item("q.s").GetParentValueFont());
}

TEST_P(ItemPropFontsFollowTest, ACopyOfACategoryInheritsTheCategoryFont) {
  Item("C").SetCategory(true);
  AskForFonts();
  Item("q").Assign(&Item("C"));
  EXPECT_TRUE(Items().GetItem(1)->GetParentFont());
  EXPECT_EQ(FEditor->GetCategoryFont().GetColor(), Items().GetItem(1)->GetFont().GetColor());
}

TEST_P(ItemPropFontsFollowTest, AnItemAddedAfterwardsLooksLikeTheOthers) {
  AskForFonts();
  FEditor->GetFont().SetColor(clRed);
  FEditor->GetValueFont().SetColor(clBlue);
  Item("p").GetItems().Add("new", {});
  AskForFonts();
  EXPECT_EQ(clRed, ColorOf("p.new"));
  EXPECT_EQ(clBlue, ValueColorOf("p.new"));
}

INSTANTIATE_TEST_SUITE_P(Fonts, ItemPropFontsFollowTest, testing::Bool(),
                         [](const auto& test) { return test.param ? "AskedFor" : "NotAskedFor"; });

}  // namespace
}  // namespace kt::tests
