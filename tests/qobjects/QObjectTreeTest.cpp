// Components follow the tree of their objects.
#include "qobjects/QObjectFixture.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QWidget>

#include <cstddef>

namespace kt::tests {
namespace {

class QObjectTreeTest : public TQObjectTest {
 protected:
  static QString NamesOwned(QObject& object) {
    QStringList names;
    TComponent* component = ComponentOf(&object);
    for (int i = 0; i < component->GetComponentCount(); ++i) names += component->GetComponents(i)->GetName();
    return names.join(u' ');
  }
  static QObject* Named(const char* name, QObject* parent) {
    auto* object = new QObject(parent);
    object->setObjectName(name);
    return object;
  }

  QObject FRoot;
};

TEST_F(QObjectTreeTest, NoObjectHasNoComponent) { EXPECT_EQ(nullptr, ComponentOf(nullptr)); }

TEST_F(QObjectTreeTest, AnObjectHasOneComponent) {
  EXPECT_EQ(ComponentOf(&FRoot), ComponentOf(&FRoot));
  EXPECT_EQ(&FRoot, ObjectOf(ComponentOf(&FRoot)));
}

TEST_F(QObjectTreeTest, ChildrenAreOwnedInTheirOrder) {
  Named("a", &FRoot);
  Named("b", &FRoot);
  EXPECT_EQ("a b", NamesOwned(FRoot));
}

TEST_F(QObjectTreeTest, TheOwnerIsTheComponentOfTheParentWhoeverIsAskedForFirst) {
  QObject* child = Named("child", &FRoot);
  QObject* grandchild = Named("grandchild", child);
  EXPECT_EQ(ComponentOf(child), ComponentOf(grandchild)->GetOwnerComponent());
  EXPECT_EQ(ComponentOf(&FRoot), ComponentOf(child)->GetOwnerComponent());
}

TEST_F(QObjectTreeTest, ChildrenThatComeAndGoAreFollowed) {
  ComponentOf(&FRoot);
  QObject* child = Named("late", &FRoot);
  Deliver();
  EXPECT_EQ("late", NamesOwned(FRoot));
  delete child;
  EXPECT_EQ("", NamesOwned(FRoot));
}

TEST_F(QObjectTreeTest, AChildThatChangesItsParentChangesItsOwner) {
  QObject other;
  QObject* child = Named("child", &FRoot);
  TComponent* component = ComponentOf(child);
  child->setParent(&other);
  EXPECT_EQ("", NamesOwned(FRoot));
  Deliver();
  EXPECT_EQ("child", NamesOwned(other));
  EXPECT_EQ(component, ComponentOf(child));
  child->setParent(nullptr);
  Deliver();
  EXPECT_EQ(nullptr, component->GetOwnerComponent());
  delete child;
}

TEST_F(QObjectTreeTest, AWindowBringsItsLayoutAndWidgets) {
  QWidget window;
  auto* layout = new QHBoxLayout(&window);
  auto* button = new QPushButton(&window);
  layout->addWidget(button);
  EXPECT_EQ(2, ComponentOf(&window)->GetComponentCount());
  EXPECT_EQ(ComponentOf(&window), ComponentOf(button)->GetOwnerComponent());
}

TEST_F(QObjectTreeTest, TheNameIsTheObjectsWhereThatIsAnIdentifier) {
  FRoot.setObjectName("Root1");
  EXPECT_EQ("Root1", ComponentOf(&FRoot)->GetName());
  FRoot.setObjectName("no identifier");
  EXPECT_EQ("", ComponentOf(&FRoot)->GetName());
  FRoot.setObjectName("Root2");
  EXPECT_EQ("Root2", ComponentOf(&FRoot)->GetName());
}

TEST_F(QObjectTreeTest, NamesakesAreNumbered) {
  QObject* first = Named("same", &FRoot);
  QObject* second = Named("same", &FRoot);
  QObject* third = Named("same", &FRoot);
  EXPECT_EQ("same", ComponentOf(first)->GetName());
  EXPECT_EQ("same_2", ComponentOf(second)->GetName());
  EXPECT_EQ("same_3", ComponentOf(third)->GetName());
  EXPECT_EQ("same", GetStrProp(ComponentOf(second), u"objectName"));
  second->setObjectName("other");
  EXPECT_EQ("other", ComponentOf(second)->GetName());
  second->setObjectName("same");
  EXPECT_EQ("same_4", ComponentOf(second)->GetName());
}

TEST_F(QObjectTreeTest, TenThousandObjectsBelowEachOtherComeAndGo) {
  constexpr int kDepth = 10'000;
  auto root = std::make_unique<QObject>();
  QObject* last = root.get();
  for (int i = 0; i < kDepth; ++i) last = new QObject(last);
  const TObjectRef component(ComponentOf(root.get()));
  int depth = 0;
  for (TComponent* at = ComponentOf(last); at->GetOwnerComponent(); at = at->GetOwnerComponent()) ++depth;
  EXPECT_EQ(kDepth, depth);
  root.reset();
  EXPECT_FALSE(component);
}

TEST_F(QObjectTreeTest, OfAWideTreeEachComponentHearsOfNoSiblings) {
  // Each level as a whole: what comes later than a sibling's children is told to all of these.
  for (int i = 0; i < 20'000; ++i) Named("same", Named("", &FRoot));
  EXPECT_EQ(20'000, ComponentOf(&FRoot)->GetComponentCount());
}

TEST_F(QObjectTreeTest, WhatBelongsToTheApplicationIsInspectedToo) {
  QObject* child = Named("ofAll", QCoreApplication::instance());
  InspectQ({child});
  EXPECT_EQ("ofAll", Value("objectName"));
  EXPECT_EQ(nullptr, ComponentOf(child)->GetOwnerComponent());
  const TObjectRef component(ComponentOf(child));
  ASSERT_NE(nullptr, ComponentOf(QCoreApplication::instance()));
  delete child;
  EXPECT_FALSE(component);
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectTreeTest, AParentAtTheAddressOfOneThatWentIsFollowed) {
  alignas(QObject) std::byte memory[sizeof(QObject)];
  auto* first = new (memory) QObject;
  ComponentOf(first);
  first->~QObject();
  auto* second = new (memory) QObject;
  auto* child = new QObject(second);
  EXPECT_EQ(ComponentOf(second), ComponentOf(child)->GetOwnerComponent());
  second->~QObject();
}

TEST_F(QObjectTreeTest, NamingTheComponentNamesTheObject) {
  ComponentOf(&FRoot)->SetName("Given");
  EXPECT_EQ("Given", FRoot.objectName());
  EXPECT_THROW(ComponentOf(&FRoot)->SetName("not given"), EComponentError);
  EXPECT_EQ("Given", FRoot.objectName());
}

}  // namespace
}  // namespace kt::tests
