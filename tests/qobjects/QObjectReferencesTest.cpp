// Properties that point to objects.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "qobjects/QObjectFixture.h"
#include "qobjects/SpecialObjects.h"

#include <QLabel>
#include <QLineEdit>

#include <cstddef>

namespace kt::tests {
namespace {

QStringList ChoicesOf(TKTObjectInspector& inspector, TKTItemProperty& item) {
  const auto values = Make<TStringList>();
  inspector.SetSelected(&item);
  item.GetOnGetPickList()(&item, item.GetFullPathName(), *values);
  QStringList texts;
  for (int i = 0; i < values->GetCount(); ++i) texts += values->GetStrings(i);
  return texts;
}

class QObjectReferencesTest : public TQObjectTest {
 protected:
  TQtLink* Link(const char* name, QObject* parent) {
    auto* link = new TQtLink(parent);
    link->setObjectName(name);
    return link;
  }

  TQtLink FRoot;
};

TEST_F(QObjectReferencesTest, TheObjectsOfTheClassInTheTreeAreOffered) {
  TQtLink* first = Link("first", &FRoot);
  Link("second", first);
  new QObject(&FRoot);
  InspectQ({first});
  EXPECT_EQ(esPickList, Item("sibling").GetEditStyle());
  EXPECT_EQ("(none)|kt::tests::TQtLink (unnamed)|first|second", ChoicesOf(*FInspector, Item("sibling")).join(u'|'));
}

TEST_F(QObjectReferencesTest, AChoiceIsWritten) {
  TQtLink* first = Link("first", &FRoot);
  InspectQ({&FRoot});
  Put("sibling", "first");
  EXPECT_EQ(first, FRoot.Sibling);
  EXPECT_EQ("first", Value("sibling"));
  Put("sibling", "(none)");
  EXPECT_EQ(nullptr, FRoot.Sibling);
  EXPECT_EQ("", Value("sibling"));
}

TEST_F(QObjectReferencesTest, NamesakesAndUnnamedObjectsAreToldApart) {
  Link("same", &FRoot);
  TQtLink* second = Link("same", Link("", &FRoot));
  InspectQ({&FRoot});
  Put("sibling", "same #2");
  EXPECT_EQ(second, FRoot.Sibling);
  EXPECT_EQ("same #2", Value("sibling"));
  Put("sibling", "kt::tests::TQtLink (unnamed) #2");
  EXPECT_EQ(second->parent(), FRoot.Sibling);
}

TEST_F(QObjectReferencesTest, AnUnnamedObjectIsShownByItsClass) {
  TQtKinds owner;
  QLabel label;
  owner.Partner = &label;
  InspectQ({&owner});
  EXPECT_EQ("QLabel (unnamed)", Value("partner"));
  // The text that is shown means what is there, although the object is in another tree.
  Put("partner", "QLabel (unnamed)");
  EXPECT_EQ(&label, owner.Partner);
}

TEST_F(QObjectReferencesTest, AnUnknownNameIsRefused) {
  InspectQ({&FRoot});
  try {
    Put("sibling", "nobody");
    FAIL() << "nothing was raised";
  } catch (const EPropertyConvertError& error) {
    EXPECT_EQ("'nobody' is not a valid value of type kt::tests::TQtLink", error.Message());
  }
}

TEST_F(QObjectReferencesTest, AReferredObjectThatDiesIsTold) {
  auto partner = std::make_unique<TQtCounter>();
  partner->setObjectName("Partner1");
  FRoot.Next = partner.get();
  InspectQ({&FRoot});
  EXPECT_EQ("Partner1", Value("next"));
  partner.reset();
  Deliver();
  Deliver();
  // The pointer is left as it was, and nobody follows it.
  EXPECT_EQ("(destroyed)", Value("next"));
  EXPECT_EQ(nullptr, Find("next.count"));
  EXPECT_EQ(nullptr, GetObjectProp(ComponentOf(&FRoot), u"next"));
}

TEST_F(QObjectReferencesTest, OnlyTheObjectThatIsPointedToNowIsFollowed) {
  auto first = std::make_unique<TQtLink>();
  auto second = std::make_unique<TQtLink>();
  FRoot.Sibling = first.get();
  FRoot.setProperty("dynamic", QVariant::fromValue<QObject*>(first.get()));
  InspectQ({&FRoot});
  FRoot.SetSibling(second.get());
  FRoot.setProperty("dynamic", QVariant::fromValue<QObject*>(second.get()));
  Deliver();
  int refreshes = 0;
  FInspector->OnRefreshValue = [&](TObject*, TKTItemProperty*) { ++refreshes; };
  first.reset();
  Deliver();
  EXPECT_EQ(0, refreshes);
  second.reset();
  Deliver();
  Deliver();
  EXPECT_EQ("(destroyed) (destroyed)", Value("sibling") + ' ' + Value("dynamic"));
}

TEST_F(QObjectReferencesTest, APointerThatIsSetAnewIsFollowedAgain) {
  alignas(TQtLink) std::byte memory[sizeof(TQtLink)];
  auto* first = new (memory) TQtLink;
  FRoot.SetSibling(first);
  InspectQ({&FRoot});
  first->~TQtLink();
  auto* second = new (memory) TQtLink;
  second->setObjectName("second");
  FRoot.SetSibling(second);
  Deliver();
  EXPECT_EQ("second", Value("sibling"));
  FRoot.SetSibling(nullptr);
  second->~TQtLink();
}

TEST_F(QObjectReferencesTest, ALongChainOfReferencesEnds) {
  std::vector<std::unique_ptr<TQtLink>> chain;
  for (int i = 0; i < 5000; ++i) {
    chain.push_back(std::make_unique<TQtLink>());
    if (i > 0) chain[static_cast<size_t>(i - 1)]->Next = chain.back().get();
  }
  InspectQ({chain.front().get()});
  EXPECT_NE(nullptr, Find("next.next.next.objectName"));
  EXPECT_GT(500, FInspector->GetItemCount());
}

TEST_F(QObjectReferencesTest, WhatPointsBackToAFreshObjectIsNoDefault) {
  RegisterQObjectFactory<TQtSelfish>();
  TQtSelfish object;
  for (const char* name : {"self", "all", "any", "some"}) {
    EXPECT_FALSE(ResetProperty(ComponentOf(&object), QString::fromLatin1(name))) << name;
  }
  EXPECT_TRUE(ResetProperty(ComponentOf(&object), u"number"));
}

class QObjectReferencesWindowTest : public TInspectorWindowTest {};

TEST_F(QObjectReferencesWindowTest, AnObjectIsChosenWithTheKeys) {
  QWidget window;
  auto* edit = new QLineEdit(&window);
  edit->setObjectName("edit");
  TQtLink link(&window);
  link.setObjectName("link");
  Show({ComponentOf(&link)});
  Select("next");
  ASSERT_TRUE(IsEditorOpen());
  // Behind "(none)", the window, and before the object itself.
  TWindowProbe::Key(Qt::Key_Down, Qt::AltModifier);
  TWindowProbe::Settle();
  for (int i = 0; i < 3; ++i) TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  EXPECT_EQ("", TakeErrors());
  EXPECT_EQ(edit, link.Next);
}

TEST_F(QObjectReferencesWindowTest, AnObjectMayGoWhileItsListIsOpen) {
  auto link = std::make_unique<TQtLink>();
  Show({ComponentOf(link.get())});
  Select("next");
  TWindowProbe::Key(Qt::Key_Down, Qt::AltModifier);
  TWindowProbe::Settle();
  link.reset();
  TWindowProbe::Settle();
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  EXPECT_EQ(0, FInspector->GetItemCount());
  EXPECT_EQ("", TakeErrors());
}

}  // namespace
}  // namespace kt::tests
