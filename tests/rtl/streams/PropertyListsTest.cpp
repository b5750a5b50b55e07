// Lists of properties that a class writes and reads by hand, such as those of items of mixed classes.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TextOf;
using tests::TSample;
using tests::TSampleItem;
using tests::TSamplePart;
using tests::WithoutPlace;

class TShape : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class() {
    static const TClassInfo info =
        TClassBuilder<TShape>("TShape").Property<&TShape::Left>("Left").Default(0).Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  int Left = 0;

 protected:
  explicit TShape(TCollection* collection) : TCollectionItem(collection) {}
};

class TCircle : public TShape {
 public:
  using Inherited = TShape;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TCircle>("TCircle")
                                       .Property<&TCircle::Radius>("Radius")
                                       .Property<&TCircle::Partner>("Partner")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  double Radius = 0;
  TComponent* Partner = nullptr;

 protected:
  explicit TCircle(TCollection* collection) : TShape(collection) {}
};

class TLabelShape : public TShape {
 public:
  using Inherited = TShape;
  static const TClassInfo* Class() {
    static const TClassInfo info =
        TClassBuilder<TLabelShape>("TLabelShape").Property<&TLabelShape::GetPart>("Part").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  TSamplePart& GetPart() { return *FPart; }
  QString Secret;

 protected:
  explicit TLabelShape(TCollection* collection) : TShape(collection), FPart(Make<TSamplePart>()) {}
  void DefineProperties(TFiler& filer) override {
    filer.DefineProperty(
        u"Secret", [this](TReader& reader) { Secret = reader.ReadString(); },
        [this](TWriter& writer) { writer.WriteString(Secret); }, !Secret.isEmpty());
  }

 private:
  std::unique_ptr<TSamplePart> FPart;
};

class TShapes : public TCollection {
 public:
  using Inherited = TCollection;

 protected:
  TShapes() : TCollection(TShape::Class()) {}
};

/// Streams items of mixed classes: the name of the class goes before each item's own properties.
class TDrawing : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TDrawing>("TDrawing").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  TShapes& Shapes() { return *FShapes; }
  template <class T>
  T* Add() {
    return New<T>(FShapes.get());
  }

 protected:
  explicit TDrawing(TComponent* owner = nullptr) : TComponent(owner), FShapes(Make<TShapes>()) {}
  void DefineProperties(TFiler& filer) override {
    TComponent::DefineProperties(filer);
    filer.DefineProperty(
        u"Shapes", [this](TReader& reader) { Read(reader); }, [this](TWriter& writer) { Write(writer); },
        FShapes->GetCount() > 0);
  }

 private:
  void Write(TWriter& writer) {
    writer.WriteCollectionBegin();
    for (int i = 0; i < FShapes->GetCount(); ++i) {
      writer.WriteListBegin();
      writer.WritePropertyName(u"ItemClass");
      writer.WriteString(FShapes->GetItem(i)->ClassName());
      writer.WriteProperties(*FShapes->GetItem(i));
      writer.WriteListEnd();
    }
    writer.WriteListEnd();
  }
  void Read(TReader& reader) {
    FShapes->Clear();
    reader.ReadCollectionBegin();
    while (!reader.EndOfList()) {
      reader.ReadItemBegin();
      if (reader.ReadPropertyName() != u"ItemClass") throw EReadError(QStringLiteral("class expected"));
      auto* item = static_cast<TShape*>(FindClass(reader.ReadString())->CreateInstance(FShapes.get()));
      reader.ReadProperties(*item);
      reader.ReadListEnd();
    }
    reader.ReadListEnd();
  }

  std::unique_ptr<TShapes> FShapes;
};

class PropertyListsTest : public ::testing::Test {
 protected:
  PropertyListsTest() {
    RegisterClasses({TDrawing::Class(), TCircle::Class(), TLabelShape::Class(), TSample::Class()});
  }
  ~PropertyListsTest() override {
    UnRegisterClasses({TDrawing::Class(), TShape::Class(), TCircle::Class(), TLabelShape::Class(), TSample::Class()});
  }

  static std::unique_ptr<TDrawing> Load(const char* text) {
    TReader reader(BinaryOf(text));
    return reader.ReadRoot<TDrawing>();
  }

  static std::unique_ptr<TDrawing> MixedDrawing() {
    auto drawing = Make<TDrawing>();
    drawing->SetName(QStringLiteral("D"));
    auto* circle = drawing->Add<TCircle>();
    circle->Radius = 2.5;
    circle->Partner = drawing.get();
    auto* label = drawing->Add<TLabelShape>();
    label->Left = 7;
    label->GetPart().SetSize(12);
    label->Secret = QStringLiteral("s");
    return drawing;
  }
};

constexpr char MixedText[] =
    "object D: TDrawing\n"
    "  Shapes = <\n"
    "    item\n"
    "      ItemClass = 'TCircle'\n"
    "      Radius = 2.500000000000000000\n"
    "      Partner = Owner\n"
    "    end\n"
    "    item\n"
    "      ItemClass = 'TLabelShape'\n"
    "      Left = 7\n"
    "      Part.Size = 12\n"
    "      Secret = 's'\n"
    "    end>\n"
    "end\n";

TEST_F(PropertyListsTest, ItemsOfMixedClassesAreWrittenWithTheirClasses) {
  EXPECT_EQ(MixedText, TextOf(MixedDrawing().get()));
}

