#include "qtinspect/InspectFixture.h"
#include "qtinspect/ObjectTree.h"

#include <QPushButton>

namespace qtinspect::tests {

/// The tree of a form with two buttons.
class ObjectTreeTest : public testing::Test {
 protected:
  ObjectTreeTest() : Tree(Selection, [this] { return Roots; }) {
    Form.setObjectName(QStringLiteral("form"));
    One = Add(QStringLiteral("one"));
    Two = Add(QStringLiteral("two"));
    Tree.show();
    Activate(Tree);
  }

  QPushButton* Add(const QString& name) {
    auto* button = new QPushButton(&Form);
    button->setObjectName(name);
    return button;
  }
  /// "form: QWidget (*one: QPushButton two: QPushButton)"; a star is before what is selected.
  QString Text() {
    Settle();
    return TextOf(Tree.invisibleRootItem());
  }
  QString TextOf(const QTreeWidgetItem* item) {
    QStringList lines;
    for (int i = 0; i < item->childCount(); ++i) {
      const QTreeWidgetItem* child = item->child(i);
      const QString below = TextOf(child);
      lines.append((child->isSelected() ? QStringLiteral("*") : QString()) + child->text(0).section(u':', 0, 0) +
                   (below.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(below)));
    }
    return lines.join(u' ');
  }
  void ClickOn(const QObject& object, Qt::KeyboardModifiers modifiers = {}) {
    const QRect place = Tree.visualItemRect(Tree.ItemOf(&object));
    QTest::mouseClick(Tree.viewport(), Qt::LeftButton, modifiers, place.center());
    Settle();
  }

  QWidget Form;
  std::vector<QObject*> Roots{&Form};
  QPushButton* One;
  QPushButton* Two;
  TSelection Selection;
  TObjectTree Tree;
};

TEST_F(ObjectTreeTest, FollowsObjectsThatComeGoAndGetAnotherName) {
  EXPECT_EQ(Text(), QStringLiteral("form (one two)"));
  Add(QStringLiteral("three"));
  delete One;
  Two->setObjectName(QStringLiteral("second"));
  EXPECT_EQ(Text(), QStringLiteral("form (second three)"));
}

TEST_F(ObjectTreeTest, SelectsByClicks) {
  ClickOn(*One);
  ClickOn(*Two, Qt::ControlModifier);
  EXPECT_EQ(NamesOf(Selection.Objects()), QStringLiteral("one two"));
  ClickOn(Form, Qt::ShiftModifier);
  EXPECT_EQ(Text(), QStringLiteral("*form (*one *two)"));
  ClickOn(*Two);
  EXPECT_EQ(Text(), QStringLiteral("form (one *two)"));
}

TEST_F(ObjectTreeTest, SelectsByKeys) {
  Selection.Select(&Form);
  Key(Qt::Key_Down);
  EXPECT_EQ(Text(), QStringLiteral("form (*one two)"));
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(NamesOf(Selection.Objects()), QStringLiteral("one two"));
}

TEST_F(ObjectTreeTest, TheReturnKeyAsksForTheInspector) {
  int asked = 0;
  Tree.OnInspect = [&] { ++asked; };
  Key(Qt::Key_Return);
  EXPECT_EQ(asked, 1);
}

TEST_F(ObjectTreeTest, ShowsWhatIsSelectedElsewhere) {
  Selection.Select(Two);
  EXPECT_EQ(Text(), QStringLiteral("form (one *two)"));
  Selection.Toggle(One);
  EXPECT_EQ(Text(), QStringLiteral("form (*one *two)"));
  Selection.Toggle(Two);
  EXPECT_EQ(Text(), QStringLiteral("form (*one two)"));
}

TEST_F(ObjectTreeTest, ASelectedObjectThatGoesIsSelectedNoLonger) {
  Selection.Select({One, Two});
  delete One;
  EXPECT_EQ(Text(), QStringLiteral("form (*two)"));
  EXPECT_EQ(NamesOf(Selection.Objects()), QStringLiteral("two"));
}

TEST_F(ObjectTreeTest, WhatIsCollapsedStaysSo) {
  Tree.ItemOf(&Form)->setExpanded(false);
  Add(QStringLiteral("three"));
  Settle();
  EXPECT_FALSE(Tree.ItemOf(&Form)->isExpanded());
}

TEST_F(ObjectTreeTest, IsEmptyOnceAllIsGone) {
  Selection.Select(One);
  Roots.clear();
  delete One;
  EXPECT_EQ(Text(), QString());
  EXPECT_EQ(Selection.Main(), nullptr);
}

}  // namespace qtinspect::tests
