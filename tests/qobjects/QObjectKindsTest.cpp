// Values of every type, shown and written.
#include "qobjects/QObjectFixture.h"

#include <QBrush>
#include <QRegularExpression>
#include <QUuid>

namespace kt::tests {
namespace {

class QObjectKindsTest : public TQObjectTest {
 protected:
  TQtKinds FObject;
  void Inspect() { InspectQ({&FObject}); }
};

TEST_F(QObjectKindsTest, ATruthValueHasTheNamesOfTruthValues) {
  Inspect();
  EXPECT_EQ("False", Value("flag"));
  Put("flag", "True");
  EXPECT_TRUE(FObject.Flag);
  EXPECT_EQ("Boolean", Item("flag").GetTypeName());
}

TEST_F(QObjectKindsTest, WholeNumbersOfEveryWidthKeepTheirLimits) {
  FObject.Tiny = -128;
  FObject.Byte = 255;
  FObject.Small = -32768;
  FObject.Word = 65535;
  FObject.Whole = std::numeric_limits<int>::min();
  FObject.Cardinal = 4294967295u;
  FObject.Large = std::numeric_limits<qint64>::min();
  Inspect();
  EXPECT_EQ("-128 255 -32768 65535 -2147483648 4294967295 -9223372036854775808",
            QStringList({Value("tiny"), Value("byte"), Value("small"), Value("word"), Value("whole"), Value("cardinal"),
                         Value("large")})
                .join(u' '));
  Put("byte", "7");
  Put("cardinal", "4294967294");
  Put("large", "9223372036854775807");
  EXPECT_EQ(7, FObject.Byte);
  EXPECT_EQ(4294967294u, FObject.Cardinal);
  EXPECT_EQ(std::numeric_limits<qint64>::max(), FObject.Large);
}

TEST_F(QObjectKindsTest, AnUnsignedNumberOf64BitsIsExact) {
  FObject.Huge = std::numeric_limits<quint64>::max();
  Inspect();
  EXPECT_EQ("18446744073709551615", Value("huge"));
  Put("huge", "18446744073709551614");
  EXPECT_EQ(18446744073709551614u, FObject.Huge);
}

TEST_F(QObjectKindsTest, NumbersWithDecimals) {
  FObject.Single = 0.5f;
  FObject.Real = -1.25;
  Inspect();
  EXPECT_EQ("0.5 -1.25", Value("single") + ' ' + Value("real"));
  Put("single", "2.5");
  Put("real", "1e100");
  EXPECT_EQ(2.5f, FObject.Single);
  EXPECT_EQ(1e100, FObject.Real);
}

TEST_F(QObjectKindsTest, NumbersWithDecimalsKeepEveryDigit) {
  FObject.Real = 0.1 + 0.2;
  FObject.Single = 0.1f;
  FObject.RectF = QRectF(1.0 / 3, 1e-17, 123456789.123456789, 0.1);
  Inspect();
  EXPECT_EQ("0.30000000000000004 0.1", Value("real") + ' ' + Value("single"));
  EXPECT_EQ("0.1", Value("rectF.height"));
  for (const QString name : {"x", "y", "width", "height"}) {
    const QRectF before = FObject.RectF;
    Put("rectF." + name, Value("rectF." + name));
    EXPECT_EQ(before.x(), FObject.RectF.x());
    EXPECT_EQ(before.y(), FObject.RectF.y());
    EXPECT_EQ(before.width(), FObject.RectF.width());
  }
  EXPECT_EQ(1.0 / 3, Value("rectF.x").toDouble());
  Put("single", "0.3");
  EXPECT_EQ(0.3f, FObject.Single);
  EXPECT_THROW(Put("real", "many"), std::exception);
}

TEST_F(QObjectKindsTest, AnIconIsItsName) {
  FObject.Icon = QIcon::fromTheme("nobody-has-this", QIcon(QPixmap(8, 8)));
  Inspect();
  EXPECT_EQ("8 x 8", Value("icon"));
  FObject.Icon = QIcon();
  FInspector->RefreshProperties();
  EXPECT_EQ("", Value("icon"));
}

TEST_F(QObjectKindsTest, WhatIsInAVariantIsShown) {
  FObject.AVariant = QVariantList{1, "two", QVariantMap{{"b", 2.5}, {"a", QSize(3, 4)}}, true};
  Inspect();
  EXPECT_EQ("[1, two, {a: 3 x 4, b: 2.5}, true]", Value("variant"));
  FObject.AVariant = QRectF(1, 2.5, 3, 4);
  FInspector->RefreshProperties();
  EXPECT_EQ("1, 2.5, 3, 4", Value("variant"));
  FObject.AVariant = QStringList{"a", "b"};
  FInspector->RefreshProperties();
  EXPECT_EQ("[a, b]", Value("variant"));
}

TEST_F(QObjectKindsTest, ACharacterIsItsNumber) {
  Inspect();
  EXPECT_EQ("97", Value("letter"));
  Put("letter", "98");
  EXPECT_EQ(QChar(u'b'), FObject.Letter);
}

TEST_F(QObjectKindsTest, Texts) {
  FObject.Text = "before";
  Inspect();
  EXPECT_EQ("before", Value("text"));
  Put("text", "after");
  EXPECT_EQ("after", FObject.Text);
}

TEST_F(QObjectKindsTest, BytesThatAreTextAreText) {
  FObject.Bytes = "\xC3\xA4";
  Inspect();
  EXPECT_EQ(QString(QChar(0xE4)), Value("bytes"));
  Put("bytes", "b");
  EXPECT_EQ(QByteArray("b"), FObject.Bytes);
}

TEST_F(QObjectKindsTest, OtherBytesAreHexadecimalDigits) {
  FObject.Bytes = QByteArray("\xFF\x00\x10", 3);
  Inspect();
  EXPECT_EQ("hex:ff0010", Value("bytes"));
  Put("bytes", "hex:00FE");
  EXPECT_EQ(QByteArray("\x00\xFE", 2), FObject.Bytes);
}

TEST_F(QObjectKindsTest, ColorsAreExact) {
  FObject.Color = QColor(1, 2, 3, 4);
  Inspect();
  EXPECT_EQ("#04010203", Value("color"));
  Put("color", "steelblue");
  EXPECT_EQ(QColor(0x46, 0x82, 0xb4), FObject.Color);
  EXPECT_EQ("#4682b4", Value("color"));
}

TEST_F(QObjectKindsTest, WritingTheTextThatIsShownChangesNothing) {
  FObject.Color = QColor::fromHslF(0.3, 0.4, 0.5);
  const QColor before = FObject.Color;
  Inspect();
  Put("color", Value("color"));
  EXPECT_EQ(before, FObject.Color);
}

TEST_F(QObjectKindsTest, ATextThatIsNoColorIsRefusedByName) {
  Inspect();
  try {
    Put("color", "nonsense");
    FAIL() << "nothing was raised";
  } catch (const EPropertyConvertError& error) {
    EXPECT_EQ("'nonsense' is not a valid value of type QColor", error.Message());
  }
}

TEST_F(QObjectKindsTest, ACursorIsItsShape) {
  Inspect();
  EXPECT_EQ("ArrowCursor", Value("cursor"));
  Put("cursor", "WaitCursor");
  EXPECT_EQ(Qt::WaitCursor, FObject.Cursor.shape());
}

TEST_F(QObjectKindsTest, DatesAndTimes) {
  FObject.Date = QDate(2026, 2, 28);
  FObject.Time = QTime(13, 5, 7, 8);
  FObject.Moment = QDateTime(FObject.Date, QTime(1, 2), Qt::UTC);
  Inspect();
  EXPECT_EQ("2026-02-28 13:05:07.008 2026-02-28T01:02:00Z",
            Value("date") + ' ' + Value("time") + ' ' + Value("moment"));
  Put("date", "2027-01-01");
  Put("time", "23:59:58");
  Put("moment", "2027-01-01T10:00:00Z");
  EXPECT_EQ(QDate(2027, 1, 1), FObject.Date);
  EXPECT_EQ(QTime(23, 59, 58), FObject.Time);
  EXPECT_EQ(QDateTime(QDate(2027, 1, 1), QTime(10, 0), Qt::UTC), FObject.Moment);
  Put("date", "");
  EXPECT_FALSE(FObject.Date.isValid());
}

TEST_F(QObjectKindsTest, ALocaleKeepsAScriptThatItsCountryDoesNotSay) {
  FObject.Locale = QLocale(QLocale::Serbian, QLocale::LatinScript, QLocale::Serbia);
  InspectQ({&FObject});
  EXPECT_EQ("sr_Latn_RS", Value("locale"));
  Put("locale", "sr_RS");
  EXPECT_EQ(QLocale::CyrillicScript, FObject.Locale.script());
  Put("locale", "sr_Latn_RS");
  EXPECT_EQ(QLocale::LatinScript, FObject.Locale.script());
}

TEST_F(QObjectKindsTest, MoreKeysThanASequenceHoldsAreRefused) {
  FObject.Keys = QKeySequence(Qt::CTRL | Qt::Key_S);
  InspectQ({&FObject});
  EXPECT_ANY_THROW(Put("keys", "Ctrl+A, Ctrl+B, Ctrl+C, Ctrl+D, Ctrl+E"));
  EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_S), FObject.Keys);
}

