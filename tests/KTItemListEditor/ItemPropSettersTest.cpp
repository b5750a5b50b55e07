#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemPropSettersTest : public TItemListTest {
 protected:
  ItemPropSettersTest() { FEditor = Make<TProbeEditor>(); }

  std::unique_ptr<TKTItemProp> FAlone = Make<TKTItemProp>(nullptr);
};

TEST_F(ItemPropSettersTest, PlainSettersTellOneChange) {
  Fill("a");
  TKTItemProp& a = Item("a");
  EXPECT_EQ("[].Update(a)", Heard([&] { a.SetHint("h"); }));
  EXPECT_EQ("[].Update(a)", Heard([&] { a.SetEditMask("m"); }));
  EXPECT_EQ("[].Update(a)", Heard([&] { a.SetEditStyle(esEllipsis); }));
  EXPECT_EQ("[].Update(a)", Heard([&] { a.SetExpressionMask(true); }));
  EXPECT_EQ("[].Update(a)", Heard([&] { a.SetItemObject(FEditor.get()); }));
  EXPECT_EQ("h", a.GetHint());
  EXPECT_EQ("m", a.GetEditMask());
  EXPECT_EQ(esEllipsis, a.GetEditStyle());
  EXPECT_TRUE(a.GetExpressionMask());
  EXPECT_EQ(FEditor.get(), a.GetItemObject());
}

TEST_F(ItemPropSettersTest, TheTagTellsNobody) {
  Fill("a");
  EXPECT_EQ("", Heard([&] { Item("a").SetTag(7); }));
  EXPECT_EQ(7, Item("a").GetTag());
}

TEST_F(ItemPropSettersTest, SettersDoNothingForThePresentValue) {
  Fill("a");
  TKTItemProp& a = Item("a");
  a.SetHint("h");
  EXPECT_EQ("a.SetName(a) a.SetReadOnly a.SetCategory", Heard([&] {
              a.SetName("a");
              a.SetHint("h");
              a.SetEditMask("");
              a.SetEditStyle(esSimple);
              a.SetExpressionMask(false);
              a.SetItemObject(nullptr);
              a.SetReadOnly(false);
              a.SetVisible(true);
              a.SetEnabled(true);
              a.SetCategory(false);
              a.SetDefaultCategory(false);
              a.SetExpanded(false);
              a.SetParentFont(true);
              a.SetParentValueFont(true);
            }));
}

TEST_F(ItemPropSettersTest, TextSettersTakeAnotherCaseForAChange) {
  Fill("a");
  TKTItemProp& a = Item("a");
  a.SetHint("h");
  a.SetEditMask("m");
  a.SetHint("H");
  a.SetEditMask("M");
  a.SetName("A");
  EXPECT_EQ("H", a.GetHint());
  EXPECT_EQ("M", a.GetEditMask());
  EXPECT_EQ("A", a.GetName());
}

// The name.

TEST_F(ItemPropSettersTest, ARenamedItemMovesBeforeItsNameChangesAndIsPaintedAnew) {
  Fill("a");
  EXPECT_EQ("a.SetName(b) a.Changing a.MoveProp(b) editor.Invalidate [].Update(b)",
            Heard([&] { Item("a").SetName("b"); }));
}

TEST_F(ItemPropSettersTest, ARenamedItemWithoutARowIsNotPainted) {
  Fill("a [b]");
  EXPECT_EQ("b.SetName(c) b.Changing b.MoveProp(c) [].Update(c) a.UpdateItemProp(c) [a].Update(c)",
            Heard([&] { Item("a.b").SetName("c"); }));
}

TEST_F(ItemPropSettersTest, TwoItemsMayHaveOneNameUnlessNamesAreUnique) {
  Fill("a b");
  Item("b").SetName("a");
  EXPECT_EQ("a a", TreeText());
}

TEST_F(ItemPropSettersTest, AUniqueNameOfAnotherItemOfTheLevelIsRefusedAndTheNameStays) {
  Fill("a b");
  FEditor->SetPropertyOptions({propUnique});
  EXPECT_EQ("Property name is not unique: a", MessageOf<ETORVException>([&] { Item("b").SetName("a"); }));
  EXPECT_EQ("a b", TreeText());
}

TEST_F(ItemPropSettersTest, UniqueNamesAreComparedAsTheEditorCompares) {
  Fill("a b");
  FEditor->SetPropertyOptions({propUnique});
  EXPECT_EQ("Property name is not unique: A", MessageOf<ETORVException>([&] { Item("b").SetName("A"); }));
  FEditor->SetCaseSensitive(true);
  Item("b").SetName("A");
  EXPECT_EQ("a A", TreeText());
}

TEST_F(ItemPropSettersTest, UniqueNamesAreUniqueWithinTheirLevelOnly) {
  Fill("a [b] c");
  FEditor->SetPropertyOptions({propUnique});
  Item("a.b").SetName("c");
  EXPECT_EQ("a [c] c", TreeText());
}

TEST_F(ItemPropSettersTest, ANameMayChangeItsOwnCaseThoughNamesAreUnique) {
  Fill("a b");
  FEditor->SetPropertyOptions({propUnique});
  Item("a").SetName("A");
  EXPECT_EQ("A b", TreeText());
}

