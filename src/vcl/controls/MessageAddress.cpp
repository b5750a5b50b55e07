#include "kt/vcl/controls/MessageAddress.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/Control.h"

#include <QCoreApplication>
#include <QEvent>

namespace kt {

namespace {

class TMessageEvent : public QEvent {
 public:
  explicit TMessageEvent(const TMessage& message) : QEvent(EventType()), Message(message) {}

  static Type EventType() {
    static const int type = registerEventType();
    return static_cast<Type>(type);
  }

  const TMessage Message;
};

}  // namespace

class TMessageAddress::TReceiver : public QObject {
 public:
  explicit TReceiver(TControl* control) : FControl(control) {}

  /// Ends the connection; the receiver goes as soon as nothing of it is on the stack.
  void Retire() {
    FControl = nullptr;
    if (FRunning > 0) {
      FRetired = true;
    } else {
      delete this;
    }
  }

  bool event(QEvent* event) override {
    if (event->type() != TMessageEvent::EventType()) return QObject::event(event);
    ++FRunning;
    GuardedCall([this, event] { Deliver(static_cast<TMessageEvent*>(event)->Message); });
    if (--FRunning == 0 && FRetired) deleteLater();
    return true;
  }

 private:
  void Deliver(TMessage message) {
    if (FControl) FControl->WndProc(message);
  }

  TControl* FControl;
  int FRunning = 0;
  bool FRetired = false;
};

TMessageAddress::TMessageAddress(TControl* control) : FReceiver(new TReceiver(control)) {}

TMessageAddress::~TMessageAddress() { FReceiver->Retire(); }

void TMessageAddress::Post(const TMessage& message) {
  QCoreApplication::postEvent(FReceiver, new TMessageEvent(message));
}

}  // namespace kt
