#include "InspectorWindow.h"

#include "qtinspect/ListedObjects.h"

#include <QAction>
#include <QApplication>
#include <QVBoxLayout>
#include <QWindow>

namespace {

/// A window of the window system that this one stands before, through any number of others.
bool StandsBefore(const QWidget& window, const QWidget& behind) {
  const QWindow* at = window.windowHandle();
  while (at && at != behind.windowHandle()) at = at->transientParent();
  return at && behind.windowHandle();
}

}  // namespace

TInspectorWindow::TInspectorWindow() : FPane(new qtinspect::TInspectPane([this] { return OtherWindows(); })) {
  setWindowTitle(tr("Inspector"));
  setAttribute(Qt::WA_QuitOnClose, false);
  new qtinspect::TModalPass(*this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(FPane);
  const std::pair<QKeySequence, std::function<void()>> keys[] = {
      {QKeySequence(QStringLiteral("F8")), [this] { FPane->Picker().SetPicking(!FPane->Picker().IsPicking()); }},
      {QKeySequence(QStringLiteral("F11")), [this] { FPane->Panel().FocusGrid(); }},
      {QKeySequence(QStringLiteral("F6")), [this] { FPane->Tree().setFocus(Qt::ShortcutFocusReason); }},
      {QKeySequence(QStringLiteral("Ctrl+F")), [this] { FPane->Panel().FocusFilter(); }},
      {QKeySequence(QStringLiteral("Ctrl+W")), [this] { close(); }}};
  for (const auto& [key, call] : keys) {
    auto* action = new QAction(this);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, call);
    addAction(action);
  }
  resize(380, 680);
}

/// What stands alone; dialogs and pop-ups of these are listed below them.
std::vector<QObject*> TInspectorWindow::OtherWindows() const {
  std::vector<QObject*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool isOwn = window == this || window->parent() || StandsBefore(*window, *this);
    const bool isListed =
        qtinspect::IsListed(*window) && window->windowType() != Qt::Desktop && window->windowType() != Qt::ToolTip;
    if (!isOwn && isListed) windows.push_back(window);
  }
  return windows;
}

void TInspectorWindow::Come() {
  show();
  raise();
  // A pop-up would close when another window becomes active.
  if (!QApplication::activePopupWidget()) activateWindow();
}
