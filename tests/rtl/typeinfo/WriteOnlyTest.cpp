// Properties that can be set and not read. Only class infos that are made at run time have them.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropPath.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TextOf;

/// Takes values of every kind. Its class info is handed over: what can be read is decided at run time.
class TSink : public TComponent {
 public:
  const TClassInfo* ClassType() const override { return FClassInfo; }

  qint64 Ordinal = 0;
  qint64 Letter = 0;
  qint64 Choice = 0;
  qint64 Members = 0;
  qint64 Big = 0;
  long double Ratio = 0;
  QString Text;
  Variant Anything;
  TObject* Partner = nullptr;
  IInterface* Reference = nullptr;
  TMethod OnAction;
  qint64 Known = 0;

 protected:
  TSink(TComponent* owner, const TClassInfo* classInfo) : TComponent(owner), FClassInfo(classInfo) {}

 private:
  const TClassInfo* FClassInfo;
};

enum TReadability { rdNone, rdAll };

template <class V>
void Publish(TClassInfo::TDefinition& definition, const char* name, const TTypeInfo* type, V TSink::*field,
             TReadability readability) {
  typename TFunctionAccess<V>::TGetter getter;
  if (readability == rdAll) getter = [field](TObject& object) { return static_cast<TSink&>(object).*field; };
  definition.Properties.push_back(
      {QString::fromLatin1(name), [type] { return type; },
       std::make_unique<TFunctionAccess<V>>(
           std::move(getter), [field](TObject& object, const V& value) { static_cast<TSink&>(object).*field = value; }),
       0});
}

/// One property for each kind of value, and `Known`, which can always be read.
TClassInfo MakeClass(TReadability readability) {
  TClassInfo::TDefinition definition{QStringLiteral("TSink"), TComponent::Class()};
  Publish(definition, "Ordinal", TypeInfoOf<int>(), &TSink::Ordinal, readability);
  Publish(definition, "Letter", TypeInfoOf<QChar>(), &TSink::Letter, readability);
  Publish(definition, "Choice", TypeInfoOf<tests::TSampleAlign>(), &TSink::Choice, readability);
  Publish(definition, "Members", TypeInfoOf<tests::TSampleStyles>(), &TSink::Members, readability);
  Publish(definition, "Big", TypeInfoOf<qint64>(), &TSink::Big, readability);
  Publish(definition, "Ratio", TypeInfoOf<double>(), &TSink::Ratio, readability);
  Publish(definition, "Text", TypeInfoOf<QString>(), &TSink::Text, readability);
  Publish(definition, "Anything", TypeInfoOf<Variant>(), &TSink::Anything, readability);
  Publish(definition, "Partner", TypeInfoOf<TComponent*>(), &TSink::Partner, readability);
  Publish(definition, "Reference", TypeInfoOf<IInterfaceComponentReference*>(), &TSink::Reference, readability);
  Publish(definition, "OnAction", TypeInfoOf<TNotifyEvent>(), &TSink::OnAction, readability);
  Publish(definition, "Known", TypeInfoOf<int>(), &TSink::Known, rdAll);
  return TClassInfo(std::move(definition));
}

const TClassInfo* WriteOnlyClass() {
  static const TClassInfo info = MakeClass(rdNone);
  return &info;
}

const TClassInfo* OpenClass() {
  static const TClassInfo info = MakeClass(rdAll);
  return &info;
}

constexpr char kForm[] = R"(object Sink1: TSink
  Ordinal = 5
  Letter = 'x'
  Choice = saTop
  Members = [ssBold]
  Big = 6
  Ratio = 1.5
  Text = 'some'
  Anything = 7
  Partner = Sink1
  Reference = Sink1
  OnAction = nil
end
)";

class WriteOnlyTest : public ::testing::Test {
 protected:
  template <class F>
  static void ExpectWriteOnly(F read) {
    EXPECT_EQ(QStringLiteral("Property is write-only"), MessageOf<EPropWriteOnly>(read));
  }

  std::unique_ptr<TSink> Sink = Make<TSink>(nullptr, WriteOnlyClass());
  TObject* Object = Sink.get();
};

