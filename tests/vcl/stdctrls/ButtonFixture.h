#pragma once

#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/Print.h"
#include "support/WindowProbe.h"

#include <QAbstractButton>
#include <QTest>

#include <gtest/gtest.h>

namespace kt::tests {

/// Buttons on a form that shows, and what they tell.
class TButtonTest : public testing::Test {
 protected:
  ~TButtonTest() override { Application().OnException = nullptr; }

  template <class B>
  B& Add(const QString& caption, int top = 0) {
    B& button = *New<B>(FForm.get());
    button.SetParent(FForm.get());
    button.SetTop(top);
    button.SetCaption(caption);
    button.OnClick = [this, caption](TObject*) { FLog += caption; };
    return button;
  }
  void Show() {
    FForm->Show();
    QApplication::setActiveWindow(FForm->GetHandle());
    TWindowProbe::Settle();
  }
  /// A click with the mouse in the middle of a control.
  static void Click(TWinControl& control) { QTest::mouseClick(control.GetHandle(), Qt::LeftButton); }
  static QAbstractButton* ButtonOf(TWinControl& control) { return static_cast<QAbstractButton*>(control.GetHandle()); }
  std::string TakeLog() { return std::exchange(FLog, {}).join(u' ').toStdString(); }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  QStringList FLog;
};

}  // namespace kt::tests
