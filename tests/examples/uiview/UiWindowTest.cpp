#include "qtinspect/InspectFixture.h"
#include "uiview/UiWindow.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QUrl>

#include <gmock/gmock.h>
#include <memory>

namespace uiview::tests {

using namespace qtinspect::tests;

/// The window with one of the shipped forms, and what its user does.
class UiWindowTest : public testing::Test {
 protected:
  UiWindowTest() : Rows(Window->Pane()) {
    Window->Tell = [this](const QString& message) { Told.append(message); };
    Window->AskFileName = [this](const QString& folder) {
      Told.append(QStringLiteral("open in ") + QFileInfo(folder).fileName());
      return Answer;
    };
    Window->show();
    Activate(*Window);
    EXPECT_TRUE(Window->Open(Shipped(QStringLiteral("settings.ui"))));
    Settle();
  }

  static QString Shipped(const QString& name) { return QStringLiteral(KT_SOURCE_DIR "/examples/ui/") + name; }
  QString FileWith(const QByteArray& content) {
    QFile file(Folder.filePath(QStringLiteral("form.ui")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  static QByteArray ButtonForm(const QByteArray& text) {
    return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><widget class=\"QPushButton\" name=\"ok\">"
           "<property name=\"text\"><string>" +
           text + "</string></property></widget></widget></ui>";
  }
  template <class T = QWidget>
  T* In(const char* name) {
    auto* found = Window->Form() ? Window->Form()->findChild<T*>(QLatin1String(name)) : nullptr;
    if (!found) throw std::runtime_error(std::string("there is no ") + name);
    return found;
  }
  QPushButton* OkButton() { return In<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Ok); }
  QString Selected() { return NamesOf(Window->Pane().Selection().Objects()); }
  QString FormName() { return Window->Form() ? Window->Form()->objectName() : QStringLiteral("none"); }
  QString TakeTold() { return std::exchange(Told, {}).join(u'|'); }
  void Do(const char* action) {
    Window->Action(QLatin1String(action))->trigger();
    Settle();
  }
  void Drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Window.get(), &enter);
    if (!enter.isAccepted()) return Told.append(QStringLiteral("not taken"));
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Window.get(), &drop);
    Settle();
  }

  QTemporaryDir Folder;
  QStringList Told;
  QString Answer;
  std::unique_ptr<TUiWindow> Window = std::make_unique<TUiWindow>();
  TRows Rows;
};

TEST_F(UiWindowTest, AnOpenedFormIsAliveWithItselfSelected) {
  EXPECT_EQ(Selected(), QStringLiteral("SettingsDialog"));
  EXPECT_TRUE(Window->Form()->isVisible());
  EXPECT_EQ(Window->windowTitle(), QStringLiteral("settings.ui - Form viewer"));
  Click(*In("startCheck"), QPoint(8, In("startCheck")->height() / 2));
  EXPECT_FALSE(In<QCheckBox>("startCheck")->isChecked());
}

TEST_F(UiWindowTest, AWidgetIsPickedByPointerAndShowsWhatIsTypedForIt) {
  Key(Qt::Key_F8);
  MoveTo(*In("startCheck"));
  EXPECT_EQ(Window->Pane().Picker().Hovered(), In("startCheck"));
  Click(*In("startCheck"), QPoint(8, In("startCheck")->height() / 2));
  EXPECT_TRUE(In<QCheckBox>("startCheck")->isChecked());
  EXPECT_EQ(Selected(), QStringLiteral("startCheck"));
  Rows.Enter(QStringLiteral("text"), QStringLiteral("Wake up"));
  EXPECT_EQ(In<QCheckBox>("startCheck")->text(), QStringLiteral("Wake up"));
}

TEST_F(UiWindowTest, SeveralArePickedWithShiftAndEditedAtOnce) {
  Key(Qt::Key_F8);
  Click(*In("lightRadio"), Qt::ShiftModifier);
  Click(*In("darkRadio"), Qt::ShiftModifier);
  Key(Qt::Key_Escape);
  // The form was selected before.
  Window->Pane().Selection().Toggle(Window->Form());
  EXPECT_EQ(Selected(), QStringLiteral("lightRadio darkRadio"));
  Rows.Enter(QStringLiteral("toolTip"), QStringLiteral("Colours"));
  EXPECT_EQ(In("lightRadio")->toolTip(), QStringLiteral("Colours"));
  EXPECT_EQ(In("darkRadio")->toolTip(), QStringLiteral("Colours"));
}

TEST_F(UiWindowTest, OnlyTheFormIsPicked) {
  Key(Qt::Key_F8);
  Click(Window->Pane().Panel());
  EXPECT_EQ(Selected(), QStringLiteral("SettingsDialog"));
  EXPECT_TRUE(Window->Pane().Picker().IsPicking());
}

