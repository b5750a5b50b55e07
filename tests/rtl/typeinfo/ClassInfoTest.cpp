#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSample;
using tests::TSamplePart;

/// Publishes an inherited property again, with another default.
class TBigPart : public TSamplePart {
 public:
  using Inherited = TSamplePart;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TBigPart>("TBigPart")
                                       .Property<&TBigPart::GetSize, &TBigPart::SetSize>("Size")
                                       .Default(80)
                                       .Property<&TBigPart::GetWeight>("Weight")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  int GetWeight() const { return 1; }

 protected:
  TBigPart() = default;
};

QString Names(const std::vector<const TPropInfo*>& properties) {
  QStringList names;
  for (const TPropInfo* property : properties) names.append(property->Name());
  return names.join(u' ');
}

TEST(ClassInfoTest, PropertiesAreFoundWithoutRegardToCase) {
  EXPECT_EQ(QStringLiteral("Title"), TSamplePart::Class()->FindProp(u"tITLE")->Name());
  EXPECT_EQ(nullptr, TSamplePart::Class()->FindProp(u"Tit"));
}

TEST(ClassInfoTest, InheritedPropertiesComeFirst) {
  EXPECT_EQ(QStringLiteral("Size Title Style Weight"), Names(TBigPart::Class()->Props()));
}

TEST(ClassInfoTest, APropertyPublishedAgainTakesTheInheritedPlace) {
  EXPECT_EQ(80, TBigPart::Class()->Props().front()->Default());
  EXPECT_EQ(80, TBigPart::Class()->FindProp(u"Size")->Default());
  EXPECT_EQ(8, TSamplePart::Class()->FindProp(u"Size")->Default());
}

TEST(ClassInfoTest, APropertyWithoutADeclaredDefaultSaysSo) {
  EXPECT_FALSE(TSamplePart::Class()->FindProp(u"Title")->HasDefault());
  EXPECT_TRUE(TSamplePart::Class()->FindProp(u"Size")->HasDefault());
}

TEST(ClassInfoTest, APropertyWithoutASetterIsReadOnly) {
  EXPECT_FALSE(TBigPart::Class()->FindProp(u"Weight")->IsWritable());
  EXPECT_TRUE(TBigPart::Class()->FindProp(u"Size")->IsWritable());
}

TEST(ClassInfoTest, AnAbstractClassCannotBeCreatedByReference) {
  EXPECT_EQ(QStringLiteral("Class TCollection cannot be created by name"),
            MessageOf<EInvalidCast>([] { TCollection::Class()->CreateInstance(nullptr); }));
}

TEST(ClassInfoTest, AComponentCreatedByReferenceBelongsToTheGivenOwner) {
  const auto owner = Make<TComponent>();
  TObject* made = TSample::Class()->CreateInstance(owner.get());
  EXPECT_EQ(made, owner->GetComponents(0));
}

TEST(ClassInfoTest, APublishedMethodIsFoundByNameAndNamed) {
  const auto sample = Make<TSample>();
  const TMethod method = TSample::Class()->FindMethod(u"handleaction", sample.get());
  EXPECT_EQ(TNotifyEvent(sample.get(), &TSample::HandleAction), method);
  EXPECT_EQ(QStringLiteral("HandleAction"), TSample::Class()->MethodName(method));
  EXPECT_TRUE(TSample::Class()->FindMethod(u"NoSuch", sample.get()).IsEmpty());
}

TEST(ClassInfoTest, AFunctionObjectHasNoMethodName) {
  EXPECT_EQ(QString(), TSample::Class()->MethodName(TNotifyEvent([](TObject*) {})));
}

/// An object whose class is made at run time: its property lives in a map of its own.
class TDynamic : public TPersistent {
 public:
  explicit TDynamic(const TClassInfo* classInfo) : FClass(classInfo) {}
  const TClassInfo* ClassType() const override { return FClass; }
  qint64 Value = 3;

 private:
  const TClassInfo* FClass;
};

std::unique_ptr<TClassInfo> RunTimeClass() {
  TClassInfo::TDefinition definition;
  definition.Name = QStringLiteral("TMadeUp");
  definition.Parent = TPersistent::Class();
  definition.Properties.push_back(
      {.Name = QStringLiteral("Level"),
       .Type = &TypeInfoOf<int>,
       .Access = std::make_unique<TFunctionAccess<qint64>>(
           [](TObject& object) { return static_cast<TDynamic&>(object).Value; },
           [](TObject& object, qint64 value) { static_cast<TDynamic&>(object).Value = value; })});
  return std::make_unique<TClassInfo>(std::move(definition));
}

TEST(ClassInfoTest, AClassMadeAtRunTimeIsReadAndWrittenLikeAnyOther) {
  const auto classInfo = RunTimeClass();
  const auto object = Make<TDynamic>(classInfo.get());
  SetOrdProp(object.get(), u"Level", 9);
  EXPECT_EQ(9, GetOrdProp(object.get(), u"Level"));
  EXPECT_EQ(QStringLiteral("TMadeUp"), object->ClassName());
  EXPECT_TRUE(object->InheritsFrom(TPersistent::Class()));
}

}  // namespace
}  // namespace kt
