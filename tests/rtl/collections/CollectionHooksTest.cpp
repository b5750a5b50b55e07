// What classes of collections and items can override, and what happens when that raises or frees the collection.
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <functional>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

class TNamedItem : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TNamedItem>("TNamedItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  static inline int Alive = 0;
  ~TNamedItem() override { --Alive; }
  QString Caption;
  QString GetDisplayName() override { return Caption.isEmpty() ? TCollectionItem::GetDisplayName() : Caption; }
  void SetDisplayName(const QString& value) override {
    Caption = value;
    TCollectionItem::SetDisplayName(value);
  }
  void Assign(TPersistent* source) override {
    if (auto* other = dynamic_cast<TNamedItem*>(source)) {
      Caption = other->Caption;
    } else {
      TCollectionItem::Assign(source);
    }
  }

 protected:
  explicit TNamedItem(TCollection* collection) : TCollectionItem(collection) { ++Alive; }
};

/// Calls `On` at each of its hooks, by name.
class THooks : public TCollection {
 public:
  using Inherited = TCollection;
  QString Log;
  std::function<void(const char*)> On;

  QString Take() { return std::exchange(Log, QString()).trimmed(); }
  TNamedItem* At(int index) { return static_cast<TNamedItem*>(GetItem(index)); }
  void BeginUpdate() override {
    TCollection::BeginUpdate();
    Call("begin", nullptr);
  }
  void EndUpdate() override {
    const TLifeWatch watch(this);
    TCollection::EndUpdate();
    if (watch.IsAlive()) Call("end", nullptr);
  }

 protected:
  THooks() : TCollection(TNamedItem::Class()) {}
  void SetItemName(TCollectionItem* item) override {
    static_cast<TNamedItem*>(item)->Caption = QStringLiteral("Item") + QString::number(item->GetID());
    Call("name", item);
  }
  void Added(TCollectionItem* item) override { Call("added", item); }
  void Deleting(TCollectionItem* item) override { Call("deleting", item); }
  void Notify(TCollectionItem* item, TCollectionNotification action) override {
    TCollection::Notify(item, action);
    if (action == cnExtracting) Call("extracting", item);
  }
  void Update(TCollectionItem* item) override { Call("update", item); }

 private:
  void Call(const char* hook, const TCollectionItem* item) {
    Log += QLatin1StringView(hook) + (item ? QString::number(item->GetID()) : QString()) + u' ';
    // A copy, as the call may free this.
    if (const auto on = On) on(hook);
  }
};

class CollectionHooksTest : public ::testing::Test {
 protected:
  CollectionHooksTest() {
    FHandler = SetExceptionHandler([this](std::exception_ptr) { ++FReported; });
    Items->Add();
    Items->Add();
    Items->Take();
  }
  ~CollectionHooksTest() override {
    Items.reset();
    EXPECT_EQ(0, TNamedItem::Alive);
    SetExceptionHandler(FHandler);
  }
  /// The collection frees itself at its next call of a hook.
  void FreeAt(const char* hook) {
    Items->On = [this, hook](const char* called) {
      if (Items && qstrcmp(called, hook) == 0) Items.reset();
    };
  }

  std::unique_ptr<THooks> Items = Make<THooks>();
  int FReported = 0;
  TExceptionHandler FHandler;
};

TEST_F(CollectionHooksTest, TheClassOfTheItemsIsKnown) {
  EXPECT_EQ(TNamedItem::Class(), Items->GetItemClass());
  EXPECT_TRUE(Items->Add()->ClassNameIs(u"TNamedItem"));
}

TEST_F(CollectionHooksTest, AnItemIsNamedBeforeItsAdditionIsTold) {
  Items->Add();
  EXPECT_EQ(QStringLiteral("name2 added2 update"), Items->Take());
  EXPECT_EQ(QStringLiteral("Item2"), Items->At(2)->Caption);
}

TEST_F(CollectionHooksTest, DeletingIsToldForDeleteOnly) {
  Items->Delete(0);
  EXPECT_EQ(QStringLiteral("deleting0 extracting0 update"), Items->Take());
  delete Items->GetItem(0);
  EXPECT_EQ(QStringLiteral("extracting1 update"), Items->Take());
}

TEST_F(CollectionHooksTest, TheDisplayNameIsTheClassNameUnlessTheClassKnowsBetter) {
  Items->At(0)->Caption.clear();
  EXPECT_EQ(QStringLiteral("TNamedItem"), Items->GetItem(0)->GetDisplayName());
  EXPECT_EQ(QStringLiteral("Item1"), Items->GetItem(1)->GetDisplayName());
}

TEST_F(CollectionHooksTest, SettingADisplayNameTellsTheCollectionOfTheItem) {
  Items->GetItem(1)->SetDisplayName(QStringLiteral("x"));
  EXPECT_EQ(QStringLiteral("x"), Items->At(1)->Caption);
  EXPECT_EQ(QStringLiteral("update1"), Items->Take());
}

TEST_F(CollectionHooksTest, SetItemCopiesIntoTheItemThatIsThere) {
  TNamedItem* first = Items->At(0);
  Items->SetItem(0, Items->At(1));
  EXPECT_EQ(first, Items->At(0));
  EXPECT_EQ(QStringLiteral("Item1"), first->Caption);
  EXPECT_EQ(0, first->GetID());
}

TEST_F(CollectionHooksTest, SetItemOutsideTheListRaises) {
  EXPECT_EQ(QStringLiteral("List index out of bounds (2)"),
            MessageOf<EListError>([&] { Items->SetItem(2, Items->At(0)); }));
}

