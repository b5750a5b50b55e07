#pragma once

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/controls/DragObject.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/controls/Mouse.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/ControlProbe.h"
#include "support/WindowProbe.h"

#include <QWindow>

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace kt::tests {

/// A control that can be dragged, and says what happens to its capture.
class TDragProbe : public TControlProbe {
 public:
  using TControlProbe::SetMouseCapture;
  bool WasCanceled = false;

 protected:
  explicit TDragProbe(TComponent* owner = nullptr) : TControlProbe(owner) {}
  void DragCanceled() override { WasCanceled = true; }
};

/// Two forms beside each other: A and B are on the first, C is on the second. What is told of drags is written down as
/// "B move 5,6", and does besides what a test has put there: At["B move"].
class TDragWorld : public testing::Test {
 protected:
  TDragWorld() {
    Application().OnException = [this](TObject*, const Exception& error) { Note("error " + error.Message()); };
    for (TForm* form : {First.get(), Second.get()}) {
      form->SetBounds(0, 0, 300, 200);
      form->SetName(form == First.get() ? "First" : "Second");
      form->Show();
    }
    First->GetHandle()->move(0, 0);
    Second->GetHandle()->move(400, 0);
    TWindowProbe::Settle();
    FA = Add(*First, "A", 10);
    FB = Add(*First, "B", 150);
    FC = Add(*Second, "C", 10);
    First->GetHandle()->activateWindow();
    TWindowProbe::Settle();
    Log();
  }
  ~TDragWorld() override {
    CancelDrag();
    Application().OnException = nullptr;
    Mouse().SetDragImmediate(true);
    Mouse().SetDragThreshold(5);
    // No button stays pressed for the next test.
    for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      if (FButtons.testFlag(button)) Release(button);
    }
    // A widget that goes from below the mouse has Qt make one for the desktop.
    MoveTo({350, 500});
    HideControlHint();
  }

  TDragProbe* Add(TForm& form, const char* name, int left) {
    auto* control = New<TDragProbe>(&form);
    control->SetName(QLatin1String(name));
    control->SetBounds(left, 10, 100, 50);
    control->SetParent(&form);
    Listen(*control);
    return control;
  }
  void Listen(TControl& control) {
    control.OnStartDrag = [this](TObject* sender, TDragObject*& object) {
      Note(NameOf(sender) + " start");
      if (Given) object = static_cast<TDragObject*>(Given.Get());
    };
    control.OnDragOver = [this](TObject* sender, TObject* source, int x, int y, TDragState state, bool& accept) {
      FSource = source;
      accept = accept && Accepts;
      static const char* const kStates[] = {" enter", " leave", " move"};
      Note(NameOf(sender) + kStates[state] + Place(x, y));
    };
    control.OnDragDrop = [this](TObject* sender, TObject* source, int x, int y) {
      FSource = source;
      Note(NameOf(sender) + " drop" + Place(x, y));
    };
    control.OnEndDrag = [this](TObject* sender, TObject* target, int x, int y) {
      Note(NameOf(sender) + " end " + NameOf(target) + Place(x, y));
    };
  }
  static QString Place(int x, int y) { return QStringLiteral(" %1,%2").arg(x).arg(y); }
  static QString NameOf(TObject* object) {
    const auto* component = dynamic_cast<TComponent*>(object);
    return component ? component->GetName() : object ? object->ClassName() : QStringLiteral("nobody");
  }
  /// Writes down, and does what is to be done after it, once.
  void Note(const QString& what) {
    FLog += what;
    const auto found = At.find(what.section(u' ', 0, 1));
    if (found == At.end()) return;
    const auto action = std::exchange(found->second, nullptr);
    if (action) action();
  }
  /// What was told since the last call.
  QString Log() { return std::exchange(FLog, {}).join(QStringLiteral(" | ")); }

  TDragProbe* A() const { return static_cast<TDragProbe*>(FA.Get()); }
  TDragProbe* B() const { return static_cast<TDragProbe*>(FB.Get()); }
  TDragProbe* C() const { return static_cast<TDragProbe*>(FC.Get()); }

  /// The mouse as the system has it: events go to the window where the button was pressed, and Qt finds the widget.
  void Press(TWinControl& control, QPoint point = {5, 5}) {
    FPlace = control.ClientToScreen(point);
    FWindow = control.GetHandle()->window()->windowHandle();
    Button(QEvent::MouseButtonPress, Qt::LeftButton);
  }
  /// Presses the button on a control whose handler begins to drag it.
  void Drag(TWinControl* control, bool immediate = true, int threshold = -1) {
    if (!control) return;
    const TObjectRef self(control);
    control->OnMouseDown = [=](TObject*, TMouseButton, TShiftState, int, int) {
      control->BeginDrag(immediate, threshold);
    };
    Press(*control);
    if (self) control->OnMouseDown = nullptr;
  }
  void MoveTo(QPoint screenPos) {
    FPlace = screenPos;
    Send(QEvent::MouseMove, Qt::NoButton);
  }
  void MoveTo(TWinControl* control, QPoint point) {
    if (control && control->HandleAllocated()) MoveTo(control->ClientToScreen(point));
  }
  void Release(Qt::MouseButton button = Qt::LeftButton) { Button(QEvent::MouseButtonRelease, button); }
  void Button(QEvent::Type type, Qt::MouseButton button) {
    FButtons.setFlag(button, type == QEvent::MouseButtonPress);
    Send(type, button);
  }
  void Send(QEvent::Type type, Qt::MouseButton button) {
    if (!FWindow) return;
    // Slow enough that no two presses are one double click.
    FTime += 2 * QApplication::doubleClickInterval();
    qt_handleMouseEvent(FWindow, FWindow->mapFromGlobal(FPlace), FPlace, FButtons, button, type, Qt::NoModifier, FTime);
    QCoreApplication::processEvents();
  }

  /// "" when nothing is left of a drag.
  static QString Left() {
    QStringList left;
    if (Mouse().IsDragging()) left += QStringLiteral("drag");
    if (QWidget::mouseGrabber()) left += QStringLiteral("grab");
    if (QGuiApplication::overrideCursor()) left += QStringLiteral("pointer");
    return left.join(u' ');
  }
  static Qt::CursorShape Pointer() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor ? cursor->shape() : Qt::ArrowCursor;
  }

  std::unique_ptr<TForm> First = Make<TForm>();
  std::unique_ptr<TForm> Second = Make<TForm>();
  std::map<QString, std::function<void()>> At;
  /// What all controls answer that are dragged over.
  bool Accepts = true;
  /// What OnStartDrag sets.
  TObjectRef Given;
  /// Who was dragged over or dropped last.
  TObject* FSource = nullptr;

 private:
  QStringList FLog;
  TObjectRef FA;
  TObjectRef FB;
  TObjectRef FC;
  QPointer<QWindow> FWindow;
  QPoint FPlace;
  Qt::MouseButtons FButtons;
  static inline int FTime = 0;
};

}  // namespace kt::tests
