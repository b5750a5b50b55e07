#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

class ItemPropsTest : public TItemListTest {
 protected:
  ItemPropsTest() { FEditor = Make<TProbeEditor>(); }
};

// Adding.

TEST_F(ItemPropsTest, AddMakesAnItemAtTheEnd) {
  Fill("a");
  TKTItemProp* item = Items().Add();
  EXPECT_EQ(1, item->GetIndex());
  EXPECT_EQ("", item->GetName());
}

TEST_F(ItemPropsTest, AddWithNameAndValueSetsBoth) { EXPECT_EQ("a=1", Items().Add("a", "1")->GetDisplayName()); }

TEST_F(ItemPropsTest, AddTellsOfTheComingChangeThenOfTheItemThenOfTheChange) {
  EXPECT_EQ(
      "[].Changing ?.VisibleChanged "
      "editor.Refresh editor.AdjustGridCount editor.Invalidate editor.Refresh editor.AdjustGridCount "
      "editor.Invalidate [].Notify(?,cnAdded) editor.AdjustGridCount editor.Invalidate [].Update(nil) "
      "editor.AdjustGridCount editor.Invalidate [].Update(nil)",
      Heard([&] { Items().Add(); }));
}

TEST_F(ItemPropsTest, AnItemThatComesOrGoesIsToldToEveryAncestor) {
  Fill("a [b]");
  TKTItemProp& b = Item("a.b");
  const auto only = [](const std::string& log) { return QString::fromStdString(log).split(u' ').filter("otify"); };
  const QStringList added = only(Heard([&] { b.GetItems().Add(); }));
  EXPECT_EQ(
      "[].Notify(?,cnAdded) a.ItemNotify(?,cnAdded) [a].Notify(?,cnAdded) b.ItemNotify(?,cnAdded) "
      "[b].Notify(?,cnAdded)",
      added.join(u' '));
  const QStringList deleted = only(Heard([&] { b.GetItems().Delete(0); }));
  EXPECT_EQ(
      "[].Notify(?,cnDeleting) a.ItemNotify(?,cnDeleting) [a].Notify(?,cnDeleting) b.ItemNotify(?,cnDeleting) "
      "[b].Notify(?,cnDeleting) "
      "[].Notify(?,cnExtracting) a.ItemNotify(?,cnExtracting) [a].Notify(?,cnExtracting) b.ItemNotify(?,cnExtracting) "
      "[b].Notify(?,cnExtracting)",
      deleted.join(u' '));
}

TEST_F(ItemPropsTest, AMovedItemLeavesTheOldChainAndEntersTheNewOne) {
  Fill("a [x] b");
  TKTItemProp& x = Item("a.x");
  const std::string log = Heard([&] { x.SetCollection(&Item("b").GetItems()); });
  const QStringList told = QString::fromStdString(log).split(u' ').filter("ItemNotify");
  EXPECT_EQ("a.ItemNotify(x,cnExtracting) b.ItemNotify(x,cnAdded)", told.join(u' '));
}

TEST_F(ItemPropsTest, ADuplicateIsRefusedBeforeAnythingIsAdded) {
  Fill("a");
  FEditor->SetPropertyOptions({propUnique});
  EXPECT_EQ("Property name is not unique: a", MessageOf<ETORVException>([&] { Items().Add("a", "1"); }));
  EXPECT_EQ("a", TreeText());
  EXPECT_EQ("a=", Item("a").GetDisplayName());
}

TEST_F(ItemPropsTest, InsertMakesAnItemAtItsPlace) {
  Fill("a b");
  Items().Insert(1)->SetName("x");
  EXPECT_EQ("a x b", TreeText());
  EXPECT_EQ(">a | x | b", RowsText());
}

TEST_F(ItemPropsTest, InsertOutsideTheCollectionIsAnErrorAndAddsNothing) {
  Fill("a");
  EXPECT_EQ("List index out of bounds (2)", MessageOf<EListError>([&] { Items().Insert(2); }));
  EXPECT_EQ("a", TreeText());
}

