#include "kt/ktcommon/SpecialFiler.h"
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"

#include <QStringList>

#include <functional>
#include <stdexcept>

namespace kt::tests {
namespace {

/// An item with a name.
class TFiledItem : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TFiledItem>("TFiledItem")
                                       .Property<&TFiledItem::GetName, &TFiledItem::SetName>("Name")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetName() const { return FName; }
  /// "bad" is refused; "fatal" frees the collection.
  void SetName(const QString& value) {
    if (value == "bad") throw Exception("refused");
    FName = value;
    if (value == "fatal") OnFatal();
  }
  virtual QString Description() { return FName; }

  static inline std::function<void()> OnFatal;

 protected:
  explicit TFiledItem(TCollection* collection) : TCollectionItem(collection) {}

 private:
  QString FName;
};

/// One with a number and something defined besides.
class TNumberedItem : public TFiledItem {
 public:
  using Inherited = TFiledItem;
  static const TClassInfo* Class() {
    static const TClassInfo info =
        TClassBuilder<TNumberedItem>("TNumberedItem").Property<&TNumberedItem::Number>("Number").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  QString Description() override { return QStringLiteral("%1#%2/%3").arg(GetName()).arg(Number).arg(Defined); }

  int Number = 0;
  int Defined = 0;

 protected:
  explicit TNumberedItem(TCollection* collection) : TFiledItem(collection) {}
  void DefineProperties(TFiler& filer) override {
    filer.DefineProperty(
        u"Defined", [this](TReader& reader) { Defined = reader.ReadInteger(); },
        [this](TWriter& writer) { writer.WriteInteger(Defined); }, Defined != 0);
  }
};

class TForeignItem : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TForeignItem>("TForeignItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TForeignItem(TCollection* collection) : TCollectionItem(collection) {}
};

class TFiledItems : public TOwnedCollection {
 public:
  using Inherited = TOwnedCollection;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TFiledItems>("TFiledItems").Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TFiledItem* AddNamed(const TClassInfo* itemClass, const QString& name) {
    auto* item = static_cast<TFiledItem*>(itemClass->CreateInstance(this));
    item->SetName(name);
    return item;
  }
  std::string Text() const {
    QStringList texts;
    for (int i = 0; i < GetCount(); ++i) texts += static_cast<TFiledItem*>(GetItem(i))->Description();
    return texts.join(u' ').toStdString();
  }

  int Updates = 0;

 protected:
  explicit TFiledItems(TPersistent* owner) : TOwnedCollection(owner, TFiledItem::Class()) {}
  void Update(TCollectionItem*) override { ++Updates; }
};

/// The root of a form with such a collection, which it streams among other properties.
class TFiledForm : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TFiledForm>("TFiledForm").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  std::unique_ptr<TFiledItems> Items = Make<TFiledItems>(this);

 protected:
  explicit TFiledForm(TComponent* owner = nullptr) : TComponent(owner) {}
  void DefineProperties(TFiler& filer) override {
    TComponent::DefineProperties(filer);
    filer.DefineProperty(
        u"HItems", [this](TReader& reader) { TGSpecialFiler::ReadCollection(reader, *Items); },
        [this](TWriter& writer) { TGSpecialFiler::WriteCollection(writer, *Items); }, true);
    filer.DefineProperty(
        u"Behind", [](TReader& reader) { reader.ReadInteger(); }, [](TWriter& writer) { writer.WriteInteger(7); },
        true);
  }
};

class SpecialFilerTest : public testing::Test {
 protected:
  SpecialFilerTest() { RegisterClasses({TFiledForm::Class(), TNumberedItem::Class(), TForeignItem::Class()}); }
  ~SpecialFilerTest() override {
    TFiledItem::OnFatal = nullptr;
    UnRegisterClasses({TFiledForm::Class(), TNumberedItem::Class(), TFiledItem::Class(), TForeignItem::Class()});
  }

  TFiledItems& Items() { return *FForm->Items; }
  void FillMixed() {
    Items().AddNamed(TFiledItem::Class(), "a");
    auto* numbered = static_cast<TNumberedItem*>(Items().AddNamed(TNumberedItem::Class(), "b"));
    numbered->Number = 5;
    numbered->Defined = 6;
    Items().AddNamed(TFiledItem::Class(), "c");
  }
  static QByteArray ValueOf(TCollection& collection) {
    TWriter writer;
    TGSpecialFiler::WriteCollection(writer, collection);
    return writer.Data();
  }
  static void ReadValue(const QByteArray& value, TCollection& collection) {
    TReader reader(value);
    TGSpecialFiler::ReadCollection(reader, collection);
  }
  /// The value that a form says of its items in text.
  static std::string FormWith(const std::string& items) {
    return "object F: TFiledForm\n  HItems = <" + items + ">\n  Behind = 7\nend\n";
  }
  /// Reads such a form over the present one.
  void ReadOver(const std::string& items) {
    TReader reader(BinaryOf(FormWith(items).c_str()));
    reader.ReadRootComponent(FForm.get());
  }
  static std::string ItemText(const std::string& className, const std::string& name) {
    return "\n    item\n      ClassName = '" + className + "'\n      Name = '" + name + "'\n    end";
  }

