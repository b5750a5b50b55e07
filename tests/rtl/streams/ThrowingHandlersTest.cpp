#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/CallOuts.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using namespace kt::tests;

int Alive = 0;

class TBrittleItem : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TBrittleItem() override { --Alive; }

  int GetNumber() const {
    CallOut("item getter");
    return FNumber;
  }
  void SetNumber(int value) {
    CallOut("item setter");
    FNumber = value;
    Changed(false);
  }

 protected:
  explicit TBrittleItem(TCollection* collection) : TCollectionItem(collection) { ++Alive; }
  void Construct() override {
    CallOut("item construction");
    TCollectionItem::Construct();
  }

 private:
  int FNumber = 0;
};

class TBrittleItems : public TOwnedCollection {
 public:
  using Inherited = TOwnedCollection;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TBrittleItems(TPersistent* owner) : TOwnedCollection(owner, TBrittleItem::Class()) {}
  void Notify(TCollectionItem* item, TCollectionNotification action) override {
    CallOut("Notify");
    TOwnedCollection::Notify(item, action);
  }
  void SetItemName(TCollectionItem*) override { CallOut("SetItemName"); }
  void Update(TCollectionItem*) override { CallOut("Update"); }
};

/// A component all of whose own code may throw.
class TBrittle : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TBrittle() override { --Alive; }

  int GetNumber() const {
    CallOut("getter");
    return FNumber;
  }
  void SetNumber(int value) {
    CallOut("setter");
    FNumber = value;
  }
  bool NumberIsStored() const {
    CallOut("stored predicate");
    return FNumber != 0;
  }
  TComponent* GetPartner() const {
    CallOut("reference getter");
    return FPartner;
  }
  void SetPartner(TComponent* value) {
    CallOut("reference setter");
    FPartner = value;
  }
  TBrittleItems& GetItems() {
    CallOut("collection getter");
    return *FItems;
  }
  void SetItems(TBrittleItems* value) { FItems->Assign(value); }
  TNotifyEvent OnAction;

 protected:
  explicit TBrittle(TComponent* owner = nullptr) : TComponent(owner) { ++Alive; }
  void Construct() override {
    FItems = Make<TBrittleItems>(this);
    CallOut("construction");
    TComponent::Construct();
  }
  void AfterConstruction() override { CallOut("AfterConstruction"); }
  void Loaded() override {
    TComponent::Loaded();
    CallOut("Loaded");
  }
  void Notification(TComponent* component, TOperation operation) override {
    TComponent::Notification(component, operation);
    if (operation == opInsert) CallOut("Notification");
    if (operation == opRemove && component == FPartner) FPartner = nullptr;
  }
  void SetParentComponent(TComponent*) override { CallOut("SetParentComponent"); }
  void SetChildOrder(TComponent*, int) override { CallOut("SetChildOrder"); }
  void GetChildren(const TGetChildProc& proc, TComponent*) override {
    CallOut("GetChildren");
    for (int i = 0; i < GetComponentCount(); ++i) proc(GetComponents(i));
  }
  void DefineProperties(TFiler& filer) override {
    CallOut("DefineProperties");
    filer.DefineProperty(
        u"Extra",
        [this](TReader& reader) {
          CallOut("defined reader");
          FExtra = reader.ReadInteger();
        },
        [this](TWriter& writer) {
          CallOut("defined writer");
          writer.WriteInteger(FExtra);
        },
        FExtra != 0);
    filer.DefineBinaryProperty(
        u"Bytes",
        [this](const QByteArray& bytes) {
          CallOut("binary reader");
          FBytes = bytes;
        },
        [this] {
          CallOut("binary writer");
          return FBytes;
        },
        !FBytes.isEmpty());
  }

 private:
  int FNumber = 0;
  int FExtra = 0;
  QByteArray FBytes;
  TComponent* FPartner = nullptr;
  std::unique_ptr<TBrittleItems> FItems;
};

const TClassInfo* TBrittleItem::Class() {
  static const TClassInfo info = TClassBuilder<TBrittleItem>("TBrittleItem")
                                     .Property<&TBrittleItem::GetNumber, &TBrittleItem::SetNumber>("Number")
                                     .Creatable()
                                     .Done();
  return &info;
}

const TClassInfo* TBrittleItems::Class() {
  static const TClassInfo info = TClassBuilder<TBrittleItems>("TBrittleItems").Done();
  return &info;
}

