// Forms that are well formed, with values, paths and classes that do not fit the objects.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using namespace kt::tests;

class ReaderValuesTest : public ::testing::Test {
 protected:
  ReaderValuesTest() { RegisterClasses({TSample::Class(), TSamplePart::Class()}); }
  ~ReaderValuesTest() override {
    EXPECT_EQ(0, TSample::Alive);
    UnRegisterClasses({TSample::Class(), TSamplePart::Class()});
  }

  static std::unique_ptr<TComponent> Load(const QByteArray& form, TUnknownPolicy unknown = upRaise) {
    TReader reader(BinaryOf(form.constData()));
    reader.UnknownProperties = unknown;
    return std::unique_ptr<TComponent>(reader.ReadRootComponent(nullptr));
  }
  static QByteArray SampleWith(const char* property) {
    return QByteArray("object S: TSample\n  ") + property + "\n  Small = 0\n  Color = 0\n  Items = <>\nend\n";
  }
  static QString ErrorOf(const char* property) {
    return WithoutPlace(MessageOf<EReadError>([property] { Load(SampleWith(property)); }));
  }
};

TEST_F(ReaderValuesTest, AnUnknownStepOnAPathIsAnUnknownProperty) {
  EXPECT_EQ(QStringLiteral("Error reading S.NoSuch.Size: Property NoSuch does not exist"), ErrorOf("NoSuch.Size = 1"));
}

TEST_F(ReaderValuesTest, APathWithAnUnknownStepCanBeSkipped) {
  EXPECT_EQ(SampleWith("Whole = 1").toStdString(),
            TextOf(Load(SampleWith("NoSuch.Size = 1\n  Whole = 1"), upSkip).get()));
}

TEST_F(ReaderValuesTest, APathWithAnUnknownStepCanBeKept) {
  EXPECT_NE(std::string::npos, TextOf(Load(SampleWith("NoSuch.Size = 1"), upKeep).get()).find("\n  NoSuch.Size = 1\n"));
}

TEST_F(ReaderValuesTest, ItemsAreNoValueOfAReference) {
  EXPECT_EQ(QStringLiteral("Error reading S.Partner: Invalid property value"), ErrorOf("Partner = <item end>"));
}

TEST_F(ReaderValuesTest, ACharacterIsNeitherTwoNorNone) {
  EXPECT_EQ(QStringLiteral("Error reading S.Letter: Invalid property value"), ErrorOf("Letter = 'ab'"));
  EXPECT_EQ(QStringLiteral("Error reading S.WideLetter: Invalid property value"), ErrorOf("WideLetter = ''"));
}

TEST_F(ReaderValuesTest, AClassThatIsNoComponentIsAnErrorWithItsPlace) {
  EXPECT_EQ(QStringLiteral("Invalid class typecast at offset 4 (P)"),
            MessageOf<EInvalidCast>([] { Load("object P: TSamplePart\nend\n"); }));
  EXPECT_EQ(QStringLiteral("Invalid class typecast at offset 15 (S.P)"),
            MessageOf<EInvalidCast>([] { Load("object S: TSample\n  object P: TSamplePart\n  end\nend\n"); }));
}

}  // namespace
}  // namespace kt
