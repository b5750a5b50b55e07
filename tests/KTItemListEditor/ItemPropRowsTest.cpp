#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

#include <QRegularExpression>

#include <functional>

namespace kt::tests {
namespace {

class ItemPropRowsTest : public TItemListTest {
 protected:
  ItemPropRowsTest() { FEditor = Make<TProbeEditor>(); }

  /// The names of the items whose VisibleChanged() has run, in the order of its ends.
  static std::string RowsTold(const std::function<void()>& action) {
    const QStringList heard = QString::fromStdString(Heard(action)).split(u' ');
    return heard.filter(QRegularExpression(QStringLiteral("^[a-z]\\.VisibleChanged$")))
        .join(u' ')
        .remove(QLatin1StringView(".VisibleChanged"))
        .toStdString();
  }
};

// Expansion.

TEST_F(ItemPropRowsTest, ExpandingTellsRowsOnce) {
  Fill("a [b]");
  EXPECT_EQ(
      "editor.Refresh editor.AdjustGridCount editor.Invalidate editor.SizeChanged editor.Invalidate "
      "[].VisibleChanged(a) "
      "a.VisibleChanged",
      Heard([&] { Item("a").Expand(); }));
  EXPECT_EQ("", Heard([&] { Item("a").Expand(); }));
}

TEST_F(ItemPropRowsTest, ExpandingAnItemWithoutARowTellsNobody) {
  Fill("a [b [c]]");
  EXPECT_EQ("", Heard([&] { Item("a.b").Expand(); }));
  EXPECT_TRUE(Item("a.b").IsExpanded());
  EXPECT_EQ("", Heard([&] { Item("a.b").Collapse(); }));
}

TEST_F(ItemPropRowsTest, SettingExpandedExpandsAndCollapses) {
  Fill("a [b]");
  Item("a").SetExpanded(true);
  EXPECT_EQ(">a | b", RowsText());
  Item("a").SetExpanded(false);
  EXPECT_EQ(">a", RowsText());
}

TEST_F(ItemPropRowsTest, FullExpandAndFullCollapseGoThroughTheSubtree) {
  Fill("a [b [c [d]]] e [f]");
  Item("a").FullExpand();
  EXPECT_EQ(">a | b | c | d | e", RowsText());
  Item("a").FullCollapse();
  EXPECT_EQ(">a | e", RowsText());
  EXPECT_FALSE(Item("a.b.c").IsExpanded());
}

TEST_F(ItemPropRowsTest, FullExpandTellsRowsOnceForEachItem) {
  Fill("a [b [c] d]");
  // The children first; what tells its parents, too, is heard after them.
  const char* told = "a b c a b a d a";
  EXPECT_EQ(told, RowsTold([&] { Item("a").FullExpand(); }));
  EXPECT_EQ(told, RowsTold([&] { Item("a").FullExpand(); }));
  EXPECT_EQ(told, RowsTold([&] { FEditor->FullExpand(); }));
  EXPECT_EQ(told, RowsTold([&] { FEditor->FullCollapse(); }));
}

TEST_F(ItemPropRowsTest, AHandlerMayFreeTheItemThatIsBeingCollapsedFully) {
  FEditor = Make<TKTItemListEditor>();
  Fill("z a [b [c d e]]");
  FEditor->FullExpand();
  FEditor->SetSelected(&Item("a.b.e"));
  FEditor->OnSelectCell = [this](TObject*, int, int, bool&) {
    FEditor->OnSelectCell = nullptr;
    delete &Item("a");
  };
  Item("a").FullCollapse();
  EXPECT_EQ("z", TreeText());
  EXPECT_EQ(WalkedRows(*FEditor), RowsText());
  EXPECT_EQ(2, FEditor->GetRowCount());
}

TEST_F(ItemPropRowsTest, HasVisibleChildrenLooksAtDirectChildrenOnly) {
  Fill("a [b [c]]");
  EXPECT_TRUE(Item("a").HasVisibleChildren());
  Item("a.b").SetVisible(false);
  EXPECT_FALSE(Item("a").HasVisibleChildren());
  EXPECT_TRUE(Item("a.b").HasVisibleChildren());
}

TEST_F(ItemPropRowsTest, TheVisibleChildCountIsThatOfRowsBelow) {
  Fill("a [b [c d] e f]");
  EXPECT_EQ(0, Item("a").GetVisibleChildCount());
  Item("a").Expand();
  EXPECT_EQ(3, Item("a").GetVisibleChildCount());
  Item("a.b").Expand();
  EXPECT_EQ(5, Item("a").GetVisibleChildCount());
  Item("a.e").SetVisible(false);
  EXPECT_EQ(4, Item("a").GetVisibleChildCount());
  Item("a").SetVisible(false);
  EXPECT_EQ(0, Item("a").GetVisibleChildCount());
}

TEST_F(ItemPropRowsTest, TheVisibleChildCountIsRightInAnUpdateBracketToo) {
  Fill("a [b]");
  Item("a").Expand();
  Items().BeginUpdate();
  Item("a").GetItems().Add();
  EXPECT_EQ(2, Item("a").GetVisibleChildCount());
  Items().EndUpdate();
}

// Rows of read-only items.

TEST_F(ItemPropRowsTest, WithoutShowReadOnlyAReadOnlyItemLosesItsRowAndAReadOnlyCategoryKeepsIt) {
  Fill("a b c");
  Item("a").SetReadOnly(true);
  Item("b").SetCategory(true);
  Item("b").SetReadOnly(true);
  FEditor->SetDisplayOptions({doColumnTitles});
  EXPECT_EQ(">b | c", RowsText());
  FEditor->SetDisplayOptions({doColumnTitles, doShowReadOnly});
  EXPECT_EQ(">a | b | c", RowsText());
}

TEST_F(ItemPropRowsTest, WithoutShowReadOnlyRowsComeAndGoWithReadOnlyEnabledAndCategory) {
  Fill("a b");
  FEditor->SetDisplayOptions({doColumnTitles});
  Item("a").SetReadOnly(true);
  EXPECT_EQ(">b", RowsText());
  Item("a").SetCategory(true);
  EXPECT_EQ("a | >b", RowsText());
  Item("a").SetCategory(false);
  EXPECT_EQ(">b", RowsText());
  Item("a").SetReadOnly(false);
  Item("a").SetEnabled(false);
  EXPECT_EQ(">b", RowsText());
  Item("a").SetEnabled(true);
  EXPECT_EQ("a | >b", RowsText());
}

// Descendants with an answer of their own.

class TStayingItem : public TKTItemProp {
 public:
  using Inherited = TKTItemProp;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TStayingItem>("TStayingItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TStayingItem(TCollection* collection) : TKTItemProp(collection) {}

  bool WantsRow() override { return GetVisible(); }
};

class TStayingEditor : public TKTItemListEditor {
 protected:
  explicit TStayingEditor(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override {
    return Make<TKTItemProps>(owner, TStayingItem::Class());
  }
};

TEST_F(ItemPropRowsTest, RowsFollowADescendantsOwnAnswer) {
  FEditor = Make<TStayingEditor>();
  Fill("a [b]");
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doShowReadOnly});
  Item("a.b").SetReadOnly(true);
  Item("a").Expand();
  EXPECT_EQ(">a | b", RowsText());
  EXPECT_TRUE(Item("a.b").IsVisible());
  EXPECT_EQ(1, Item("a").GetVisibleChildCount());
}

}  // namespace
}  // namespace kt::tests
