// Objects that tell of their changes.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "qobjects/QObjectFixture.h"
#include "qobjects/SpecialObjects.h"

#include <QEvent>
#include <QLineEdit>
#include <QWidget>

namespace kt::tests {
namespace {

class QObjectNotifyTest : public TQObjectTest {
 protected:
  void CountRefreshes() {
    FInspector->OnRefreshValue = [this](TObject*, TKTItemProperty* item) { FRefreshed += item->GetFullPathName(); };
    FInspector->OnAfterScan = [this](TObject*, TKTItemProperty* item) { FScans += !item; };
  }

  TQtCounter FObject;
  QStringList FRefreshed;
  int FScans = 0;
};

TEST_F(QObjectNotifyTest, AChangeIsShownWithoutAScan) {
  InspectQ({&FObject});
  CountRefreshes();
  FObject.SetCount(8);
  Deliver();
  EXPECT_EQ("8", Value("count"));
  EXPECT_EQ("count", FRefreshed.join(u' '));
  EXPECT_EQ(0, FScans);
}

TEST_F(QObjectNotifyTest, TheMembersOfAChangedValueFollow) {
  InspectQ({&FObject});
  FObject.SetPlace({7, 8});
  Deliver();
  EXPECT_EQ("7 8", Value("place.x") + ' ' + Value("place.y"));
}

TEST_F(QObjectNotifyTest, AStormOfChangesCostsOneRefreshOfEachProperty) {
  InspectQ({&FObject});
  CountRefreshes();
  FObject.Reads = 0;
  FObject.CountTo(100'000);
  FObject.SetOther(3);
  Deliver();
  EXPECT_EQ("100000 3", Value("count") + ' ' + Value("other"));
  FRefreshed.sort();
  EXPECT_EQ("count other", FRefreshed.join(u' '));
  // The text, and the raw value.
  EXPECT_EQ(2, FObject.Reads);
}

TEST_F(QObjectNotifyTest, PropertiesInCategoriesFollowToo) {
  FInspector->SetArrangeByCategory(true);
  InspectQ({&FObject});
  CountRefreshes();
  FObject.SetCount(8);
  Deliver();
  EXPECT_EQ(1, FRefreshed.size());
  EXPECT_TRUE(FRefreshed.join(u' ').endsWith("count"));
}

TEST_F(QObjectNotifyTest, AnObjectThatIsNotInspectedAnyLongerIsNotReadAnyLonger) {
  InspectQ({&FObject});
  CountRefreshes();
  FInspector->GetObjects().Clear();
  Deliver();
  FObject.SetCount(8);
  Deliver();
  EXPECT_EQ("", FRefreshed.join(u' '));
}

TEST_F(QObjectNotifyTest, AReferredObjectInPlaceFollows) {
  TQtKinds owner;
  FObject.setObjectName("Counter");
  owner.Partner = &FObject;
  InspectQ({&owner});
  // What the class of the reference, QObject, does not declare is the object's own all the same.
  ASSERT_NE(nullptr, Find("partner.count"));
  FObject.SetCount(8);
  Deliver();
  EXPECT_EQ("8", Value("partner.count"));
}

TEST_F(QObjectNotifyTest, TwoInspectorsOfOneObjectFollow) {
  const auto second = Make<TKTObjectInspector>();
  second->GetObjects().Add(ComponentOf(&FObject));
  InspectQ({&FObject});
  FObject.SetCount(8);
  Deliver();
  EXPECT_EQ("8", Value("count"));
  EXPECT_EQ("8", second->GetItems().FindItemByFullPathName("count")->GetValueLine(0));
}

TEST_F(QObjectNotifyTest, AnInspectorMayGoBeforeAChangeIsShown) {
  InspectQ({&FObject});
  FObject.SetCount(8);
  FInspector.reset();
  FObject.SetCount(9);
  Deliver();
  EXPECT_EQ(9, FObject.Count());
}

TEST_F(QObjectNotifyTest, TheObjectMayGoBeforeAChangeIsShown) {
  auto object = std::make_unique<TQtCounter>();
  InspectQ({object.get()});
  object->SetCount(8);
  object.reset();
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectNotifyTest, TheInspectorMayGoInAHandlerOfARefresh) {
  InspectQ({&FObject});
  FInspector->OnRefreshValue = [this](TObject*, TKTItemProperty*) { FInspector.reset(); };
  FObject.SetCount(8);
  Deliver();
  EXPECT_EQ(nullptr, FInspector);
}

TEST_F(QObjectNotifyTest, ARefreshThatChangesWhatItReadsEnds) {
  InspectQ({&FObject});
  CountRefreshes();
  int refreshes = 0;
  FInspector->OnRefreshValue = [&](TObject*, TKTItemProperty*) {
    ++refreshes;
    FObject.SetCount(FObject.Count() + 1);
  };
  FObject.SetCount(1);
  Deliver();
  Deliver();
  EXPECT_EQ(1, refreshes);
}

TEST_F(QObjectNotifyTest, WhatAWidgetOnlySaysInEventsIsShown) {
  QWidget widget;
  InspectQ({&widget});
  widget.setEnabled(false);
  widget.setCursor(Qt::WaitCursor);
  Deliver();
  EXPECT_EQ("False WaitCursor", Value("enabled") + ' ' + Value("cursor"));
}

TEST_F(QObjectNotifyTest, WhatOnlyABindingTellsIsShown) {
  TQtBindable object;
  InspectQ({&object});
  object.SetLevel(8);
  Deliver();
  EXPECT_EQ("8", Value("level"));
}

TEST_F(QObjectNotifyTest, ABindableObjectMayGoBeforeTheInspector) {
  auto object = std::make_unique<TQtBindable>();
  InspectQ({object.get()});
  object->SetLevel(8);
  object.reset();
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectNotifyTest, TheNameFollows) {
  InspectQ({&FObject});
  FObject.setObjectName("Fresh");
  Deliver();
  EXPECT_EQ("Fresh Fresh", Value("objectName") + ' ' + Value("Name"));
}

class QObjectNotifyWindowTest : public TInspectorWindowTest {
 protected:
  TQtCounter FCounter;
};

/// Counts how often a window is painted.
class TQtPaintCounter : public QObject {
 public:
  explicit TQtPaintCounter(QWidget* widget) { widget->installEventFilter(this); }
  int Count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    Count += event->type() == QEvent::Paint;
    return false;
  }
};

TEST_F(QObjectNotifyWindowTest, AStormOfChangesIsPaintedOnce) {
  Show({ComponentOf(&FCounter)});
  TQtPaintCounter paints(FWindow->Body());
  TWindowProbe::Settle();
  paints.Count = 0;
  FCounter.CountTo(100'000);
  TWindowProbe::Settle();
  EXPECT_LE(1, paints.Count);
  EXPECT_GE(2, paints.Count);
}

TEST_F(QObjectNotifyWindowTest, WhatIsBeingTypedStays) {
  Show({ComponentOf(&FCounter)});
  Select("count");
  Retype("12");
  FCounter.SetCount(99);
  TWindowProbe::Settle();
  EXPECT_EQ("12", Editor().GetText());
}

TEST_F(QObjectNotifyWindowTest, WhatIsBeingTypedStaysWhenADynamicPropertyComes) {
  Show({ComponentOf(&FCounter)});
  Select("count");
  Retype("12");
  FCounter.setProperty("late", 1);
  TWindowProbe::Settle();
  ASSERT_TRUE(IsEditorOpen());
  EXPECT_EQ("12", Editor().GetText());
  EXPECT_EQ(nullptr, Find("late"));
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  EXPECT_EQ(12, FCounter.Count());
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Settle();
  TWindowProbe::Settle();
  EXPECT_EQ("1", Value("late"));
}

TEST_F(QObjectNotifyWindowTest, WhatChangedWhileItWasTypedOverIsShownWhenThatIsTakenBack) {
  Show({ComponentOf(&FCounter)});
  Select("count");
  Retype("12");
  FCounter.setProperty("late", 1);
  TWindowProbe::Settle();
  TWindowProbe::Key(Qt::Key_Escape);
  TWindowProbe::Settle();
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Settle();
  TWindowProbe::Settle();
  EXPECT_NE(nullptr, Find("late"));
}

TEST_F(QObjectNotifyWindowTest, AnEditorInWhichNothingWasTypedShowsTheNewValue) {
  Show({ComponentOf(&FCounter)});
  Select("count");
  FCounter.SetCount(99);
  TWindowProbe::Settle();
  EXPECT_EQ("99", Editor().GetText());
}

}  // namespace
}  // namespace kt::tests