TEST_F(ItemPropsTest, ExchangeSwapsTwoItemsWithTheirSubtrees) {
  Fill("a [x] b c d");
  Items().Exchange(0, 2);
  EXPECT_EQ("c b a [x] d", TreeText());
  Items().Exchange(3, 0);
  EXPECT_EQ("d b a [x] c", TreeText());
  EXPECT_EQ("d b a x c", EntriesText());
}

TEST_F(ItemPropsTest, BeginUpdateTellsOfTheComingChangeOnce) {
  EXPECT_EQ("[].Changing [].Changing", Heard([&] {
              Items().BeginUpdate();
              Items().BeginUpdate();
            }));
  EXPECT_EQ("editor.AdjustGridCount editor.Invalidate [].Update(nil)", Heard([&] {
              Items().EndUpdate();
              Items().EndUpdate();
            }));
}

// Uniqueness.

TEST_F(ItemPropsTest, EveryNameIsValidUnlessNamesAreUnique) {
  Fill("a");
  EXPECT_TRUE(Items().IsValid("a", true));
}

TEST_F(ItemPropsTest, ANameIsInvalidWhenItsLevelHasItAndNamesAreUnique) {
  Fill("a [b]");
  FEditor->SetPropertyOptions({propUnique});
  EXPECT_FALSE(Items().IsValid("A", false));
  EXPECT_TRUE(Items().IsValid("b", false));
  EXPECT_TRUE(Items().IsValid("", false));
  EXPECT_EQ("Property name is not unique: a", MessageOf<ETORVException>([&] { Items().IsValid("a", true); }));
}

TEST_F(ItemPropsTest, WithoutAnEditorEveryNameIsValid) {
  const auto item = Make<TKTItemProp>(nullptr);
  item->GetItems().Add("a", {});
  EXPECT_TRUE(item->GetItems().IsValid("a", true));
}

// Looking up.

TEST_F(ItemPropsTest, IndexOfFindsTheFirstOfThatName) {
  Fill("a b B");
  EXPECT_EQ(1, Items().IndexOf("B"));
  EXPECT_EQ(-1, Items().IndexOf("c"));
  FEditor->SetCaseSensitive(true);
  EXPECT_EQ(2, Items().IndexOf("B"));
}

TEST_F(ItemPropsTest, IndexOfNameAndValueComparesDisplayNames) {
  Items().Add("a", "1");
  Items().Add("a", "x ");
  EXPECT_EQ(1, Items().IndexOf("A", "X"));
  EXPECT_EQ(-1, Items().IndexOf("a", "x "));
}

TEST_F(ItemPropsTest, GetItemByNameIsNullForANameThatIsNotThere) {
  Fill("a");
  EXPECT_EQ(&Item("a"), Items().GetItemByName("A"));
  EXPECT_EQ(nullptr, Items().GetItemByName("b"));
}

TEST_F(ItemPropsTest, WithoutAnEditorNamesAreComparedWithoutRegardToCase) {
  const auto item = Make<TKTItemProp>(nullptr);
  item->GetItems().Add("a", {});
  EXPECT_EQ(0, item->GetItems().IndexOf("A"));
}

TEST_F(ItemPropsTest, APathMayBeginWithAnItemWithoutName) {
  TKTItemProp* child = Items().Add()->GetItems().Add("a", "");
  EXPECT_EQ(child, Items().FindItemByFullPathName(".a"));
}

TEST_F(ItemPropsTest, AListAssignedToItselfStaysAsItIs) {
  Fill("a [b] c");
  Items().Assign(&Items());
  EXPECT_EQ("b", NameOf(Items().FindItemByFullPathName("a.b")));
  EXPECT_EQ(2, Items().GetCount());
}

TEST_F(ItemPropsTest, OtherThingsThanListsOfItemsCannotBeAssigned) {
  Fill("a");
  EXPECT_THROW(Items().Assign(&FEditor->GetFont()), EConvertError);
  EXPECT_EQ(1, Items().GetCount());
}

TEST_F(ItemPropsTest, AnItemThatBelongsToNoListCanBeRenamed) {
  Fill("a b");
  const std::unique_ptr<TKTItemProp> item(&Item("a"));
  item->SetCollection(nullptr);
  item->SetName("b");
  EXPECT_EQ("b", item->GetName());
}

