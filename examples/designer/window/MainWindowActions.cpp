// The commands of the designer's window.
#include "designer/inspector/InspectorPanel.h"
#include "designer/palette/PaletteList.h"
#include "designer/surface/Surface.h"
#include "designer/tree/ComponentTree.h"
#include "designer/window/MainWindowCommand.h"
#include "designer/window/ShippedForms.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStyle>
#include <QToolBar>
#include <QUndoStack>

namespace designer {

using namespace kt;

QAction* TMainWindow::Add(const TCommand& command) {
  auto* action = new QAction(command.Text, this);
  action->setObjectName(QString::fromLatin1(command.Name));
  action->setShortcut(command.Key);
  connect(action, &QAction::triggered, this, [call = command.Do] { GuardedCall(call); });
  if (!command.IsForComponents) {
    addAction(action);
    return action;
  }
  action->setShortcutContext(Qt::WidgetShortcut);
  Surface().addAction(action);
  FTree->addAction(action);
  return action;
}

QAction* TMainWindow::Action(const QString& name) const {
  auto* action = findChild<QAction*>(name);
  Q_ASSERT(action);
  return action;
}

void TMainWindow::BuildActions() {
  BuildMenus();
  BuildToolBar();
}

void TMainWindow::BuildMenus() {
  BuildFileMenu();
  BuildEditMenu();
  BuildComponentMenu();
  BuildViewMenu();
  BuildHelpMenu();
}

void TMainWindow::BuildFileMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&File"));
  menu->addAction(Add({"new", QStringLiteral("&New form"), QKeySequence::New, [this] { NewForm(); }}));
  menu->addAction(Add({"open", QStringLiteral("&Open..."), QKeySequence::Open, [this] { AskAndOpen(); }}));
  QMenu* examples = menu->addMenu(QStringLiteral("Open &example"));
  for (const QString& file : ShippedForms()) {
    QAction* action = examples->addAction(QFileInfo(file).fileName());
    connect(action, &QAction::triggered, this, [this, file] { GuardedCall([&] { OpenExample(file); }); });
  }
  examples->setEnabled(!examples->isEmpty());
  menu->addSeparator();
  menu->addAction(Add({"save", QStringLiteral("&Save"), QKeySequence::Save, [this] { Save(); }}));
  menu->addAction(Add(
      {"saveAs", QStringLiteral("Save &as..."), QKeySequence(QStringLiteral("Ctrl+Shift+S")), [this] { SaveAs(); }}));
  menu->addSeparator();
  menu->addAction(Add({"quit", QStringLiteral("&Quit"), QKeySequence(QStringLiteral("Ctrl+Q")), [this] { close(); }}));
}

void TMainWindow::BuildEditMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&Edit"));
  menu->addAction(Add(
      {"undo", QStringLiteral("&Undo"), QKeySequence(QStringLiteral("Ctrl+Z")), [this] { Step(&TSession::Undo); }}));
  menu->addAction(Add(
      {"redo", QStringLiteral("&Redo"), QKeySequence(QStringLiteral("Ctrl+Y")), [this] { Step(&TSession::Redo); }}));
  menu->addSeparator();
  menu->addAction(
      Add({"cut", QStringLiteral("Cu&t"), QKeySequence(QStringLiteral("Ctrl+X")), [this] { Cut(); }, true}));
  menu->addAction(
      Add({"copy", QStringLiteral("&Copy"), QKeySequence(QStringLiteral("Ctrl+C")), [this] { Copy(); }, true}));
  menu->addAction(
      Add({"paste", QStringLiteral("&Paste"), QKeySequence(QStringLiteral("Ctrl+V")), [this] { Paste(); }, true}));
  menu->addAction(
      Add({"delete", QStringLiteral("&Delete"), QKeySequence(QStringLiteral("Del")), [this] { Delete(); }, true}));
  menu->addSeparator();
  menu->addAction(Add({"selectAll", QStringLiteral("Select &all"), QKeySequence(QStringLiteral("Ctrl+A")),
                       [this] { SelectAll(); }, true}));
}

void TMainWindow::BuildViewMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&View"));
  menu->addAction(Add({"inspect", QStringLiteral("Object &inspector"), QKeySequence(QStringLiteral("F11")),
                       [this] { FPanel->FocusGrid(); }}));
  menu->addAction(Add({"filter", QStringLiteral("&Filter properties"), QKeySequence(QStringLiteral("Ctrl+F")),
                       [this] { FPanel->FocusFilter(); }}));
  menu->addAction(Add({"form", QStringLiteral("F&orm"), QKeySequence(QStringLiteral("F12")),
                       [this] { Surface().setFocus(Qt::ShortcutFocusReason); }}));
  menu->addSeparator();
  menu->addAction(Add({"properties", QStringLiteral("&Properties"), QKeySequence(QStringLiteral("Ctrl+1")),
                       [this] { FPanel->ShowEvents(false); }}));
  menu->addAction(Add({"events", QStringLiteral("&Events"), QKeySequence(QStringLiteral("Ctrl+2")),
                       [this] { FPanel->ShowEvents(true); }}));
  menu->addAction(Add({"expand", QStringLiteral("E&xpand row"), QKeySequence(QStringLiteral("Alt+Right")),
                       [this] { FPanel->ExpandSelected(); }}));
  menu->addAction(Add({"collapse", QStringLiteral("&Collapse row"), QKeySequence(QStringLiteral("Alt+Left")),
                       [this] { FPanel->CollapseSelected(); }}));
  menu->addSeparator();
  menu->addAction(
      Add({"nextPane", QStringLiteral("&Next pane"), QKeySequence(QStringLiteral("F6")), [this] { GoToPane(1); }}));
  menu->addAction(Add({"previousPane", QStringLiteral("Pre&vious pane"), QKeySequence(QStringLiteral("Shift+F6")),
                       [this] { GoToPane(-1); }}));
}

