#include "Attachment.h"

#include <QApplication>
#include <QKeyEvent>

TAttachment::TAttachment() {
  FWindow.Pane().OnPicked = [this] {
    FWindow.Come();
    FWindow.Pane().Panel().FocusGrid();
  };
  qApp->installEventFilter(this);
}

TAttachment::~TAttachment() { qApp->removeEventFilter(this); }

/// The key is taken before the program asks its own actions.
bool TAttachment::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
  auto* key = static_cast<QKeyEvent*>(event);
  const bool isOurs = key->key() == Qt::Key_I && key->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  if (!isOurs) return false;
  event->accept();
  if (event->type() == QEvent::KeyPress) FWindow.Come();
  return true;
}
