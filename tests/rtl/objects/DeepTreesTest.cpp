// Trees that are too deep for one stack frame a level.
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QStringList>

#include <functional>
#include <gtest/gtest.h>

namespace kt {
namespace {

/// Of levels: a stack of 8 MB has not even 42 bytes for each, and what takes their square would take hours.
constexpr int kMany = 200'000;

QStringList Log;

/// A component that logs its end.
class TTwig : public TComponent {
 public:
  using Inherited = TComponent;
  static inline int Alive = 0;
  ~TTwig() override { --Alive; }
  std::function<void()> OnDestruct;

 protected:
  explicit TTwig(TComponent* owner = nullptr) : TComponent(owner) { ++Alive; }
  void BeforeDestruction() override {
    TComponent::BeforeDestruction();
    Note("before");
  }
  void Destruct() override {
    Note("begin");
    if (OnDestruct) OnDestruct();
    TComponent::Destruct();
    Log.append(QStringLiteral("end"));
  }

 private:
  void Note(const char* what) { Log.append(QLatin1StringView(what) + u' ' + GetName()); }
};

TTwig* Chain(TTwig* root, int length) {
  TTwig* last = root;
  for (int i = 0; i < length; ++i) last = New<TTwig>(last);
  return last;
}

class DeepTreesTest : public ::testing::Test {
 protected:
  DeepTreesTest() { Log.clear(); }
  ~DeepTreesTest() override {
    EXPECT_EQ(0, TTwig::Alive);
    Log.clear();
  }
};

TEST_F(DeepTreesTest, VeryManyComponentsEachOwnedByThePreviousAreDestroyed) {
  auto root = Make<TComponent>();
  TComponent* last = root.get();
  for (int i = 0; i < kMany; ++i) last = New<TComponent>(last);
  const auto watcher = Make<TTwig>();
  last->FreeNotification(watcher.get());
  EXPECT_TRUE(last->HasState(csFreeNotification));
  root.reset();
}

TEST_F(DeepTreesTest, VeryManyComponentsAreDestroyedBesideOneThatIsWatched) {
  auto root = Make<TComponent>();
  const auto watcher = Make<TComponent>();
  auto* top = New<TComponent>(root.get());
  TComponent* last = top;
  for (int i = 0; i < kMany; ++i) last = New<TComponent>(last);
  New<TComponent>(root.get())->FreeNotification(watcher.get());
  top->FreeNotification(watcher.get());
  root.reset();
  EXPECT_TRUE(watcher->HasState(csFreeNotification));
}

TEST_F(DeepTreesTest, TheWholeTreeIsMarkedBeforeAnyOfItGoes) {
  auto root = Make<TTwig>();
  TTwig* last = Chain(root.get(), 10'000);
  bool isMarked = false;
  root->OnDestruct = [&] { isMarked = last->HasState(csDestroying); };
  root.reset();
  EXPECT_TRUE(isMarked);
}

TEST_F(DeepTreesTest, AnOrdinaryTreeEndsWithinItsOwnersAsBefore) {
  auto root = Make<TTwig>();
  root->SetName(QStringLiteral("R"));
  auto* child = New<TTwig>(root.get());
  child->SetName(QStringLiteral("C"));
  New<TTwig>(child)->SetName(QStringLiteral("G"));
  Log.clear();
  root.reset();
  EXPECT_EQ(QStringLiteral("before R,begin R,before C,begin C,before G,begin G,end,end,end"), Log.join(u','));
}

TEST_F(DeepTreesTest, ADeepBranchWithManyLeavesIsDestroyedOnce) {
  auto root = Make<TTwig>();
  TTwig* last = Chain(root.get(), 500);
  for (int i = 0; i < 500; ++i) New<TTwig>(last);
  Chain(last, 500);
  root.reset();
  EXPECT_EQ(1501, Log.count(QStringLiteral("end")));
}

TEST_F(DeepTreesTest, AWatcherIsToldOfADeepComponent) {
  auto root = Make<TTwig>();
  TTwig* last = Chain(root.get(), 1000);
  class THearing : public TComponent {
   public:
    int Told = 0;

   protected:
    THearing() = default;
    void Notification(TComponent* component, TOperation operation) override {
      TComponent::Notification(component, operation);
      ++Told;
    }
  };
  const auto watcher = Make<THearing>();
  last->FreeNotification(watcher.get());
  root.reset();
  EXPECT_EQ(1, watcher->Told);
}

TEST_F(DeepTreesTest, ADeepComponentMayFreeAnotherOneThatIsToGo) {
  auto root = Make<TTwig>();
  TTwig* middle = Chain(root.get(), 300);
  TTwig* last = Chain(middle, 300);
  auto* other = New<TTwig>(middle);
  Chain(other, 50);
  middle->SetComponentIndex(0);
  last->OnDestruct = [&] { delete std::exchange(other, nullptr); };
  other->SetComponentIndex(0);
  root.reset();
  EXPECT_EQ(nullptr, other);
}

/// An item that owns a collection of its like.
class TBranch : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  static inline int Alive = 0;
  ~TBranch() override { --Alive; }
  TCollection& Branches() { return *FBranches; }
  TBranch* Add() { return static_cast<TBranch*>(FBranches->Add()); }

 protected:
  explicit TBranch(TCollection* collection) : TCollectionItem(collection) { ++Alive; }
  void Construct() override;
  TCollection* GetNestedItems() override { return FBranches.get(); }

 private:
  std::unique_ptr<TCollection> FBranches;
};

class TBranches : public TOwnedCollection {
 public:
  static inline int Updates = 0;

