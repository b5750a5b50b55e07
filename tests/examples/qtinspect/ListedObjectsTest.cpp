#include "qtinspect/InspectFixture.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolBox>
#include <QVBoxLayout>

namespace qtinspect::tests {

namespace {

template <class T>
T* Named(const char* name, QWidget* parent = nullptr) {
  auto* made = new T(parent);
  made->setObjectName(QLatin1String(name));
  return made;
}

}  // namespace

TEST(ListedObjectsTest, PagesStandBelowTheirTabsInTheOrderOfTheTabs) {
  QTabWidget tabs;
  tabs.setObjectName(QStringLiteral("tabs"));
  tabs.addTab(Named<QWidget>("first"), QString());
  tabs.addTab(Named<QLabel>("second"), QString());
  tabs.setCurrentIndex(1);
  tabs.show();
  tabs.setCurrentIndex(0);
  EXPECT_EQ(TreeOf(tabs), QStringLiteral("tabs [first second]"));
}

TEST(ListedObjectsTest, PagesWithoutNamesAreListedByTheirClass) {
  QTabWidget tabs;
  tabs.addTab(new QLabel, QString());
  EXPECT_EQ(TreeOf(tabs), QStringLiteral("QTabWidget [QLabel]"));
}

TEST(ListedObjectsTest, WhatAScrollAreaShowsStandsBelowItWithoutItsScrollBars) {
  QScrollArea area;
  area.setWidget(new QLabel(QStringLiteral("wide")));
  area.show();
  EXPECT_EQ(TreeOf(area), QStringLiteral("QScrollArea [QLabel]"));
}

TEST(ListedObjectsTest, PagesOfAToolBoxStandBelowIt) {
  QToolBox box;
  box.addItem(Named<QWidget>("first"), QString());
  box.addItem(Named<QWidget>("second"), QString());
  EXPECT_EQ(TreeOf(box), QStringLiteral("QToolBox [first second]"));
}

TEST(ListedObjectsTest, WhatWidgetsAreMadeOfIsNotListed) {
  QWidget form;
  form.setObjectName(QStringLiteral("form"));
  auto* edit = Named<QLineEdit>("edit", &form);
  edit->setClearButtonEnabled(true);
  Named<QSpinBox>("spin", &form);
  Named<QComboBox>("combo", &form)->addItem(QStringLiteral("one"));
  form.show();
  EXPECT_EQ(TreeOf(form), QStringLiteral("form [edit spin combo]"));
}

TEST(ListedObjectsTest, TheButtonsOfAButtonBoxAreListed) {
  QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  EXPECT_EQ(TreeOf(box), QStringLiteral("QDialogButtonBox [QPushButton QPushButton]"));
}

TEST(ListedObjectsTest, LayoutsAndActionsAreListed) {
  QWidget form;
  auto* layout = new QVBoxLayout(&form);
  layout->addLayout(new QHBoxLayout);
  form.addAction(new QAction(QStringLiteral("Do"), &form));
  EXPECT_EQ(TreeOf(form), QStringLiteral("QWidget [QVBoxLayout [QHBoxLayout] QAction]"));
}

TEST(ListedObjectsTest, OtherObjectsAreListedOnceTheyHaveAName) {
  QWidget form;
  auto* timer = new QTimer(&form);
  EXPECT_EQ(TreeOf(form), QStringLiteral("QWidget"));
  timer->setObjectName(QStringLiteral("timer"));
  EXPECT_EQ(TreeOf(form), QStringLiteral("QWidget [timer]"));
}

TEST(ListedObjectsTest, AMainWindowListsMenusBarsAndDocksWithoutTheirOwnParts) {
  QMainWindow window;
  QMenu* menu = window.menuBar()->addMenu(QStringLiteral("File"));
  menu->addAction(QStringLiteral("Quit"));
  menu->addSeparator();
  auto* dock = Named<QDockWidget>("dock");
  dock->setWidget(Named<QLabel>("inside"));
  window.addDockWidget(Qt::LeftDockWidgetArea, dock);
  window.addToolBar(QStringLiteral("Bar"))->setObjectName(QStringLiteral("bar"));
  window.show();
  EXPECT_EQ(TreeOf(window), QStringLiteral("QMainWindow [QMenuBar [QMenu [QAction]] dock [inside] bar]"));
}

TEST(ListedObjectsTest, AHeaderIsListedBelowItsTable) {
  QTableWidget table(1, 1);
  EXPECT_EQ(TreeOf(table), QStringLiteral("QTableWidget [QHeaderView QHeaderView]"));
}

TEST(ListedObjectsTest, AnInnerPartBelongsToTheListedWidgetAroundIt) {
  QSpinBox spin;
  EXPECT_EQ(ListedAround(spin.findChild<QLineEdit*>()), &spin);
  EXPECT_EQ(ListedAround(&spin), &spin);
  EXPECT_EQ(ListedAround(nullptr), nullptr);
}

TEST(ListedObjectsTest, ATitleIsNameAndClass) {
  QPushButton button;
  EXPECT_EQ(TitleOf(button), QStringLiteral("QPushButton"));
  button.setObjectName(QStringLiteral("ok"));
  EXPECT_EQ(TitleOf(button), QStringLiteral("ok: QPushButton"));
}

}  // namespace qtinspect::tests