TEST_F(ItemPropsTest, AFullPathFindsAnItemOfAnyLevel) {
  Fill("a [b [c]] d");
  EXPECT_EQ("c", NameOf(Items().FindItemByFullPathName("A.b.C")));
  EXPECT_EQ(nullptr, Items().FindItemByFullPathName("a.c"));
  EXPECT_EQ(nullptr, Items().FindItemByFullPathName("d.x"));
  EXPECT_EQ(nullptr, Items().FindItemByFullPathName("x"));
}

TEST_F(ItemPropsTest, TheFirstDelimiterSplitsAPath) {
  FEditor->SetPathDelimiter("::");
  Items().AddFullPath("a::b.c::d", "1", false);
  EXPECT_EQ("a [b.c [d]]", TreeText());
  EXPECT_EQ("d", NameOf(Items().FindItemByFullPathName("a::b.c::d")));
}

TEST_F(ItemPropsTest, AddFullPathMakesWhatIsMissingAndSetsTheValueOfTheLast) {
  Fill("a");
  TKTItemProp* item = Items().AddFullPath("a.b.c", "1", false);
  EXPECT_EQ("a [b [c]]", TreeText());
  EXPECT_EQ("c=1", item->GetDisplayName());
  EXPECT_EQ("b=", Item("a.b").GetDisplayName());
}

TEST_F(ItemPropsTest, AddFullPathReusesTheLastItemUnlessDuplicatesAreAllowed) {
  Items().AddFullPath("a.b", "1", false);
  Items().AddFullPath("a.b", "2", false);
  EXPECT_EQ("a [b]", TreeText());
  EXPECT_EQ("b=2", Item("a.b").GetDisplayName());
  Items().AddFullPath("a.b", "3", true);
  EXPECT_EQ("a [b b]", TreeText());
}

TEST_F(ItemPropsTest, ADuplicatePathThatIsNotAllowedToBeOneAddsNothing) {
  Fill("a [b]");
  FEditor->SetPropertyOptions({propUnique});
  EXPECT_EQ("Property name is not unique: b",
            MessageOf<ETORVException>([&] { Items().AddFullPath("a.b", "1", true); }));
  EXPECT_EQ("a [b]", TreeText());
}

// FindItemProp.

TEST_F(ItemPropsTest, AnEmptyCollectionFindsAndCreatesNothing) {
  EXPECT_EQ(nullptr, Items().FindItemProp("a", true));
  EXPECT_EQ(nullptr, Items().FindItemProp(0, true));
}

TEST_F(ItemPropsTest, ATextFindsByNameAndANumberByIndex) {
  Fill("a b");
  EXPECT_EQ(&Item("b"), Items().FindItemProp("B", false));
  EXPECT_EQ(&Item("b"), Items().FindItemProp(1, false));
  EXPECT_EQ(nullptr, Items().FindItemProp(2, false));
}

TEST_F(ItemPropsTest, AnyOtherKeyIsTakenAsText) {
  Items().Add("1.5", {});
  EXPECT_EQ(Items().GetItem(0), Items().FindItemProp(1.5, false));
}

TEST_F(ItemPropsTest, ANameNotFoundRaisesTheListErrorRatherThanAnsweringNull) {
  Fill("a");
  EXPECT_EQ("List index out of bounds (-1)", MessageOf<EListError>([&] { Items().FindItemProp("b", false); }));
}

TEST_F(ItemPropsTest, ANameNotFoundIsNotCreated) {
  Fill("a");
  EXPECT_EQ("Property not found: b", MessageOf<ETORVException>([&] { Items().FindItemProp("b", true); }));
  EXPECT_EQ("a", TreeText());
}

TEST_F(ItemPropsTest, AnIndexBehindTheLastItemIsCreated) {
  Fill("a");
  Items().FindItemProp(1, true)->SetName("b");
  EXPECT_EQ("a b", TreeText());
  EXPECT_EQ("List index out of bounds (3)", MessageOf<EListError>([&] { Items().FindItemProp(3, true); }));
}

