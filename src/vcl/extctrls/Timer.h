#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/Event.h"

#include <memory>

class QTimer;

namespace kt {

/// Raises OnTimer again and again, while there is a handler, Enabled is true, and Interval is not 0; not in a designer.
///
/// Time passes in the event queue of the thread: without a QCoreApplication the timer keeps its properties, and begins
/// when one of them is set after there is one. The next turn does not come before a handler is done with the present
/// one, even if that handles events. A handler may free the timer.
class TTimer : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TTimer() override;

  bool IsEnabled() const { return FEnabled; }
  void SetEnabled(bool value);
  /// In milliseconds. Setting it to another value begins anew.
  quint32 GetInterval() const { return FInterval; }
  void SetInterval(quint32 value);
  const TNotifyEvent& GetOnTimer() const { return FOnTimer; }
  void SetOnTimer(const TNotifyEvent& value);

 protected:
  explicit TTimer(TComponent* owner = nullptr);

  void Destruct() override;
  void Loaded() override;
  /// The interval has passed.
  virtual void Timer();

 private:
  bool Runs() const;
  void Restart();
  void Tick();

  std::unique_ptr<QTimer> FTimer;
  TNotifyEvent FOnTimer;
  quint32 FInterval = 1000;
  bool FEnabled = true;
};

}  // namespace kt
