#include "uiview/FormHost.h"

#include <QDialog>
#include <QEvent>
#include <QMdiSubWindow>
#include <QTimer>

#include <algorithm>

namespace uiview {

namespace {

constexpr QPoint kPlace(16, 16);

}  // namespace

TFormHost::TFormHost(QWidget* parent) : QMdiArea(parent) {
  setAccessibleName(QStringLiteral("Form"));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setBackground(palette().brush(QPalette::Mid));
}

TFormHost::~TFormHost() { Show(nullptr); }

void TFormHost::Show(std::unique_ptr<QWidget> form) {
  delete FForm;
  delete FFrame;
  if (!form) return;
  FForm = form.get();
  FFrame = addSubWindow(form.release(), Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  FFrame->setSystemMenu(nullptr);
  FForm->installEventFilter(this);
  if (auto* dialog = qobject_cast<QDialog*>(FForm.data())) {
    // Later, as it is hidden in between.
    connect(dialog, &QDialog::finished, this, [this] {
      QTimer::singleShot(0, this, [this] {
        if (FForm) FForm->show();
        if (FForm && OnClosing) OnClosing();
      });
    });
  }
  const QSize size = FForm->size();
  FForm->show();
  FFrame->show();
  FFrame->resize(FFrame->size() - FForm->size() + size);
  FFrame->move(isRightToLeft() ? std::max(width() - FFrame->width() - kPlace.x(), kPlace.x()) : kPlace.x(), kPlace.y());
}

void TFormHost::FocusForm() {
  if (!FForm) return;
  QWidget* first = FForm->focusWidget();
  for (QWidget* next = FForm; !first;) {
    const bool takesFocus = (next->focusPolicy() & Qt::TabFocus) && next->isEnabled() && next->isVisible();
    if (takesFocus || next->nextInFocusChain() == FForm) first = next;
    next = next->nextInFocusChain();
  }
  setActiveSubWindow(FFrame);
  first->setFocus(Qt::ShortcutFocusReason);
}

bool TFormHost::eventFilter(QObject* watched, QEvent* event) {
  if (watched != FForm || event->type() != QEvent::Close) return QMdiArea::eventFilter(watched, event);
  event->ignore();
  if (OnClosing) OnClosing();
  return true;
}

}  // namespace uiview
