// Every registered class that can be created, with every property, through the binary and the text format.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::TextOf;

/// Takes any persistent object through a form, between its own properties.
class TCarrier : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TCarrier>("TCarrier").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  TPersistent* Load = nullptr;

 protected:
  explicit TCarrier(TComponent* owner = nullptr) : TComponent(owner) {}
  void DefineProperties(TFiler& filer) override {
    filer.DefineProperty(
        u"Load",
        [this](TReader& reader) {
          reader.ReadCollectionBegin();
          reader.ReadItemBegin();
          reader.ReadProperties(*Load);
          reader.ReadListEnd();
          reader.ReadListEnd();
        },
        [this](TWriter& writer) {
          writer.WriteCollectionBegin();
          writer.WriteListBegin();
          writer.WriteProperties(*Load);
          writer.WriteListEnd();
          writer.WriteListEnd();
        },
        true);
  }
};

/// The smallest other ordinal that the type has.
qint64 OtherOrdinal(const TTypeInfo* type, qint64 present) {
  if (type->Kind() == tkSet) return present ^ 1;
  const TOrdTypeInfo* range = OrdTypeOf(type);
  if (IsBoolType(type)) return present == 0 ? (range->MinValue() < 0 ? -1 : 1) : 0;
  return present < range->MaxValue() ? present + 1 : range->MinValue();
}

void ChangeProperty(TPersistent* object, const TPropInfo* property);

void ChangeObject(TPersistent* object) {
  for (const TPropInfo* property : object->ClassType()->Props()) ChangeProperty(object, property);
  if (auto* collection = dynamic_cast<TCollection*>(object)) {
    TCollectionItem* item = collection->Add();
    for (const TPropInfo* property : item->ClassType()->Props()) {
      // One level of items: theirs would go on without end.
      if (property->Kind() != tkClass) ChangeProperty(item, property);
    }
  }
  if (auto* strings = dynamic_cast<TStrings*>(object)) strings->Add(QStringLiteral("line"));
}

/// Gives a property another value than it has.
void ChangeProperty(TPersistent* object, const TPropInfo* property) {
  if (property->Kind() == tkClass && property->IsReadable()) {
    auto* value = dynamic_cast<TPersistent*>(GetObjectProp(object, property));
    if (value && !dynamic_cast<TComponent*>(value)) ChangeObject(value);
    return;
  }
  if (!property->IsReadable() || !property->IsWritable()) return;
  switch (property->Kind()) {
    case tkInteger:
    case tkChar:
    case tkWChar:
    case tkEnumeration:
    case tkSet:
      return SetOrdProp(object, property, OtherOrdinal(property->PropType(), GetOrdProp(object, property)));
    case tkInt64:
      return SetInt64Prop(object, property, GetInt64Prop(object, property) + 1);
    case tkFloat:
      return SetFloatProp(object, property, GetFloatProp(object, property) + 0.5);
    case tkString:
    case tkLString:
    case tkWString:
      return SetStrProp(object, property, GetStrProp(object, property) + u'x');
    case tkVariant:
      return SetVariantProp(object, property, Variant(QStringLiteral("varied")));
    default:
      return;
  }
}

/// What the readable properties hold, one a line, by path.
void Describe(TPersistent* object, const QString& path, QString& text) {
  for (const TPropInfo* property : object->ClassType()->Props()) {
    if (!property->IsReadable() || !IsStoredProp(object, property)) continue;
    const QString name = path + property->Name();
    if (property->Kind() == tkClass) {
      auto* value = dynamic_cast<TPersistent*>(GetObjectProp(object, property));
      if (value && !dynamic_cast<TComponent*>(value)) Describe(value, name + u'.', text);
    } else if (property->Kind() == tkFloat) {
      text += name + u'=' + QString::number(GetFloatProp(object, property), 'g', 17) + u'\n';
    } else if (property->Kind() != tkMethod && property->Kind() != tkInterface) {
      text += name + u'=' + VarToStr(GetPropValue(object, property)) + u'\n';
    }
  }
  if (auto* collection = dynamic_cast<TCollection*>(object)) {
    for (int i = 0; i < collection->GetCount(); ++i) {
      Describe(collection->GetItem(i), path + u'[' + QString::number(i) + QStringLiteral("]."), text);
    }
  }
  if (auto* strings = dynamic_cast<TStrings*>(object)) text += path + strings->GetText();
}

/// An instance with the collection, if its class needs one, that owns it.
struct TMade {
  std::unique_ptr<TCollection> Collection;
  std::unique_ptr<TPersistent> Own;
  TPersistent* Object = nullptr;
};