const TClassInfo* TBrittle::Class() {
  static const TClassInfo info = TClassBuilder<TBrittle>("TBrittle")
                                     .Property<&TBrittle::GetNumber, &TBrittle::SetNumber>("Number")
                                     .Stored(&TBrittle::NumberIsStored)
                                     .Property<&TBrittle::GetPartner, &TBrittle::SetPartner>("Partner")
                                     .Property<&TBrittle::GetItems, &TBrittle::SetItems>("Items")
                                     .Property<&TBrittle::OnAction>("OnAction")
                                     .Creatable()
                                     .Done();
  return &info;
}

constexpr char kFormThatThrows[] = R"(object Form1: TBrittle
  Number = 1
  Partner = Second
  Items = <
    item
      Number = 2
    end
    item
      Number = 3
    end>
  OnAction = Handler
  Extra = 4
  Bytes = {00FF}
  object First: TAlias [0]
    Number = 5
    object Inner: TBrittle
      Partner = Form1
    end
  end
  object Second: TBrittle [1]
    Extra = 6
  end
end
)";

/// What is written of it: handlers that are no published methods are not, and places follow from the order.
constexpr char kWritten[] = R"(object Form1: TBrittle
  Number = 1
  Partner = Second
  Items = <
    item
      Number = 2
    end
    item
      Number = 3
    end>
  Extra = 4
  Bytes = {00FF}
  object First: TBrittle
    Number = 5
    Items = <>
  end
  object Inner: TBrittle
    Partner = Owner
    Items = <>
  end
  object Second: TBrittle
    Items = <>
    Extra = 6
  end
end
)";

void ListenTo(TReader& reader) {
  reader.OnFindMethod = [](const QString&) -> TMethod {
    CallOut("OnFindMethod");
    return TNotifyEvent([](TObject*) {});
  };
  reader.OnFindComponentClass = [](const QString&) {
    CallOut("OnFindComponentClass");
    return TBrittle::Class();
  };
  reader.OnCreateComponent = [](const TClassInfo*, TComponent*) -> TComponent* {
    CallOut("OnCreateComponent");
    return nullptr;
  };
  reader.OnSetName = [](TComponent*, QString&) { CallOut("OnSetName"); };
}

std::unique_ptr<TComponent> Load(const char* text = kFormThatThrows) {
  TReader reader(BinaryOf(text));
  ListenTo(reader);
  return std::unique_ptr<TComponent>(reader.ReadRootComponent(nullptr));
}

class ThrowingHandlersTest : public ::testing::TestWithParam<TThrown> {
 protected:
  ThrowingHandlersTest() { RegisterClass(TBrittle::Class()); }
  ~ThrowingHandlersTest() override {
    EXPECT_EQ(0, Alive);
    UnRegisterClass(TBrittle::Class());
  }
};

INSTANTIATE_TEST_SUITE_P(Kinds, ThrowingHandlersTest, ::testing::Values(thOurs, thForeign));

TEST_P(ThrowingHandlersTest, TheFormMakesALoadCallEveryHandler) {
  EXPECT_EQ(QStringLiteral("AfterConstruction, DefineProperties, Loaded, Notification, Notify, OnCreateComponent, "
                           "OnFindComponentClass, OnFindMethod, OnSetName, SetChildOrder, SetItemName, "
                           "SetParentComponent, Update, binary reader, collection getter, construction, "
                           "defined reader, item construction, item setter, reference setter, setter"),
            [] {
              std::unique_ptr<TComponent> root;
              QStringList names = CallOutsOf([&root] { root = Load(); });
              names.sort();
              return names.join(QStringLiteral(", "));
            }());
}

TEST_P(ThrowingHandlersTest, NoObjectIsLeftOfALoadThatThrows) {
  std::unique_ptr<TComponent> root;
  const int runs = ThrowAtEachCallOut(
      GetParam(), [&root] { root = Load(); },
      [] {
        EXPECT_EQ(0, Alive);
        EXPECT_EQ(kWritten, TextOf(Load().get()));
      });
  EXPECT_GT(runs, 40);
  EXPECT_EQ(kWritten, TextOf(root.get()));
}

constexpr char kExisting[] = R"(object Existing: TBrittle
  Number = 91
  Partner = Old
  Items = <
    item
      Number = 92
    end>
  Extra = 93
  Bytes = {5A}
  object Old: TBrittle
    Items = <>
  end
