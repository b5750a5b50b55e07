// Forms that are well formed, with values, paths and classes that do not fit the objects.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>
#include <limits>

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

TEST_F(ReaderValuesTest, AnUnknownTruthValueRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Flag: Invalid property value"), ErrorOf("Flag = Maybe"));
  EXPECT_EQ(QStringLiteral("Error reading S.Flag: Invalid property value"), ErrorOf("Flag = nil"));
  EXPECT_EQ(QStringLiteral("Error reading S.Flag: Invalid property value"), ErrorOf("Flag = Null"));
  EXPECT_EQ(QStringLiteral("Error reading S.Wide: 'Maybe' is not a valid integer value"), ErrorOf("Wide = Maybe"));
  EXPECT_EQ(QStringLiteral("Error reading S.Wide: 'nil' is not a valid integer value"), ErrorOf("Wide = nil"));
  EXPECT_EQ(QStringLiteral("Error reading S.Wide: 'Null' is not a valid integer value"), ErrorOf("Wide = Null"));
}

TEST_F(ReaderValuesTest, TrueIsAValueOfEveryBoolean) {
  const auto sample = Load(SampleWith("Flag = True\n  Wide = true"));
  EXPECT_TRUE(static_cast<TSample*>(sample.get())->Flag);
  EXPECT_TRUE(static_cast<TSample*>(sample.get())->Wide);
}

TEST_F(ReaderValuesTest, ACharacterBeyondItsTypeRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Letter: Invalid property value"), ErrorOf("Letter = #8364"));
  EXPECT_EQ(QStringLiteral("Error reading S.Letter: Invalid property value"), ErrorOf("Letter = #256"));
  const auto sample = Load(SampleWith("Letter = #255\n  WideLetter = #8364"));
  EXPECT_EQ('\xFF', static_cast<TSample*>(sample.get())->Letter);
  EXPECT_EQ(QChar(u'\u20AC'), static_cast<TSample*>(sample.get())->WideLetter);
}

char LetterOfStoredByte(char byte, TEightBitEncoding encoding) {
  TReader reader(QByteArray("TPF0\7TSample\1S\6Letter\6\1", 23) + byte + QByteArray(2, '\0'));
  reader.SetEncoding(encoding);
  return reader.ReadRoot<TSample>()->Letter;
}

TEST_F(ReaderValuesTest, AStoredByteIsTheCharacterThatTheEncodingSays) {
  EXPECT_EQ('\xE9', LetterOfStoredByte('\xE9', eeWindows1252));
  EXPECT_EQ('\x80', LetterOfStoredByte('\x80', eeLatin1));
  // The euro sign, and a Cyrillic letter.
  EXPECT_THROW(LetterOfStoredByte('\x80', eeWindows1252), EReadError);
  EXPECT_THROW(LetterOfStoredByte('\xE9', eeWindows1251), EReadError);
}

TEST_F(ReaderValuesTest, ANumberBeyondSingleRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Narrow: Range check error"), ErrorOf("Narrow = 1E39"));
  EXPECT_EQ(QStringLiteral("Error reading S.Narrow: Range check error"), ErrorOf("Narrow = -1E39"));
  const auto sample = Load(SampleWith("Narrow = 3.4028235E38"));
  EXPECT_EQ(std::numeric_limits<float>::max(), static_cast<TSample*>(sample.get())->Narrow);
}

TEST_F(ReaderValuesTest, AClassThatIsNoComponentIsAnErrorWithItsPlace) {
  EXPECT_EQ(QStringLiteral("Invalid class typecast at offset 4 (P)"),
            MessageOf<EInvalidCast>([] { Load("object P: TSamplePart\nend\n"); }));
  EXPECT_EQ(QStringLiteral("Invalid class typecast at offset 15 (S.P)"),
            MessageOf<EInvalidCast>([] { Load("object S: TSample\n  object P: TSamplePart\n  end\nend\n"); }));
}

}  // namespace
}  // namespace kt
