#include "kt/vcl/extctrls/Timer.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <limits>

namespace kt {

const TClassInfo* TTimer::Class() {
  using T = TTimer;
  static const TClassInfo info = TClassBuilder<T>("TTimer")
                                     .Property<&T::IsEnabled, &T::SetEnabled>("Enabled")
                                     .Default(true)
                                     .Property<&T::GetInterval, &T::SetInterval>("Interval")
                                     .Default(1000)
                                     .Property<&T::GetOnTimer, &T::SetOnTimer>("OnTimer")
                                     .Creatable()
                                     .Done();
  return &info;
}

TTimer::TTimer(TComponent* owner) : TComponent(owner) {}

TTimer::~TTimer() = default;

void TTimer::Destruct() {
  FTimer.reset();
  TComponent::Destruct();
}

void TTimer::Loaded() {
  TComponent::Loaded();
  Restart();
}

bool TTimer::Runs() const {
  const bool mayRun = QCoreApplication::instance() && !HasState(csDesigning) && !HasState(csDestroying);
  return mayRun && FEnabled && FInterval != 0 && FOnTimer;
}

void TTimer::Restart() {
  if (FTimer) FTimer->stop();
  if (HasState(csLoading) || !Runs()) return;
  if (!FTimer) {
    FTimer = std::make_unique<QTimer>();
    QObject::connect(FTimer.get(), &QTimer::timeout, FTimer.get(), [this] { GuardedCall([this] { Tick(); }); });
  }
  FTimer->start(static_cast<int>(std::min<quint32>(FInterval, std::numeric_limits<int>::max())));
}

void TTimer::Tick() {
  // It may have come into a designer since.
  if (Runs()) return Timer();
  FTimer->stop();
}

void TTimer::Timer() {
  // A copy: the handler may free the timer.
  const TNotifyEvent handler = FOnTimer;
  handler(this);
}

void TTimer::SetEnabled(bool value) {
  if (FEnabled == value) return;
  FEnabled = value;
  Restart();
}

void TTimer::SetInterval(quint32 value) {
  if (FInterval == value) return;
  FInterval = value;
  Restart();
}

void TTimer::SetOnTimer(const TNotifyEvent& value) {
  FOnTimer = value;
  Restart();
}

}  // namespace kt