TEST_F(ItemPropSettersTest, RenamingToTheOwnNameIsNoChangeThoughNamesAreUnique) {
  Fill("a a");
  FEditor->SetPropertyOptions({propUnique});
  EXPECT_EQ("a.SetName(a)", Heard([&] { Items().GetItem(1)->SetName("a"); }));
}

TEST_F(ItemPropSettersTest, SeveralItemsMayHaveNoNameThoughNamesAreUnique) {
  Fill("a b");
  FEditor->SetPropertyOptions({propUnique});
  Item("a").SetName("");
  Item("b").SetName("");
  EXPECT_EQ(" ", TreeText());
}

TEST_F(ItemPropSettersTest, OnASortedLevelAnItemRenamedTowardsTheBeginningGoesWhereItsNameBelongs) {
  Fill("a c e g");
  FEditor->SetSorted(true);
  Item("g").SetName("d");
  EXPECT_EQ("a c d e", TreeText());
  Item("e").SetName("0");
  EXPECT_EQ("0 a c d", TreeText());
}

TEST_F(ItemPropSettersTest, OnASortedLevelAnItemRenamedToTheLastNameGoesToTheEnd) {
  Fill("a c e g");
  FEditor->SetSorted(true);
  Item("a").SetName("z");
  EXPECT_EQ("c e g z", TreeText());
}

TEST_F(ItemPropSettersTest, OnASortedLevelAnItemRenamedTowardsTheEndGoesOnePlaceTooFarAsTheSearchStillCountsIt) {
  Fill("a c e g");
  FEditor->SetSorted(true);
  Item("a").SetName("f");
  EXPECT_EQ("c e g f", TreeText());
}

TEST_F(ItemPropSettersTest, OnAnUnsortedLevelARenamedItemStays) {
  Fill("a c e");
  Item("a").SetName("z");
  EXPECT_EQ("z c e", TreeText());
}

// Read-only, enabled, visible.

TEST_F(ItemPropSettersTest, ADisabledItemIsReadOnlyThoughItsOwnFlagSaysNo) {
  Fill("a");
  Item("a").SetEnabled(false);
  EXPECT_TRUE(Item("a").IsReadOnly());
  EXPECT_FALSE(Item("a").GetReadOnly());
}

TEST_F(ItemPropSettersTest, ReadOnlyComparesWithWhatIsSeenSoThatADisabledItemCannotBeMadeReadOnly) {
  Fill("a");
  Item("a").SetEnabled(false);
  Item("a").SetReadOnly(true);
  Item("a").SetEnabled(true);
  EXPECT_FALSE(Item("a").IsReadOnly());
}

TEST_F(ItemPropSettersTest, VisibleTellsNoChangeButThatOfRows) {
  Fill("a");
  EXPECT_EQ("editor.Refresh editor.AdjustGridCount editor.Invalidate [].VisibleChanged(a) a.VisibleChanged",
            Heard([&] { Item("a").SetVisible(false); }));
}

TEST_F(ItemPropSettersTest, EnabledTellsOneChange) {
  Fill("a");
  EXPECT_EQ("[].Update(a)", Heard([&] { Item("a").SetEnabled(false); }));
}

TEST_F(ItemPropSettersTest, ReadOnlyTellsRowsOnlyWhereReadOnlyItemsHaveNone) {
  Fill("a b");
  EXPECT_EQ("a.SetReadOnly [].Update(a)", Heard([&] { Item("a").SetReadOnly(true); }));
  FEditor->SetDisplayOptions({});
  EXPECT_EQ(
      "b.SetReadOnly editor.Refresh editor.AdjustGridCount editor.Invalidate [].VisibleChanged(b) b.VisibleChanged "
      "[].Update(b)",
      Heard([&] { Item("b").SetReadOnly(true); }));
}

// The pick list.

TEST_F(ItemPropSettersTest, AskingWhetherThereIsAPickListMakesNone) {
  EXPECT_FALSE(FAlone->HasPickList());
  EXPECT_EQ(0, FAlone->GetPickList().GetCount());
  EXPECT_FALSE(FAlone->HasPickList());
  FAlone->GetPickList().Add("x");
  EXPECT_TRUE(FAlone->HasPickList());
}

TEST_F(ItemPropSettersTest, FillingThePickListOfASimpleItemMakesItAPickListItemAndEmptyingTurnsItBack) {
  FAlone->GetPickList().Add("x");
  EXPECT_EQ(esPickList, FAlone->GetEditStyle());
  FAlone->GetPickList().Clear();
  EXPECT_EQ(esSimple, FAlone->GetEditStyle());
}

TEST_F(ItemPropSettersTest, AnItemWithAnEllipsisKeepsItsStyleWhateverItsPickListHolds) {
  FAlone->SetEditStyle(esEllipsis);
  FAlone->GetPickList().Add("x");
  EXPECT_EQ(esEllipsis, FAlone->GetEditStyle());
  FAlone->GetPickList().Clear();
  EXPECT_EQ(esEllipsis, FAlone->GetEditStyle());
}

TEST_F(ItemPropSettersTest, SettingThePickListCopiesItsLines) {
  const auto lines = Make<TStringList>();
  lines->SetCommaText("x,y");
  FAlone->SetPickList(*lines);
  EXPECT_EQ("x,y", FAlone->GetPickList().GetCommaText());
  EXPECT_EQ(esPickList, FAlone->GetEditStyle());
}

}  // namespace
}  // namespace kt::tests