end
)";

TEST_P(ThrowingHandlersTest, AnExistingRootStaysAsItIsWhenALoadThrows) {
  const auto root = Load(kExisting);
  EXPECT_GT(
      ThrowAtEachCallOut(
          GetParam(),
          [&root] {
            TReader reader(BinaryOf(kFormThatThrows));
            ListenTo(reader);
            reader.ReadRootComponent(root.get());
          },
          [&root] {
            EXPECT_EQ(kExisting, TextOf(root.get()));
            EXPECT_FALSE(root->HasState(csLoading) || root->HasState(csReading));
          },
          // A load only asks for these to be able to give the values back, and does not mind a failure.
          {QStringLiteral("getter"), QStringLiteral("reference getter"), QStringLiteral("collection getter"),
           QStringLiteral("DefineProperties"), QStringLiteral("defined writer"), QStringLiteral("binary writer")}),
      30);
  EXPECT_EQ(4, root->GetComponentCount());
}

TEST_P(ThrowingHandlersTest, APasteThatThrowsLeavesNothing) {
  const auto source = Load();
  TWriter writer;
  writer.WriteComponents({source->FindComponent(u"First"), source->FindComponent(u"Second")}, source.get());
  const QByteArray data = writer.Data();
  const auto target = Make<TBrittle>();
  const int before = Alive;
  EXPECT_GT(ThrowAtEachCallOut(
                GetParam(),
                [&] {
                  TReader reader(data);
                  ListenTo(reader);
                  reader.ReadComponents(target.get(), target.get(), [](TComponent*) { CallOut("done"); });
                },
                [&] {
                  EXPECT_EQ(before, Alive);
                  EXPECT_EQ(0, target->GetComponentCount());
                }),
            15);
  EXPECT_EQ(2, target->GetComponentCount());
}

TEST_P(ThrowingHandlersTest, AWaitingReferenceThatIsRefusedIsReportedAndTheFormStays) {
  const auto waiting = Load("object Waiting: TBrittle\n  Partner = Late.Inner\nend\n");
  std::unique_ptr<TComponent> late;
  TComponent* loading = nullptr;
  std::exception_ptr reported;
  const auto previous = SetExceptionHandler([&](std::exception_ptr error) { reported = error; });
  const int number =
      RegisterFindGlobalComponentProc([&](const QString& name) { return name == u"Late" ? loading : nullptr; });
  const auto load = [&] {
    loading = nullptr;
    TReader reader(BinaryOf("object Late: TBrittle\n  object Inner: TBrittle\n  end\nend\n"));
    reader.OnSetName = [&](TComponent* component, QString&) { loading = loading ? loading : component; };
    late.reset(reader.ReadRootComponent(nullptr));
    if (reported) std::rethrow_exception(reported);
  };
  QString alive;
  ThrowAtEachCallOut(GetParam(), load, [&] {
    alive += QString::number(Alive);
    reported = nullptr;
    late.reset();
  });
  UnRegisterFindGlobalComponentProc(number);
  SetExceptionHandler(previous);
  // One that waits; and the new form when all of it had been read.
  EXPECT_EQ(QStringLiteral("1111111113"), alive);
  EXPECT_TRUE(GetFixupReferenceNames(waiting.get()).isEmpty());
}

TEST_P(ThrowingHandlersTest, TheFormMakesASaveCallEveryHandler) {
  const auto root = Load();
  QStringList names = CallOutsOf([&root] { WriteComponentToBinary(root.get()); });
  names.sort();
  EXPECT_EQ(QStringLiteral("DefineProperties, GetChildren, binary writer, collection getter, defined writer, getter, "
                           "item getter, reference getter, stored predicate"),
            names.join(QStringLiteral(", ")));
}

TEST_P(ThrowingHandlersTest, ASaveThatThrowsLeavesTheFormAsItWas) {
  const auto root = Load();
  QByteArray saved;
  const int runs = ThrowAtEachCallOut(
      GetParam(), [&] { saved = WriteComponentToBinary(root.get()); },
      [&root] {
        EXPECT_FALSE(root->HasState(csWriting));
        EXPECT_FALSE(root->GetComponents(0)->HasState(csWriting));
        EXPECT_EQ(kWritten, TextOf(root.get()));
      });
  EXPECT_GT(runs, 20);
  EXPECT_EQ(kWritten, TextOf(saved));
}

}  // namespace
}  // namespace kt