class WriteOnlyNamesTest : public WriteOnlyTest, public ::testing::WithParamInterface<const char*> {
 protected:
  const QString Name = QString::fromLatin1(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Kinds, WriteOnlyNamesTest,
                         ::testing::Values("Ordinal", "Letter", "Choice", "Members", "Big", "Ratio", "Text", "Anything",
                                           "Partner"));

TEST_P(WriteOnlyNamesTest, ItHasNoVariantForm) {
  ExpectWriteOnly([this] { GetPropValue(Object, Name); });
  ExpectWriteOnly([this] { GetPropValue(Object, Name, false); });
}

TEST_P(WriteOnlyNamesTest, ItSaysSoItself) {
  EXPECT_FALSE(FindPropInfo(Object, Name)->IsReadable());
  EXPECT_TRUE(FindPropInfo(Object, Name)->IsWritable());
}

TEST_F(WriteOnlyTest, NoGetterReadsIt) {
  ExpectWriteOnly([this] { GetOrdProp(Object, u"Ordinal"); });
  ExpectWriteOnly([this] { GetOrdProp(Object, u"Letter"); });
  ExpectWriteOnly([this] { GetOrdProp(Object, u"Partner"); });
  ExpectWriteOnly([this] { GetEnumProp(Object, u"Choice"); });
  ExpectWriteOnly([this] { GetSetProp(Object, u"Members"); });
  ExpectWriteOnly([this] { GetInt64Prop(Object, u"Big"); });
  ExpectWriteOnly([this] { GetFloatProp(Object, u"Ratio"); });
  ExpectWriteOnly([this] { GetStrProp(Object, u"Text"); });
  ExpectWriteOnly([this] { GetWideStrProp(Object, u"Text"); });
  ExpectWriteOnly([this] { GetVariantProp(Object, u"Anything"); });
  ExpectWriteOnly([this] { GetObjectProp(Object, u"Partner"); });
  ExpectWriteOnly([this] { GetInterfaceProp(Object, u"Reference"); });
  ExpectWriteOnly([this] { GetMethodProp(Object, u"OnAction"); });
}

TEST_F(WriteOnlyTest, APathDoesNotLeadThroughIt) {
  ExpectWriteOnly([this] { FindPropTarget(Object, u"Partner.Tag"); });
}

TEST_F(WriteOnlyTest, EverySetterWorks) {
  SetOrdProp(Object, u"Ordinal", 5);
  SetEnumProp(Object, u"Choice", u"saTop");
  SetSetProp(Object, u"Members", u"[ssBold]");
  SetInt64Prop(Object, u"Big", 6);
  SetFloatProp(Object, u"Ratio", 1.5);
  SetStrProp(Object, u"Text", QStringLiteral("some"));
  SetPropValue(Object, u"Anything", Variant(7));
  SetObjectProp(Object, u"Partner", Object);
  EXPECT_EQ(5, Sink->Ordinal);
  EXPECT_EQ(tests::saTop, Sink->Choice);
  EXPECT_EQ(1, Sink->Members);
  EXPECT_EQ(6, Sink->Big);
  EXPECT_EQ(1.5L, Sink->Ratio);
  EXPECT_EQ(QStringLiteral("some"), Sink->Text);
  EXPECT_EQ(7, Sink->Anything.ToInt());
  EXPECT_EQ(Object, Sink->Partner);
}

TEST_F(WriteOnlyTest, TheWriterLeavesItOut) {
  Sink->Ordinal = 5;
  Sink->Partner = Object;
  Sink->Known = 1;
  EXPECT_EQ("object TSink\n  Known = 1\nend\n", TextOf(Sink.get()));
}

TEST_F(WriteOnlyTest, AFormGivesItsValue) {
  TReader(BinaryOf(kForm)).ReadRootComponent(Sink.get());
  const auto open = Make<TSink>(nullptr, OpenClass());
  TReader(BinaryOf(kForm)).ReadRootComponent(open.get());
  EXPECT_EQ(5, Sink->Ordinal);
  EXPECT_EQ('x', Sink->Letter);
  EXPECT_EQ(tests::saTop, Sink->Choice);
  EXPECT_EQ(1, Sink->Members);
  EXPECT_EQ(6, Sink->Big);
  EXPECT_EQ(1.5L, Sink->Ratio);
  EXPECT_EQ(QStringLiteral("some"), Sink->Text);
  EXPECT_EQ(7, Sink->Anything.ToInt());
  EXPECT_EQ(Object, Sink->Partner);
  EXPECT_EQ(Sink.get(), ComponentBehind(Sink->Reference));
  EXPECT_EQ(open.get(), ComponentBehind(open->Reference));
}

TEST_F(WriteOnlyTest, AFormPutsNothingIntoTheObjectBehindIt) {
  Sink->SetName(QStringLiteral("Sink1"));
  Sink->Partner = Object;
  const QByteArray form = BinaryOf("object Sink1: TSink\n  Partner.Tag = 1\nend\n");
  EXPECT_EQ(QStringLiteral("Error reading Sink1.Partner.Tag: Property is write-only"),
            tests::WithoutPlace(MessageOf<EReadError>([&] { TReader(form).ReadRootComponent(Sink.get()); })));
}

TEST_F(WriteOnlyTest, AFailedLoadGivesBackWhatCanBeReadAndKeepsTheRest) {
  Sink->Known = 3;
  Sink->Ordinal = 4;
  const QByteArray form = BinaryOf("object TSink\n  Known = 5\n  Ordinal = 6\n  Nothing = 7\nend\n");
  EXPECT_EQ(QStringLiteral("Error reading TSink.Nothing: Property Nothing does not exist"),
            tests::WithoutPlace(MessageOf<EReadError>([&] { TReader(form).ReadRootComponent(Sink.get()); })));
  EXPECT_EQ(3, Sink->Known);
  EXPECT_EQ(6, Sink->Ordinal);
}

TEST_F(WriteOnlyTest, AnAncestorThatCannotBeReadCountsAsOneWithout) {
  Sink->Partner = Object;
  Sink->Reference = static_cast<IInterfaceComponentReference*>(Sink.get());
  const auto open = Make<TSink>(nullptr, OpenClass());
  open->SetName(QStringLiteral("Open"));
  open->Partner = open.get();
  open->Reference = static_cast<IInterfaceComponentReference*>(open.get());
  TWriter writer;
  writer.WriteRootComponent(open.get(), Sink.get());
  EXPECT_EQ("inherited Open: TSink\n  Partner = Owner\n  Reference = Owner\nend\n", TextOf(writer.Data()));
}

}  // namespace
}  // namespace kt
