#pragma once

#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/GraphicControl.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QImage>
#include <QPaintEvent>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace kt::tests {

/// A form that can be in a designer.
class TDesignForm : public TForm {
 public:
  using TForm::SetDesigning;

 protected:
  explicit TDesignForm(TComponent* owner = nullptr) : TForm(owner) {}
};

/// A control without a window that is all of one colour.
class TColored : public TGraphicControl {
 public:
  using TGraphicControl::SetControlStyle;

  /// Comes before it is drawn.
  TNotifyEvent OnDraw;

 protected:
  explicit TColored(TComponent* owner = nullptr) : TGraphicControl(owner) {}
  void Paint() override {
    // More than its place.
    GetCanvas().FillRect(GetClientRect().adjusted(-50, -50, 50, 50));
    const TNotifyEvent handler = OnDraw;
    handler(this);
  }
};

/// A white form of 200 x 100 in the corner of the screen, what it shows, and the mouse over it.
class TPaintWorld : public testing::Test, public QObject {
 protected:
  TPaintWorld() {
    FForm->SetBounds(0, 0, 200, 100);
    FForm->SetColor(clWhite);
    Application().OnException = [this](TObject*, const Exception& error) { Note("error " + error.Message()); };
  }
  ~TPaintWorld() override {
    Application().OnException = nullptr;
    // A widget that goes from below the mouse has Qt make one for the desktop.
    if (FForm && FForm->HandleAllocated() && Window()) {
      qt_handleMouseEvent(Window(), {350, 500}, {350, 500}, Qt::NoButton, Qt::NoButton, QEvent::MouseMove, {},
                          ++QTest::lastMouseTimestamp);
      TWindowProbe::Settle();
    }
    HideControlHint();
  }

  template <class T>
  T& Add(const QString& name, const QRect& place, TWinControl* parent = nullptr) {
    T& control = *New<T>(FForm.get());
    control.SetName(name);
    control.SetParent(parent ? parent : FForm.get());
    control.SetBounds(place.x(), place.y(), place.width(), place.height());
    return control;
  }
  TColored& AddColored(TColor color, const QRect& place, TWinControl* parent = nullptr) {
    TColored& control = *New<TColored>(FForm.get());
    control.SetParent(parent ? parent : FForm.get());
    control.SetBounds(place.x(), place.y(), place.width(), place.height());
    control.SetColor(color);
    return control;
  }
  void Show() {
    FForm->Show();
    FForm->GetHandle()->move(0, 0);
    QApplication::setActiveWindow(FForm->GetHandle());
    TWindowProbe::Settle();
  }
  QImage Shown() { return FForm->GetHandle()->grab().toImage(); }
  /// The colours at some places of the form, as form files name them.
  std::string ColorsAt(std::initializer_list<QPoint> places) {
    const QImage image = Shown();
    QStringList names;
    for (QPoint place : places) {
      const QColor color = image.pixelColor(place);
      names += ColorToString(static_cast<TColor>(color.red() | color.green() << 8 | color.blue() << 16));
    }
    return names.join(u' ').toStdString();
  }
  /// What of the form's window `action` has painted, as "x,y wxh"; empty for nothing.
  template <class F>
  std::string PaintedBy(F&& action) {
    TWindowProbe::Settle();
    FPainted = {};
    FForm->GetHandle()->installEventFilter(this);
    action();
    TWindowProbe::Settle();
    FForm->GetHandle()->removeEventFilter(this);
    QStringList rects;
    for (const QRect& rect : FPainted) {
      rects += QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
    }
    return rects.join(QLatin1String(" | ")).toStdString();
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) FPainted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

  void Listen(TControl& control, const QString& name) {
    control.OnMouseDown = [=, this](TObject*, TMouseButton, TShiftState, int x, int y) {
      Note(QStringLiteral("%1 down %2,%3").arg(name).arg(x).arg(y));
    };
    control.OnMouseUp = [=, this](TObject*, TMouseButton, TShiftState, int x, int y) {
      Note(QStringLiteral("%1 up %2,%3").arg(name).arg(x).arg(y));
    };
    control.OnClick = [=, this](TObject*) { Note(name + " click"); };
    control.OnDblClick = [=, this](TObject*) { Note(name + " double"); };
    control.OnMouseEnter = [=, this](TObject*) { Note(name + " enter"); };
    control.OnMouseLeave = [=, this](TObject*) { Note(name + " leave"); };
  }
  void Note(const QString& what) { FLog += what; }
  /// What was told since the last call.
  std::string Log() { return std::exchange(FLog, {}).join(QLatin1String(" | ")).toStdString(); }

  // The mouse, as the system has it.
  QWindow* Window() { return FForm->GetHandle()->windowHandle(); }
  void MoveTo(QPoint place) {
    QTest::mouseMove(Window(), place);
    TWindowProbe::Settle();
  }
  void Press(QPoint place, Qt::MouseButton button = Qt::LeftButton) { QTest::mousePress(Window(), button, {}, place); }
  void Release(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(Window(), button, {}, place);
  }

  std::unique_ptr<TDesignForm> FForm = Make<TDesignForm>();
  QStringList FLog;
  QRegion FPainted;
};

}  // namespace kt::tests
