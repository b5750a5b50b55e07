#include "kt/vcl/graphics/FontTypes.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

QStringList Names() {
  QStringList names;
  GetCharsetValues([&](const QString& name) { names.append(name); });
  return names;
}

TEST(FontTypesTest, EveryCharsetComesBackFromItsName) {
  QStringList back;
  GetCharsetValues([&](const QString& name) {
    TFontCharset charset = DEFAULT_CHARSET;
    QString ident;
    EXPECT_TRUE(IdentToCharset(name, charset) && CharsetToIdent(charset, ident));
    back.append(ident);
  });
  EXPECT_EQ(19, back.size());
  EXPECT_EQ(Names(), back);
}

TEST(FontTypesTest, AnUnknownNameLeavesTheCharsetAlone) {
  TFontCharset charset = GREEK_CHARSET;
  EXPECT_FALSE(IdentToCharset(u"ELVISH_CHARSET", charset));
  EXPECT_EQ(GREEK_CHARSET, charset);
}

TEST(FontTypesTest, ANumberWithoutANameLeavesTheTextAlone) {
  QString ident = QStringLiteral("as it was");
  EXPECT_FALSE(CharsetToIdent(TFontCharset(99), ident));
  EXPECT_EQ(QStringLiteral("as it was"), ident);
}

TEST(FontTypesTest, TypesHaveTheFrameworksNames) {
  EXPECT_EQ(QStringLiteral("TFontCharset"), TypeInfoOf<TFontCharset>()->Name());
  EXPECT_EQ(QStringLiteral("TFontPitch"), TypeInfoOf<TFontPitch>()->Name());
  EXPECT_EQ(QStringLiteral("TFontStyles"), TypeInfoOf<TFontStyles>()->Name());
  EXPECT_EQ(QStringLiteral("TFontName"), FontNameTypeInfo()->Name());
  EXPECT_EQ(tkLString, FontNameTypeInfo()->Kind());
}

}  // namespace
}  // namespace kt