TEST_F(ItemPropsTest, AnIndexBeforeTheFirstItemRaisesTheListErrorDeliberately) {
  Fill("a");
  EXPECT_EQ("List index out of bounds (-1)", MessageOf<EListError>([&] { Items().FindItemProp(-1, false); }));
  EXPECT_EQ("List index out of bounds (-1)", MessageOf<EListError>([&] { Items().FindItemProp(-1, true); }));
  EXPECT_EQ("a", TreeText());
}

// Who hears of which items.

/// Writes down what it hears, with the number of items that the editor has then.
class TListeningItems : public TKTItemProps {
 public:
  using Inherited = TKTItemProps;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TListeningItems>("TListeningItems").Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  static inline QStringList Log;

 protected:
  explicit TListeningItems(TPersistent* owner) : TKTItemProps(owner, TKTItemProp::Class()) {}

  void Hear(const QString& what) {
    const QString name = GetParent() ? GetParent()->GetName() : QString();
    Log += QStringLiteral("[%1].%2:%3").arg(name, what).arg(GetEditor()->GetItemCount());
  }
  void Notify(TCollectionItem* item, TCollectionNotification action) override {
    TKTItemProps::Notify(item, action);
    Hear(NameOf(action));
  }
  void Added(TCollectionItem*) override { Hear(QStringLiteral("Added")); }
  void Deleting(TCollectionItem*) override { Hear(QStringLiteral("Deleting")); }
};

class TListeningEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::TKTItemListEditor;

 protected:
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override { return Make<TListeningItems>(owner); }
};

class ItemPropsNotifyTest : public TItemListTest {
 protected:
  ItemPropsNotifyTest() {
    FEditor = Make<TListeningEditor>();
    Fill("a [b] c");
    Log();
  }
  static std::string Log() { return std::exchange(TListeningItems::Log, {}).join(u' ').toStdString(); }
};

TEST_F(ItemPropsNotifyTest, OnlyItsOwnItemsAreAddedToACollectionHoweverManyItIsToldOf) {
  Item("a").GetItems().Add();
  EXPECT_EQ("[a].Added:4 [].cnAdded:4 [a].cnAdded:4", Log());
}

TEST_F(ItemPropsNotifyTest, AnItemThatIsAboutToBeDeletedStillCountsAndOneThatLeavesDoesNot) {
  Item("a").GetItems().Delete(0);
  EXPECT_EQ("[a].Deleting:3 [].cnDeleting:3 [a].cnDeleting:3 [].cnExtracting:2 [a].cnExtracting:2", Log());
}

// Painting.

TEST_F(ItemPropsTest, ItemsThatChangePlacesArePaintedAnew) {
  Fill("a b c");
  EXPECT_TRUE(QString::fromStdString(Heard([&] { Items().Exchange(0, 2); })).contains("editor.Invalidate"));
  EXPECT_TRUE(QString::fromStdString(Heard([&] { Item("a").SetIndex(0); })).contains("editor.Invalidate"));
}

TEST_F(ItemPropsTest, AnInsertedItemStandsAfterAllThatIsBelowTheOneBeforeIt) {
  Fill("a [x y] b");
  Items().Insert(1)->SetName("n");
  EXPECT_EQ("a x y n b", EntriesText());
  FEditor->DisableEditUpdate();
  Items().Insert(2)->SetName("m");
  EXPECT_EQ("a x y n m b", EntriesText());
  FEditor->EnableEditUpdate();
}

TEST_F(ItemPropsTest, AnItemThatLeavesRefreshesTheGridOnlyOnceItsCollectionHasChanged) {
  FEditor = Make<TProbeEditor>();
  Fill("a b");
  TKTItemProp* item = &Item("a");
  const std::string heard = Heard([&] { item->SetCollection(nullptr); });
  EXPECT_EQ(heard.find("editor.Refresh"), heard.rfind("editor.Refresh")) << heard;
  EXPECT_LT(heard.find("].Notify(a,cnExtracting)"), heard.find("editor.Refresh")) << heard;
  delete item;
}

}  // namespace
}  // namespace kt::tests
