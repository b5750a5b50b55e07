#include "uiview/UiWindow.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/forms/Application.h"
#include "qtinspect/ListedObjects.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace uiview {

TUiWindow::TUiWindow() {
  Tell = [this](const QString& message) { QMessageBox::warning(this, QStringLiteral("Form viewer"), message); };
  AskFileName = [this](const QString& folder) {
    return QFileDialog::getOpenFileName(this, QStringLiteral("Open a form"), folder,
                                        QStringLiteral("Qt forms (*.ui);;All files (*)"));
  };
  kt::Application().OnException = [this](kt::TObject*, const kt::Exception& error) { Tell(error.Message()); };
  setAcceptDrops(true);
  BuildParts();
  BuildMenus();
  UpdateStatus();
  resize(1100, 720);
}

/// The inspector goes before the form, and both before what they tell could reach this window no more.
TUiWindow::~TUiWindow() {
  FHost->OnClosing = nullptr;
  delete FPane;
  delete takeCentralWidget();
  kt::Application().OnException = nullptr;
}

void TUiWindow::BuildParts() {
  FHost = new TFormHost;
  FHost->OnClosing = [this] {
    statusBar()->showMessage(QStringLiteral("The form would close now. Here it stays."), 4000);
  };
  FPane = new qtinspect::TInspectPane(
      [this] { return FHost->Form() ? std::vector<QObject*>{FHost->Form()} : std::vector<QObject*>{}; });
  FPane->OnPicked = [this] { FPane->Panel().FocusGrid(); };
  FPane->Selection().Listen([this] { UpdateStatus(); });
  auto* parts = new QSplitter(Qt::Horizontal);
  parts->addWidget(FHost);
  parts->addWidget(FPane);
  parts->setStretchFactor(0, 1);
  parts->setSizes({700, 380});
  auto* framed = new QWidget;
  auto* layout = new QVBoxLayout(framed);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(parts);
  setCentralWidget(framed);
  FStatus = new QLabel;
  statusBar()->addWidget(FStatus, 1);
}

/// Keys count in the pane of the tree and the inspector; those for the whole window are function keys, as all others
/// belong to the form while that has the keyboard.
QAction* TUiWindow::Add(const char* name, const QString& text, const QKeySequence& key, std::function<void()> call) {
  auto* action = new QAction(text, this);
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcut(key);
  connect(action, &QAction::triggered, this, [run = std::move(call)] { kt::GuardedCall(run); });
  const bool isForAll = key[0].key() >= Qt::Key_F1 && key[0].key() <= Qt::Key_F35;
  action->setShortcutContext(isForAll ? Qt::WindowShortcut : Qt::WidgetWithChildrenShortcut);
  FPane->addAction(action);
  return action;
}

void TUiWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  file->addAction(
      Add("open", QStringLiteral("&Open..."), QKeySequence(QStringLiteral("Ctrl+O")), [this] { AskAndOpen(); }));
  file->addAction(Add("reload", QStringLiteral("&Reload"), QKeySequence(QStringLiteral("F5")), [this] { Reload(); }));
  file->addSeparator();
  file->addAction(Add("quit", QStringLiteral("&Quit"), QKeySequence(QStringLiteral("Ctrl+Q")), [this] { close(); }));

  QMenu* view = menuBar()->addMenu(QStringLiteral("&View"));
  view->addAction(Add("pick", QStringLiteral("&Pick by pointer"), QKeySequence(QStringLiteral("F8")),
                      [this] { FPane->Picker().SetPicking(!FPane->Picker().IsPicking()); }));
  view->addSeparator();
  view->addAction(Add("inspect", QStringLiteral("Object &inspector"), QKeySequence(QStringLiteral("F11")),
                      [this] { FPane->Panel().FocusGrid(); }));
  view->addAction(Add("filter", QStringLiteral("&Filter properties"), QKeySequence(QStringLiteral("Ctrl+F")),
                      [this] { FPane->Panel().FocusFilter(); }));
  view->addAction(
      Add("form", QStringLiteral("F&orm"), QKeySequence(QStringLiteral("F12")), [this] { FHost->FocusForm(); }));
  view->addAction(
      Add("nextPane", QStringLiteral("&Next pane"), QKeySequence(QStringLiteral("F6")), [this] { GoToPane(1); }));
  view->addAction(Add("previousPane", QStringLiteral("Pre&vious pane"), QKeySequence(QStringLiteral("Shift+F6")),
                      [this] { GoToPane(-1); }));

  QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
  help->addAction(
      Add("help", QStringLiteral("&Keys and mouse"), QKeySequence(QStringLiteral("F1")), [this] { ShowHelp(); }));
}

QAction* TUiWindow::Action(const QString& name) const {
  auto* action = findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
  Q_ASSERT(action);
  return action;
}

void TUiWindow::UpdateStatus() {
  setWindowTitle(FFileName.isEmpty() ? QStringLiteral("Form viewer")
                                     : QFileInfo(FFileName).fileName() + QStringLiteral(" - Form viewer"));
  QString text = FFileName.isEmpty() ? QStringLiteral("Open a form (Ctrl+O), or drop one here.")
                                     : QStringLiteral("Edits change the form as it is here; the file stays as it is.");
  if (!FRemarks.isEmpty()) text = FRemarks.join(u' ');
  FStatus->setText(text);
  FStatus->setToolTip(FRemarks.join(u'\n'));
}

/// From where the keyboard is, through the three parts of the window, and round.
void TUiWindow::GoToPane(int step) {
  const QWidget* focus = focusWidget();
  const int at = FHost->isAncestorOf(focus) ? 0 : FPane->Tree().hasFocus() ? 1 : FPane->isAncestorOf(focus) ? 2 : 0;
  switch ((at + step + 3) % 3) {
    case 0:
      return FHost->FocusForm();
    case 1:
      return FPane->Tree().setFocus(Qt::ShortcutFocusReason);
    default:
      return FPane->Panel().FocusGrid();
  }
}

void TUiWindow::ShowHelp() {
  QMessageBox::information(
      this, QStringLiteral("Keys and mouse"),
      QStringLiteral(
          "<p>The form is alive: use it, and edit its objects in the inspector. Nothing is saved; the form of the file "
          "comes back by reloading it.</p><table cellspacing=\"4\">"
          "<tr><td>F8, then click</td><td>inspect what is clicked on; Shift+click adds, Esc ends</td></tr>"
          "<tr><td>Ctrl+Shift+click</td><td>the same at any time, also in open menus</td></tr>"
          "<tr><td>In the tree</td><td>click or arrow keys select, with Shift or Ctrl several; Return goes to the "
          "inspector</td></tr>"
          "<tr><td>Alt+Down, Return, Escape</td><td>in the inspector: open a list of values, accept, take "
          "back</td></tr>"
          "<tr><td>F6, Shift+F6</td><td>next, previous pane</td></tr>"
          "<tr><td>F11, F12</td><td>inspector, form</td></tr>"
          "<tr><td>Ctrl+F, Ctrl+O, Ctrl+Q</td><td>filter, open, quit, while the tree or the inspector has the "
          "keyboard</td></tr>"
          "<tr><td>F5</td><td>reload</td></tr></table>"));
}

QString TUiWindow::Text() { return FPane->Text(); }

}  // namespace uiview
