#include "kt/rtl/conversions/FloatMask.h"

#include <cmath>
#include <gtest/gtest.h>

namespace kt {
namespace {

struct TMasked {
  const char* Mask;
  double Value;
  const char* Text;
};

class FloatMaskPictureTest : public ::testing::TestWithParam<TMasked> {};

TEST_P(FloatMaskPictureTest, IsFilledIn) {
  EXPECT_EQ(GetParam().Text, FormatFloat(QString::fromUtf8(GetParam().Mask), GetParam().Value, TFormatSettings()));
}

INSTANTIATE_TEST_SUITE_P(
    FloatMaskTest, FloatMaskPictureTest,
    ::testing::Values(TMasked{"0", 1234.5, "1235"}, TMasked{"0", 0.4, "0"}, TMasked{"#", 0, ""},
                      TMasked{"00000", 42, "00042"}, TMasked{"#####", 42, "42"}, TMasked{"0.00", 1.5, "1.50"},
                      TMasked{"0.##", 1.5, "1.5"}, TMasked{"0.##", 1, "1"}, TMasked{"#.##", 0.5, ".5"},
                      TMasked{"0.0#", 1.256, "1.26"}, TMasked{"#,##0.00", 1234567.891, "1,234,567.89"},
                      TMasked{"#,##0", 999, "999"}, TMasked{",0", 1234, "1,234"}, TMasked{"0.00", -1.5, "-1.50"},
                      TMasked{"0.00;(0.00)", -1.5, "(1.50)"}, TMasked{"0.00;;zero", 0, "zero"},
                      TMasked{"0.00;;'none'", -1.5, "-1.50"}, TMasked{"0;(0);-", 0.2, "-"},
                      TMasked{"0 'pcs'", 3, "3 pcs"}, TMasked{"\"0\"0", 3, "03"},
                      TMasked{"(000) 000", 123456, "(123) 456"}, TMasked{"0.00E+00", 12345, "1.23E+04"},
                      TMasked{"0.00E-00", 12345, "1.23E04"}, TMasked{"0.###e+0", 0.00125, "1.25e-3"},
                      TMasked{"0.0E+0", 0, "0.0E+0"}, TMasked{"00.0E+0", 12345, "12.3E+3"}, TMasked{"", 1.5, "1.5"},
                      TMasked{"0", 1e20, "1E20"}, TMasked{"0", INFINITY, "INF"}, TMasked{"0'open", 1, "1open"}));

TEST(FloatMaskTest, SeparatorsAreTheLocales) {
  EXPECT_EQ("1.234,50", FormatFloat(u"#,##0.00", 1234.5, TFormatSettings(QLocale(QLocale::German))));
}

TEST(FloatMaskTest, AmountsAreExact) {
  EXPECT_EQ("922,337,203,685,477.5807",
            FormatCurr(u"#,##0.0000", Currency::FromScaled(9223372036854775807), TFormatSettings()));
}

}  // namespace
}  // namespace kt
