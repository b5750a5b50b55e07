#include "kt/KTItemListEditor/ItemWatch.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

constexpr int VeryDeep = 100'000;

/// Counts the items that die.
class TDeaths final : public TItemWatcher {
 public:
  int Count = 0;

 private:
  void Forget(TKTItemProp*) override { ++Count; }
};

/// Trees that nest as deep as nobody nests on purpose: nothing is done in stack in proportion to their depth.
class DeepItemsTest : public TItemListTest {
 protected:
  /// An item without an editor that has one below it, which has one below it, and so on.
  template <class T = TKTItemProp>
  static std::unique_ptr<TKTItemProp> Chain(int count) {
    std::unique_ptr<TKTItemProp> item = Make<T>(nullptr);
    for (int i = 1; i < count; ++i) {
      std::unique_ptr<TKTItemProp> parent = Make<T>(nullptr);
      item.release()->SetCollection(&parent->GetItems());
      item = std::move(parent);
    }
    return item;
  }
  /// The same at the top level of the editor.
  template <class T = TKTItemProp>
  TKTItemProp& AddChain(int count) {
    TKTItemProp* item = Chain<T>(count).release();
    item->SetCollection(&Items());
    return *item;
  }

  TDeaths FDeaths;
};

TEST_F(DeepItemsTest, AVeryDeepTreeIsDestroyed) {
  Chain(VeryDeep);
  EXPECT_EQ(VeryDeep, FDeaths.Count);
}

TEST_F(DeepItemsTest, AVeryDeepTreeCountsInTheEditorThatItIsMovedTo) {
  TKTItemProp& top = AddChain(VeryDeep);
  EXPECT_EQ(VeryDeep, FEditor->GetItemCount());
  EXPECT_EQ(1, FEditor->GetVisibleItemCount());
  top.Expand();
  EXPECT_EQ(2, FEditor->GetVisibleItemCount());
}

TEST_F(DeepItemsTest, AVeryDeepTreeIsDeletedFromAnEditor) {
  AddChain(VeryDeep);
  Fill("z");
  Items().Delete(0);
  EXPECT_EQ(VeryDeep, FDeaths.Count);
  EXPECT_EQ("z", EntriesText());
  EXPECT_EQ(">z", RowsText());
}

TEST_F(DeepItemsTest, AnEditorTakesItsVeryDeepTreeAlong) {
  AddChain(VeryDeep);
  FEditor.reset();
  EXPECT_EQ(VeryDeep, FDeaths.Count);
}

TEST_F(DeepItemsTest, AVeryDeepTreeIsTakenOutOfAnEditor) {
  TKTItemProp& top = AddChain(VeryDeep);
  top.SetCollection(nullptr);
  const std::unique_ptr<TKTItemProp> owned(&top);
  EXPECT_EQ(0, FEditor->GetItemCount());
  EXPECT_EQ("", RowsText());
}

TEST_F(DeepItemsTest, RefreshingTheRowsReachesAllLevels) {
  AddChain(VeryDeep);
  FEditor->RefreshVisibleItems();
  FEditor->RefreshVisibleItems();
  EXPECT_EQ(1, FEditor->GetVisibleItemCount());
  EXPECT_EQ(VeryDeep, FEditor->GetItemCount());
}

TEST_F(DeepItemsTest, TheRowsOfADeepTreeGoWithIt) {
  AddChain(500).SetName("top");
  Fill("a z");
  FEditor->FullExpand();
  EXPECT_EQ(502, FEditor->GetVisibleItemCount());
  TKTItemProp* below = FEditor->GetItem(400);
  delete below;
  EXPECT_EQ(402, FEditor->GetVisibleItemCount());
  EXPECT_EQ(402, FEditor->GetItemCount());
  EXPECT_EQ(WalkedRows(*FEditor), RowsText());
  delete FEditor->GetItem(0);
  EXPECT_EQ(WalkedRows(*FEditor), RowsText());
  EXPECT_EQ(2, FEditor->GetVisibleItemCount());
  EXPECT_EQ("a z", EntriesText());
}

/// They climb from parent to parent.
TEST_F(DeepItemsTest, TheDeepPartOfATreeGoesWithoutNotifications) {
  FEditor = Make<TProbeEditor>();
  AddChain<TProbeItem>(1000);
  const QString log = QString::fromStdString(Heard([&] { Items().Clear(); }));
  EXPECT_EQ(1000, FDeaths.Count);
  EXPECT_LT(10, log.count(QStringLiteral("[].Notify(?,cnExtracting)")));
  EXPECT_GT(100, log.count(QStringLiteral("[].Notify(?,cnExtracting)")));
}

}  // namespace
}  // namespace kt::tests
