// Which values stand out as changed, and when that is found out.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "qobjects/QObjectFixture.h"
#include "qobjects/SpecialObjects.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QTextEdit>

namespace kt::tests {
namespace {

class QObjectMarksTest : public TQObjectTest {
 protected:
  QString Marked(const QStringList& paths) {
    QStringList marked;
    for (const QString& path : paths) {
      if (Item(path).IsModified()) marked += path;
    }
    return marked.join(u' ');
  }
};

/// The kinds that have members, and those that never stood out.
const QStringList& Paths() {
  static const QStringList paths = {"font",   "font.size", "font.bold", "rect",    "rect.x", "rect.width",
                                    "single", "real",      "large",     "variant", "lines",  "color"};
  return paths;
}

TEST_F(QObjectMarksTest, AMemberStandsOutWhereItDiffersFromThatOfAFreshObject) {
  QCheckBox box;
  InspectQ({&box});
  EXPECT_EQ("", Marked({"font", "font.bold", "font.size", "sizePolicy", "sizePolicy.verticalStretch"}));
  QFont font = box.font();
  font.setBold(!font.bold());
  box.setFont(font);
  Deliver();
  EXPECT_EQ("font font.bold", Marked({"font", "font.bold", "font.size", "sizePolicy"}));
}

TEST_F(QObjectMarksTest, EveryKindIsCompared) {
  RegisterQObjectFactory<TQtMarked>();
  TQtMarked object;
  InspectQ({&object});
  EXPECT_EQ("", Marked(Paths()));
  object.Rect.moveLeft(9);
  object.Single = 1;
  object.Real = 1;
  object.Large = 78;
  object.AVariant = 6;
  object.Lines += "b";
  object.Color = Qt::red;
  FInspector->RefreshProperties();
  EXPECT_EQ("rect rect.x single real large variant lines color", Marked(Paths()));
}

TEST_F(QObjectMarksTest, NothingStandsOutWithoutAFreshObject) {
  TQtCounter object;
  object.SetCount(8);
  InspectQ({&object});
  EXPECT_EQ("", Marked({"count", "other", "place", "place.x"}));
}

TEST_F(QObjectMarksTest, WhatAnAncestorOfQtsHasIsComparedWithThat) {
  TQtMyLabel object;
  object.Own = 8;
  InspectQ({&object});
  EXPECT_EQ("", Marked({"text", "enabled", "own"}));
  object.setText("changed");
  FInspector->RefreshProperties();
  EXPECT_EQ("text", Marked({"text", "enabled", "own"}));
}

TEST_F(QObjectMarksTest, ANumberOfAWidgetStandsOut) {
  QDoubleSpinBox box;
  InspectQ({&box});
  EXPECT_EQ("", Marked({"maximum", "value"}));
  Put("value", "2.5");
  EXPECT_EQ("value", Marked({"maximum", "value"}));
}

class QObjectMarksWindowTest : public TInspectorWindowTest {};

TEST_F(QObjectMarksWindowTest, PaintingCallsNoGetter) {
  RegisterQObjectFactory<TQtMadeCounter>();
  TQtMadeCounter object;
  object.SetCount(8);
  Show({ComponentOf(&object)});
  EXPECT_TRUE(Item("count").IsModified());
  object.Reads = 0;
  FWindow->Body()->repaint();
  FInspector->Invalidate();
  TWindowProbe::Settle();
  EXPECT_EQ(0, object.Reads);
}

TEST_F(QObjectMarksWindowTest, AChangedValueIsShownInTheFontForThose) {
  QLabel label;
  Show({ComponentOf(&label)});
  EXPECT_NE(&FInspector->GetValueChangedFont(), &Item("text").GetIndividualValueFont(0));
  label.setText("changed");
  FInspector->RefreshProperties();
  EXPECT_EQ(&FInspector->GetValueChangedFont(), &Item("text").GetIndividualValueFont(0));
}

}  // namespace
}  // namespace kt::tests
