// Values made of values: fonts, sizes, gadgets, lists of texts.
#include "qobjects/QObjectFixture.h"

#include <QWidget>

namespace kt::tests {
namespace {

class QObjectPartsTest : public TQObjectTest {
 protected:
  TQtKinds FObject;
  void Inspect() { InspectQ({&FObject}); }
};

TEST_F(QObjectPartsTest, ASizeHasTwoMembers) {
  FObject.Size = QSize(3, 4);
  Inspect();
  EXPECT_EQ("height width", NamesBelow("size"));
  Put("size.width", "9");
  EXPECT_EQ(QSize(9, 4), FObject.Size);
  EXPECT_EQ("9", Value("size.width"));
}

TEST_F(QObjectPartsTest, ThePlaceOfARectangleMovesIt) {
  FObject.Rect = QRect(1, 2, 30, 40);
  FObject.RectF = QRectF(1, 2, 30, 40);
  Inspect();
  Put("rect.x", "10");
  Put("rectF.y", "5.5");
  Put("rectF.height", "6");
  EXPECT_EQ(QRect(10, 2, 30, 40), FObject.Rect);
  EXPECT_EQ(QRectF(1, 5.5, 30, 6), FObject.RectF);
}

TEST_F(QObjectPartsTest, AFontGoesBackAsAWhole) {
  FObject.Font = QFont("DejaVu Sans", 11);
  Inspect();
  Put("font.bold", "True");
  Put("font.size", "12.5");
  Put("font.capitalization", "SmallCaps");
  QFont expected("DejaVu Sans");
  expected.setPointSizeF(12.5);
  expected.setBold(true);
  expected.setCapitalization(QFont::SmallCaps);
  EXPECT_EQ(expected, FObject.Font);
  EXPECT_EQ("DejaVu Sans", Value("font.family"));
}

TEST_F(QObjectPartsTest, AFontRefusesASizeOfNothing) {
  FObject.Font = QFont("DejaVu Sans", 11);
  Inspect();
  EXPECT_THROW(Put("font.size", "0"), EPropertyError);
  EXPECT_EQ(11, FObject.Font.pointSize());
}

TEST_F(QObjectPartsTest, SizePoliciesAndMargins) {
  Inspect();
  Put("policy.horizontalPolicy", "Expanding");
  Put("policy.verticalStretch", "3");
  Put("margins.bottom", "8");
  EXPECT_EQ(QSizePolicy::Expanding, FObject.Policy.horizontalPolicy());
  EXPECT_EQ(3, FObject.Policy.verticalStretch());
  EXPECT_EQ(QMargins(0, 0, 0, 8), FObject.Margins);
}

TEST_F(QObjectPartsTest, GadgetsInGadgetsGoBackAsAWholeAtAnyDepth) {
  Inspect();
  EXPECT_EQ("outer 1 #ff0000 3", Value("gadget.title") + ' ' + Value("gadget.inner.depth") + ' ' +
                                     Value("gadget.inner.tint") + ' ' + Value("gadget.inner.place.x"));
  Put("gadget.inner.place.x", "30");
  Put("gadget.inner.tint", "#0000ff");
  EXPECT_EQ(QPoint(30, 4), FObject.Gadget.Inner.Place);
  EXPECT_EQ(QColor(0, 0, 255), FObject.Gadget.Inner.Tint);
  EXPECT_EQ("outer", FObject.Gadget.Title);
}

TEST_F(QObjectPartsTest, AGadgetsComputedMemberIsReadOnlyAndFollows) {
  Inspect();
  EXPECT_TRUE(Item("gadget.inner.twice").IsReadOnly());
  Put("gadget.inner.depth", "4");
  EXPECT_EQ("8", Value("gadget.inner.twice"));
}

TEST_F(QObjectPartsTest, TheMembersOfAValueThatCannotBeWrittenCanOnlyBeRead) {
  QWidget widget;
  widget.resize(30, 40);
  InspectQ({&widget});
  EXPECT_EQ("30", Value("rect.width"));
  EXPECT_TRUE(Item("rect.width").IsReadOnly());
  EXPECT_FALSE(Item("geometry.width").IsReadOnly());
  EXPECT_TRUE(GetObjectProp(ComponentOf(&widget), u"geometry")->ClassNameIs(u"QRect"));
}

TEST_F(QObjectPartsTest, AGadgetWithoutEndEnds) {
  Inspect();
  EXPECT_EQ("", Value("gadget.self"));
  EXPECT_EQ("", NamesBelow("gadget.self"));
}

TEST_F(QObjectPartsTest, OnePartStandsForAValueAsLongAsItsObject) {
  TComponent* component = ComponentOf(&FObject);
  TObject* font = GetObjectProp(component, u"font");
  EXPECT_EQ(font, GetObjectProp(component, u"font"));
  EXPECT_EQ("QFont", font->ClassName());
}

TEST_F(QObjectPartsTest, APartTakesTheValueOfAnother) {
  TQtKinds other;
  other.Gadget.Title = "other";
  SetObjectProp(ComponentOf(&FObject), u"gadget", GetObjectProp(ComponentOf(&other), u"gadget"));
  EXPECT_EQ("other", FObject.Gadget.Title);
}

TEST_F(QObjectPartsTest, AListOfTextsIsEditedAsOneText) {
  FObject.Lines = QStringList{"a", "b c", "d,\"e"};
  Inspect();
  EXPECT_FALSE(Item("lines").IsReadOnly());
  EXPECT_EQ("a,\"b c\",\"d,\"\"e\"", Value("lines"));
  Put("lines", Value("lines"));
  EXPECT_EQ(QStringList({"a", "b c", "d,\"e"}), FObject.Lines);
  Put("lines", "x,\"y z\"");
  EXPECT_EQ(QStringList({"x", "y z"}), FObject.Lines);
  // Whoever has an editor for string lists finds them by that name.
  EXPECT_EQ("TStrings", Item("lines").GetTypeName());
}

TEST_F(QObjectPartsTest, AListOfTextsIsAStringList) {
  FObject.Lines = QStringList{"a", "b"};
  FInspector->SetInplaceTStrings(true);
  Inspect();
  EXPECT_EQ("Items[0] Items[1]", NamesBelow("lines"));
  Put("lines.Items[1]", "c");
  EXPECT_EQ(QStringList({"a", "c"}), FObject.Lines);
  auto& lines = static_cast<TStrings&>(*GetObjectProp(ComponentOf(&FObject), u"lines"));
  lines.Add("d");
  EXPECT_EQ(QStringList({"a", "c", "d"}), FObject.Lines);
}

}  // namespace
}  // namespace kt::tests
