#include "qtattach/Attachment.h"
#include "qtattach/OrdinaryWindow.h"
#include "qtinspect/InspectFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <memory>

namespace qtinspect::tests {

/// An ordinary window and the inspector that is attached to it.
class AttachmentTest : public testing::Test {
 protected:
  AttachmentTest() : Rows(Window().Pane()) {
    Ordinary->show();
    Window().Come();
    Window().move(Ordinary->frameGeometry().topRight() + QPoint(10, 0));
    Activate(*Ordinary);
  }

  TInspectorWindow& Window() { return Attachment->Window(); }
  QToolButton* PickButton() { return Window().findChild<QToolButton*>(QStringLiteral("pick")); }
  template <class T = QWidget>
  T* In(const char* name) {
    auto* found = Ordinary->findChild<T*>(QLatin1String(name));
    if (!found) throw std::runtime_error(std::string("there is no ") + name);
    return found;
  }
  QString Selected() { return NamesOf(Window().Pane().Selection().Objects()); }
  QDialog* OpenDialog() {
    Click(*In("More"));
    Settle();
    return In<QDialog>("MoreDialog");
  }

  std::unique_ptr<TOrdinaryWindow> Ordinary = std::make_unique<TOrdinaryWindow>();
  std::unique_ptr<TAttachment> Attachment = std::make_unique<TAttachment>();
  TRows Rows;
};

TEST_F(AttachmentTest, AWidgetIsPickedAndWhatIsTypedShowsAtOnce) {
  Click(*PickButton());
  Click(*In("SignIn"));
  EXPECT_EQ(Selected(), QStringLiteral("SignIn"));
  EXPECT_FALSE(PickButton()->isChecked());
  Rows.Enter(QStringLiteral("text"), QStringLiteral("Come in"));
  EXPECT_EQ(In<QPushButton>("SignIn")->text(), QStringLiteral("Come in"));
}

TEST_F(AttachmentTest, ADisabledWidgetIsPickedAndEnabled) {
  Click(*In("DeleteAccount"), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QStringLiteral("DeleteAccount"));
  EXPECT_EQ(Rows.Value(QStringLiteral("enabled")), QStringLiteral("False"));
  Rows.Enter(QStringLiteral("enabled"), QStringLiteral("True"));
  EXPECT_TRUE(In("DeleteAccount")->isEnabled());
}

TEST_F(AttachmentTest, AModalDialogLeavesTheInspectorUsable) {
  QDialog* dialog = OpenDialog();
  ASSERT_EQ(QApplication::activeModalWidget(), dialog);
  Click(*PickButton());
  EXPECT_TRUE(Window().Pane().Picker().IsPicking());
  Click(*In("AskAgain"));
  EXPECT_EQ(Selected(), QStringLiteral("AskAgain"));
  EXPECT_FALSE(In<QCheckBox>("AskAgain")->isChecked());
  Activate(Window());
  Rows.Enter(QStringLiteral("text"), QStringLiteral("Never"));
  EXPECT_EQ(In<QCheckBox>("AskAgain")->text(), QStringLiteral("Never"));
}

TEST_F(AttachmentTest, WhatStandsBehindAModalDialogIsPickedInTheTree) {
  OpenDialog();
  TObjectTree& tree = Window().Pane().Tree();
  tree.Refresh();
  tree.scrollToItem(tree.ItemOf(In("SignIn")));
  Settle();
  Click(*tree.viewport(), tree.visualItemRect(tree.ItemOf(In("SignIn"))).center());
  EXPECT_EQ(Selected(), QStringLiteral("SignIn"));
}

TEST_F(AttachmentTest, ADialogOverADialogLeavesTheInspectorUsable) {
  QDialog* first = OpenDialog();
  auto* second = new QDialog(first);
  second->setModal(true);
  second->show();
  Settle();
  Click(*PickButton());
  EXPECT_TRUE(Window().Pane().Picker().IsPicking());
  second->close();
  Settle();
  Click(*PickButton());
  EXPECT_FALSE(Window().Pane().Picker().IsPicking());
  first->close();
  Settle();
  EXPECT_EQ(Window().windowHandle()->transientParent(), nullptr);
  Click(*PickButton());
  EXPECT_TRUE(Window().Pane().Picker().IsPicking());
}

TEST_F(AttachmentTest, TheInspectorOpensWhileADialogIsOpen) {
  Window().close();
  OpenDialog();
  Window().Come();
  Settle();
  Click(*PickButton());
  EXPECT_TRUE(Window().Pane().Picker().IsPicking());
}

TEST_F(AttachmentTest, ADialogOfTheInspectorItselfBlocksIt) {
  QMessageBox box(&Window());
  box.setModal(true);
  box.show();
  Settle();
  Click(*PickButton());
  EXPECT_FALSE(Window().Pane().Picker().IsPicking());
}

TEST_F(AttachmentTest, AClosedInspectorOpensAgainByItsKeyWithWhatWasSelected) {
  Click(*In("SignIn"), Qt::ControlModifier | Qt::ShiftModifier);
  Window().close();
  Settle();
  EXPECT_FALSE(Window().isVisible());
  EXPECT_TRUE(Window().Pane().Outline().Framed().empty());
  Activate(*Ordinary);
  Key(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Selected(), QStringLiteral("SignIn"));
  EXPECT_EQ(NamesOf(Window().Pane().Outline().Framed()), QStringLiteral("SignIn"));
}

TEST_F(AttachmentTest, AClosedInspectorOpensAgainByAPick) {
  Window().close();
  Click(*In("SignIn"), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Rows.Value(QStringLiteral("text")), QStringLiteral("Sign in"));
}

TEST_F(AttachmentTest, AWidgetThatIsDestroyedInTheMiddleOfAnEditIsLeft) {
  Click(*In("SignIn"), Qt::ControlModifier | Qt::ShiftModifier);
  Activate(Window());
  Rows.TypeOver(QStringLiteral("text"), QStringLiteral("Come"));
  delete In("SignIn");
  Settle();
  EXPECT_EQ(Selected(), QString());
  Click(*In("More"), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Rows.Value(QStringLiteral("text")), QStringLiteral("More..."));
}

TEST_F(AttachmentTest, ADialogThatIsDestroyedWhileItIsInspectedIsLeft) {
  QDialog* dialog = OpenDialog();
  Click(*In("AskAgain"), Qt::ControlModifier | Qt::ShiftModifier);
  Activate(Window());
  Rows.TypeOver(QStringLiteral("text"), QStringLiteral("Never"));
  dialog->close();
  Settle();
  EXPECT_EQ(Selected(), QString());
}

TEST_F(AttachmentTest, AnotherWindowIsListedAndPicked) {
  In<QAction>("SecondAction")->trigger();
  Settle();
  const QWidgetList all = QApplication::topLevelWidgets();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [](const QWidget* widget) { return widget->objectName() == u"SecondWindow"; });
  ASSERT_NE(found, all.end());
  EXPECT_TRUE(Window().Pane().Tree().ItemOf(*found));
  Click(**found, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QStringLiteral("SecondWindow"));
}

