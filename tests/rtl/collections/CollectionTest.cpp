#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <functional>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSample;
using tests::TSampleItem;
using tests::TSampleItems;

/// Logs every notification, with the number of items in the list at that moment.
class TLogging : public TCollection {
 public:
  QString Log;
  std::function<void(TCollectionItem*, TCollectionNotification)> OnNotify;

  QString Take() { return std::exchange(Log, QString()).trimmed(); }
  QString Ids() const {
    QStringList ids;
    for (int i = 0; i < GetCount(); ++i) ids.append(QString::number(GetItem(i)->GetID()));
    return ids.join(u' ');
  }

 protected:
  TLogging() : TCollection(TSampleItem::Class()) {}
  void Notify(TCollectionItem* item, TCollectionNotification action) override {
    static const char* const names[] = {"added", "extracting", "deleting"};
    Log += QStringLiteral("%1(%2 of %3) ").arg(QLatin1StringView(names[action])).arg(item->GetID()).arg(GetCount());
    TCollection::Notify(item, action);
    if (OnNotify) OnNotify(item, action);
  }
  void Update(TCollectionItem* item) override {
    Log += item ? QStringLiteral("update(%1) ").arg(item->GetID()) : QStringLiteral("update(all) ");
  }
};

std::unique_ptr<TLogging> WithItems(int count) {
  auto collection = Make<TLogging>();
  for (int i = 0; i < count; ++i) collection->Add();
  collection->Log.clear();
  return collection;
}

TEST(CollectionTest, AddingNotifiesAndThenUpdates) {
  const auto collection = Make<TLogging>();
  collection->Add();
  EXPECT_EQ(QStringLiteral("added(0 of 1) update(all)"), collection->Take());
}

TEST(CollectionTest, InsertingAddsAtTheEndAndThenMoves) {
  const auto collection = WithItems(2);
  collection->Insert(0);
  EXPECT_EQ(QStringLiteral("added(2 of 3) update(all) update(all)"), collection->Take());
  EXPECT_EQ(QStringLiteral("2 0 1"), collection->Ids());
}

TEST(CollectionTest, InsertingAtTheEndDoesNotMove) {
  const auto collection = WithItems(1);
  collection->Insert(1);
  EXPECT_EQ(QStringLiteral("added(1 of 2) update(all)"), collection->Take());
}

TEST(CollectionTest, DeletingNotifiesOfTheDeletionBeforeTheExtraction) {
  const auto collection = WithItems(2);
  collection->Delete(0);
  EXPECT_EQ(QStringLiteral("deleting(0 of 2) extracting(0 of 2) update(all)"), collection->Take());
  EXPECT_EQ(QStringLiteral("1"), collection->Ids());
}

TEST(CollectionTest, FreeingAnItemOnlyExtracts) {
  const auto collection = WithItems(2);
  delete collection->GetItem(1);
  EXPECT_EQ(QStringLiteral("extracting(1 of 2) update(all)"), collection->Take());
}

TEST(CollectionTest, ClearingFreesTheLastItemFirstAndUpdatesOnce) {
  const auto collection = WithItems(2);
  collection->Clear();
  EXPECT_EQ(QStringLiteral("extracting(1 of 2) extracting(0 of 1) update(all)"), collection->Take());
}

TEST(CollectionTest, ClearingAnEmptyCollectionDoesNothing) {
  const auto collection = WithItems(0);
  collection->Clear();
  EXPECT_EQ(QString(), collection->Take());
}

TEST(CollectionTest, AChangedItemUpdatesTheCollectionWithThatItem) {
  const auto collection = WithItems(2);
  static_cast<TSampleItem*>(collection->GetItem(1))->SetCaption(QStringLiteral("x"));
  EXPECT_EQ(QStringLiteral("update(1)"), collection->Take());
}

TEST(CollectionTest, UpdateBracketsNestAndUpdateOnceAtTheEnd) {
  const auto collection = WithItems(1);
  collection->BeginUpdate();
  collection->BeginUpdate();
  static_cast<TSampleItem*>(collection->GetItem(0))->SetCaption(QStringLiteral("x"));
  collection->EndUpdate();
  EXPECT_EQ(QString(), collection->Take());
  collection->EndUpdate();
  EXPECT_EQ(QStringLiteral("update(all)"), collection->Take());
}