TEST_F(QObjectKindsTest, LocalesKeySequencesAndAddresses) {
  FObject.Locale = QLocale(QStringLiteral("de_DE"));
  FObject.Keys = QKeySequence(Qt::CTRL | Qt::Key_S);
  FObject.Url = QUrl(QStringLiteral("http://example.com/a%20b"));
  Inspect();
  EXPECT_EQ("de_DE Ctrl+S http://example.com/a%20b", Value("locale") + ' ' + Value("keys") + ' ' + Value("url"));
  Put("locale", "fr_FR");
  Put("keys", "Alt+F4");
  Put("url", "ftp://example.com/");
  EXPECT_EQ(QLocale(QLocale::French, QLocale::France), FObject.Locale);
  EXPECT_EQ(QKeySequence(Qt::ALT | Qt::Key_F4), FObject.Keys);
  EXPECT_EQ(QUrl(QStringLiteral("ftp://example.com/")), FObject.Url);
}

TEST_F(QObjectKindsTest, WhatCannotBeEditedIsShownReadOnly) {
  FObject.Picture = QPixmap(16, 9);
  Inspect();
  FObject.Icon.addPixmap(QPixmap(16, 16));
  FObject.Icon.addPixmap(QPixmap(32, 24));
  FInspector->RefreshProperties();
  EXPECT_EQ("16 x 16, 32 x 24|16 x 9|(QPolygon)", Value("icon") + '|' + Value("picture") + '|' + Value("polygon"));
  EXPECT_TRUE(Item("icon").IsReadOnly());
  EXPECT_TRUE(Item("picture").IsReadOnly());
  EXPECT_TRUE(Item("polygon").IsReadOnly());
  EXPECT_TRUE(Item("fixed").IsReadOnly());
  EXPECT_EQ("42", Value("fixed"));
}