TEST_F(AttachmentTest, AnItemOfAnOpenMenuIsInspected) {
  auto* menu = In<QMenu>("WindowMenu");
  menu->popup(Ordinary->mapToGlobal(QPoint(10, 30)));
  Settle();
  Click(*menu, menu->actionGeometry(In<QAction>("MoreAction")).center(), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QStringLiteral("MoreAction"));
  EXPECT_TRUE(menu->isVisible());
  menu->close();
}

TEST_F(AttachmentTest, TheInspectorsOwnWidgetsAreNeitherListedNorPicked) {
  Window().Pane().Tree().Refresh();
  EXPECT_FALSE(Window().Pane().Tree().ItemOf(&Window()));
  Click(*PickButton(), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Selected(), QString());
}

TEST_F(AttachmentTest, TheListOfAnOpenRowIsNotListedEither) {
  Click(*In("SignIn"), Qt::ControlModifier | Qt::ShiftModifier);
  Activate(Window());
  Rows.GoTo(QStringLiteral("enabled"));
  Key(Qt::Key_Down, Qt::AltModifier);
  Window().Pane().Tree().Refresh();
  EXPECT_EQ(Window().Pane().Tree().topLevelItemCount(), 1);
  Key(Qt::Key_Escape);
}

TEST_F(AttachmentTest, TheProgramEndsWithItsLastWindowThoughTheInspectorIsOpen) {
  QTimer::singleShot(0, Ordinary.get(), [this] { Ordinary->close(); });
  // A program that goes on is ended all the same, as a failure.
  QTimer::singleShot(30000, Ordinary.get(), [] { QApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(AttachmentTest, EscapeEndsPickingInTheWindowOfTheInspector) {
  Activate(Window());
  Key(Qt::Key_F8);
  EXPECT_TRUE(Window().Pane().Picker().IsPicking());
  MoveTo(*In("SignIn"));
  EXPECT_EQ(Window().Pane().Picker().Hovered(), In("SignIn"));
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Window().Pane().Picker().IsPicking());
  EXPECT_TRUE(Window().isVisible());
}

}  // namespace qtinspect::tests
