// The class infos that stand for classes of Qt's.
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "qobjects/QObjectFixture.h"

#include <QLabel>
#include <QPushButton>

namespace kt::tests {
namespace {

class QObjectClassesTest : public TQObjectTest {
 protected:
  ~QObjectClassesTest() override { SetListsHiddenProperties(false); }

  static QString Ancestors(QObject& object) {
    QStringList names;
    for (const TClassInfo* info = ComponentOf(&object)->ClassType(); info; info = info->ClassParent()) {
      names += info->ClassName();
    }
    return names.join(u' ');
  }
};

TEST_F(QObjectClassesTest, AClassHasTheAncestorsOfTheObjectsClassAndThenThoseOfAComponent) {
  QPushButton button;
  EXPECT_EQ("QPushButton QAbstractButton QWidget QObject TComponent TPersistent TObject", Ancestors(button));
  EXPECT_TRUE(ComponentOf(&button)->ClassNameIs(u"qpushbutton"));
  EXPECT_TRUE(ComponentOf(&button)->InheritsFrom(TComponent::Class()));
}

TEST_F(QObjectClassesTest, ObjectsOfOneClassShareItsInfo) {
  QLabel first;
  QLabel second;
  EXPECT_EQ(ComponentOf(&first)->ClassType(), ComponentOf(&second)->ClassType());
}

TEST_F(QObjectClassesTest, WhatDesignersDoNotSeeIsListedWhenAskedFor) {
  TQtCounter object;
  TComponent* component = ComponentOf(&object);
  EXPECT_FALSE(IsPublishedProp(component, u"hidden"));
  SetListsHiddenProperties(true);
  EXPECT_TRUE(IsPublishedProp(component, u"hidden"));
  SetListsHiddenProperties(false);
  EXPECT_FALSE(IsPublishedProp(component, u"hidden"));
}

TEST_F(QObjectClassesTest, NamesThatDifferInCaseAreBothListed) {
  TQtNames object;
  TComponent* component = ComponentOf(&object);
  EXPECT_EQ(1, GetOrdProp(component, u"value"));
  EXPECT_EQ(2, GetOrdProp(component, u"Value_"));
  SetOrdProp(component, u"Value_", 3);
  EXPECT_EQ(1, object.Small);
  EXPECT_EQ(3, object.Capital);
}

TEST_F(QObjectClassesTest, ADescendantsPropertyStandsForTheInheritedOneUnlessThatIsFinal) {
  TQtUnsealed object;
  TComponent* component = ComponentOf(&object);
  EXPECT_EQ(77, GetOrdProp(component, u"count"));
  EXPECT_EQ(1, GetOrdProp(component, u"sealed"));
}

TEST_F(QObjectClassesTest, DynamicPropertiesAreListedForTheirObjectAlone) {
  TQtCounter object;
  TQtCounter other;
  object.setProperty("extra", 5);
  object.setProperty("_q_note", 6);
  InspectQ({&object});
  EXPECT_EQ("5", Value("extra"));
  EXPECT_EQ(nullptr, Find("_q_note"));
  EXPECT_FALSE(IsPublishedProp(ComponentOf(&other), u"extra"));
  EXPECT_TRUE(ComponentOf(&object)->ClassNameIs(u"kt::tests::TQtCounter"));
  EXPECT_TRUE(ComponentOf(&object)->InheritsFrom(ComponentOf(&other)->ClassType()));
  Put("extra", "7");
  EXPECT_EQ(QVariant(7), object.property("extra"));
}

TEST_F(QObjectClassesTest, ADynamicPropertyThatComesOrGoesIsListedOrNotAfterOneScan) {
  TQtCounter object;
  InspectQ({&object});
  int scans = 0;
  FInspector->OnAfterScan = [&](TObject*, TKTItemProperty* item) { scans += !item; };
  object.setProperty("first", 1);
  object.setProperty("second", QColor(Qt::red));
  Deliver();
  EXPECT_EQ("1 #ff0000", Value("first") + ' ' + Value("second"));
  EXPECT_EQ(1, scans);
  object.setProperty("first", QVariant());
  Deliver();
  EXPECT_EQ(nullptr, Find("first"));
  EXPECT_EQ(2, scans);
}

TEST_F(QObjectClassesTest, ADynamicPropertyThatOnlyChangesIsReadAgain) {
  TQtCounter object;
  object.setProperty("extra", 1);
  InspectQ({&object});
  int scans = 0;
  FInspector->OnAfterScan = [&](TObject*, TKTItemProperty* item) { scans += !item; };
  object.setProperty("extra", 2);
  Deliver();
  EXPECT_EQ("2", Value("extra"));
  EXPECT_EQ(0, scans);
}

TEST_F(QObjectClassesTest, DynamicPropertiesThatDifferInCaseAreBothListedAndFollow) {
  TQtCounter object;
  object.setProperty("extra", 1);
  object.setProperty("Extra", 2);
  InspectQ({&object});
  EXPECT_EQ("1 2", Value("extra") + ' ' + Value("Extra_"));
  object.setProperty("Extra", 3);
  Deliver();
  EXPECT_EQ("1 3", Value("extra") + ' ' + Value("Extra_"));
}

TEST_F(QObjectClassesTest, ADynamicPropertyDoesNotHideADeclaredOne) {
  TQtCounter object;
  object.setProperty("Count", 99);
  InspectQ({&object});
  EXPECT_EQ("5 99", Value("count") + ' ' + Value("Count_"));
}

}  // namespace
}  // namespace kt::tests
