#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FailingAllocations.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using namespace kt::tests;

constexpr char kForm[] = R"(object Form1: TSample
  Whole = 5
  Small = 0
  Color = 0
  Styles = [ssBold]
  Text = 'some text'
  Anything = 'more text'
  Partner = Second
  Part.Size = 9
  Items = <
    item
      Caption = 'one'
      Children = <
        item
          Caption = 'inner'
          Children = <>
        end>
    end
    item
      Caption = 'two'
      Children = <>
    end>
  OnAction = HandleAction
  object First: TSample
    Small = 0
    Color = 0
    Partner = Second
    Items = <>
  end
  object Second: TSample
    Small = 0
    Color = 0
    Reference = First
    Items = <>
  end
end
)";

constexpr char kUnknownForm[] = R"(object Form1: TSample
  Small = 0
  Color = 0
  Items = <>
  Extra = 1
  object First: TNoSuch
    X = 'x'
    object Second: TSample
      Small = 0
      Color = 0
      Items = <>
      Y = 2
    end
    object Third: TNoSuch
    end
  end
  object Fourth: TNoSuch
  end
end
)";

/// The captions of the items, in an order that the items' own indices agree with.
QString Captions(TSampleItems& items) {
  QString captions;
  for (int i = 0; i < items.GetCount(); ++i) {
    EXPECT_EQ(i, items.ItemAt(i)->GetIndex());
    EXPECT_EQ(items.ItemAt(i), items.FindItemID(items.ItemAt(i)->GetID()));
    captions += items.ItemAt(i)->GetCaption();
  }
  return captions;
}

QString Names(TComponent& owner) {
  QString names;
  for (int i = 0; i < owner.GetComponentCount(); ++i) {
    TComponent* component = owner.GetComponents(i);
    EXPECT_EQ(&owner, component->GetOwnerComponent());
    EXPECT_EQ(component, owner.FindComponent(component->GetName()));
    names += component->GetName();
  }
  return names;
}

QString Lines(TStringList& list) { return list.GetCommaText(); }

class AllocationFailureTest : public ::testing::TestWithParam<TFailingAllocations> {
 protected:
  AllocationFailureTest() { RegisterClass(TSample::Class()); }
  ~AllocationFailureTest() override { UnRegisterClass(TSample::Class()); }

  /// Fails each allocation of `scenario`; answers whether there was any to fail.
  static bool FailEach(const std::function<void()>& scenario, const std::function<void()>& check = {}) {
    return FailEachAllocation(GetParam(), scenario, check) > 0;
  }
  /// Fails each allocation of `change` on an object that `make` gives anew; `state` must answer the same after a
  /// failure as before it.
  template <class TMaker, class TChange, class TState>
  static bool FailEachChange(TMaker make, TChange change, TState state) {
    for (int number = 0;; ++number) {
      const auto object = make();
      const QString before = state(*object);
      bool passed = true;
      {
        const TAllocationFailure failure(number, GetParam());
        try {
          change(*object);
        } catch (const std::bad_alloc&) {
          passed = false;
        }
        if (!TAllocationFailure::HasHappened()) return number > 0;
      }
      EXPECT_FALSE(passed) << "the failure of allocation " << number << " was swallowed";
      EXPECT_EQ(before, state(*object)) << "after the failure of allocation " << number;
      change(*object);
      EXPECT_NE(before, state(*object));
      if (HasFailure()) return true;
    }
  }

  static std::unique_ptr<TSampleItems> FourItems() {
    auto items = Make<TSampleItems>(nullptr);
    for (const char* caption : {"a", "b", "c", "d"}) items->AddItem(QString::fromLatin1(caption));
    return items;
  }
  static std::unique_ptr<TSample> FourComponents() {
    auto owner = Make<TSample>();
    for (const char* name : {"A", "B", "C", "D"}) New<TSample>(owner.get())->SetName(QString::fromLatin1(name));
    return owner;
  }
};

INSTANTIATE_TEST_SUITE_P(Kinds, AllocationFailureTest, ::testing::Values(faOne, faAllLater));

TEST_P(AllocationFailureTest, MakingAnObjectWithPartsLeavesNothing) {
  EXPECT_TRUE(FailEach([] { const auto sample = Make<TSample>(); }));
}

TEST_P(AllocationFailureTest, MakingAnOwnedComponentIsAllOrNothing) {
  const auto count = [](TSample& owner) { return QString::number(owner.GetComponentCount()); };
  EXPECT_TRUE(FailEachChange([] { return Make<TSample>(); }, [](TSample& owner) { New<TSample>(&owner); }, count));
  EXPECT_TRUE(FailEachChange(
      FourComponents, [](TSample& owner) { New<TSample>(&owner); }, count));
}

TEST_P(AllocationFailureTest, InsertingANamedComponentIsAllOrNothing) {
  EXPECT_TRUE(FailEachChange([] { return Make<TSample>(); },
                             [](TSample& owner) {
                               auto guest = Make<TSample>();
                               guest->SetName(QStringLiteral("Guest"));
                               owner.InsertComponent(guest.get());
                               guest.release();
                             },
                             Names));
}

