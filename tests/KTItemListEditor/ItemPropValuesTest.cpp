#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

/// An editor with three columns, so two value columns, and the cursor in column 1 of item a.
class ItemPropValuesTest : public TItemListTest {
 protected:
  ItemPropValuesTest() {
    FEditor = Make<TProbeEditor>();
    FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() + TILEDisplayOptions{doMultiColValues});
    FEditor->SetColCount(3);
    Fill("a b");
  }

  TKTItemPropValueStrings& Values(const QString& path) { return Item(path).GetValues(); }
  /// The lines as they are, without reading one.
  std::string LinesOf(const QString& path) { return Values(path).GetCommaText().toStdString(); }
};

TEST_F(ItemPropValuesTest, ReadingTheLineOfAValueColumnBringsTheListToTheNumberOfColumnsWithoutAChange) {
  Values("b").SetText("1");
  EXPECT_EQ("", Heard([&] { EXPECT_EQ("1", Values("b").GetStrings(0)); }));
  EXPECT_EQ(2, Values("b").GetCount());
}

TEST_F(ItemPropValuesTest, ReadingTheLineOfAValueColumnDropsLinesTooMany) {
  Values("b").SetText("1\r\n2\r\n3\r\n4");
  EXPECT_EQ("2", Values("b").GetStrings(1));
  EXPECT_EQ(2, Values("b").GetCount());
}

TEST_F(ItemPropValuesTest, ReadingALineBehindTheValueColumnsChangesNothing) {
  Values("b").SetText("1\r\n2\r\n3\r\n4");
  EXPECT_EQ("3", Values("b").GetStrings(2));
  EXPECT_EQ(4, Values("b").GetCount());
}

TEST_F(ItemPropValuesTest, WithoutAnEditorAListKeepsItsLines) {
  const auto item = Make<TKTItemProp>(nullptr);
  item->GetValues().SetText("1\r\n2\r\n3");
  EXPECT_EQ("1", item->GetValues().GetStrings(0));
  EXPECT_EQ(3, item->GetValues().GetCount());
}

TEST_F(ItemPropValuesTest, WithoutAnEditorALineThatIsNotThereIsAnError) {
  const auto item = Make<TKTItemProp>(nullptr);
  EXPECT_EQ("List index out of bounds (0)", MessageOf<EStringListError>([&] { item->GetValues().GetStrings(0); }));
}

TEST_F(ItemPropValuesTest, AnUnchangedLineIsNoChange) {
  Values("b").SetText("1\r\n2");
  EXPECT_EQ("", Heard([&] { Values("b").SetStrings(1, "2"); }));
}

TEST_F(ItemPropValuesTest, AnotherCaseIsAChangeOfALine) {
  Values("b").SetText("x\r\ny");
  EXPECT_EQ("[].Update(b)", Heard([&] { Values("b").SetStrings(1, "Y"); }));
  EXPECT_EQ("Y", Values("b").GetStrings(1));
}

TEST_F(ItemPropValuesTest, WhileInitializingChangesAreToldToNobody) {
  Values("b").SetInitializing(true);
  EXPECT_EQ("", Heard([&] {
              Values("b").Add("1");
              Values("b").SetText("2");
            }));
  Values("b").SetInitializing(false);
  EXPECT_EQ("[].Update(b)", Heard([&] { Values("b").Add("3"); }));
}

TEST_F(ItemPropValuesTest, TheListKnowsItsItem) { EXPECT_EQ(&Item("b"), &Values("b").GetOwnerItem()); }

// Value.

TEST_F(ItemPropValuesTest, TheValueIsTheWholeTextWithoutWhatIsBlankAtItsEnd) {
  Values("b").SetText(" 1\r\n2 \r\n\r\n");
  EXPECT_EQ(" 1\r\n2", Item("b").GetValue());
}

TEST_F(ItemPropValuesTest, TheValueOfTheSelectedItemIsTheLineOfTheColumnWithTheCursor) {
  Values("a").SetText("1\r\n2");
  EXPECT_EQ("1", Item("a").GetValue());
  FEditor->SetCol(2);
  EXPECT_EQ("2", Item("a").GetValue());
}

TEST_F(ItemPropValuesTest, WithTheCursorInTheNameColumnTheValueIsTheWholeText) {
  Values("a").SetText("1\r\n2");
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetCol(0);
  EXPECT_EQ("1\r\n2", Item("a").GetValue());
  Item("a").SetValue("3\r\n4");
  EXPECT_EQ("3\r\n4", Item("a").GetValue());
}