class THolder : public TCollection {
 public:
  using Inherited = TCollection;

 protected:
  explicit THolder(const TClassInfo* itemClass) : TCollection(itemClass) {}
};

TMade MakeOf(const TClassInfo* classInfo) {
  TMade made;
  if (classInfo->InheritsFrom(TCollectionItem::Class())) {
    made.Collection = Make<THolder>(classInfo);
    made.Object = made.Collection->Add();
  } else {
    made.Own.reset(static_cast<TPersistent*>(classInfo->CreateInstance(nullptr)));
    made.Object = made.Own.get();
  }
  return made;
}

QString DescriptionOf(TPersistent* object) {
  QString text;
  Describe(object, QString(), text);
  return text;
}

void RegisterWalked() {
  RegisterClasses({tests::TSample::Class(), tests::TSamplePart::Class(), tests::TSampleItem::Class(),
                   tests::TSampleItems::Class(), TStringList::Class(), TCarrier::Class()});
}

void UnregisterWalked() {
  UnRegisterClasses({tests::TSample::Class(), tests::TSamplePart::Class(), tests::TSampleItem::Class(),
                     tests::TSampleItems::Class(), TStringList::Class(), TCarrier::Class()});
}

/// The names of all registered classes that can be created.
std::vector<QString> CreatableNames() {
  RegisterWalked();
  std::vector<QString> names;
  for (const TClassInfo* classInfo : RegisteredClasses()) {
    if (classInfo->IsCreatable() && classInfo != TCarrier::Class()) names.push_back(classInfo->ClassName());
  }
  UnregisterWalked();
  return names;
}

class PropertyWalkTest : public ::testing::TestWithParam<QString> {
 protected:
  PropertyWalkTest() { RegisterWalked(); }
  ~PropertyWalkTest() override { UnregisterWalked(); }

  static QByteArray Written(TPersistent* object) {
    const auto carrier = Make<TCarrier>();
    carrier->Load = object;
    return WriteComponentToBinary(carrier.get());
  }
  static QString DescriptionAfterReading(const QByteArray& binary) {
    const TMade copy = MakeOf(FindClass(GetParam()));
    const auto carrier = Make<TCarrier>();
    carrier->Load = copy.Object;
    TReader reader(binary);
    reader.ReadRootComponent(carrier.get());
    return DescriptionOf(copy.Object);
  }
};

TEST_P(PropertyWalkTest, AFreshInstanceHasItsDeclaredDefaults) {
  const TMade made = MakeOf(FindClass(GetParam()));
  QString wrong;
  for (const TPropInfo* property : made.Object->ClassType()->Props()) {
    const bool isKnown = property->HasDefault() && property->IsReadable() && property->Kind() != tkClass;
    if (isKnown && GetOrdProp(made.Object, property) != property->Default()) wrong += property->Name() + u' ';
  }
  EXPECT_EQ(QString(), wrong);
}

TEST_P(PropertyWalkTest, EveryChangedPropertyComesBackThroughBinary) {
  const TMade made = MakeOf(FindClass(GetParam()));
  ChangeObject(made.Object);
  EXPECT_EQ(DescriptionOf(made.Object), DescriptionAfterReading(Written(made.Object)));
}

TEST_P(PropertyWalkTest, EveryChangedPropertyComesBackThroughText) {
  const TMade made = MakeOf(FindClass(GetParam()));
  ChangeObject(made.Object);
  const std::string text = TextOf(Written(made.Object));
  EXPECT_EQ(DescriptionOf(made.Object), DescriptionAfterReading(BinaryOf(text.c_str())));
}

TEST_P(PropertyWalkTest, AFreshInstanceComesBackToo) {
  const TMade made = MakeOf(FindClass(GetParam()));
  EXPECT_EQ(DescriptionOf(made.Object), DescriptionAfterReading(Written(made.Object)));
}

INSTANTIATE_TEST_SUITE_P(Registered, PropertyWalkTest, ::testing::ValuesIn(CreatableNames()),
                         [](const auto& test) { return test.param.toStdString(); });

TEST(PropertyWalkCheck, TheWalkChangesWhatItComparesInAllKindsOfValues) {
  const auto sample = Make<tests::TSample>();
  const auto changed = Make<tests::TSample>();
  ChangeObject(changed.get());
  const QStringList before = DescriptionOf(sample.get()).split(u'\n');
  const QStringList after = DescriptionOf(changed.get()).split(u'\n');
  QStringList same;
  for (const QString& line : before) {
    if (!line.isEmpty() && after.contains(line)) same.append(line);
  }
  EXPECT_EQ(QStringList(), same);
}

}  // namespace
}  // namespace kt
