#include "qtinspect/InspectFixture.h"
#include "qtinspect/Picker.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

namespace qtinspect::tests {

/// A dialog with buttons, and what is picked in it.
class PickerTest : public testing::Test {
 protected:
  PickerTest() {
    auto* layout = new QVBoxLayout(&Dialog);
    Bar = new QMenuBar;
    Menu = Bar->addMenu(QStringLiteral("Menu"));
    Menu->setObjectName(QStringLiteral("menu"));
    Menu->addAction(QStringLiteral("Item"), [this] { Log += QStringLiteral("item "); })
        ->setObjectName(QStringLiteral("item"));
    layout->setMenuBar(Bar);
    One = Add<QPushButton>(QStringLiteral("one"));
    Two = Add<QPushButton>(QStringLiteral("two"));
    Box = Add<QComboBox>(QStringLiteral("box"));
    Box->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QObject::connect(One, &QPushButton::pressed, [this] { Log += QStringLiteral("pressed "); });
    QObject::connect(One, &QPushButton::released, [this] { Log += QStringLiteral("released "); });
    Dialog.setObjectName(QStringLiteral("dialog"));
    Picker.OnPick = [this](QObject& object, bool adds) { Log += (adds ? u'+' : u'=') + object.objectName() + u' '; };
    Picker.OnPicking = [this](bool value) { Log += value ? QStringLiteral("begin ") : QStringLiteral("end "); };
    Dialog.show();
    Activate(Dialog);
  }

  template <class T>
  T* Add(const QString& name) {
    auto* made = new T;
    made->setObjectName(name);
    Dialog.layout()->addWidget(made);
    return made;
  }
  QString Hovered() const { return Picker.Hovered() ? Picker.Hovered()->objectName() : QString(); }

  QDialog Dialog;
  QMenuBar* Bar;
  QMenu* Menu;
  QPushButton* One;
  QPushButton* Two;
  QComboBox* Box;
  QString Log;
  TPicker Picker;
};

TEST_F(PickerTest, AClickPicksAndEndsPickingAndDoesNothingElse) {
  Picker.SetPicking(true);
  Click(*One);
  EXPECT_EQ(Log, QStringLiteral("begin end =one "));
  Click(*One);
  EXPECT_EQ(Log, QStringLiteral("begin end =one pressed released "));
}

TEST_F(PickerTest, ADoubleClickPicksOnceAndReachesNobody) {
  QTest::mousePress(WindowOf(*One), Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier,
                    InWindow(*One, One->rect().center()));
  QMouseEvent again(QEvent::MouseButtonDblClick, One->rect().center(), One->mapToGlobal(One->rect().center()),
                    Qt::LeftButton, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
  QApplication::sendEvent(One, &again);
  QTest::mouseRelease(WindowOf(*One), Qt::LeftButton, {}, InWindow(*One, One->rect().center()));
  EXPECT_EQ(Log, QStringLiteral("=one "));
}

TEST_F(PickerTest, APickWhoseReleaseIsLostTakesNoFurtherClick) {
  QTest::mousePress(WindowOf(*Two), Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier,
                    InWindow(*Two, Two->rect().center()));
  Click(*One);
  EXPECT_EQ(Log, QStringLiteral("=two pressed released "));
}

TEST_F(PickerTest, AnEventSentToTheWidgetItselfIsTakenToo) {
  Picker.SetPicking(true);
  QTest::mouseClick(One, Qt::LeftButton);
  EXPECT_EQ(Log, QStringLiteral("begin end =one "));
}

TEST_F(PickerTest, ADisabledWidgetIsPicked) {
  Two->setEnabled(false);
  Picker.SetPicking(true);
  Click(*Two);
  EXPECT_EQ(Log, QStringLiteral("begin end =two "));
}

TEST_F(PickerTest, TheFrameFollowsThePointerOverWidgetsThatDoNotTrackIt) {
  Picker.SetPicking(true);
  MoveTo(*One);
  EXPECT_EQ(Hovered(), QStringLiteral("one"));
  MoveTo(*Two);
  EXPECT_EQ(Hovered(), QStringLiteral("two"));
  Picker.SetPicking(false);
  EXPECT_EQ(Hovered(), QString());
}

TEST_F(PickerTest, AWidgetMayGoWhileItIsFramed) {
  Picker.SetPicking(true);
  MoveTo(*One);
  delete One;
  Settle();
  EXPECT_EQ(Picker.Hovered(), nullptr);
  MoveTo(*Two);
  EXPECT_EQ(Hovered(), QStringLiteral("two"));
}

TEST_F(PickerTest, EscapeEndsPickingAndLeavesTheDialogOpen) {
  Picker.SetPicking(true);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Log, QStringLiteral("begin end "));
  EXPECT_TRUE(Dialog.isVisible());
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Dialog.isVisible());
}

