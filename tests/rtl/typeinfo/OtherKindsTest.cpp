// Properties of the kinds that no C++ type of a property has by itself: arrays, records, dynamic arrays. They come with
// class infos that are made at run time.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"
#include "support/FormText.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TextOf;
using tests::WithoutPlace;

const TClassInfo* ClassOfOthers();

class TOthers : public TComponent {
 public:
  const TClassInfo* ClassType() const override { return ClassOfOthers(); }
  Variant Dynamic;

 protected:
  explicit TOthers(TComponent* owner = nullptr) : TComponent(owner) {}
};

/// A road that nobody may take.
std::unique_ptr<TPropAccess> ClosedRoad() {
  return std::make_unique<TFunctionAccess<qint64>>(
      [](TObject&) -> qint64 { throw EInvalidOperation(QStringLiteral("read")); },
      [](TObject&, const qint64&) { throw EInvalidOperation(QStringLiteral("written")); });
}

std::unique_ptr<TPropAccess> DynamicRoad() {
  return std::make_unique<TFunctionAccess<Variant>>(
      [](TObject& object) { return static_cast<TOthers&>(object).Dynamic; },
      [](TObject& object, const Variant& value) { static_cast<TOthers&>(object).Dynamic = value; });
}

const TClassInfo* ClassOfOthers() {
  static const TArrayTypeInfo array(tkArray, QStringLiteral("TArray"), TypeInfoOf<int>());
  static const TArrayTypeInfo dynamic(tkDynArray, QStringLiteral("TDynamic"), TypeInfoOf<int>());
  static const TTypeInfo record(tkRecord, QStringLiteral("TRecord"));
  static const TTypeInfo unknown(tkUnknown, QStringLiteral("TNothing"));
  static const TClassInfo info = [] {
    TClassInfo::TDefinition definition{QStringLiteral("TOthers"), TComponent::Class()};
    definition.Properties.push_back({QStringLiteral("AnArray"), [] { return &array; }, ClosedRoad()});
    definition.Properties.push_back({QStringLiteral("ARecord"), [] { return &record; }, ClosedRoad()});
    definition.Properties.push_back({QStringLiteral("Unknown"), [] { return &unknown; }, ClosedRoad()});
    definition.Properties.push_back({QStringLiteral("ADynamic"), [] { return &dynamic; }, DynamicRoad()});
    return TClassInfo(std::move(definition));
  }();
  return &info;
}

struct TCase {
  const char* Property;
  const char* Type;
};

class OtherKindsTest : public ::testing::TestWithParam<TCase> {
 protected:
  QString Name() const { return QString::fromLatin1(GetParam().Property); }
  QString Refusal() const { return QStringLiteral("Invalid property type: ") + QString::fromLatin1(GetParam().Type); }

  std::unique_ptr<TOthers> Object = Make<TOthers>();
};

INSTANTIATE_TEST_SUITE_P(Kinds, OtherKindsTest,
                         ::testing::Values(TCase{"AnArray", "TArray"}, TCase{"ARecord", "TRecord"},
                                           TCase{"Unknown", "TNothing"}));

TEST_P(OtherKindsTest, NoOperationOfAnotherKindTakesIt) {
  TObject* object = Object.get();
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetOrdProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { SetOrdProp(object, Name(), 1); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetInt64Prop(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetFloatProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetStrProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetEnumProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetSetProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetObjectProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetMethodProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetInterfaceProp(object, Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyError>([&] { GetVariantProp(object, Name()); }));
}

TEST_P(OtherKindsTest, ItHasNoVariantForm) {
  EXPECT_EQ(Refusal(), MessageOf<EPropertyConvertError>([&] { GetPropValue(Object.get(), Name()); }));
  EXPECT_EQ(Refusal(), MessageOf<EPropertyConvertError>([&] { SetPropValue(Object.get(), Name(), Variant(1)); }));
}

TEST_P(OtherKindsTest, ItIsPublishedAndListedAllTheSame) {
  EXPECT_TRUE(IsPublishedProp(Object.get(), Name()));
  const TTypeKind kind = PropType(Object.get(), Name());
  EXPECT_EQ(1u, GetPropList(Object->ClassType(), {kind}).size());
}

TEST_P(OtherKindsTest, AFormCannotGiveItAValue) {
  const QByteArray text = QByteArray("object O: TOthers\n  ") + GetParam().Property + " = 1\nend\n";
  TReader reader(BinaryOf(text));
  EXPECT_EQ(QStringLiteral("Error reading O.") + Name() + QStringLiteral(": ") + Refusal(),
            WithoutPlace(MessageOf<EReadError>([&] { reader.ReadRootComponent(Object.get()); })));
}

TEST(DynamicArrayTest, ItGoesAsAVariant) {
  const auto object = Make<TOthers>();
  SetVariantProp(object.get(), u"ADynamic", Variant(5));
  EXPECT_EQ(5, GetVariantProp(object.get(), u"ADynamic").ToInt64());
  SetPropValue(object.get(), u"ADynamic", Variant(6));
  EXPECT_EQ(6, GetPropValue(object.get(), u"ADynamic").ToInt64());
}

TEST(DynamicArrayTest, TheOtherKindsAreNotWritten) {
  const auto object = Make<TOthers>();
  object->Dynamic = Variant(5);
  EXPECT_EQ("object TOthers\nend\n", TextOf(object.get()));
}

TEST(DynamicArrayTest, AFormCannotGiveItAValue) {
  const auto object = Make<TOthers>();
  TReader reader(BinaryOf("object O: TOthers\n  ADynamic = 1\nend\n"));
  EXPECT_EQ(QStringLiteral("Error reading O.ADynamic: Invalid property type: TDynamic"),
            WithoutPlace(MessageOf<EReadError>([&] { reader.ReadRootComponent(object.get()); })));
}

TEST(DynamicArrayTest, ItsTypeKnowsThatOfItsElements) {
  const TPropInfo* property = FindPropInfo(Make<TOthers>().get(), u"ADynamic");
  EXPECT_EQ(TypeInfoOf<int>(), static_cast<const TArrayTypeInfo*>(property->PropType())->ElementType());
}

}  // namespace
}  // namespace kt
