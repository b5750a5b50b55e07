// What an inspector streams, and what it does while it is read.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/FormText.h"

#include <gmock/gmock.h>

namespace kt::tests {
namespace {

/// Writes down its scans, and asks for some while it is being read.
class TStreamedInspector : public TKTObjectInspector {
 public:
  using Inherited = TKTObjectInspector;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TStreamedInspector>("TStreamedInspector").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  static inline QStringList Log;
  static QString TakeLog() { return std::exchange(Log, {}).join(u' '); }

 protected:
  explicit TStreamedInspector(TComponent* owner = nullptr) : TKTObjectInspector(owner) {}

  bool BeforeScan(TKTItemProperty* item) override {
    if (!item) Log += QStringLiteral("scan");
    return TKTObjectInspector::BeforeScan(item);
  }
  void Loaded() override {
    EXPECT_TRUE(HasState(csLoading));
    Rescan();
    // Would be delivered when all is read.
    InvalidateScan();
    Log += QStringLiteral("loaded");
    TKTObjectInspector::Loaded();
  }
};

class InspectorStreamsTest : public TInspectorTest {
 protected:
  InspectorStreamsTest() {
    RegisterObjectInspector();
    RegisterClasses({TSample::Class(), TStreamedInspector::Class()});
    TStreamedInspector::Log.clear();
  }
  ~InspectorStreamsTest() override { UnRegisterClasses({TSample::Class(), TStreamedInspector::Class()}); }

  /// The inspector on the form.
  TStreamedInspector& Load(const char* form) {
    TReader reader(BinaryOf(form));
    FForm = reader.ReadRoot<TSample>();
    return *static_cast<TStreamedInspector*>(FForm->FindComponent(u"Inspector"));
  }
  static const char* FormThatInspects() {
    return "object Form: TSample\n"
           "  object Inspector: TStreamedInspector\n"
           "    Objects = <\n      item\n        Component = Other\n      end\n      item\n"
           "        Component = Form\n      end>\n"
           "  end\n"
           "  object Other: TSample\n    Whole = 5\n  end\n"
           "end\n";
  }