TEST(CollectionTest, MovingAnItemUpdatesAll) {
  const auto collection = WithItems(3);
  collection->GetItem(0)->SetIndex(2);
  EXPECT_EQ(QStringLiteral("update(all)"), collection->Take());
  EXPECT_EQ(QStringLiteral("1 2 0"), collection->Ids());
}

TEST(CollectionTest, MovingAnItemToItsOwnPlaceDoesNothing) {
  const auto collection = WithItems(2);
  collection->GetItem(1)->SetIndex(1);
  EXPECT_EQ(QString(), collection->Take());
}

TEST(CollectionTest, MovingAnItemOutsideTheListRaisesAndLeavesIt) {
  const auto collection = WithItems(2);
  EXPECT_EQ(QStringLiteral("List index out of bounds (2)"),
            MessageOf<EListError>([&] { collection->GetItem(0)->SetIndex(2); }));
  EXPECT_EQ(QStringLiteral("0 1"), collection->Ids());
}

TEST(CollectionTest, AnItemOutsideTheListRaises) {
  const auto collection = WithItems(1);
  EXPECT_EQ(QStringLiteral("List index out of bounds (1)"), MessageOf<EListError>([&] { collection->GetItem(1); }));
  EXPECT_EQ(QStringLiteral("List index out of bounds (-1)"), MessageOf<EListError>([&] { collection->Delete(-1); }));
}

TEST(CollectionTest, MovingToAnotherCollectionExtractsAndAdds) {
  const auto from = WithItems(2);
  const auto to = WithItems(1);
  TCollectionItem* item = from->GetItem(0);
  item->SetCollection(to.get());
  EXPECT_EQ(QStringLiteral("extracting(0 of 2) update(all)"), from->Take());
  EXPECT_EQ(QStringLiteral("added(1 of 2) update(all)"), to->Take());
  EXPECT_EQ(1, item->GetIndex());
}

TEST(CollectionTest, AnItemOfAnotherClassIsRefused) {
  const auto collection = WithItems(0);
  EXPECT_EQ(QStringLiteral("Invalid property"),
            MessageOf<EListError>([&] { (void)Make<TCollectionItem>(collection.get()); }));
  EXPECT_EQ(0, collection->GetCount());
}

TEST(CollectionTest, AnItemThatAnotherCollectionRefusesStaysWhereItIs) {
  const auto plain = WithItems(0);
  class TPlain : public TCollection {
   protected:
    TPlain() : TCollection(TCollectionItem::Class()) {}
  };
  const auto source = Make<TPlain>();
  TCollectionItem* item = source->Add();
  EXPECT_THROW(item->SetCollection(plain.get()), EListError);
  EXPECT_EQ(source.get(), item->GetCollection());
}

TEST(CollectionTest, InsertingOutsideTheListRaisesAndCreatesNothing) {
  const auto collection = WithItems(1);
  EXPECT_EQ(QStringLiteral("List index out of bounds (2)"), MessageOf<EListError>([&] { collection->Insert(2); }));
  EXPECT_EQ(QStringLiteral("0"), collection->Ids());
}

TEST(CollectionTest, AnItemMayBeFreedWhileItsDeletionIsBeingTold) {
  const auto collection = WithItems(2);
  collection->OnNotify = [&](TCollectionItem* item, TCollectionNotification action) {
    if (action != cnDeleting) return;
    collection->OnNotify = {};
    delete item;
  };
  collection->Delete(0);
  EXPECT_EQ(QStringLiteral("1"), collection->Ids());
}

TEST(CollectionTest, IdsAreNeverReused) {
  const auto collection = WithItems(2);
  collection->Delete(1);
  EXPECT_EQ(2, collection->Add()->GetID());
}

TEST(CollectionTest, AnItemIsFoundByItsId) {
  const auto collection = WithItems(3);
  collection->Delete(0);
  EXPECT_EQ(collection->GetItem(1), collection->FindItemID(2));
  EXPECT_EQ(nullptr, collection->FindItemID(0));
}

