#pragma once

#include "designer/inspector/InspectorPanel.h"
#include "designer/palette/PaletteList.h"
#include "designer/surface/Surface.h"
#include "designer/tree/ComponentTree.h"
#include "designer/window/MainWindow.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Print.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>

#include <gtest/gtest.h>
#include <stdexcept>

namespace designer::tests {

/// Two buttons, a check box and a menu, in a file's own manner.
inline const char* SmallForm() {
  return "object SmallForm: TSmallForm\n"
         "  Left = 40\n"
         "  Top = 30\n"
         "  Caption = 'Small'\n"
         "  ClientHeight = 200\n"
         "  ClientWidth = 300\n"
         "  Color = clBtnFace\n"
         "  object Button1: TButton\n"
         "    Left = 16\n"
         "    Top = 16\n"
         "    Width = 75\n"
         "    Height = 25\n"
         "    Caption = 'One'\n"
         "    TabOrder = 0\n"
         "    OnClick = Button1Click\n"
         "  end\n"
         "  object Button2: TButton\n"
         "    Left = 120\n"
         "    Top = 16\n"
         "    Width = 89\n"
         "    Height = 25\n"
         "    Caption = 'Two'\n"
         "    TabOrder = 1\n"
         "  end\n"
         "  object CheckBox1: TCheckBox\n"
         "    Left = 16\n"
         "    Top = 80\n"
         "    Width = 97\n"
         "    Height = 17\n"
         "    Caption = 'Check'\n"
         "    TabOrder = 2\n"
         "  end\n"
         "  object Menu1: TPopupMenu\n"
         "    Left = 200\n"
         "    Top = 120\n"
         "  end\n"
         "end\n";
}

/// The designer's window with a small form in it, and what a user does with keys and mouse.
class TDesignerTest : public testing::Test {
 protected:
  TDesignerTest() {
    FWindow = std::make_unique<TMainWindow>();
    FWindow->Questions().Tell = [this](const QString& message) { FTold.append(message); };
    FWindow->Questions().AskToSave = [this](const QString& name) {
      FTold.append(QStringLiteral("save ") + name + u'?');
      return FAnswer;
    };
    FWindow->show();
    FWindow->activateWindow();
    QApplication::setActiveWindow(FWindow.get());
    FFile = FileWith(QStringLiteral("small.dfm"), SmallForm());
    EXPECT_TRUE(FWindow->Open(FFile));
    FWindow->Surface().setFocus();
    Settle();
  }

  /// Has Qt do what it has put off.
  static void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
  QString FileWith(const QString& name, const QByteArray& text) {
    QFile file(FFolder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
  }
  static QString ContentOf(const QString& fileName) {
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
  }
  QString TakeTold() { return std::exchange(FTold, {}).join(u'|'); }

  // The form.
  TSession& Session() { return FWindow->Session(); }
  TFormDocument& Document() { return Session().Document(); }
  TSurface& Surface() { return FWindow->Surface(); }
  kt::TComponent& Component(const QString& name) {
    kt::TComponent* component = Document().Find(name);
    if (!component) throw std::runtime_error("no component " + name.toStdString());
    return *component;
  }
  kt::TControl& Control(const QString& name) { return dynamic_cast<kt::TControl&>(Component(name)); }
  /// "left top width height".
  QString Bounds(const QString& name) {
    const QRect bounds = Control(name).GetBoundsRect();
    return QStringLiteral("%1 %2 %3 %4").arg(bounds.x()).arg(bounds.y()).arg(bounds.width()).arg(bounds.height());
  }
  QString Selected() {
    QStringList names;
    for (const kt::TComponent* component : Session().Selected()) names.append(component->GetName());
    return names.join(u' ');
  }
  void Select(const QString& name) {
    Session().Select(&Component(name));
    Settle();
  }
  QString UndoText() { return Document().UndoStack().undoText(); }

  // The mouse.
  QRect RectOf(const QString& name) { return Surface().Places().RectOf(Component(name)); }
  QPoint At(const QString& name) { return RectOf(name).center(); }
  /// A place of the form's client area.
  QPoint OnForm(int x, int y) { return Surface().Places().ClientOf(Session().Form()).topLeft() + QPoint(x, y); }
  void Click(QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(&Surface(), Qt::LeftButton, modifiers, point);
    Settle();
  }
  void Press(QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mousePress(&Surface(), Qt::LeftButton, modifiers, point);
  }
  void MoveTo(QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QMouseEvent event(QEvent::MouseMove, point, Surface().mapToGlobal(point), Qt::NoButton, Qt::LeftButton, modifiers);
    QApplication::sendEvent(&Surface(), &event);
  }
  void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Press(from, modifiers);
    MoveTo((from + to) / 2, modifiers);
    MoveTo(to, modifiers);
    QTest::mouseRelease(&Surface(), Qt::LeftButton, modifiers, to);
    Settle();
  }

  // Keys, to whatever has the keyboard.
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    if (QWidget* focus = QApplication::focusWidget()) QTest::keyClick(focus, key, modifiers);
    Settle();
  }
  static void Type(const QString& text) {
    for (const QChar character : text) QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    Settle();
  }
  void Do(const QString& action) {
    FWindow->Action(action)->trigger();
    Settle();
  }

  // The inspector.
  TDesignInspector& Inspector() { return FWindow->Panel().Inspector(); }
  kt::TKTItemProperty& Item(const QString& path) {
    kt::TKTItemProperty* item = Inspector().GetItems().FindItemByFullPathName(path);
    if (!item) throw std::runtime_error("no item " + path.toStdString());
    return *item;
  }
  QString Value(const QString& path) { return Item(path).GetValueLine(0); }
  QString SelectedRow() {
    const auto* item = Inspector().GetSelected();
    return item ? const_cast<kt::TKTItemProperty*>(item)->GetFullPathName() : QString();
  }
  /// By the arrow keys, from the first row on.
  void GoToRow(const QString& path) {
    Key(Qt::Key_F11);
    Key(Qt::Key_Up, Qt::ControlModifier);
    for (int i = 0; i < Inspector().GetVisibleItemCount() && SelectedRow() != path; ++i) Key(Qt::Key_Down);
    EXPECT_EQ(SelectedRow(), path);
  }
  /// Types over what a row shows, and accepts it.
  void TypeInto(const QString& path, const QString& text) {
    GoToRow(path);
    Key(Qt::Key_A, Qt::ControlModifier);
    Type(text);
    Key(Qt::Key_Return);
  }
  /// Opens the list of a row and picks a value of it.
  void Pick(const QString& path, const QString& value) {
    GoToRow(path);
    Key(Qt::Key_Down, Qt::AltModifier);
    kt::TStringList& list = Item(path).GetPickList();
    const int steps = list.IndexOf(value) - list.IndexOf(Value(path));
    for (int i = 0; i < std::abs(steps); ++i) Key(steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    Key(Qt::Key_Return);
  }

  QTemporaryDir FFolder;
  QString FFile;
  QStringList FTold;
  TSaveAnswer FAnswer = saDiscard;
  std::unique_ptr<TMainWindow> FWindow;
};

}  // namespace designer::tests