void TMainWindow::BuildHelpMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&Help"));
  menu->addAction(
      Add({"keys", QStringLiteral("&Keys and mouse"), QKeySequence(QStringLiteral("F1")), [this] { ShowKeys(); }}));
}

void TMainWindow::BuildToolBar() {
  const std::pair<const char*, QStyle::StandardPixmap> buttons[] = {
      {"new", QStyle::SP_FileIcon},   {"open", QStyle::SP_DialogOpenButton}, {"save", QStyle::SP_DialogSaveButton},
      {"undo", QStyle::SP_ArrowBack}, {"redo", QStyle::SP_ArrowForward},     {"delete", QStyle::SP_TrashIcon}};
  QToolBar* bar = addToolBar(QStringLiteral("Commands"));
  bar->setMovable(false);
  bar->setIconSize({16, 16});
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  for (const auto& [name, picture] : buttons) {
    QAction* action = Action(QString::fromLatin1(name));
    action->setIcon(style()->standardIcon(picture, nullptr, this));
    action->setIconVisibleInMenu(false);
    bar->addAction(action);
    if (action == Action(QStringLiteral("save")) || action == Action(QStringLiteral("redo"))) bar->addSeparator();
  }
}

void TMainWindow::UpdateActions() {
  const QUndoStack& stack = FSession.Document().UndoStack();
  QAction* undo = Action(QStringLiteral("undo"));
  undo->setEnabled(stack.canUndo());
  undo->setText(stack.canUndo() ? QStringLiteral("&Undo ") + stack.undoText() : QStringLiteral("&Undo"));
  undo->setIconText(QStringLiteral("Undo"));
  QAction* redo = Action(QStringLiteral("redo"));
  redo->setEnabled(stack.canRedo());
  redo->setText(stack.canRedo() ? QStringLiteral("&Redo ") + stack.redoText() : QStringLiteral("&Redo"));
  redo->setIconText(QStringLiteral("Redo"));
  const bool hasComponents = FSession.Main() != &FSession.Form();
  for (const char* name : {"cut", "copy", "delete"}) Action(QString::fromLatin1(name))->setEnabled(hasComponents);
  UpdatePartActions();
}

void TMainWindow::OpenMenu(QPoint globalPoint) {
  QMenu menu(this);
  for (const char* name : {"cut", "copy", "paste", "delete", "selectAll", "inspect"}) {
    menu.addAction(Action(QString::fromLatin1(name)));
  }
  menu.addSeparator();
  for (const QString& name : PartActions()) {
    if (Action(name)->isEnabled()) menu.addAction(Action(name));
  }
  menu.exec(globalPoint);
}

/// From where the keyboard is, through the four parts of the window, and round.
void TMainWindow::GoToPane(int step) {
  QWidget* const panes[] = {FPalette, &Surface(), FTree, FPanel};
  const int count = static_cast<int>(std::size(panes));
  const QWidget* focus = focusWidget();
  int at = 0;
  while (at < count && focus != panes[at] && !panes[at]->isAncestorOf(focus)) ++at;
  const int next = at == count ? 1 : (at + step + count) % count;
  panes[next] == FPanel ? FPanel->FocusGrid() : panes[next]->setFocus(Qt::ShortcutFocusReason);
}

void TMainWindow::ShowKeys() {
  QMessageBox::information(
      this, QStringLiteral("Keys and mouse"),
      QStringLiteral(
          "<p><b>On the form</b></p><table cellspacing=\"4\">"
          "<tr><td>Click, Shift+click</td><td>select; take in or out</td></tr>"
          "<tr><td>Drag</td><td>move along the grid; with Alt freely</td></tr>"
          "<tr><td>Drag on free ground</td><td>select what the frame touches (on a panel: with Ctrl)</td></tr>"
          "<tr><td>Handles</td><td>size</td></tr>"
          "<tr><td>Arrow, Shift+arrow</td><td>move, size by a pixel</td></tr>"
          "<tr><td>Ctrl+arrow, Ctrl+Shift+arrow</td><td>the same by a step of the grid</td></tr>"
          "<tr><td>Alt+arrow</td><td>go to the neighbour</td></tr>"
          "<tr><td>Tab, Shift+Tab</td><td>next, previous component, in tab order</td></tr>"
          "<tr><td>Escape</td><td>select what is around</td></tr>"
          "<tr><td>Ins, Alt+Ins</td><td>new page, menu item or action; new item below</td></tr>"
          "<tr><td>Return</td><td>to the object inspector</td></tr></table>"
          "<p><b>Palette</b></p><table cellspacing=\"4\">"
          "<tr><td>Click or Space</td><td>take a class; click or drag on the form places it</td></tr>"
          "<tr><td>Double click or Return</td><td>place it in the middle of what is selected</td></tr></table>"
          "<p><b>Object inspector</b></p><table cellspacing=\"4\">"
          "<tr><td>Alt+Right, Alt+Left</td><td>expand, collapse</td></tr>"
          "<tr><td>Alt+Down</td><td>open the list of values</td></tr>"
          "<tr><td>Alt+Return</td><td>what the button of the row does</td></tr>"
          "<tr><td>Return, Escape</td><td>accept, take back</td></tr></table>"
          "<p><b>Anywhere</b></p><table cellspacing=\"4\">"
          "<tr><td>F6, Shift+F6</td><td>next, previous pane</td></tr>"
          "<tr><td>F11, F12, Ctrl+F</td><td>inspector, form, filter</td></tr></table>"));
}

}  // namespace designer
