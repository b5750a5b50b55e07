#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace kt::tests {
namespace {

class ItemPropsSortTest : public TItemListTest {
 protected:
  int FindIndex(const char* name) {
    int index = -2;
    FFound = Items().Find(name, index);
    return index;
  }

  bool FFound = false;
};

int Backwards(TKTItemProps& items, int first, int second) {
  return items.CompareStrings(items.GetItem(second)->GetName(), items.GetItem(first)->GetName());
}

/// The framework's quicksort as it works on items that change places, two at a time: what any other way has to yield.
struct TPlainQuicksort {
  /// Keys with the numbers of their items.
  std::vector<std::pair<int, int>> Items;

  void Run(int left, int right) {
    do {
      const auto [end, next] = Part(left, right);
      if (left < end) Run(left, end);
      left = next;
    } while (left < right);
  }

 private:
  std::pair<int, int> Part(int left, int right) {
    int i = left;
    int j = right;
    int pivot = (left + right) / 2;
    do {
      while (Items[i].first < Items[pivot].first) ++i;
      while (Items[j].first > Items[pivot].first) --j;
      if (i <= j) {
        std::swap(Items[i], Items[j]);
        // It moves with its item.
        pivot = pivot == i ? j : pivot == j ? i : pivot;
        ++i;
        --j;
      }
    } while (i <= j);
    return {j, i};
  }
};

/// The numbers of `keys` after the plain quicksort.
std::string PlainlySorted(const std::vector<int>& keys) {
  TPlainQuicksort sort;
  for (int key : keys) sort.Items.emplace_back(key, static_cast<int>(sort.Items.size()));
  sort.Run(0, static_cast<int>(keys.size()) - 1);
  QStringList numbers;
  for (const auto& item : sort.Items) numbers += QString::number(item.second);
  return numbers.join(u' ').toStdString();
}

/// The same by CustomSort(), of items that carry their keys as tags.
std::string SortedAsItems(const std::vector<int>& keys) {
  const auto editor = Make<TKTItemListEditor>();
  TKTItemProps& items = editor->GetItems();
  for (int key : keys) {
    TKTItemProp* item = items.Add();
    item->SetName(QString::number(items.GetCount() - 1));
    item->SetTag(key);
  }
  items.CustomSort([](TKTItemProps& all, int a, int b) { return all.GetItem(a)->GetTag() - all.GetItem(b)->GetTag(); },
                   true);
  return Tree(items);
}

class ItemPropsSortOrderTest : public testing::TestWithParam<unsigned> {
 protected:
  /// As many equal keys as the seed says.
  static std::vector<int> AnyKeys() {
    std::mt19937 random(GetParam());
    std::vector<int> keys(2 + random() % 300);
    const unsigned distinct = 1 + random() % 40;
    for (int& key : keys) key = static_cast<int>(random() % distinct);
    return keys;
  }
};

TEST_P(ItemPropsSortOrderTest, AnyInputComesInTheOrderOfThePlainQuicksort) {
  const std::vector<int> keys = AnyKeys();
  EXPECT_EQ(PlainlySorted(keys), SortedAsItems(keys));
}

INSTANTIATE_TEST_SUITE_P(Seeds, ItemPropsSortOrderTest, testing::Range(1u, 101u));

TEST_F(ItemPropsSortTest, SortOrdersByNameOnAllLevels) {
  Fill("c b [z x] a");
  Items().Sort(false);
  EXPECT_EQ("a b [x z] c", TreeText());
  EXPECT_EQ("a b x z c", EntriesText());
}

TEST_F(ItemPropsSortTest, SortOfThisLevelOnlyLeavesTheOthers) {
  Fill("c b [z x] a");
  Items().Sort(true);
  EXPECT_EQ("a b [z x] c", TreeText());
}

TEST_F(ItemPropsSortTest, CategoriesAreOrderedAmongTheItemsByName) {
  Fill("c a");
  Items().AddCategory("b", false);
  Items().Sort(true);
  EXPECT_EQ("a b c", TreeText());
}

TEST_F(ItemPropsSortTest, SortComparesAsTheEditorDoes) {
  Fill("b A a B");
  FEditor->SetCaseSensitive(true);
  Items().Sort(true);
  EXPECT_EQ("A B a b", TreeText());
  FEditor->SetCaseSensitive(false);
  Items().Sort(true);
  EXPECT_LT(1, Items().IndexOf("b"));
}

TEST_F(ItemPropsSortTest, CustomSortGoesByItsComparison) {
  Fill("a c b [x z y]");
  Items().CustomSort(&Backwards, false);
  EXPECT_EQ("c b [z y x] a", TreeText());
}

TEST_F(ItemPropsSortTest, SortingASortedCollectionHasNoEffect) {
  Fill("a b c");
  FEditor->SetSorted(true);
  Items().GetItem(0)->SetIndex(2);
  Items().Sort(false);
  EXPECT_EQ("b c a", TreeText());
  Items().CustomSort(&Backwards, true);
  EXPECT_EQ("b c a", TreeText());
}

TEST_F(ItemPropsSortTest, EqualNamesComeInTheOrderOfTheFrameworksQuicksort) {
  // The outer two change places and the inner two, then the two of each half.
  Items().Add("a", "1");
  Items().Add("a", "2");
  Items().Add("a", "3");
  Items().Add("a", "4");
  Items().Sort(true);
  QString values;
  for (int i = 0; i < 4; ++i) values += Items().GetItem(i)->GetValuesText().trimmed();
  EXPECT_EQ("3412", values);
}

TEST_F(ItemPropsSortTest, SortRunsInOneBracketAndTheRowsFollow) {
  Fill("c b a [x]");
  Item("a").Expand();
  FEditor->SetSelected(&Item("b"));
  Items().Sort(true);
  EXPECT_EQ("a | >x | b | c", RowsText());
  EXPECT_EQ(0, Items().GetUpdateCount());
}

// Sorted.

TEST_F(ItemPropsSortTest, SwitchingSortedOnSortsAllLevelsAndTheCategoryMaps) {
  Fill("c b [z x] a");
  Items().GetCategories().SetCommaText("z=1,a=2");
  FEditor->SetSorted(true);
  EXPECT_EQ("a b [x z] c", TreeText());
  EXPECT_TRUE(Item("b").GetItems().GetSorted());
  EXPECT_TRUE(Item("b.x").GetItems().GetSorted());
  EXPECT_EQ("a=2,z=1", Items().GetCategories().GetCommaText());
  EXPECT_TRUE(FEditor->IsSorted());
}

TEST_F(ItemPropsSortTest, SwitchingSortedOffKeepsTheOrder) {
  Fill("b a [y x]");
  FEditor->SetSorted(true);
  FEditor->SetSorted(false);
  EXPECT_EQ("a [x y] b", TreeText());
  EXPECT_FALSE(Item("a").GetItems().GetSorted());
  EXPECT_FALSE(Items().GetCategories().GetSorted());
  Items().Add("0", {});
  EXPECT_EQ("a [x y] b 0", TreeText());
}

TEST_F(ItemPropsSortTest, NamedItemsGoToTheirPlaceOnASortedLevel) {
  FEditor->SetSorted(true);
  Fill("c a b");
  EXPECT_EQ("a b c", TreeText());
}

TEST_F(ItemPropsSortTest, AnItemWithoutANameStaysAtTheEndOfASortedLevelDeliberately) {
  FEditor->SetSorted(true);
  Fill("a b");
  Items().Add();
  EXPECT_EQ("a b ", TreeText());
}

TEST_F(ItemPropsSortTest, AMovedItemStaysAtTheEndOfASortedLevelDeliberately) {
  Fill("a b [x z]");
  FEditor->SetSorted(true);
  Item("a").SetCollection(&Item("b").GetItems());
  EXPECT_EQ("b [x z a]", TreeText());
}

TEST_F(ItemPropsSortTest, ChangingCaseSensitivityOfASortedListHasNoEffectOnItsOrder) {
  Fill("a B c");
  FEditor->SetSorted(true);
  FEditor->SetCaseSensitive(true);
  EXPECT_EQ("a B c", TreeText());
}

TEST_F(ItemPropsSortTest, SwitchingSortedOnRefreshesTheGridAfterTheSort) {
  FEditor = Make<TProbeEditor>();
  Fill("b a");
  EXPECT_EQ(
      "[].Changing [].Changing editor.AdjustGridCount editor.Invalidate [].Update(nil) "
      "editor.Refresh editor.AdjustGridCount editor.Invalidate",
      Heard([&] { FEditor->SetSorted(true); }));
  EXPECT_EQ("", Heard([&] { FEditor->SetSorted(true); }));
  EXPECT_EQ("", Heard([&] { FEditor->SetSorted(false); }));
}

TEST_F(ItemPropsSortTest, AnEmptyCollectionIsSortedWithoutAWord) {
  FEditor = Make<TProbeEditor>();
  const auto compare = [](TKTItemProps&, int, int) -> int { throw EListError(QStringLiteral("compared")); };
  EXPECT_EQ("", Heard([&] { Items().CustomSort(compare, false); }));
}

TEST_F(ItemPropsSortTest, CaseSensitivityOfASortedListCountsForLaterFindsAndItems) {
  Fill("a B c");
  FEditor->SetSorted(true);
  EXPECT_EQ(1, Items().IndexOf("b"));
  FEditor->SetCaseSensitive(true);
  EXPECT_EQ(-1, Items().IndexOf("b"));
  FindIndex("b");
  EXPECT_FALSE(FFound);
  Items().Add("A", {});
  EXPECT_EQ("A a B c", TreeText());
}

// Find.

TEST_F(ItemPropsSortTest, FindAnswersTheFirstOfEqualNames) {
  Fill("a b b b c");
  FEditor->SetSorted(true);
  EXPECT_EQ(1, FindIndex("B"));
  EXPECT_TRUE(FFound);
}

TEST_F(ItemPropsSortTest, FindAnswersThePlaceForANameThatIsNotThere) {
  Fill("b d");
  FEditor->SetSorted(true);
  EXPECT_EQ(0, FindIndex("a"));
  EXPECT_EQ(1, FindIndex("c"));
  EXPECT_EQ(2, FindIndex("e"));
  EXPECT_FALSE(FFound);
}

TEST_F(ItemPropsSortTest, FindInAnEmptyCollectionAnswersItsBeginning) {
  EXPECT_EQ(0, FindIndex("a"));
  EXPECT_FALSE(FFound);
}

TEST_F(ItemPropsSortTest, WithoutAnEditorNamesAreSortedWithoutRegardToCase) {
  const auto item = Make<TKTItemProp>(nullptr);
  for (const char* name : {"b", "C", "A"}) item->GetItems().Add(name, {});
  item->GetItems().Sort(true);
  EXPECT_EQ("A b C", Tree(item->GetItems()));
}

// The categories, whose handlers may throw.

TEST_F(ItemPropsSortTest, WhoeverRefusesThatCategoriesAreSortedKeepsTheItemsUnsortedToo) {
  Fill("b a");
  TStringList& categories = Items().GetCategories();
  categories.SetCommaText("z=1,a=2");
  categories.OnChanging = [](TObject*) { throw EConvertError("no"); };
  EXPECT_EQ("no", MessageOf<EConvertError>([&] { FEditor->SetSorted(true); }));
  EXPECT_FALSE(FEditor->IsSorted());
  EXPECT_FALSE(categories.GetSorted());
  EXPECT_EQ("z=1,a=2", categories.GetCommaText());
  categories.OnChanging = nullptr;
  FEditor->SetSorted(true);
  EXPECT_TRUE(FEditor->IsSorted());
  EXPECT_TRUE(categories.GetSorted());
  EXPECT_EQ("a=2,z=1", categories.GetCommaText());
}

TEST_F(ItemPropsSortTest, WhoeverThrowsWhenCategoriesHaveBeenSortedFindsBothSorted) {
  Fill("b a");
  TStringList& categories = Items().GetCategories();
  categories.SetCommaText("z=1,a=2");
  categories.OnChange = [](TObject*) { throw EConvertError("late"); };
  EXPECT_EQ("late", MessageOf<EConvertError>([&] { FEditor->SetSorted(true); }));
  EXPECT_TRUE(FEditor->IsSorted());
  EXPECT_TRUE(categories.GetSorted());
  EXPECT_EQ("a=2,z=1", categories.GetCommaText());
  EXPECT_EQ("a b", TreeText());
}

TEST_F(ItemPropsSortTest, WhoeverUnsortsTheItemsWhenCategoriesHaveBeenSortedUnsortsBoth) {
  Fill("b a");
  TStringList& categories = Items().GetCategories();
  categories.SetCommaText("z=1,a=2");
  categories.OnChange = [&](TObject*) { Items().SetSorted(false); };
  FEditor->SetSorted(true);
  EXPECT_FALSE(FEditor->IsSorted());
  EXPECT_FALSE(categories.GetSorted());
}

TEST_F(ItemPropsSortTest, CategoriesThatAreInNoNeedOfSortingTellNobody) {
  Fill("b a");
  int told = 0;
  Items().GetCategories().SetText("a=1");
  Items().GetCategories().OnChange = [&](TObject*) { ++told; };
  FEditor->SetSorted(true);
  FEditor->SetSorted(false);
  EXPECT_EQ(0, told);
}

}  // namespace
}  // namespace kt::tests
