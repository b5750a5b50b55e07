// Enumerations and flags of Qt's.
#include "qobjects/QObjectFixture.h"
#include "qobjects/SpecialObjects.h"

namespace kt::tests {
namespace {

class QObjectEnumsTest : public TQObjectTest {
 protected:
  TQtKinds FObject;
  void Inspect() { InspectQ({&FObject}); }
};

TEST_F(QObjectEnumsTest, AnEnumerationIsTheNameOfItsKey) {
  FObject.AMode = TQtKinds::Cold;
  Inspect();
  EXPECT_EQ("Cold", Value("mode"));
  Put("mode", "Hot");
  EXPECT_EQ(TQtKinds::Hot, FObject.AMode);
  EXPECT_EQ("Cold,Hot,Lukewarm,Warm", Item("mode").GetPickList().GetCommaText());
}

TEST_F(QObjectEnumsTest, OfKeysWithOneValueTheFirstIsShownAndBothAreTaken) {
  Inspect();
  EXPECT_EQ("Warm", Value("mode"));
  FObject.AMode = TQtKinds::Hot;
  Put("mode", "Lukewarm");
  EXPECT_EQ(TQtKinds::Warm, FObject.AMode);
  EXPECT_EQ("Warm", Value("mode"));
}

TEST_F(QObjectEnumsTest, AValueWithoutKeyIsItsNumber) {
  FObject.AMode = static_cast<TQtKinds::Mode>(-50);
  Inspect();
  EXPECT_EQ("-50", Value("mode"));
  Put("mode", "12");
  EXPECT_EQ(12, static_cast<int>(FObject.AMode));
  EXPECT_EQ("12", Value("mode"));
  Put("mode", "100");
  EXPECT_EQ("Hot", Value("mode"));
}

TEST_F(QObjectEnumsTest, AnUnknownNameIsRefused) {
  Inspect();
  EXPECT_THROW(Put("mode", "Tepid"), EPropertyConvertError);
  EXPECT_EQ(TQtKinds::Warm, FObject.AMode);
}

TEST_F(QObjectEnumsTest, AnEnumerationOfOneByteKeepsItsSign) {
  FObject.ATight = TQtKinds::Tied;
  Inspect();
  EXPECT_EQ("Tied", Value("tight"));
  Put("tight", "Loose");
  EXPECT_EQ(TQtKinds::Loose, FObject.ATight);
  Put("tight", "Tied");
  EXPECT_EQ(TQtKinds::Tied, FObject.ATight);
}

TEST_F(QObjectEnumsTest, AnEnumerationOfTwoBytesKeepsItsSign) {
  Inspect();
  EXPECT_EQ("Below", Value("narrow"));
  Put("narrow", "Above");
  EXPECT_EQ(TQtKinds::Above, FObject.ANarrow);
  Put("narrow", "-7");
  EXPECT_EQ(-7, static_cast<int>(FObject.ANarrow));
}

TEST_F(QObjectEnumsTest, AnEnumerationOfEightBytesLosesNoBit) {
  TQtWide object;
  InspectQ({&object});
  EXPECT_EQ("None", Value("wide"));
  object.AWide = TQtWide::Wide::Vast;
  FInspector->RefreshProperties();
  EXPECT_EQ("4294967297", Value("wide"));
  Put("wide", "18446744073709551615");
  EXPECT_EQ(std::numeric_limits<quint64>::max(), static_cast<quint64>(object.AWide));
  Put("wide", "Two");
  EXPECT_EQ(TQtWide::Wide::Two, object.AWide);
  EXPECT_THROW(Put("wide", "Three"), EPropertyConvertError);
}

TEST_F(QObjectEnumsTest, KeysThatDifferInCaseAreToldApart) {
  TQtWide object;
  InspectQ({&object});
  EXPECT_EQ("left", Value("key"));
  Put("key", "Left_");
  EXPECT_EQ(TQtWide::Left, object.ACase);
  EXPECT_EQ("Left_", Value("key"));
  Put("key", "left");
  EXPECT_EQ(TQtWide::left, object.ACase);
}

TEST_F(QObjectEnumsTest, FlagsWithoutAKeyOfOneBitAreANumber) {
  Inspect();
  EXPECT_EQ("3", Value("masks"));
  Put("masks", "12");
  EXPECT_EQ(TQtKinds::Masks(TQtKinds::HighMask), FObject.AMasks);
}

TEST_F(QObjectEnumsTest, FlagsAreASetOfTheirSingleBits) {
  FObject.ASides = TQtKinds::Corner;
  Inspect();
  EXPECT_EQ("[Left,Top]", Value("sides"));
  EXPECT_EQ("Left Top", NamesBelow("sides"));
  EXPECT_EQ("True", Value("sides.Left"));
  Put("sides", "[Top]");
  EXPECT_EQ(TQtKinds::Sides(TQtKinds::Top), FObject.ASides);
  EXPECT_EQ("False", Value("sides.Left"));
}

TEST_F(QObjectEnumsTest, BitsWithoutAKeyStay) {
  FObject.ASides = TQtKinds::Sides::fromInt(0x80000000 | 0x100 | TQtKinds::Left);
  Inspect();
  EXPECT_EQ("[Left]", Value("sides"));
  SetSetProp(ComponentOf(&FObject), u"sides", u"[Top]");
  EXPECT_EQ(static_cast<int>(0x80000000 | 0x100 | TQtKinds::Top), FObject.ASides.toInt());
}

TEST_F(QObjectEnumsTest, NoFlagsAreTheEmptySet) {
  Inspect();
  EXPECT_EQ("[]", Value("sides"));
}

}  // namespace
}  // namespace kt::tests