  std::unique_ptr<TFiledForm> FForm = Make<TFiledForm>();
};

TEST_F(SpecialFilerTest, ItemsOfSeveralClassesComeBack) {
  FillMixed();
  const auto copy = Make<TFiledItems>(nullptr);
  ReadValue(ValueOf(Items()), *copy);
  EXPECT_EQ("a b#5/6 c", copy->Text());
  EXPECT_EQ(TFiledItem::Class(), copy->GetItem(0)->ClassType());
  EXPECT_EQ(TNumberedItem::Class(), copy->GetItem(1)->ClassType());
}

TEST_F(SpecialFilerTest, TheTextOfAFormIsACollectionWhoseItemsNameTheirClasses) {
  FillMixed();
  EXPECT_EQ(
      "object TFiledForm\n"
      "  HItems = <\n"
      "    item\n"
      "      ClassName = 'TFiledItem'\n"
      "      Name = 'a'\n"
      "    end\n"
      "    item\n"
      "      ClassName = 'TNumberedItem'\n"
      "      Name = 'b'\n"
      "      Number = 5\n"
      "      Defined = 6\n"
      "    end\n"
      "    item\n"
      "      ClassName = 'TFiledItem'\n"
      "      Name = 'c'\n"
      "    end>\n"
      "  Behind = 7\n"
      "end\n",
      TextOf(FForm.get()));
}

TEST_F(SpecialFilerTest, AFormComesBackThroughText) {
  FillMixed();
  TReader reader(BinaryOf(TextOf(FForm.get()).c_str()));
  EXPECT_EQ("a b#5/6 c", reader.ReadRoot<TFiledForm>()->Items->Text());
}

TEST_F(SpecialFilerTest, IsOneValueThatOthersPassOver) {
  FillMixed();
  TWriter writer;
  TGSpecialFiler::WriteCollection(writer, Items());
  writer.WriteInteger(7);
  TReader reader(writer.Data());
  reader.SkipValue();
  EXPECT_EQ(7, reader.ReadInteger());
}

TEST_F(SpecialFilerTest, ReadsExactlyOneValue) {
  FillMixed();
  TWriter writer;
  TGSpecialFiler::WriteCollection(writer, Items());
  writer.WriteInteger(7);
  TReader reader(writer.Data());
  TGSpecialFiler::ReadCollection(reader, Items());
  EXPECT_EQ(7, reader.ReadInteger());
}

TEST_F(SpecialFilerTest, AnEmptyCollectionComesBackEmpty) {
  const QByteArray value = ValueOf(Items());
  FillMixed();
  ReadValue(value, Items());
  EXPECT_EQ(0, Items().GetCount());
}

TEST_F(SpecialFilerTest, TheFormerItemsAreReplacedInOneBracket) {
  FillMixed();
  const QByteArray value = ValueOf(Items());
  Items().AddNamed(TFiledItem::Class(), "d");
  Items().Updates = 0;
  ReadValue(value, Items());
  EXPECT_EQ("a b#5/6 c", Items().Text());
  EXPECT_EQ(1, Items().Updates);
  EXPECT_EQ(0, Items().GetUpdateCount());
}

TEST_F(SpecialFilerTest, TheItemClassNeedsNoRegistration) {
  UnRegisterClass(TFiledItem::Class());
  ReadOver(ItemText("TFiledItem", "x"));
  EXPECT_EQ("x", Items().Text());
}

TEST_F(SpecialFilerTest, NamesOfClassesDoNotRegardCase) {
  ReadOver(ItemText("TNUMBEREDITEM", "x") + ItemText("tfileditem", "y"));
  EXPECT_EQ("x#0/0 y", Items().Text());
}

// What cannot be read.

class SpecialFilerFailureTest : public SpecialFilerTest {
 protected:
  SpecialFilerFailureTest() {
    FillMixed();
    FSecond = Items().GetItem(1);
  }
  /// The former items are there, the same objects with their ids.
  void ExpectFormerItems() {
    EXPECT_EQ("a b#5/6 c", Items().Text());
    ASSERT_EQ(3, Items().GetCount());
    EXPECT_EQ(FSecond, Items().GetItem(1));
    EXPECT_EQ(1, Items().GetItem(1)->GetID());
    EXPECT_EQ(0, Items().GetUpdateCount());
  }
  /// A value with one item: its class, unless empty, and its properties.
  static QByteArray ValueWith(const QString& className, const std::function<void(TWriter&)>& properties = {}) {
    TWriter writer;
    writer.WriteCollectionBegin();
    writer.WriteListBegin();
    if (!className.isEmpty()) {
      writer.WritePropertyName(u"ClassName");
      writer.WriteString(className);
    }
    if (properties) properties(writer);
    writer.WriteListEnd();
    writer.WriteListEnd();
    return writer.Data();
  }
  template <class E>
  QString MessageOfReading(const QByteArray& value) {
    return WithoutPlace(MessageOf<E>([&] { ReadValue(value, Items()); }));
  }