TEST_F(UiWindowTest, AChangeByTheFormsUserShowsInTheInspector) {
  ASSERT_TRUE(Window->Select(QStringLiteral("nameEdit")));
  In<QLineEdit>("nameEdit")->setFocus();
  Key(Qt::Key_A, Qt::ControlModifier);
  Type(QStringLiteral("Else"));
  EXPECT_EQ(Rows.Value(QStringLiteral("text")), QStringLiteral("Else"));
}

TEST_F(UiWindowTest, TheFilterLeavesTheRowsThatHaveIt) {
  ASSERT_TRUE(Window->Select(QStringLiteral("nameEdit")));
  Settle();
  Do("filter");
  Type(QStringLiteral("placeholder"));
  EXPECT_EQ(Window->Pane().Panel().Inspector().GetVisibleItemCount(), 1);
  EXPECT_EQ(Window->Pane().Panel().Inspector().GetVisibleItem(0)->GetName(), QStringLiteral("placeholderText"));
}

TEST_F(UiWindowTest, GroupsAreTheClassesThatDeclareTheProperties) {
  ASSERT_TRUE(Window->Select(QStringLiteral("startCheck")));
  Window->Pane().Panel().SetGroups(true);
  Settle();
  kt::TKTItemProperty* item =
      Window->Pane().Panel().Inspector().GetItems().FindItemByFullPathName(QStringLiteral("QAbstractButton.text"));
  ASSERT_TRUE(item);
  EXPECT_TRUE(
      Window->Pane().Panel().Inspector().GetItems().FindItemByFullPathName(QStringLiteral("QCheckBox.tristate")));
}

TEST_F(UiWindowTest, APropertyIsGivenItsFirstValueBack) {
  ASSERT_TRUE(Window->Select(QStringLiteral("sizeBox")));
  Rows.Enter(QStringLiteral("maximum"), QStringLiteral("7"));
  Window->Pane().Panel().ResetSelected();
  Settle();
  EXPECT_EQ(Rows.Value(QStringLiteral("maximum")), QStringLiteral("99"));
}

TEST_F(UiWindowTest, AValueThatIsNoneIsToldAndTakenBack) {
  ASSERT_TRUE(Window->Select(QStringLiteral("sizeBox")));
  Rows.Enter(QStringLiteral("maximum"), QStringLiteral("many"));
  EXPECT_THAT(TakeTold().toStdString(), testing::StartsWith("\"many\" is not a valid Integer value"));
  EXPECT_EQ(In("sizeBox")->property("maximum").toInt(), 72);
}

// Files.

TEST_F(UiWindowTest, AnotherFileIsOpenedByTheMenu) {
  Answer = Shipped(QStringLiteral("notes.ui"));
  Do("open");
  EXPECT_EQ(TakeTold(), QStringLiteral("open in ui"));
  EXPECT_EQ(FormName(), QStringLiteral("NotesWindow"));
  EXPECT_EQ(Selected(), QStringLiteral("NotesWindow"));
}

TEST_F(UiWindowTest, AFileThatCannotBeOpenedLeavesTheFormAsItIs) {
  ASSERT_TRUE(Window->Select(QStringLiteral("nameEdit")));
  EXPECT_FALSE(Window->Open(FileWith("<html/>")));
  EXPECT_EQ(TakeTold(), QStringLiteral("%1 is no Qt form: it holds <html> instead of <ui>")
                            .arg(Folder.filePath(QStringLiteral("form.ui"))));
  EXPECT_EQ(FormName(), QStringLiteral("SettingsDialog"));
  EXPECT_EQ(Selected(), QStringLiteral("nameEdit"));
  EXPECT_EQ(Window->windowTitle(), QStringLiteral("settings.ui - Form viewer"));
}

TEST_F(UiWindowTest, ADroppedFileIsOpened) {
  Drop({QUrl(QStringLiteral("https://example.org/form.ui")), QUrl::fromLocalFile(Shipped(QStringLiteral("notes.ui")))});
  EXPECT_EQ(TakeTold(), QString());
  EXPECT_EQ(FormName(), QStringLiteral("NotesWindow"));
}

TEST_F(UiWindowTest, WhatIsNoFileIsNotTakenWhenDropped) {
  Drop({QUrl(QStringLiteral("https://example.org/form.ui"))});
  EXPECT_EQ(TakeTold(), QStringLiteral("not taken"));
}

TEST_F(UiWindowTest, ReloadingTakesTheFileAsItIsNowAndKeepsTheSelection) {
  ASSERT_TRUE(Window->Open(FileWith(ButtonForm("One"))));
  ASSERT_TRUE(Window->Select(QStringLiteral("ok")));
  FileWith(ButtonForm("Two"));
  Key(Qt::Key_F5);
  EXPECT_EQ(Selected(), QStringLiteral("ok"));
  EXPECT_EQ(Rows.Value(QStringLiteral("text")), QStringLiteral("Two"));
}