TEST(CollectionTest, AnItemWithoutACollectionHasNoIndex) {
  const auto item = Make<TSampleItem>(nullptr);
  EXPECT_EQ(nullptr, item->GetCollection());
  EXPECT_EQ(-1, item->GetIndex());
  EXPECT_EQ(QStringLiteral("TSampleItem"), item->GetNamePath());
}

TEST(CollectionTest, AssigningCopiesTheItemsWithinOneBracket) {
  const auto sample = Make<TSample>();
  sample->GetItems().AddItem(QStringLiteral("a"));
  sample->GetItems().AddItem(QStringLiteral("b"))->GetChildren().Add();
  const auto collection = WithItems(1);
  collection->Assign(&sample->GetItems());
  EXPECT_EQ(QStringLiteral("extracting(0 of 1) added(1 of 1) added(2 of 2) update(all)"), collection->Take());
  EXPECT_EQ(1, static_cast<TSampleItem*>(collection->GetItem(1))->GetChildren().GetCount());
}

TEST(CollectionTest, AssigningACollectionToItselfKeepsItsItems) {
  const auto collection = WithItems(2);
  collection->Assign(collection.get());
  EXPECT_EQ(QStringLiteral("0 1"), collection->Ids());
}

TEST(CollectionTest, TheNamePathGoesThroughTheOwnersProperty) {
  const auto sample = Make<TSample>();
  sample->SetName(QStringLiteral("Sample1"));
  TSampleItem* item = sample->GetItems().AddItem(QStringLiteral("a"));
  EXPECT_EQ(QStringLiteral("Sample1.Items"), sample->GetItems().GetNamePath());
  EXPECT_EQ(QStringLiteral("Sample1.Items[0]"), item->GetNamePath());
  EXPECT_EQ(QStringLiteral("Sample1.Items[0].Children"), item->GetChildren().GetNamePath());
}

TEST(CollectionTest, TheNamePathOfACollectionWithoutAnOwnerIsItsClassName) {
  EXPECT_EQ(QStringLiteral("TCollection"), WithItems(0)->GetNamePath());
}

TEST(CollectionTest, AnExceptionWhileExtractingAFreedItemStillTakesItOut) {
  const TExceptionHandler previous = SetExceptionHandler([](std::exception_ptr) {});
  const auto collection = WithItems(2);
  collection->OnNotify = [](TCollectionItem*, TCollectionNotification) {
    throw EInvalidOperation(QStringLiteral("no"));
  };
  delete collection->GetItem(0);
  collection->OnNotify = {};
  SetExceptionHandler(previous);
  EXPECT_EQ(QStringLiteral("1"), collection->Ids());
}

TEST(CollectionTest, AnExceptionWhileAddingLeavesNoItemBehind) {
  const auto collection = WithItems(1);
  collection->OnNotify = [](TCollectionItem*, TCollectionNotification action) {
    if (action == cnAdded) throw EInvalidOperation(QStringLiteral("no"));
  };
  EXPECT_THROW(collection->Add(), EInvalidOperation);
  EXPECT_EQ(QStringLiteral("0"), collection->Ids());
}

TEST(CollectionTest, AnExceptionInsideABracketEndsTheBracket) {
  const auto collection = WithItems(0);
  EXPECT_THROW(
      {
        const TUpdateBracket bracket(*collection);
        throw EInvalidOperation(QStringLiteral("no"));
      },
      EInvalidOperation);
  EXPECT_EQ(0, collection->GetUpdateCount());
}

TEST(CollectionTest, AnItemMayBeFreedInsideItsOwnAddedNotificationOfASibling) {
  const auto collection = WithItems(2);
  collection->OnNotify = [&](TCollectionItem*, TCollectionNotification action) {
    if (action != cnAdded) return;
    collection->OnNotify = {};
    delete collection->GetItem(0);
  };
  collection->Add();
  EXPECT_EQ(QStringLiteral("1 2"), collection->Ids());
}

}  // namespace
}  // namespace kt
