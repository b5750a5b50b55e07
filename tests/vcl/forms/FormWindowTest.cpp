// Forms as windows: which one is active, where they appear, how they paint and grow.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/Screen.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

class FormWindowTest : public testing::Test {
 protected:
  FormWindowTest() {
    Hear(Form, QStringLiteral("first"));
    Hear(Other, QStringLiteral("second"));
  }
  void TearDown() override { Application().SetMainForm(nullptr); }
  /// Writes down "+name" and "-name", with who is active at that moment.
  void Hear(TForm& form, const QString& name) {
    form.SetName(name);
    const auto noteAs = [this](QChar sign) {
      return TNotifyEvent([this, sign](TObject* sender) {
        const TCustomForm* active = Screen().GetActiveForm();
        FLog += sign + static_cast<TForm*>(sender)->GetName() + u'(' + (active ? active->GetName() : QString()) + u')';
      });
    };
    form.OnActivate = noteAs(u'+');
    form.OnDeactivate = noteAs(u'-');
  }
  QString Log() {
    TWindowProbe::Settle();
    return std::exchange(FLog, {}).join(u' ');
  }
  static void ShowAt(TForm& form, const QRect& place) {
    form.SetBounds(place.x(), place.y(), place.width(), place.height());
    form.SetPosition(poDesigned);
    form.Show();
    TWindowProbe::Settle();
  }
  /// The middle of the form once it is shown, as if it had no frame: nobody knows that before.
  static QPoint CentreShown(TForm& form, TPosition position) {
    form.SetPosition(position);
    form.Show();
    TWindowProbe::Settle();
    return QRect(form.GetHandle()->pos(), form.GetHandle()->size()).center();
  }
  QString State() {
    TWindowProbe::Settle();
    const QWidget& window = *Form.GetHandle();
    return window.isMaximized() ? "maximized" : window.isMinimized() ? "minimized" : "normal";
  }

  QStringList FLog;
  std::unique_ptr<TForm> FForm = Make<TForm>();
  std::unique_ptr<TForm> FOther = Make<TForm>();
  TForm& Form = *FForm;
  TForm& Other = *FOther;
};

TEST_F(FormWindowTest, AFormIsToldThatItIsActiveWhenItAppears) {
  Form.Show();
  EXPECT_EQ(Log(), "+first(first)");
  EXPECT_TRUE(Form.IsActive());
}

TEST_F(FormWindowTest, AFormIsToldThatAnotherOneHasBecomeActive) {
  Form.Show();
  Log();
  Other.Show();
  EXPECT_EQ(Log(), "-first(second) +second(second)");
  QApplication::setActiveWindow(Form.GetHandle());
  EXPECT_EQ(Log(), "-second(first) +first(first)");
  EXPECT_EQ(Screen().GetActiveForm(), &Form);
}

TEST_F(FormWindowTest, AHandlerMayFreeTheFormThatBecomesActive) {
  Form.Show();
  Log();
  Form.OnDeactivate = [this](TObject*) { FOther.reset(); };
  Other.Show();
  EXPECT_EQ(Log(), "");
}

TEST_F(FormWindowTest, NoFormIsActiveWhileSomebodyElsesWindowIs) {
  Form.Show();
  Log();
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  EXPECT_EQ(Log(), "-first()");
  EXPECT_EQ(Screen().GetActiveForm(), nullptr);
  EXPECT_FALSE(Form.IsActive());
}

TEST_F(FormWindowTest, AFormThatGoesIsActiveNoLonger) {
  Form.Show();
  Log();
  FForm.reset();
  EXPECT_EQ(Screen().GetActiveForm(), nullptr);
}

TEST_F(FormWindowTest, PaintingIsAHandlersBusiness) {
  Form.OnPaint = [this](TObject*) {
    Form.GetCanvas().GetBrush().SetColor(clRed);
    Form.GetCanvas().FillRect({10, 10, 20, 20});
  };
  Form.Show();
  TWindowProbe::Settle();
  const QImage image = Form.GetHandle()->grab().toImage();
  EXPECT_EQ(image.pixelColor(15, 15), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(35, 35), Form.GetHandle()->palette().color(QPalette::Window));
}