TEST_F(QObjectKindsTest, AVariantKeepsTheTypeOfWhatItHolds) {
  FObject.AVariant = 5;
  Inspect();
  EXPECT_EQ("5", Value("variant"));
  Put("variant", "6");
  EXPECT_EQ(QVariant(6), FObject.AVariant);
  FObject.AVariant = QColor(Qt::red);
  FInspector->RefreshProperties();
  EXPECT_EQ("#ff0000", Value("variant"));
  Put("variant", "#00ff00");
  EXPECT_EQ(QVariant(QColor(0, 255, 0)), FObject.AVariant);
}

TEST_F(QObjectKindsTest, AVariantThatHoldsNothingTakesAText) {
  Inspect();
  EXPECT_EQ("", Value("variant"));
  Put("variant", "some");
  EXPECT_EQ(QVariant(QStringLiteral("some")), FObject.AVariant);
}

TEST_F(QObjectKindsTest, ADynamicPropertyHasTheKindOfItsValue) {
  const auto id = QUuid::createUuid();
  FObject.setProperty("id", id);
  FObject.setProperty("pattern", QRegularExpression(QStringLiteral("a+"), QRegularExpression::CaseInsensitiveOption));
  FObject.setProperty("brush", QBrush(Qt::red));
  FObject.setProperty("corner", QPointF(1.5, 2));
  Inspect();
  EXPECT_EQ(id.toString() + " a+ (QBrush) 1.5",
            Value("id") + ' ' + Value("pattern") + ' ' + Value("brush") + ' ' + Value("corner.x"));
  Put("id", QUuid().toString());
  Put("pattern", "b+");
  Put("corner.y", "7");
  EXPECT_TRUE(FObject.property("id").toUuid().isNull());
  EXPECT_EQ(QRegularExpression(QStringLiteral("b+"), QRegularExpression::CaseInsensitiveOption),
            FObject.property("pattern").toRegularExpression());
  EXPECT_EQ(QPointF(1.5, 7), FObject.property("corner").toPointF());
  EXPECT_TRUE(Item("brush").IsReadOnly());
  EXPECT_THROW(Put("pattern", "("), EPropertyConvertError);
}

TEST_F(QObjectKindsTest, AReferenceIsTheComponentOfTheObject) {
  TQtKinds partner;
  partner.setObjectName("Partner1");
  FObject.Partner = &partner;
  Inspect();
  EXPECT_EQ("Partner1", Value("partner"));
  EXPECT_EQ(ComponentOf(&partner), GetObjectProp(ComponentOf(&FObject), u"partner"));
  SetObjectProp(ComponentOf(&FObject), u"partner", nullptr);
  EXPECT_EQ(nullptr, FObject.Partner);
  SetObjectProp(ComponentOf(&FObject), u"partner", ComponentOf(&partner));
  EXPECT_EQ(&partner, FObject.Partner);
}

}  // namespace
}  // namespace kt::tests
