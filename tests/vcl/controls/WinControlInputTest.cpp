// Keys as controls hear of them.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/forms/Form.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TWindowProbe;

/// A control with the focus on a form; both write down what they hear.
class WinControlInputTest : public testing::Test {
 protected:
  WinControlInputTest() {
    Control.SetParent(FForm.get());
    Control.SetBounds(0, 0, 50, 50);
    Control.SetTabStop(true);
    Hear(Control, QStringLiteral("control"));
    Hear(Form, QStringLiteral("form"));
    Form.Show();
    QApplication::setActiveWindow(Form.GetHandle());
    Control.SetFocus();
  }
  void Hear(TWinControl& control, const QString& who) {
    control.OnKeyUp = [this, who](TObject*, quint16& key, TShiftState shift) {
      FLog += QStringLiteral("%1 up %2%3").arg(who).arg(key).arg(shift.Has(ssCtrl) ? "+ctrl" : "");
    };
    control.OnKeyDown = [this, who](TObject*, quint16& key, TShiftState) {
      FLog += QStringLiteral("%1 down %2").arg(who).arg(key);
    };
    control.OnKeyPress = [this, who](TObject*, QChar& key) { FLog += who + QStringLiteral(" press ") + key; };
  }
  QString Log() { return std::exchange(FLog, {}).join(QStringLiteral(", ")); }

  QStringList FLog;
  std::unique_ptr<TForm> FForm = Make<TForm>();
  TForm& Form = *FForm;
  TControlProbe& Control = *New<TControlProbe>(FForm.get());
};

TEST_F(WinControlInputTest, AKeyGoesDownTypesAndComesUp) {
  QTest::keyPress(Control.GetHandle(), Qt::Key_A);
  EXPECT_EQ(Log(), "control down 65, control press a");
  QTest::keyRelease(Control.GetHandle(), Qt::Key_A);
  EXPECT_EQ(Log(), "control up 65");
}

TEST_F(WinControlInputTest, AReleasedKeyHasItsShiftKeys) {
  // The Control key comes up after it.
  QTest::keyRelease(Control.GetHandle(), Qt::Key_F5, Qt::ControlModifier);
  EXPECT_EQ(Log(), QStringLiteral("control up %1+ctrl, control up %2").arg(VK_F1 + 4).arg(VK_CONTROL));
}

TEST_F(WinControlInputTest, AFormThatLooksFirstHearsOfReleasesFirst) {
  Form.SetKeyPreview(true);
  QTest::keyRelease(Control.GetHandle(), Qt::Key_A);
  EXPECT_EQ(Log(), "form up 65, control up 65");
}

TEST_F(WinControlInputTest, AReleaseThatTheFormTakesDoesNotReachTheControl) {
  Form.SetKeyPreview(true);
  Form.OnKeyUp = [](TObject*, quint16& key, TShiftState) { key = 0; };
  QTest::keyRelease(Control.GetHandle(), Qt::Key_A);
  EXPECT_EQ(Log(), "");
}

TEST_F(WinControlInputTest, AHandlerOfAReleaseMayFreeItsControl) {
  Control.OnKeyUp = [this](TObject* sender, quint16&, TShiftState) {
    FLog += QStringLiteral("freed");
    delete sender;
  };
  QTest::keyRelease(Control.GetHandle(), Qt::Key_A);
  EXPECT_EQ(Log(), "freed");
  EXPECT_EQ(Form.GetControlCount(), 0);
}

}  // namespace
}  // namespace kt
