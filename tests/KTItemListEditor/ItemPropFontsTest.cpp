#include "kt/vcl/graphics/Font.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemPropFontsTest : public TItemListTest {
 protected:
  ItemPropFontsTest() {
    FEditor = Make<TProbeEditor>();
    Fill("a [b [c]] d");
  }

  /// Makes sure that all items have font objects of their own.
  void AskForAllFonts() {
    for (int i = 0; i < FEditor->GetItemCount(); ++i) {
      FEditor->GetItem(i)->GetFont();
      FEditor->GetItem(i)->GetValueFont();
    }
  }
};

TEST_F(ItemPropFontsTest, ItemsInheritTheEditorsFonts) {
  FEditor->GetFont().SetColor(clRed);
  FEditor->GetValueFont().SetColor(clBlue);
  EXPECT_EQ(clRed, Item("a.b.c").GetFont().GetColor());
  EXPECT_EQ(clBlue, Item("a.b.c").GetValueFont().GetColor());
}

TEST_F(ItemPropFontsTest, FontsThatWereAskedForFollowTheEditorsFonts) {
  AskForAllFonts();
  FEditor->GetFont().SetColor(clRed);
  FEditor->GetValueFont().SetColor(clBlue);
  EXPECT_EQ(clRed, Item("a.b.c").GetFont().GetColor());
  EXPECT_EQ(clBlue, Item("a.b.c").GetValueFont().GetColor());
  EXPECT_TRUE(Item("a.b.c").GetParentFont());
  EXPECT_TRUE(Item("a.b.c").GetParentValueFont());
}

TEST_F(ItemPropFontsTest, AnItemThatStopsInheritingKeepsWhatItLooksLike) {
  Fill("a");
  FEditor->GetFont().SetColor(clRed);
  FEditor->GetValueFont().SetColor(clBlue);
  Item("a").SetParentFont(false);
  Item("a").SetParentValueFont(false);
  FEditor->GetFont().SetColor(clGreen);
  EXPECT_EQ(clRed, Item("a").GetFont().GetColor());
  EXPECT_EQ(clBlue, Item("a").GetValueFont().GetColor());
}

TEST_F(ItemPropFontsTest, ChangingAFontMakesItTheItemsOwnAndTheChildrenFollow) {
  AskForAllFonts();
  Item("a").GetFont().SetColor(clRed);
  EXPECT_FALSE(Item("a").GetParentFont());
  EXPECT_TRUE(Item("a").GetParentValueFont());
  EXPECT_EQ(clRed, Item("a.b.c").GetFont().GetColor());
  EXPECT_TRUE(Item("a.b.c").GetParentFont());
  EXPECT_NE(clRed, Item("d").GetFont().GetColor());
}

TEST_F(ItemPropFontsTest, ChangingAValueFontMakesItTheItemsOwnAndTheChildrenFollow) {
  AskForAllFonts();
  Item("a").GetValueFont().SetColor(clRed);
  EXPECT_FALSE(Item("a").GetParentValueFont());
  EXPECT_TRUE(Item("a").GetParentFont());
  EXPECT_EQ(clRed, Item("a.b.c").GetValueFont().GetColor());
  EXPECT_TRUE(Item("a.b.c").GetParentValueFont());
}

TEST_F(ItemPropFontsTest, AnItemWithAFontOfItsOwnFollowsNobody) {
  Item("a.b").GetFont().SetColor(clGreen);
  Item("a.b").GetValueFont().SetColor(clGreen);
  Item("a").GetFont().SetColor(clRed);
  Item("a").GetValueFont().SetColor(clRed);
  EXPECT_EQ(clGreen, Item("a.b").GetFont().GetColor());
  EXPECT_EQ(clGreen, Item("a.b.c").GetFont().GetColor());
  EXPECT_EQ(clGreen, Item("a.b.c").GetValueFont().GetColor());
}

TEST_F(ItemPropFontsTest, ACategoryTakesTheCategoryFont) {
  FEditor->GetCategoryFont().SetColor(clTeal);
  Item("a").GetFont();
  Item("a").SetCategory(true);
  EXPECT_EQ(clTeal, Item("a").GetFont().GetColor());
  EXPECT_TRUE(Item("a").GetParentFont());
}

TEST_F(ItemPropFontsTest, AnItemThatIsNoCategoryAnyMoreTakesTheEditorsFontAgain) {
  Item("a").SetCategory(true);
  EXPECT_EQ(clPurple, Item("a").GetFont().GetColor());
  Item("a").SetCategory(false);
  EXPECT_EQ(FEditor->GetFont().GetColor(), Item("a").GetFont().GetColor());
}