TEST_F(PickerTest, ShiftOrCtrlAddAndGoOn) {
  Picker.SetPicking(true);
  Click(*One, Qt::ShiftModifier);
  Click(*Two, Qt::ControlModifier);
  Click(*Box);
  EXPECT_EQ(Log, QStringLiteral("begin +one +two end =box "));
}

TEST_F(PickerTest, AnotherButtonOfTheMouseEndsPicking) {
  Picker.SetPicking(true);
  Click(*One, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ(Log, QStringLiteral("begin end "));
}

TEST_F(PickerTest, AClickWithCtrlAndShiftPicksAtAnyTime) {
  Click(*One, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Log, QStringLiteral("=one "));
  Click(*One, Qt::ControlModifier);
  EXPECT_EQ(Log, QStringLiteral("=one pressed released "));
}

TEST_F(PickerTest, AnItemOfAnOpenMenuIsPickedAndTheMenuStaysOpen) {
  Menu->popup(Dialog.mapToGlobal(QPoint(5, 5)));
  Settle();
  Click(*Menu, Menu->actionGeometry(Menu->actions().front()).center(), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Log, QStringLiteral("=item "));
  EXPECT_TRUE(Menu->isVisible());
  Menu->close();
}

TEST_F(PickerTest, AMenuIsPickedInTheBarThatOpensIt) {
  Click(*Bar, Bar->actionGeometry(Menu->menuAction()).center(), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Log, QStringLiteral("=menu "));
  EXPECT_FALSE(Menu->isVisible());
}

TEST_F(PickerTest, AnOpenListStandsForItsComboBox) {
  Box->showPopup();
  Settle();
  QWidget* list = QApplication::activePopupWidget();
  ASSERT_TRUE(list);
  Click(*list, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Log, QStringLiteral("=box "));
  EXPECT_EQ(Box->currentIndex(), 0);
  EXPECT_TRUE(list->isVisible());
  Box->hidePopup();
  Settle();
}

TEST_F(PickerTest, WhatMayNotBePickedWorksAsEver) {
  Picker.MayPick = [this](const QWidget& widget) { return &widget != One; };
  Picker.SetPicking(true);
  Click(*One);
  EXPECT_EQ(Log, QStringLiteral("begin pressed released "));
  EXPECT_TRUE(Picker.IsPicking());
}

TEST_F(PickerTest, ThePointerShowsThatItPicks) {
  Picker.SetPicking(true);
  ASSERT_TRUE(QApplication::overrideCursor());
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
  Picker.SetPicking(false);
  EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(PickerTest, WhoeverPicksMayDestroyWhatWasPicked) {
  Picker.OnPick = [](QObject& object, bool) { delete &object; };
  Picker.SetPicking(true);
  Click(*One);
  EXPECT_EQ(TreeOf(Dialog), QStringLiteral("dialog [QVBoxLayout QMenuBar [menu [item]] two box]"));
}

TEST_F(PickerTest, AWindowThatClosesWhenPickingBeginsToEndIsNotPicked) {
  Picker.OnPicking = [this](bool value) {
    if (!value) delete std::exchange(One, nullptr);
  };
  Picker.SetPicking(true);
  Click(*One);
  EXPECT_EQ(Log, QString());
}

}  // namespace qtinspect::tests