TEST_F(PropertyListsTest, ItemsOfMixedClassesComeBackThroughText) {
  const auto copy = Load(MixedText);
  ASSERT_EQ(2, copy->Shapes().GetCount());
  auto* circle = dynamic_cast<TCircle*>(copy->Shapes().GetItem(0));
  auto* label = dynamic_cast<TLabelShape*>(copy->Shapes().GetItem(1));
  ASSERT_TRUE(circle && label);
  EXPECT_EQ(2.5, circle->Radius);
  EXPECT_EQ(copy.get(), circle->Partner);
  EXPECT_EQ(12, label->GetPart().GetSize());
  EXPECT_EQ(QStringLiteral("s"), label->Secret);
  EXPECT_EQ(MixedText, TextOf(copy.get()));
}

TEST_F(PropertyListsTest, AnIndexBeforeAnItemIsPassedOver) {
  EXPECT_EQ(1, Load("object D: TDrawing\n  Shapes = <\n    item [3]\n      ItemClass = 'TCircle'\n    end>\nend\n")
                   ->Shapes()
                   .GetCount());
}

TEST_F(PropertyListsTest, AnErrorInAnItemNamesItsPropertyAndTheOneAroundIt) {
  EXPECT_EQ(
      QStringLiteral("Error reading D.Shapes: Error reading TCollection[0].Nonsense: Property Nonsense does not exist"),
      WithoutPlace(MessageOf<EReadError>([] {
        Load(
            "object D: TDrawing\n  Shapes = <\n    item\n      ItemClass = 'TCircle'\n      Nonsense = 1\n"
            "    end>\nend\n");
      })));
}

TEST_F(PropertyListsTest, TheItemsOfADescendantAreNotComparedWithItsAncestor) {
  const auto ancestor = MixedDrawing();
  const auto descendant = MixedDrawing();
  TWriter writer;
  writer.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_NE(std::string::npos, TextOf(writer.Data()).find("Radius = 2.5"));
}

TEST_F(PropertyListsTest, PropertiesThatEqualTheGivenAncestorAreLeftOut) {
  const auto ancestor = Make<TSamplePart>();
  const auto part = Make<TSamplePart>();
  ancestor->SetSize(9);
  ancestor->SetTitle(QStringLiteral("old"));
  part->SetSize(9);
  part->SetTitle(QStringLiteral("new"));
  TWriter writer;
  writer.WriteProperties(*part, ancestor.get());
  writer.WriteListEnd();
  EXPECT_EQ(QByteArray("\5Title\6\3new\0", 12), writer.Data());
}

TEST_F(PropertyListsTest, ASinglePersistentIsReadWithoutAForm) {
  const auto part = Make<TSamplePart>();
  TReader reader(QByteArray("\5Title\6\3new\4Size\2\11\0", 19));
  reader.ReadProperties(*part);
  reader.ReadListEnd();
  EXPECT_EQ(QStringLiteral("new"), part->GetTitle());
  EXPECT_EQ(9, part->GetSize());
}

TEST_F(PropertyListsTest, ReferencesReadWithoutAFormAreFoundInTheRoot) {
  const auto root = Make<TSample>();
  auto* other = New<TSample>(root.get());
  other->SetName(QStringLiteral("Other"));
  TReader reader(QByteArray("\7Partner\7\5Other\0", 16));
  reader.SetRoot(root.get());
  reader.ReadProperties(*root);
  EXPECT_EQ(other, root->Partner);
}

TEST_F(PropertyListsTest, ACollectionIsReadWithoutAForm) {
  const auto sample = Make<TSample>();
  sample->GetItems().AddItem(QStringLiteral("one"));
  sample->GetItems().AddItem(QStringLiteral("two"));
  TWriter writer;
  writer.WriteCollection(sample->GetItems());
  const auto copy = Make<TSample>();
  TReader reader(writer.Data());
  reader.ReadCollectionBegin();
  reader.ReadCollection(copy->GetItems());
  ASSERT_EQ(2, copy->GetItems().GetCount());
  EXPECT_EQ(QStringLiteral("two"), copy->GetItems().ItemAt(1)->GetCaption());
}

TEST_F(PropertyListsTest, AMethodReadWithoutARootIsNone) {
  const auto sample = Make<TSample>();
  TReader reader(QByteArray("\10OnAction\7\14HandleAction\0", 24));
  EXPECT_EQ(QStringLiteral("Error reading TSample.OnAction: Invalid property value"),
            WithoutPlace(MessageOf<EReadError>([&] { reader.ReadProperties(*sample); })));
}

TEST_F(PropertyListsTest, ADamagedListIsRefusedBeforeTheObjectIsTouched) {
  const auto part = Make<TSamplePart>();
  TReader reader(QByteArray("\4Size\2\11\5Title\6\3ne", 17));
  EXPECT_EQ(QStringLiteral("Stream read error at offset 15 (TSamplePart.Title)"),
            MessageOf<EReadError>([&] { reader.ReadProperties(*part); }));
  EXPECT_EQ(8, part->GetSize());
}

TEST_F(PropertyListsTest, ACollectionNestedTooDeepIsRefusedBeforeItIsTouched) {
  const auto sample = Make<TSample>();
  sample->GetItems().AddItem(QStringLiteral("old"));
  TReader reader(QByteArray("\16") + QByteArray("\1\10Children\16", 11).repeated(100'000));
  reader.ReadCollectionBegin();
  EXPECT_TRUE(MessageOf<EReadError>([&] {
                reader.ReadCollection(sample->GetItems());
              }).startsWith(QStringLiteral("Nesting deeper than ")));
  EXPECT_EQ(1, sample->GetItems().GetCount());
}

}  // namespace
}  // namespace kt