TEST_F(ItemPropFontsTest, ACategorysFontSkipsItsItemsAndReachesTheCategoryBelow) {
  Item("a").SetCategory(true);
  Item("a.b.c").SetCategory(true);
  AskForAllFonts();
  Item("a").GetFont().SetColor(clRed);
  EXPECT_NE(clRed, Item("a.b").GetFont().GetColor());
  EXPECT_EQ(clRed, Item("a.b.c").GetFont().GetColor());
}

TEST_F(ItemPropFontsTest, ACategorysFontThatNobodyElseAskedForIsInheritedTheSameWay) {
  Item("a").SetCategory(true);
  Item("a.b.c").SetCategory(true);
  Item("a").GetFont().SetColor(clRed);
  EXPECT_NE(clRed, Item("a.b").GetFont().GetColor());
  EXPECT_EQ(clRed, Item("a.b.c").GetFont().GetColor());
}

TEST_F(ItemPropFontsTest, SettingParentFontLeavesTheFontForAnItemIsItsOwnSource) {
  Item("a").GetFont().SetColor(clRed);
  Item("a").SetParentFont(true);
  EXPECT_TRUE(Item("a").GetParentFont());
  EXPECT_EQ(clRed, Item("a").GetFont().GetColor());
}

TEST_F(ItemPropFontsTest, SettingParentValueFontTakesTheParentsFont) {
  Item("a").GetValueFont().SetColor(clRed);
  Item("a.b").GetValueFont().SetColor(clGreen);
  Item("a.b").SetParentValueFont(true);
  EXPECT_EQ(clRed, Item("a.b").GetValueFont().GetColor());
  EXPECT_TRUE(Item("a.b").GetParentValueFont());
}

TEST_F(ItemPropFontsTest, SettingAFontCopiesIt) {
  const auto font = Make<TFont>();
  font->SetColor(clRed);
  Item("a").SetFont(*font);
  Item("d").SetValueFont(*font);
  EXPECT_EQ(clRed, Item("a").GetFont().GetColor());
  EXPECT_EQ(clRed, Item("d").GetValueFont().GetColor());
  EXPECT_FALSE(Item("a").GetParentFont());
  EXPECT_FALSE(Item("d").GetParentValueFont());
}

TEST_F(ItemPropFontsTest, AllValueColumnsHaveTheOneValueFont) {
  EXPECT_EQ(&Item("a").GetValueFont(), &Item("a").GetIndividualValueFont(0));
  EXPECT_EQ(&Item("a").GetValueFont(), &Item("a").GetIndividualValueFont(7));
}

TEST_F(ItemPropFontsTest, AFontOfItsOwnIsStored) {
  EXPECT_FALSE(Item("a").IsFontStored());
  EXPECT_FALSE(Item("a").IsValueFontStored());
  Item("a").GetFont().SetColor(clRed);
  Item("a").GetValueFont().SetColor(clRed);
  EXPECT_TRUE(Item("a").IsFontStored());
  EXPECT_TRUE(Item("a").IsValueFontStored());
}

TEST_F(ItemPropFontsTest, AnInheritedFontIsStoredOnlyBelowAParentOfTheOtherKind) {
  EXPECT_FALSE(Item("a.b").IsFontStored());
  Item("a").SetCategory(true);
  EXPECT_TRUE(Item("a.b").IsFontStored());
  EXPECT_FALSE(Item("a").IsFontStored());
  Item("a.b").SetCategory(true);
  EXPECT_FALSE(Item("a.b").IsFontStored());
}

TEST_F(ItemPropFontsTest, AFontChangeTellsTheChildrenAndThenOneChangeOfTheItem) {
  Item("a").GetFont();
  EXPECT_EQ("b.ParentFontChanged(a) c.ParentFontChanged(b) [].Update(a)",
            Heard([&] { Item("a").GetFont().SetColor(clRed); }));
}

TEST_F(ItemPropFontsTest, AValueFontChangeTellsTheChildrenAndThenOneChangeOfTheItem) {
  Item("a").GetValueFont();
  EXPECT_EQ("b.ParentValueFontChanged c.ParentValueFontChanged [].Update(a)",
            Heard([&] { Item("a").GetValueFont().SetColor(clRed); }));
}

TEST_F(ItemPropFontsTest, WithoutAnEditorAFontIsTheFrameworks) {
  const auto item = Make<TKTItemProp>(nullptr);
  EXPECT_EQ(clWindowText, item->GetFont().GetColor());
  item->SetCategory(true);
  EXPECT_EQ(clWindowText, item->GetFont().GetColor());
}

}  // namespace
}  // namespace kt::tests