TEST_F(ItemPropValuesTest, SettingTheValueOfTheSelectedItemWritesTheLineOfTheColumnWithTheCursor) {
  Values("a").SetText("1\r\n2");
  FEditor->SetCol(2);
  Item("a").SetValue("x");
  EXPECT_EQ("1,x", LinesOf("a"));
}

TEST_F(ItemPropValuesTest, SettingTheValueOfAnotherItemReplacesTheWholeText) {
  Values("b").SetText("1\r\n2\r\n3");
  Item("b").SetValue("x\r\ny");
  EXPECT_EQ("x\r\ny\r\n", Item("b").GetValuesText());
}

TEST_F(ItemPropValuesTest, WhereColumnsAreItemsTheRowOfTheCursorPicksTheLine) {
  FEditor->SetOrientation(goHorizontal);
  Values("a").SetText("1\r\n2");
  FEditor->SetSelected(&Item("a"));
  FEditor->SetRow(2);
  EXPECT_EQ("2", Item("a").GetValue());
}

TEST_F(ItemPropValuesTest, ValuesAreEmptyWhenThereIsNothingButBlanks) {
  EXPECT_TRUE(Item("b").IsValuesEmpty());
  Item("b").SetValue("  \r\n\t\r\n");
  EXPECT_TRUE(Item("b").IsValuesEmpty());
  Item("b").SetValue("  \r\nx");
  EXPECT_FALSE(Item("b").IsValuesEmpty());
}

TEST_F(ItemPropValuesTest, AnEmptyTextIsNoLine) {
  Item("b").SetValue("1");
  Item("b").SetValue("");
  EXPECT_EQ("", Item("b").GetValuesText());
  EXPECT_EQ(0, Values("b").GetCount());
}

TEST_F(ItemPropValuesTest, ReplacingTheTextTellsOneChangeEvenIfItIsTheSame) {
  EXPECT_EQ("[].Update(b)", Heard([&] { Item("b").SetValue("1"); }));
  EXPECT_EQ("[].Update(b)", Heard([&] { Item("b").SetValue("1"); }));
}

TEST_F(ItemPropValuesTest, AChangeOfALineClimbsToTheEditor) {
  EXPECT_EQ("[].Update(b)", Heard([&] { Values("b").Add("1"); }));
}

TEST_F(ItemPropValuesTest, SettingValuesCopiesTheLines) {
  Values("a").SetText("1\r\n2");
  Item("b").SetValues(Values("a"));
  EXPECT_EQ("1,2", LinesOf("b"));
}

/// The same with one value column, where an item keeps its line without a list.
class OneValueColumnTest : public TItemListTest {};

TEST_F(OneValueColumnTest, TheCellIsTheFirstLineWithAndWithoutAList) {
  Items().Add("a", {});
  EXPECT_EQ("", FEditor->GetPropValues(0));
  Item("a").SetValueLine(0, "1");
  EXPECT_EQ("1", FEditor->GetPropValues(0));
  EXPECT_EQ("1", Item("a").GetValues().GetStrings(0));
  Item("a").SetValueLine(0, "2");
  EXPECT_EQ("2", FEditor->GetPropValues(0));
}

TEST_F(OneValueColumnTest, ReadingTheFirstLineOfAnItemWithoutValuesBringsOneLineIntoBeing) {
  Items().Add("a", {});
  EXPECT_EQ("", Item("a").GetValuesText());
  EXPECT_EQ("", Item("a").GetValueLine(0));
  EXPECT_EQ("\r\n", Item("a").GetValuesText());
}

TEST_F(OneValueColumnTest, ALineThatIsNotThereIsAnError) {
  Items().Add("a", {});
  EXPECT_EQ("List index out of bounds (1)", MessageOf<EStringListError>([&] { Item("a").GetValueLine(1); }));
}

TEST_F(ItemPropValuesTest, PaddingTellsOfNoComingChangeEither) {
  Values("b").SetText("1");
  int count = 0;
  Values("b").OnChanging = [&](TObject*) { ++count; };
  EXPECT_EQ("", Values("b").GetStrings(1));
  EXPECT_EQ(0, count);
  Values("b").SetInitializing(true);
  Values("b").Add("3");
  EXPECT_EQ(0, count);
  Values("b").SetInitializing(false);
  Values("b").Add("4");
  EXPECT_EQ(1, count);
}

}  // namespace
}  // namespace kt::tests
