#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/graphics/Cursor.h"
#include "support/Expect.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

QStringList CursorNames() {
  QStringList names;
  GetCursorValues([&](const QString& name) { names.append(name); });
  return names;
}

TEST(CursorTest, TheNamesComeInTheFrameworksOrderWithoutTheRetiredOne) {
  EXPECT_EQ(QStringLiteral("crDefault crArrow crCross crIBeam crSizeNESW crSizeNS crSizeNWSE crSizeWE crUpArrow "
                           "crHourGlass crDrag crNoDrop crHSplit crVSplit crMultiDrag crSQLWait crNo crAppStart crHelp "
                           "crHandPoint crSizeAll"),
            CursorNames().join(u' '));
}

TEST(CursorTest, EveryNameComesBack) {
  QStringList back;
  GetCursorValues([&](const QString& name) { back.append(CursorToString(StringToCursor(name))); });
  EXPECT_EQ(CursorNames(), back);
}

TEST(CursorTest, TheRetiredNameIsReadAndWrittenAnew) {
  EXPECT_EQ(crSizeAll, StringToCursor(u"crSize"));
  EXPECT_EQ(QStringLiteral("crSizeAll"), CursorToString(crSize));
}

TEST(CursorTest, NumbersAreThoseOfTheFramework) {
  EXPECT_EQ(0, crDefault);
  EXPECT_EQ(-2, crArrow);
  EXPECT_EQ(-9, crSizeWE);
  EXPECT_EQ(-14, crHSplit);
  EXPECT_EQ(-21, crHandPoint);
}

TEST(CursorTest, ACursorWithoutANameIsItsNumber) {
  EXPECT_EQ(QStringLiteral("-1"), CursorToString(crNone));
  EXPECT_EQ(QStringLiteral("5"), CursorToString(TCursor(5)));
  EXPECT_EQ(TCursor(5), StringToCursor(u"5"));
}

TEST(CursorTest, AnUnknownNameIsNoCursor) {
  EXPECT_EQ(QStringLiteral("'crPen' is not a valid integer value"),
            MessageOf<EConvertError>([] { StringToCursor(u"crPen"); }));
}

TEST(CursorTest, AnUnknownNameLeavesTheCursorAlone) {
  TCursor cursor = crHelp;
  EXPECT_FALSE(IdentToCursor(u"crPen", cursor));
  EXPECT_EQ(crHelp, cursor);
}

TEST(CursorTest, ACursorWithoutANameLeavesTheTextAlone) {
  QString ident = QStringLiteral("as it was");
  EXPECT_FALSE(CursorToIdent(crNone, ident));
  EXPECT_EQ(QStringLiteral("as it was"), ident);
  EXPECT_TRUE(CursorToIdent(crNo, ident));
  EXPECT_EQ(QStringLiteral("crNo"), ident);
}

TEST(CursorTest, HasATypeOfItsOwn) {
  EXPECT_EQ(QStringLiteral("TCursor"), TypeInfoOf<TCursor>()->Name());
  EXPECT_EQ(-32768, OrdTypeOf(TypeInfoOf<TCursor>())->MinValue());
  EXPECT_EQ(32767, OrdTypeOf(TypeInfoOf<TCursor>())->MaxValue());
}

}  // namespace
}  // namespace kt
