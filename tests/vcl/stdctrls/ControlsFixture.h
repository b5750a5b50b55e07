#pragma once

#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/FormText.h"
#include "support/Print.h"
#include "support/WindowProbe.h"

#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace kt::tests {

/// Controls on a form that shows, and what they tell.
class TControlsTest : public testing::Test {
 protected:
  ~TControlsTest() override {
    Application().OnException = nullptr;
    // No button stays pressed for the next test.
    QTestPrivate::qtestMouseButtons = Qt::NoButton;
  }

  template <class C>
  C& Add(int left = 8, int top = 8) {
    C& control = *New<C>(FForm.get());
    control.SetParent(FForm.get());
    control.SetBounds(left, top, control.GetWidth(), control.GetHeight());
    return control;
  }
  void Show() {
    FForm->SetBounds(0, 0, 400, 300);
    FForm->Show();
    QApplication::setActiveWindow(FForm->GetHandle());
    TWindowProbe::Settle();
  }
  /// A handler that writes a word down.
  TNotifyEvent Note(const QString& word) {
    return [this, word](TObject*) { FLog += word; };
  }
  /// A handler that frees the form with all that is on it.
  TNotifyEvent FreeForm() {
    return [this](TObject*) { FForm.reset(); };
  }
  std::string TakeLog() { return std::exchange(FLog, {}).join(u' ').toStdString(); }

  /// Whether somebody used it.
  static bool Turn(QWidget* widget, int delta) {
    const QPoint place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    event.ignore();
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
  }
  static void Commit(QWidget* widget, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(widget, &event);
  }
  static void Type(const char* text) { TWindowProbe::Type(QString::fromLatin1(text)); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { TWindowProbe::Key(key, modifiers); }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  QStringList FLog;
};

}  // namespace kt::tests
