#include "kt/rtl/streams/BinaryFormat.h"
#include "support/FormTesting.h"

#include <cmath>
#include <limits>

namespace kt {
namespace {

using TLimits = std::numeric_limits<Extended>;

QByteArray Encoded(Extended value) {
  const TExtendedBytes bytes = EncodeExtended(value);
  return QByteArray(bytes.data(), qsizetype(bytes.size())).toHex();
}

Extended Decoded(const char* hex) { return DecodeExtended(QByteArray::fromHex(hex).constData()); }

TEST(BinaryFormatTest, EncodesNumbersInTenBytes) {
  EXPECT_EQ("0000000000000080ff3f", Encoded(1));
  EXPECT_EQ("00000000000000c000c0", Encoded(-3));
  EXPECT_EQ("00000000000000800040", Encoded(2));
  EXPECT_EQ(
      "000000000000000000"
      "00",
      Encoded(0));
  EXPECT_EQ("00000000000000000080", Encoded(-Extended(0)));
}

TEST(BinaryFormatTest, EncodesWhatIsNoFiniteNumber) {
  EXPECT_EQ("0000000000000080ff7f", Encoded(TLimits::infinity()));
  EXPECT_EQ("0000000000000080ffff", Encoded(-TLimits::infinity()));
  EXPECT_EQ("00000000000000c0ff7f", Encoded(TLimits::quiet_NaN()));
}

TEST(BinaryFormatTest, DecodesNumbers) {
  EXPECT_EQ(1, Decoded("0000000000000080ff3f"));
  EXPECT_EQ(Extended(-0.75), Decoded("00000000000000c0febf"));
  EXPECT_TRUE(std::signbit(Decoded("00000000000000000080")));
}

TEST(BinaryFormatTest, DecodesWhatIsNoFiniteNumber) {
  EXPECT_EQ(-TLimits::infinity(), Decoded("0000000000000080ffff"));
  EXPECT_TRUE(std::isnan(Decoded("00000000000000c0ff7f")));
  EXPECT_TRUE(std::isnan(Decoded("0100000000000080ff7f")));
}

TEST(BinaryFormatTest, DecodesNumbersThatAreNotNormalized) {
  EXPECT_EQ(Extended(0.5), Decoded("0000000000000040ff3f"));
  EXPECT_EQ(std::ldexp(Extended(1), -16382), Decoded("00000000000000800000"));
}

TEST(BinaryFormatTest, TheExtremesSurvive) {
  EXPECT_EQ(TLimits::max(), DecodeExtended(EncodeExtended(TLimits::max()).data()));
  EXPECT_EQ(TLimits::min(), DecodeExtended(EncodeExtended(TLimits::min()).data()));
  EXPECT_EQ(TLimits::denorm_min(), DecodeExtended(EncodeExtended(TLimits::denorm_min()).data()));
}

}  // namespace
}  // namespace kt