 protected:
  explicit TBranches(TPersistent* owner) : TOwnedCollection(owner, TBranch::Class()) {}
  void Update(TCollectionItem*) override { ++Updates; }
};

/// Does not know whose it is.
class TLooseBranches : public TCollection {
 protected:
  TLooseBranches() : TCollection(TBranch::Class()) {}
};

bool IsLoose = false;

const TClassInfo* TBranch::Class() {
  static const TClassInfo info = TClassBuilder<TBranch>("TBranch").Creatable().Done();
  return &info;
}

void TBranch::Construct() {
  if (IsLoose) {
    FBranches = Make<TLooseBranches>();
  } else {
    FBranches = Make<TBranches>(this);
  }
  TCollectionItem::Construct();
}

void AddBelow(TCollection& top, int levels) {
  auto* branch = static_cast<TBranch*>(top.Add());
  for (int i = 1; i < levels; ++i) branch = branch->Add();
}

TEST_F(DeepTreesTest, ItemsNestedAHundredThousandDeepAreDestroyed) {
  auto top = Make<TBranches>(nullptr);
  AddBelow(*top, 100'000);
  EXPECT_EQ(100'000, TBranch::Alive);
  top.reset();
  EXPECT_EQ(0, TBranch::Alive);
}

TEST_F(DeepTreesTest, ADeepItemIsDeletedFromACollectionThatStays) {
  const auto top = Make<TBranches>(nullptr);
  AddBelow(*top, 50'000);
  top->Add();
  top->Delete(0);
  EXPECT_EQ(1, TBranch::Alive);
  TBranches::Updates = 0;
  top->Clear();
  EXPECT_EQ(1, TBranches::Updates);
}

TEST_F(DeepTreesTest, TheDeepPartOfATreeGoesWithoutUpdates) {
  auto top = Make<TBranches>(nullptr);
  AddBelow(*top, 1000);
  TBranches::Updates = 0;
  top.reset();
  EXPECT_EQ(0, TBranches::Updates);
}

TEST_F(DeepTreesTest, CollectionsThatDoNotKnowTheirItemAreDestroyedToo) {
  IsLoose = true;
  auto top = Make<TLooseBranches>();
  AddBelow(*top, 2000);
  static_cast<TBranch*>(top->GetItem(0))->Add();
  IsLoose = false;
  top.reset();
  EXPECT_EQ(0, TBranch::Alive);
}

}  // namespace
}  // namespace kt