TEST_P(AllocationFailureTest, NamingAComponentIsAllOrNothing) {
  EXPECT_TRUE(FailEachChange(
      [] {
        auto owner = Make<TSample>();
        New<TSample>(owner.get());
        return owner;
      },
      [](TSample& owner) { owner.GetComponents(0)->SetName(QStringLiteral("New")); },
      [](TSample& owner) {
        TComponent* component = owner.GetComponents(0);
        EXPECT_EQ(component->GetName().isEmpty(), owner.FindComponent(u"New") == nullptr);
        return component->GetName();
      }));
}

TEST_P(AllocationFailureTest, WatchingIsAllOrNothing) {
  EXPECT_TRUE(FailEach([] {
    const auto watched = Make<TSample>();
    const auto watcher = Make<TSample>();
    watched->FreeNotification(watcher.get());
    watcher->Partner = watched.get();
  }));
}

TEST_P(AllocationFailureTest, AddingAnItemIsAllOrNothing) {
  EXPECT_TRUE(FailEachChange([] { return Make<TSampleItems>(nullptr); },
                             [](TSampleItems& items) { items.AddItem(QStringLiteral("new")); }, Captions));
  EXPECT_TRUE(FailEachChange(
      FourItems, [](TSampleItems& items) { items.AddItem(QStringLiteral("new")); }, Captions));
}

TEST_P(AllocationFailureTest, InsertingAnItemIsAllOrNothing) {
  EXPECT_TRUE(FailEachChange(
      FourItems, [](TSampleItems& items) { items.Insert(1); },
      [](TSampleItems& items) { return Captions(items) + QString::number(items.GetCount()); }));
}

TEST_P(AllocationFailureTest, MovingAnItemIsAllOrNothing) {
  EXPECT_TRUE(FailEachChange(
      [] {
        auto items = FourItems();
        items->AddItem(QStringLiteral("e"));
        return items;
      },
      [](TSampleItems& items) { items.ItemAt(4)->SetIndex(1); }, Captions));
}

TEST_P(AllocationFailureTest, SortingLinesKeepsTheirOrder) {
  EXPECT_TRUE(FailEachChange(
      [] {
        auto list = Make<TStringList>();
        list->SetCommaText(QStringLiteral("c,a,d,b"));
        return list;
      },
      [](TStringList& list) { list.Sort(); }, Lines));
}

TEST_P(AllocationFailureTest, FillingAListLeavesNothing) {
  EXPECT_TRUE(FailEach([] {
    const auto list = Make<TStringList>();
    list->SetCommaText(QStringLiteral("c,a,d,b"));
    list->SetSorted(true);
    list->Add(QStringLiteral("bb"));
    const auto copy = Make<TStringList>();
    copy->Assign(list.get());
  }));
}

TEST_P(AllocationFailureTest, LoadingAFormLeavesNothing) {
  EXPECT_TRUE(FailEach([] { ReadComponentFromBinary(BinaryOf(kForm)); },
                       [] { EXPECT_EQ(kForm, TextOf(ReadComponentFromBinary(BinaryOf(kForm)).get())); }));
}

TEST_P(AllocationFailureTest, LoadingWhatIsUnknownLeavesNothing) {
  const auto load = [] {
    TReader reader(BinaryOf(kUnknownForm));
    reader.UnknownClasses = upKeep;
    reader.UnknownProperties = upKeep;
    return std::unique_ptr<TComponent>(reader.ReadRootComponent(nullptr));
  };
  EXPECT_TRUE(FailEach([load] { load(); }, [load] { EXPECT_EQ(kUnknownForm, TextOf(load().get())); }));
}

TEST_P(AllocationFailureTest, LoadingIntoAFormKeepsWhatItHad) {
  EXPECT_TRUE(FailEachChange(
      FourComponents, [](TSample& root) { TReader(BinaryOf(kForm)).ReadRootComponent(&root); },
      [](TSample& root) { return Names(root); }));
}

TEST_P(AllocationFailureTest, WritingAFormLeavesItAsItWas) {
  const auto root = ReadComponentFromBinary(BinaryOf(kForm));
  EXPECT_TRUE(FailEach([&root] { WriteComponentToBinary(root.get()); },
                       [&root] {
                         EXPECT_FALSE(root->HasState(csWriting));
                         EXPECT_EQ(kForm, TextOf(root.get()));
                       }));
}

TEST_P(AllocationFailureTest, DescribingAClassLeavesNothing) {
  EXPECT_TRUE(FailEach([] {
    const TClassInfo info = TClassBuilder<TSample>("TProbe")
                                .Property<&TSample::Whole>("Whole")
                                .Default(1)
                                .Property<&TSample::Text>("Text")
                                .Stored(&TSample::TextIsStored)
                                .Method("HandleAction", &TSample::HandleAction)
                                .Creatable()
                                .Done();
    const std::unique_ptr<TObject> made(info.CreateInstance(nullptr));
  }));
}

}  // namespace
}  // namespace kt
