#include "qtinspect/ModalPass.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace qtinspect {

namespace {

bool StandsBefore(const QWindow* window, const QWindow* behind) {
  while (window && window != behind) window = window->transientParent();
  return window != nullptr;
}

}  // namespace

TModalPass::TModalPass(QWidget& window) : QObject(&window), FWindow(window) { window.installEventFilter(this); }

bool TModalPass::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) Pass();
  return false;
}

void TModalPass::Pass() {
  QWindow* window = FWindow.windowHandle();
  QWindow* modal = QGuiApplication::modalWindow();
  if (!window || !modal || StandsBefore(modal, window)) return;
  window->setTransientParent(modal);
  // A window that is gone from sight takes those before it along, so this one stands before it no longer.
  connect(modal, &QWindow::visibleChanged, this, [this, modal](bool isVisible) {
    QWindow* own = FWindow.windowHandle();
    if (!isVisible && own && own->transientParent() == modal) own->setTransientParent(nullptr);
    if (!isVisible) modal->disconnect(this);
  });
}

}  // namespace qtinspect
