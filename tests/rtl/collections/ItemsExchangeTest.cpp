#include "kt/rtl/collections/ItemsExchange.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TSample;
using tests::TSampleItem;

/// An item whose copy or extraction can fail.
class TBrittleItem : public TSampleItem {
 public:
  using Inherited = TSampleItem;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TBrittleItem>("TBrittleItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  static inline QString FailsAt;
  void Assign(TPersistent* source) override {
    TSampleItem::Assign(source);
    if (GetCaption() == FailsAt) throw EAbort(QStringLiteral("brittle"));
  }

 protected:
  explicit TBrittleItem(TCollection* collection) : TSampleItem(collection) {}
};

/// Logs what it is told; can fail when an item leaves.
class TLoggingItems : public TCollection {
 public:
  using Inherited = TCollection;
  QString Log;
  QString FailsWithout;

  TSampleItem* Add(const char* caption) {
    auto* item = static_cast<TSampleItem*>(TCollection::Add());
    item->SetCaption(QString::fromLatin1(caption));
    return item;
  }
  QString Content() const {
    QStringList items;
    for (int i = 0; i < GetCount(); ++i) items.append(Caption(GetItem(i)) + QString::number(GetItem(i)->GetID()));
    return items.join(u' ');
  }

 protected:
  TLoggingItems() : TCollection(TBrittleItem::Class()) {}
  void Notify(TCollectionItem* item, TCollectionNotification action) override {
    TCollection::Notify(item, action);
    Log += (action == cnAdded ? u'+' : u'-') + Caption(item);
    if (action == cnExtracting && !FailsWithout.isEmpty() && Caption(item) == FailsWithout) {
      throw EAbort(QStringLiteral("stays"));
    }
  }
  void Update(TCollectionItem*) override { Log += u'!'; }

 private:
  static QString Caption(TCollectionItem* item) { return static_cast<TSampleItem*>(item)->GetCaption(); }
};

class ItemsExchangeTest : public ::testing::Test {
 protected:
  ItemsExchangeTest() {
    for (const char* caption : {"a", "b", "c"}) FItems->Add(caption);
    for (const char* caption : {"x", "y"}) FSource->Add(caption);
    FItems->Log.clear();
  }
  ~ItemsExchangeTest() override { TBrittleItem::FailsAt.clear(); }

  std::unique_ptr<TLoggingItems> FItems = Make<TLoggingItems>();
  std::unique_ptr<TLoggingItems> FSource = Make<TLoggingItems>();
};

TEST_F(ItemsExchangeTest, ACopyReplacesTheItemsAndTellsOnceAtTheEnd) {
  FItems->Assign(FSource.get());
  EXPECT_EQ(QStringLiteral("x3 y4"), FItems->Content());
  EXPECT_EQ(QStringLiteral("-c-b-a++!"), FItems->Log);
}

TEST_F(ItemsExchangeTest, AFailedCopyPutsTheSameItemsBackWithTheirIds) {
  const TCollectionItem* first = FItems->GetItem(0);
  TBrittleItem::FailsAt = QStringLiteral("y");
  EXPECT_EQ(QStringLiteral("brittle"), MessageOf<EAbort>([&] { FItems->Assign(FSource.get()); }));
  EXPECT_EQ(QStringLiteral("a0 b1 c2"), FItems->Content());
  EXPECT_EQ(first, FItems->GetItem(0));
  EXPECT_EQ(QStringLiteral("-c-b-a++-y-x+a+b+c!"), FItems->Log);
}

TEST_F(ItemsExchangeTest, IdsAreNotUsedAgainAfterAFailedCopy) {
  TBrittleItem::FailsAt = QStringLiteral("y");
  EXPECT_THROW(FItems->Assign(FSource.get()), EAbort);
  FItems->Add("d");
  EXPECT_EQ(QStringLiteral("a0 b1 c2 d5"), FItems->Content());
}

TEST_F(ItemsExchangeTest, AnItemThatCannotLeaveKeepsTheOthers) {
  FItems->FailsWithout = QStringLiteral("b");
  EXPECT_EQ(QStringLiteral("stays"), MessageOf<EAbort>([&] { FItems->Assign(FSource.get()); }));
  FItems->FailsWithout.clear();
  EXPECT_EQ(QStringLiteral("a0 b1 c2"), FItems->Content());
}

TEST_F(ItemsExchangeTest, ACollectionMayTakeTheItemsBelowOneOfItsOwn) {
  const auto items = Make<tests::TSampleItems>(nullptr);
  auto& children = static_cast<tests::TSampleItems&>(items->AddItem(QStringLiteral("outer"))->GetChildren());
  children.AddItem(QStringLiteral("inner"));
  items->Assign(&children);
  ASSERT_EQ(1, items->GetCount());
  EXPECT_EQ(QStringLiteral("inner"), items->ItemAt(0)->GetCaption());
}

TEST_F(ItemsExchangeTest, ACollectionWhoseReadingFailsHasItsFormerItems) {
  const auto sample = Make<TSample>();
  const TCollectionItem* former = sample->GetItems().AddItem(QStringLiteral("former"));
  TReader reader(
      BinaryOf("object S: TSample\n  Items = <\n    item\n      Caption = 'new'\n    end\n    item\n"
               "      Nonsense = 1\n    end>\nend\n"));
  EXPECT_THROW(reader.ReadRootComponent(sample.get()), EReadError);
  ASSERT_EQ(1, sample->GetItems().GetCount());
  EXPECT_EQ(former, sample->GetItems().GetItem(0));
  EXPECT_EQ(QStringLiteral("former"), sample->GetItems().ItemAt(0)->GetCaption());
}

}  // namespace
}  // namespace kt