TEST_F(FormWindowTest, PaintingIsAskedForWhenTheFormIsInvalid) {
  Form.Show();
  TWindowProbe::Settle();
  int count = 0;
  Form.OnPaint = [&](TObject*) { ++count; };
  TWindowProbe::Settle();
  EXPECT_EQ(count, 0);
  Form.Invalidate();
  TWindowProbe::Settle();
  EXPECT_EQ(count, 1);
}

TEST_F(FormWindowTest, AppearsWhereItWasDesigned) {
  ShowAt(Form, {130, 140, 200, 100});
  EXPECT_EQ(Form.GetHandle()->pos(), QPoint(130, 140));
  EXPECT_EQ(Form.GetHandle()->size(), QSize(200, 100));
}

TEST_F(FormWindowTest, AppearsInTheMiddleOfTheScreen) {
  // Of 800 x 800 pixels.
  EXPECT_EQ(CentreShown(Form, poScreenCenter), QPoint(399, 399));
  EXPECT_EQ(CentreShown(Other, poDesktopCenter), QPoint(399, 399));
}

TEST_F(FormWindowTest, AppearsInTheMiddleAgain) {
  CentreShown(Form, poScreenCenter);
  Form.Hide();
  Form.GetHandle()->move(10, 10);
  Form.Show();
  TWindowProbe::Settle();
  // Now with its frame.
  EXPECT_EQ(Form.GetHandle()->frameGeometry().center(), QPoint(399, 399));
}

TEST_F(FormWindowTest, AppearsInTheMiddleOfTheMainForm) {
  Application().SetMainForm(&Other);
  ShowAt(Other, {100, 150, 500, 400});
  EXPECT_EQ(CentreShown(Form, poMainFormCenter), Other.GetHandle()->frameGeometry().center());
}

TEST_F(FormWindowTest, WhereTheMainFormIsHiddenTheScreensMiddleIsTaken) {
  Application().SetMainForm(&Other);
  EXPECT_EQ(CentreShown(Form, poMainFormCenter), QPoint(399, 399));
}

TEST_F(FormWindowTest, AppearsInTheMiddleOfTheFormThatOwnsIt) {
  ShowAt(Other, {100, 150, 500, 400});
  TForm& owned = *New<TForm>(&Other);
  EXPECT_EQ(CentreShown(owned, poOwnerFormCenter), Other.GetHandle()->frameGeometry().center());
}

TEST_F(FormWindowTest, AppearsMaximized) {
  Form.SetWindowState(wsMaximized);
  Form.Show();
  EXPECT_EQ(State(), "maximized");
}

TEST_F(FormWindowTest, ItsStateChangesWhileItShows) {
  Form.Show();
  Form.SetWindowState(wsMinimized);
  EXPECT_EQ(State(), "minimized");
  Form.SetWindowState(wsMaximized);
  EXPECT_EQ(State(), "maximized");
  Form.SetWindowState(wsNormal);
  EXPECT_EQ(State(), "normal");
}

TEST_F(FormWindowTest, ItsStateIsTheOneThatTheUserGaveTheWindow) {
  Form.Show();
  Form.GetHandle()->showMaximized();
  EXPECT_EQ(Form.GetWindowState(), wsMaximized);
  Form.GetHandle()->showMinimized();
  EXPECT_EQ(Form.GetWindowState(), wsMinimized);
  Form.GetHandle()->showNormal();
  EXPECT_EQ(Form.GetWindowState(), wsNormal);
}

TEST_F(FormWindowTest, ClosingMayMinimizeIt) {
  Form.OnClose = [](TObject*, TCloseAction& action) { action = caMinimize; };
  Form.Show();
  Form.Close();
  EXPECT_EQ(State(), "minimized");
  EXPECT_TRUE(Form.IsVisible());
}

}  // namespace
}  // namespace kt