  std::unique_ptr<TSample> FForm;
};

TEST_F(InspectorStreamsTest, ObjectsOfAFormAreInspectedAgain) {
  TStreamedInspector& inspector = Load(FormThatInspects());
  ASSERT_EQ(2, inspector.GetObjects().GetCount());
  EXPECT_EQ(FForm->FindComponent(u"Other"), inspector.GetObjects().GetItem(0)->GetObjects());
  EXPECT_EQ(FForm.get(), inspector.GetObjects().GetItem(1)->GetObjects());
  const std::string text = TextOf(FForm.get());
  EXPECT_THAT(text, testing::HasSubstr("Component = Other"));
  // So the framework writes a reference to the form itself.
  EXPECT_THAT(text, testing::HasSubstr("Component = Owner"));
  Load(text.c_str());
  EXPECT_EQ(text, TextOf(FForm.get()));
}

TEST_F(InspectorStreamsTest, WhileItIsReadAnInspectorScansNothingAndAfterwardsOnce) {
  TStreamedInspector& inspector = Load(FormThatInspects());
  EXPECT_EQ("loaded", TStreamedInspector::TakeLog());
  EXPECT_EQ(0, inspector.GetItems().GetCount());
  Deliver();
  EXPECT_EQ("scan", TStreamedInspector::TakeLog());
  EXPECT_EQ("5", inspector.GetItems().FindItemByFullPathName("Whole")->GetValueLine(0));
  Deliver();
  EXPECT_EQ("", TStreamedInspector::TakeLog());
}

TEST_F(InspectorStreamsTest, PresetsChangeTheItemsThatWereRead) {
  TStreamedInspector& inspector = Load(
      "object Form: TSample\n"
      "  object Inspector: TStreamedInspector\n"
      "    HPresets = <\n      item\n        ClassName = 'TKTPropertyPreset'\n        PropNames.Strings = (\n"
      "          'below')\n        Hint = 'from a preset'\n        Actions = [pftHint]\n      end>\n"
      "    HItems = <\n      item\n        Name = 'own'\n        Items = <\n          item\n"
      "            Name = 'below'\n          end>\n      end>\n"
      "  end\n"
      "end\n");
  ASSERT_NE(nullptr, inspector.GetItems().FindItemByFullPathName("own.below"));
  EXPECT_EQ("from a preset", inspector.GetItems().FindItemByFullPathName("own.below")->GetHint());
  EXPECT_EQ("", inspector.GetItems().FindItemByFullPathName("own")->GetHint());
  Deliver();
  EXPECT_EQ("loaded", TStreamedInspector::TakeLog());
  EXPECT_NE(nullptr, inspector.GetItems().FindItemByFullPathName("own.below"));
}

TEST_F(InspectorStreamsTest, ComponentPresetsAndItemsAreNotWrittenUnderTheirPublishedNames) {
  const auto sample = Make<TSample>();
  sample->SetName("Sample");
  FInspector->GetPresets().Add();
  Inspect({sample.get()});
  const QString text = QString::fromStdString(TextOf(FInspector.get()));
  QStringList names;
  for (const QString& line : text.split(u'\n')) {
    // Properties of the inspector itself.
    if (line.startsWith(QLatin1StringView("  ")) && line[2] != u' ') names += line.mid(2).section(u' ', 0, 0);
  }
  for (const char* name : {"Component", "Presets", "Items"}) {
    EXPECT_FALSE(names.contains(QString::fromLatin1(name))) << name;
  }
  for (const char* name : {"Objects", "HPresets", "HItems"}) {
    EXPECT_TRUE(names.contains(QString::fromLatin1(name))) << name;
  }
}

TEST_F(InspectorStreamsTest, WithoutPresetsAndItemsNeitherIsWritten) {
  FInspector->GetPresets().Clear();
  const std::string text = TextOf(FInspector.get());
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("HPresets")));
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("HItems")));
}

TEST_F(InspectorStreamsTest, ItemsAreStreamedUnderANameOfTheirOwnAndComeBack) {
  const auto sample = Make<TSample>();
  Inspect({sample.get()});
  FInspector->GetObjects().Clear();
  Items().Add()->SetName("own");
  TKTItemProperty* item = Items().GetItem(0);
  item->SetTypeKind(tkSet);
  item->SetTypeName("TKinds");
  item->SetAllEqual(true);
  item->GetItems().Add()->SetName("below");
  const QByteArray form = WriteComponentToBinary(FInspector.get());
  EXPECT_THAT(TextOf(FInspector.get()), testing::HasSubstr("HItems = <"));
  const auto copy = Make<TKTObjectInspector>();
  TReader(form).ReadRootComponent(copy.get());
  ASSERT_EQ(1, copy->GetItems().GetCount());
  const TKTItemProperty* read = copy->GetItems().GetItem(0);
  EXPECT_EQ("own", read->GetName());
  EXPECT_EQ(tkSet, read->GetTypeKind());
  EXPECT_EQ("TKinds", read->GetTypeName());
  EXPECT_TRUE(read->IsAllEqual());
  EXPECT_EQ("below", copy->GetItems().GetItem(0)->GetItems().GetItem(0)->GetName());
}

TEST_F(InspectorStreamsTest, PresetsAreStreamedUnderANameOfTheirOwnAndComeBack) {
  FInspector->GetPresets().Clear();
  TKTPropertyPreset* preset = FInspector->GetPresets().Add();
  preset->SetName("mine");
  EXPECT_THAT(TextOf(FInspector.get()), testing::HasSubstr("HPresets"));
  const auto copy = Make<TKTObjectInspector>();
  TReader(WriteComponentToBinary(FInspector.get())).ReadRootComponent(copy.get());
  ASSERT_EQ(1, copy->GetPresets().GetCount());
  EXPECT_EQ("mine", copy->GetPresets().GetItem(0)->GetName());
}

}  // namespace
}  // namespace kt::tests
