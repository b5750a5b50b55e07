#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/Event.h"

#include <exception>
#include <functional>

namespace kt {

class TCustomForm;

/// Sender, and an exception that no caller is left for.
struct TExceptionEvent : TEvent<TObject*, const Exception&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TExceptionEvent";
};

/// What a program has once: its title, its main form, its message loop, and what becomes of exceptions.
///
/// Application() makes it when it is first asked for and then receives what SetExceptionHandler() is for. It needs no
/// QApplication until it runs or shows something.
class TApplication : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetTitle() const { return FTitle; }
  void SetTitle(const QString& value);
  TCustomForm* GetMainForm() const { return FMainForm; }
  /// The form whose end is the program's end.
  void SetMainForm(TCustomForm* value);
  /// The long hint of what the mouse is over.
  const QString& GetHint() const { return FHint; }
  /// Raises OnHint.
  void SetHint(const QString& value);
  bool IsTerminated() const { return FTerminated; }

  /// Shows the main form, if there is one, and handles events until Terminate().
  void Run();
  void Terminate();
  /// Handles the events that wait, and answers when there are none left.
  void ProcessMessages();
  /// Raises OnException; without a handler, shows the message. EAbort passes silently.
  void HandleException(std::exception_ptr error);
  /// In a message box, or on standard error where there is no display.
  void ShowException(const Exception& error);

  TExceptionEvent OnException;
  TNotifyEvent OnHint;

 protected:
  friend TApplication& Application();

  TApplication() = default;

  void Notification(TComponent* component, TOperation operation) override;

 private:
  QString FTitle;
  QString FHint;
  TCustomForm* FMainForm = nullptr;
  bool FTerminated = false;
};

/// The program's one.
TApplication& Application();

}  // namespace kt
