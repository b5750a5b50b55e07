// Several objects of Qt's, and components of the framework among them.
#include "kt/qobjects/QObjectComponent.h"
#include "qobjects/QObjectFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace kt::tests {
namespace {

class MixedSelectionTest : public TQObjectTest {};

TEST_F(MixedSelectionTest, WhatObjectsOfSeveralClassesShareIsWrittenToAll) {
  QPushButton button;
  QCheckBox box;
  QLabel label;
  InspectQ({&button, &box, &label});
  EXPECT_EQ(nullptr, Find("checkable"));
  Put("text", "same");
  EXPECT_EQ("same same same", button.text() + ' ' + box.text() + ' ' + label.text());
}

TEST_F(MixedSelectionTest, ValuesThatDifferAreNotEqual) {
  QLabel first;
  QLabel second;
  first.setText("a");
  InspectQ({&first, &second});
  EXPECT_FALSE(Item("text").IsAllEqual());
  EXPECT_TRUE(Item("enabled").IsAllEqual());
}

TEST_F(MixedSelectionTest, ValuesThatBecomeDifferentOrEqualAreShownSo) {
  TQtCounter first;
  TQtCounter second;
  InspectQ({&first, &second});
  EXPECT_TRUE(Item("count").IsAllEqual());
  second.SetCount(6);
  Deliver();
  EXPECT_FALSE(Item("count").IsAllEqual());
  first.SetCount(6);
  Deliver();
  EXPECT_TRUE(Item("count").IsAllEqual());
}

TEST_F(MixedSelectionTest, MembersThatBecomeDifferentOrEqualAreShownSo) {
  TQtCounter first;
  TQtCounter second;
  InspectQ({&first, &second});
  second.SetPlace({7, 0});
  Deliver();
  EXPECT_FALSE(Item("place.x").IsAllEqual());
  EXPECT_TRUE(Item("place.y").IsAllEqual());
  first.SetPlace({7, 0});
  Deliver();
  EXPECT_TRUE(Item("place.x").IsAllEqual());
}

TEST_F(MixedSelectionTest, MembersOfSetsThatBecomeDifferentAreShownSo) {
  QLabel first;
  QLabel second;
  InspectQ({&first, &second});
  EXPECT_TRUE(Item("inputMethodHints.ImhDate").IsAllEqual());
  second.setInputMethodHints(Qt::ImhDate);
  // No signal and no event tells.
  static_cast<TQObjectComponent*>(ComponentOf(&second))->TellChanged("inputMethodHints");
  Deliver();
  EXPECT_FALSE(Item("inputMethodHints.ImhDate").IsAllEqual());
  EXPECT_TRUE(Item("inputMethodHints.ImhTime").IsAllEqual());
}

TEST_F(MixedSelectionTest, AValueColumnForEachObject) {
  QLabel first;
  QLabel second;
  first.setText("a");
  second.setText("b");
  UseSeveralColumns();
  InspectQ({&first, &second});
  EXPECT_EQ("a b", Item("text").GetValueLine(0) + ' ' + Item("text").GetValueLine(1));
}

TEST_F(MixedSelectionTest, AnObjectAndAComponentShareWhatIsOfOneNameAndType) {
  QObject object;
  const auto component = Make<TSample>();
  component->SetTag(3);
  ComponentOf(&object)->SetTag(3);
  Inspect({ComponentOf(&object), component.get()});
  EXPECT_EQ("Name Tag", Names(Items()));
  EXPECT_TRUE(Item("Tag").IsAllEqual());
  Put("Tag", "4");
  EXPECT_EQ(4, component->GetTag());
  EXPECT_EQ(4, ComponentOf(&object)->GetTag());
}

TEST_F(MixedSelectionTest, MembersOfPartsAreWrittenToAll) {
  TQtKinds first;
  TQtKinds second;
  InspectQ({&first, &second});
  Put("gadget.inner.depth", "8");
  EXPECT_EQ(8, first.Gadget.Inner.Depth);
  EXPECT_EQ(8, second.Gadget.Inner.Depth);
}

}  // namespace
}  // namespace kt::tests