  TCollectionItem* FSecond;
};

TEST_F(SpecialFilerFailureTest, AnUnknownClass) {
  EXPECT_EQ("Class TNobody not found", MessageOfReading<EClassNotFound>(ValueWith("TNobody")));
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, AForeignClass) {
  EXPECT_EQ("Class TForeignItem does not inherit from TFiledItem",
            MessageOfReading<EReadError>(ValueWith("TForeignItem")));
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, AnAncestorOfTheItemClass) {
  EXPECT_EQ("Class TCollectionItem does not inherit from TFiledItem",
            MessageOfReading<EReadError>(ValueWith("TCollectionItem")));
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, AnItemWithoutAClass) {
  EXPECT_EQ("ClassName expected", MessageOfReading<EReadError>(ValueWith("")));
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, AnItemThatDoesNotBeginWithItsClass) {
  EXPECT_EQ("ClassName expected", MessageOfReading<EReadError>(ValueWith("", [](TWriter& writer) {
              writer.WritePropertyName(u"Name");
              writer.WriteString("x");
            })));
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, AClassThatIsNoText) {
  const QByteArray value = ValueWith("", [](TWriter& writer) {
    writer.WritePropertyName(u"ClassName");
    writer.WriteInteger(1);
  });
  EXPECT_THROW(ReadValue(value, Items()), EReadError);
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, APropertyThatIsRefused) {
  const QByteArray value = ValueWith("TNumberedItem", [](TWriter& writer) {
    writer.WritePropertyName(u"Name");
    writer.WriteString("bad");
  });
  EXPECT_TRUE(MessageOfReading<EReadError>(value).endsWith(QLatin1String("Name: refused")));
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, APropertyThatIsUnknown) {
  const QByteArray value = ValueWith("TFiledItem", [](TWriter& writer) {
    writer.WritePropertyName(u"Number");
    writer.WriteInteger(1);
  });
  EXPECT_THROW(ReadValue(value, Items()), EReadError);
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, TheErrorOfAFormNamesThePropertyAndTheFormHasItsItemsBack) {
  const std::string items = ItemText("TFiledItem", "x") + ItemText("TNobody", "y");
  EXPECT_EQ("Error reading F.HItems: Class TNobody not found",
            WithoutPlace(MessageOf<EReadError>([&] { ReadOver(items); })));
  EXPECT_EQ("a b#5/6 c", Items().Text());
}

TEST_F(SpecialFilerFailureTest, AnotherValue) {
  TWriter writer;
  writer.WriteInteger(1);
  EXPECT_THROW(ReadValue(writer.Data(), Items()), EReadError);
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, AValueThatIsCutOff) {
  const QByteArray value = ValueOf(Items());
  EXPECT_THROW(ReadValue(value.left(value.size() - 1), Items()), EReadError);
  ExpectFormerItems();
}

TEST_F(SpecialFilerFailureTest, ACollectionThatASetterFrees) {
  auto items = Make<TFiledItems>(nullptr);
  items->AddNamed(TFiledItem::Class(), "a");
  const auto source = Make<TFiledItems>(nullptr);
  TFiledItem::OnFatal = [] {};
  source->AddNamed(TFiledItem::Class(), "fatal");
  source->AddNamed(TFiledItem::Class(), "b");
  const QByteArray value = ValueOf(*source);
  TFiledItem::OnFatal = [&] { items = nullptr; };
  TFiledItems& target = *items;
  EXPECT_THROW(ReadValue(value, target), Exception);
  EXPECT_EQ(nullptr, items);
}

}  // namespace
}  // namespace kt::tests
