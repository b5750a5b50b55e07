#pragma once

#include "kt/vcl/controls/WinControl.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>

namespace kt::tests {

/// Somebody else's window that shows a control, as an application embeds it. The control's widget belongs to the window
/// and goes with it.
class TWindowProbe {
 public:
  explicit TWindowProbe(TWinControl& control, QSize size = {400, 300}) : FControl(control) {
    FWindow->setLayout(new QVBoxLayout);
    FWindow->layout()->setContentsMargins(0, 0, 0, 0);
    FWindow->layout()->addWidget(control.GetHandle());
    FWindow->resize(size);
    FWindow->show();
    FWindow->activateWindow();
    QApplication::setActiveWindow(FWindow.get());
    Settle();
  }

  QWidget* Window() { return FWindow.get(); }
  QWidget* Body() { return FControl.GetHandle(); }
  /// Has Qt do what it has put off.
  static void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
  void Close() { FWindow.reset(); }

  /// A key to whatever has the keyboard.
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    if (QWidget* focus = QApplication::focusWidget()) QTest::keyClick(focus, key, modifiers);
  }
  static void Type(const QString& text) {
    for (QChar character : text) QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
  }
  /// The mouse at a place of the control's window.
  void Press(QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mousePress(Body(), Qt::LeftButton, modifiers, point);
  }
  void MoveTo(QPoint point) {
    QMouseEvent event(QEvent::MouseMove, point, Body()->mapToGlobal(point), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(Body(), &event);
  }
  void Release(QPoint point) { QTest::mouseRelease(Body(), Qt::LeftButton, Qt::NoModifier, point); }
  void Click(QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(Body(), Qt::LeftButton, modifiers, point);
  }

 private:
  TWinControl& FControl;
  std::unique_ptr<QWidget> FWindow = std::make_unique<QWidget>();
};

}  // namespace kt::tests
