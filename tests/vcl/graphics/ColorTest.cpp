#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/graphics/Color.h"
#include "support/Expect.h"

#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

QStringList ColorNames() {
  QStringList names;
  GetColorValues([&](const QString& name) { names.append(name); });
  return names;
}

QSet<QString> UniqueNames() {
  const QStringList names = ColorNames();
  return {names.begin(), names.end()};
}

struct TColorNumber {
  TColor Color;
  quint32 Number;
};

class ColorNumberTest : public ::testing::TestWithParam<TColorNumber> {};

TEST_P(ColorNumberTest, IsThatOfTheFramework) { EXPECT_EQ(GetParam().Number, static_cast<quint32>(GetParam().Color)); }

INSTANTIATE_TEST_SUITE_P(ColorTest, ColorNumberTest,
                         ::testing::Values(TColorNumber{clRed, 0x000000FFU}, TColorNumber{clBlue, 0x00FF0000U},
                                           TColorNumber{clPurple, 0x00800080U}, TColorNumber{clNavy, 0x00800000U},
                                           TColorNumber{clLtGray, 0x00C0C0C0U}, TColorNumber{clDkGray, 0x00808080U},
                                           TColorNumber{clMoneyGreen, 0x00C0DCC0U}, TColorNumber{clNone, 0x1FFFFFFFU},
                                           TColorNumber{clDefault, 0x20000000U}, TColorNumber{clScrollBar, 0xFF000000U},
                                           TColorNumber{clWindow, 0xFF000005U}, TColorNumber{clBtnFace, 0xFF00000FU},
                                           TColorNumber{clInactiveCaptionText, 0xFF000013U},
                                           TColorNumber{clInfoBk, 0xFF000018U}, TColorNumber{clHotLight, 0xFF00001AU},
                                           TColorNumber{clMenuBar, 0xFF00001EU}));

TEST(ColorTest, OnlyColoursOfTheDesktopAreSystemColours) {
  EXPECT_TRUE(IsSystemColor(clWindow));
  EXPECT_FALSE(IsSystemColor(clWhite));
  EXPECT_FALSE(IsSystemColor(clNone));
  EXPECT_FALSE(IsSystemColor(clDefault));
}

TEST(ColorTest, ANamedColourIsWrittenAsItsName) {
  EXPECT_EQ(QStringLiteral("clPurple"), ColorToString(TColor(0x800080)));
  EXPECT_EQ(QStringLiteral("clInactiveCaptionText"), ColorToString(clInactiveCaptionText));
}

TEST(ColorTest, ASecondNameOfAColourIsNotWritten) { EXPECT_EQ(QStringLiteral("clSilver"), ColorToString(clLtGray)); }

TEST(ColorTest, AnyOtherColourIsWrittenAsEightHexadecimalDigits) {
  EXPECT_EQ(QStringLiteral("$00ABCDEF"), ColorToString(TColor(0xABCDEF)));
  EXPECT_EQ(QStringLiteral("$FF0000FF"), ColorToString(static_cast<TColor>(0xFF0000FFU)));
}

TEST(ColorTest, NamesAreReadInAnyCase) { EXPECT_EQ(clBtnFace, StringToColor(u"CLBTNFACE")); }

TEST(ColorTest, NumbersAreRead) {
  EXPECT_EQ(clPurple, StringToColor(u"$00800080"));
  EXPECT_EQ(clWindow, StringToColor(u"$FF000005"));
  EXPECT_EQ(clRed, StringToColor(u"255"));
}

TEST(ColorTest, AnUnknownNameIsNoColour) {
  EXPECT_EQ(QStringLiteral("'clPink' is not a valid integer value"),
            MessageOf<EConvertError>([] { StringToColor(u"clPink"); }));
}

TEST(ColorTest, AnUnknownNameLeavesTheColourAlone) {
  TColor color = clLime;
  EXPECT_FALSE(IdentToColor(u"clPink", color));
  EXPECT_EQ(clLime, color);
}

TEST(ColorTest, AColourWithoutANameLeavesTheTextAlone) {
  QString ident = QStringLiteral("as it was");
  EXPECT_FALSE(ColorToIdent(TColor(0x123456), ident));
  EXPECT_EQ(QStringLiteral("as it was"), ident);
  EXPECT_TRUE(ColorToIdent(clTeal, ident));
  EXPECT_EQ(QStringLiteral("clTeal"), ident);
}

TEST(ColorTest, TheNamesStartWithTheSixteenPlainColours) {
  EXPECT_EQ(QStringLiteral("clBlack clMaroon clGreen clOlive clNavy clPurple clTeal clGray "
                           "clSilver clRed clLime clYellow clBlue clFuchsia clAqua clWhite"),
            ColorNames().first(16).join(u' '));
}

TEST(ColorTest, EveryNameIsOfferedOnce) {
  EXPECT_EQ(52, ColorNames().size());
  EXPECT_EQ(52, UniqueNames().size());
}

TEST(ColorTest, EveryNameComesBack) {
  QStringList back;
  GetColorValues([&](const QString& name) { back.append(ColorToString(StringToColor(name))); });
  EXPECT_EQ(ColorNames(), back);
}

TEST(ColorTest, HasATypeOfItsOwn) {
  EXPECT_EQ(QStringLiteral("TColor"), TypeInfoOf<TColor>()->Name());
  EXPECT_EQ(tkInteger, TypeInfoOf<TColor>()->Kind());
  EXPECT_EQ(otSLong, OrdTypeOf(TypeInfoOf<TColor>())->OrdType());
}

}  // namespace
}  // namespace kt