TEST_F(CollectionHooksTest, SetItemOfAnotherClassRaises) {
  const auto other = Make<tests::TSampleItems>(nullptr);
  EXPECT_EQ(QStringLiteral("Cannot assign a TSampleItem to a TNamedItem"),
            MessageOf<EConvertError>([&] { Items->SetItem(0, other->Add()); }));
}

/// A hook that is called while a collection is destroyed.
class DestructionTest : public CollectionHooksTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(DestructionTest, AHookThatRaisesKeepsNoItemAlive) {
  Items->On = [](const char* hook) {
    if (qstrcmp(hook, GetParam()) == 0) throw EInvalidOperation(QStringLiteral("no"));
  };
  Items.reset();
  EXPECT_EQ(0, TNamedItem::Alive);
  EXPECT_GT(FReported, 0);
}

INSTANTIATE_TEST_SUITE_P(Hooks, DestructionTest, ::testing::Values("begin", "end", "extracting"));

TEST_F(CollectionHooksTest, AnUpdateThatRaisesAtTheEndOfClearComesToTheCaller) {
  Items->On = [](const char* hook) {
    if (qstrcmp(hook, "update") == 0) throw EInvalidOperation(QStringLiteral("no"));
  };
  EXPECT_EQ(QStringLiteral("no"), MessageOf<EInvalidOperation>([&] { Items->Clear(); }));
  EXPECT_EQ(0, Items->GetCount());
  EXPECT_EQ(0, Items->GetUpdateCount());
  Items->On = {};
}

TEST_F(CollectionHooksTest, AnInsertedItemStandsAtTheEndOfAListThatWasShortenedMeanwhile) {
  Items->Clear();
  Items->Add();
  Items->Add();
  bool isDone = false;
  Items->On = [&](const char* hook) {
    if (qstrcmp(hook, "added") != 0 || std::exchange(isDone, true)) return;
    Items->Delete(0);
    Items->Delete(0);
  };
  TCollectionItem* item = Items->Insert(2);
  EXPECT_EQ(1, Items->GetCount());
  EXPECT_EQ(0, item->GetIndex());
}

constexpr char kFreed[] = "An object was freed while it was in use";

/// A hook that an addition calls.
class FreedWhileAddingTest : public CollectionHooksTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(FreedWhileAddingTest, AnAdditionRaisesWhenItsCollectionIsFreed) {
  FreeAt(GetParam());
  EXPECT_EQ(QLatin1StringView(kFreed), MessageOf<EInvalidOperation>([&] { Items->Add(); }));
  EXPECT_EQ(0, TNamedItem::Alive);
}

TEST_P(FreedWhileAddingTest, AnInsertionRaisesWhenItsCollectionIsFreed) {
  FreeAt(GetParam());
  EXPECT_EQ(QLatin1StringView(kFreed), MessageOf<EInvalidOperation>([&] { Items->Insert(0); }));
  EXPECT_EQ(0, TNamedItem::Alive);
}

TEST_P(FreedWhileAddingTest, AnAssignmentRaisesWhenItsCollectionIsFreed) {
  const auto source = Make<THooks>();
  source->Add();
  FreeAt(qstrcmp(GetParam(), "update") == 0 ? "end" : GetParam());
  EXPECT_TRUE(Items != nullptr);
  try {
    Items->Assign(source.get());
  } catch (const EInvalidOperation& error) {
    EXPECT_EQ(QLatin1StringView(kFreed), error.Message());
  }
  EXPECT_EQ(nullptr, Items);
  EXPECT_EQ(1, TNamedItem::Alive);
}

INSTANTIATE_TEST_SUITE_P(Hooks, FreedWhileAddingTest, ::testing::Values("name", "added", "update"));

/// A hook that taking items out calls.
class FreedWhileRemovingTest : public CollectionHooksTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(FreedWhileRemovingTest, DeletingAnItemFreesAllOnce) {
  FreeAt(GetParam());
  Items->Delete(0);
  Items.reset();
  EXPECT_EQ(0, TNamedItem::Alive);
}

TEST_P(FreedWhileRemovingTest, FreeingAnItemFreesAllOnce) {
  FreeAt(GetParam());
  delete Items->GetItem(0);
  Items.reset();
  EXPECT_EQ(0, TNamedItem::Alive);
}

TEST_P(FreedWhileRemovingTest, ClearingFreesAllOnce) {
  FreeAt(GetParam());
  Items->Clear();
  Items.reset();
  EXPECT_EQ(0, TNamedItem::Alive);
}

TEST_P(FreedWhileRemovingTest, AnItemThatIsTakenOutBelongsToTheCaller) {
  FreeAt(GetParam());
  const std::unique_ptr<TCollectionItem> item(Items->GetItem(0));
  item->SetCollection(nullptr);
  EXPECT_EQ(nullptr, item->GetCollection());
  Items.reset();
  EXPECT_EQ(1, TNamedItem::Alive);
}

INSTANTIATE_TEST_SUITE_P(Hooks, FreedWhileRemovingTest,
                         ::testing::Values("deleting", "extracting", "update", "begin", "end"));

TEST_F(CollectionHooksTest, AnItemFreedWhileItsExtractionIsToldIsFreedOnce) {
  Items->On = [this](const char* hook) {
    if (qstrcmp(hook, "extracting") != 0) return;
    Items->On = {};
    delete Items->GetItem(0);
  };
  Items->GetItem(0)->SetCollection(nullptr);
  EXPECT_EQ(1, TNamedItem::Alive);
  EXPECT_EQ(1, Items->GetCount());
}

}  // namespace
}  // namespace kt
