// What is a change, and what is not.
#include "qobjects/QObjectFixture.h"
#include "qobjects/SpecialObjects.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

namespace kt::tests {
namespace {

class QObjectDefaultsTest : public TQObjectTest {};

TEST_F(QObjectDefaultsTest, AFreshObjectsValuesAreTheDefaults) {
  QPushButton button;
  TComponent* component = ComponentOf(&button);
  EXPECT_FALSE(IsStoredProp(component, u"text"));
  EXPECT_FALSE(IsStoredProp(component, u"focusPolicy"));
  EXPECT_EQ(GetOrdProp(component, u"focusPolicy"), FindPropInfo(component, u"focusPolicy")->Default());
  button.setText("changed");
  EXPECT_TRUE(IsStoredProp(component, u"text"));
}

TEST_F(QObjectDefaultsTest, AnInheritedPropertyHasTheDefaultOfItsClass) {
  QPushButton button;
  QLabel label;
  EXPECT_NE(FindPropInfo(ComponentOf(&button), u"focusPolicy")->Default(),
            FindPropInfo(ComponentOf(&label), u"focusPolicy")->Default());
}

TEST_F(QObjectDefaultsTest, ChangedValuesAreModified) {
  QSpinBox box;
  InspectQ({&box});
  EXPECT_FALSE(Item("maximum").IsModified());
  EXPECT_FALSE(Item("suffix").IsModified());
  box.setMaximum(5);
  box.setSuffix("%");
  FInspector->RefreshProperties();
  EXPECT_TRUE(Item("maximum").IsModified());
  EXPECT_TRUE(Item("suffix").IsModified());
}

TEST_F(QObjectDefaultsTest, NobodysConstructorIsCalledUnasked) {
  TQtInvokable object;
  TQtInvokable::Made = 0;
  EXPECT_FALSE(FindPropInfo(ComponentOf(&object), u"count")->HasDefault());
  EXPECT_FALSE(ResetProperty(ComponentOf(&object), u"count"));
  EXPECT_EQ(0, TQtInvokable::Made);
}

TEST_F(QObjectDefaultsTest, AnInvokableConstructorDoesInsteadOfAFactoryWhenItIsAskedTo) {
  RegisterInvokableQObject(TQtInvited::staticMetaObject);
  TQtInvited object;
  EXPECT_FALSE(IsStoredProp(ComponentOf(&object), u"count"));
  EXPECT_EQ(5, FindPropInfo(ComponentOf(&object), u"count")->Default());
  object.Count = 6;
  EXPECT_TRUE(IsStoredProp(ComponentOf(&object), u"count"));
}

TEST_F(QObjectDefaultsTest, AnApplicationsFactoryTells) {
  RegisterQObjectFactory(TQtMade::staticMetaObject, [] {
    auto made = std::make_unique<TQtMade>();
    made->Extra = 33;
    return made;
  });
  TQtMade object;
  EXPECT_EQ(33, FindPropInfo(ComponentOf(&object), u"extra")->Default());
}

TEST_F(QObjectDefaultsTest, WithoutAFreshObjectEveryValueIsAChange) {
  TQtHostile object;
  EXPECT_TRUE(IsStoredProp(ComponentOf(&object), u"beta"));
  EXPECT_FALSE(FindPropInfo(ComponentOf(&object), u"beta")->HasDefault());
}

TEST_F(QObjectDefaultsTest, WhatTheClassDoesNotStoreIsNoChange) {
  TQtCounter object;
  object.SetOther(9);
  EXPECT_FALSE(IsStoredProp(ComponentOf(&object), u"passing"));
  EXPECT_TRUE(IsStoredProp(ComponentOf(&object), u"other"));
}

TEST_F(QObjectDefaultsTest, AResetGoesTheWayThatTheClassDeclares) {
  TQtCounter object;
  object.SetCount(50);
  object.Writes = 0;
  EXPECT_TRUE(ResetProperty(ComponentOf(&object), u"count"));
  EXPECT_EQ(5, object.Count());
  EXPECT_EQ(1, object.Writes);
}

TEST_F(QObjectDefaultsTest, AResetWithoutSuchAWayWritesTheDefault) {
  QCheckBox box;
  box.setText("changed");
  EXPECT_TRUE(ResetProperty(ComponentOf(&box), u"text"));
  EXPECT_EQ("", box.text());
}

TEST_F(QObjectDefaultsTest, AResetWithoutADefaultDoesNothing) {
  TQtHostile object;
  object.Beta = 4;
  EXPECT_FALSE(ResetProperty(ComponentOf(&object), u"beta"));
  EXPECT_FALSE(ResetProperty(ComponentOf(&object), u"unknown"));
  EXPECT_FALSE(ResetProperty(nullptr, u"beta"));
  EXPECT_EQ(4, object.Beta);
}

}  // namespace
}  // namespace kt::tests