TEST_F(UiWindowTest, ReloadingInTheMiddleOfAnEditDropsTheEdit) {
  ASSERT_TRUE(Window->Open(FileWith(ButtonForm("One"))));
  ASSERT_TRUE(Window->Select(QStringLiteral("ok")));
  Rows.TypeOver(QStringLiteral("text"), QStringLiteral("Typed"));
  Key(Qt::Key_F5);
  EXPECT_EQ(TakeTold(), QString());
  EXPECT_EQ(In<QPushButton>("ok")->text(), QStringLiteral("One"));
  EXPECT_EQ(Rows.Value(QStringLiteral("text")), QStringLiteral("One"));
  Rows.Enter(QStringLiteral("text"), QStringLiteral("Three"));
  EXPECT_EQ(In<QPushButton>("ok")->text(), QStringLiteral("Three"));
}

TEST_F(UiWindowTest, AFileThatIsGoneLeavesTheFormWhenReloaded) {
  const QString file = FileWith(ButtonForm("One"));
  ASSERT_TRUE(Window->Open(file));
  QFile::remove(file);
  Key(Qt::Key_F5);
  EXPECT_EQ(TakeTold(), QStringLiteral("Cannot read %1: No such file or directory").arg(file));
  EXPECT_EQ(FormName(), QStringLiteral("Form"));
}

TEST_F(UiWindowTest, WhatTheLoaderRemarkedIsShown) {
  ASSERT_TRUE(
      Window->Open(FileWith("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><widget class=\"TDial\" "
                            "name=\"dial\"/></widget></ui>")));
  EXPECT_THAT(Window->statusBar()->findChild<QLabel*>()->text().toStdString(), testing::HasSubstr("'TDial'"));
  ASSERT_TRUE(Window->Open(Shipped(QStringLiteral("notes.ui"))));
  EXPECT_EQ(Window->Remarks(), QStringList());
}

// The live form.

TEST_F(UiWindowTest, ADialogThatIsAcceptedStaysOpen) {
  Click(*OkButton());
  EXPECT_EQ(FormName(), QStringLiteral("SettingsDialog"));
  EXPECT_TRUE(Window->Form()->isVisible());
}

TEST_F(UiWindowTest, AFormThatClosesItselfStaysOpen) {
  ASSERT_TRUE(Window->Open(Shipped(QStringLiteral("notes.ui"))));
  In<QAction>("closeAction")->trigger();
  Settle();
  EXPECT_TRUE(Window->Form()->isVisible());
}

TEST_F(UiWindowTest, KeysBelongToTheFormWhileItHasTheKeyboard) {
  ASSERT_TRUE(Window->Open(Shipped(QStringLiteral("notes.ui"))));
  int opened = 0;
  QObject::connect(In<QAction>("openAction"), &QAction::triggered, [&] { ++opened; });
  Key(Qt::Key_F12);
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(TakeTold(), QString());
  Key(Qt::Key_F11);
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(TakeTold(), QStringLiteral("open in ui"));
}

TEST_F(UiWindowTest, TheKeyboardGoesRoundThePanes) {
  Window->Pane().Tree().setFocus();
  Key(Qt::Key_F6);
  EXPECT_TRUE(Window->Pane().Panel().isAncestorOf(QApplication::focusWidget()));
  Key(Qt::Key_F6);
  EXPECT_TRUE(Window->Form()->isAncestorOf(QApplication::focusWidget()));
  Key(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(Window->Pane().Panel().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(UiWindowTest, AFormThatIsDestroyedInTheMiddleOfAnEditLeavesAnEmptyWindow) {
  ASSERT_TRUE(Window->Select(QStringLiteral("nameEdit")));
  Rows.TypeOver(QStringLiteral("text"), QStringLiteral("Typed"));
  delete Window->Form();
  Settle();
  EXPECT_EQ(FormName(), QStringLiteral("none"));
  EXPECT_EQ(Selected(), QString());
  Key(Qt::Key_F6);
  Key(Qt::Key_F12);
  EXPECT_EQ(Window->Text(), QString());
  EXPECT_TRUE(Window->Reload());
  EXPECT_EQ(FormName(), QStringLiteral("SettingsDialog"));
}

TEST_F(UiWindowTest, TheWindowMayGoInTheMiddleOfAnEdit) {
  ASSERT_TRUE(Window->Select(QStringLiteral("nameEdit")));
  Rows.TypeOver(QStringLiteral("text"), QStringLiteral("Typed"));
  Window.reset();
  EXPECT_EQ(TakeTold(), QString());
}

TEST_F(UiWindowTest, ANameThatTheFormDoesNotHaveSelectsNothingElse) {
  EXPECT_FALSE(Window->Select(QStringLiteral("nobody")));
  EXPECT_EQ(Selected(), QStringLiteral("SettingsDialog"));
}

}  // namespace uiview::tests
