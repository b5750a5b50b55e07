#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/TextPlaces.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

constexpr char kPlacesForm[] =
    "object Form1: TForm\n"
    "  Caption = 'a'\n"
    "  Items = <\n"
    "    item\n"
    "      Text = 'b'\n"
    "    end>\n"
    "  object B: TButton [0]\n"
    "    Left = 300\n"
    "  end\n"
    "end\n";

/// Line and column of what begins where `bytes` ends in the binary form.
std::string PlaceBehind(const char* bytes) {
  QByteArray binary;
  ObjectTextToBinary(kPlacesForm, binary);
  const TTextPosition place = FindPlaceInText(kPlacesForm, binary.indexOf(bytes) + qsizetype(strlen(bytes)));
  return std::to_string(place.Line) + ':' + std::to_string(place.Column);
}

TEST(TextPlacesTest, AValueIsWhereItsPropertyBegins) {
  EXPECT_EQ("2:3", PlaceBehind("Caption"));
  EXPECT_EQ("3:3", PlaceBehind("Items"));
  EXPECT_EQ("5:7", PlaceBehind("Text"));
  EXPECT_EQ("8:5", PlaceBehind("Left"));
}

TEST(TextPlacesTest, AnObjectIsWhereItsWordStands) {
  EXPECT_EQ("1:1", PlaceBehind("TPF0"));
  QByteArray binary;
  ObjectTextToBinary(kPlacesForm, binary);
  const qsizetype prefix = binary.indexOf("TButton") - 4;
  ASSERT_EQ('\xF2', binary[prefix]);
  EXPECT_EQ(7, FindPlaceInText(kPlacesForm, prefix).Line);
}

TEST(TextPlacesTest, AnErrorIsToldWithLineColumnAndPath) {
  EXPECT_EQ(QStringLiteral("Wrong on line 1, column 1 (Form1)"),
            PlacesInText(kPlacesForm)(QStringLiteral("Wrong"), 4, QStringLiteral("Form1")));
  EXPECT_EQ(QStringLiteral("Wrong on line 1, column 1"), PlacesInText(kPlacesForm)(QStringLiteral("Wrong"), 4, {}));
}

TEST(TextPlacesTest, TheTextIsReadInItsEncoding) {
  // Two Cyrillic letters, which are one character each, in either encoding.
  const QByteArray form = "object A: TForm\n  T = '\xE0\xE0' X = 1\nend\n";
  QByteArray binary;
  TFormOptions options;
  options.Encoding = eeWindows1251;
  ObjectTextToBinary(form, binary, options);
  const TTextPosition place = FindPlaceInText(form, binary.indexOf("\1X") + 2, eeWindows1251);
  EXPECT_EQ(2, place.Line);
  EXPECT_EQ(12, place.Column);
}

}  // namespace
}  // namespace kt
