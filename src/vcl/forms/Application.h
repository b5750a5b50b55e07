#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/graphics/Color.h"

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
  /// Raises OnHint; without a handler, status bars with AutoHint show it.
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

  // Hints beside controls, for the whole program.

  bool IsShowHint() const { return FShowHint; }
  /// Setting it to false takes the one away that shows.
  void SetShowHint(bool value);
  /// How long the mouse has to rest over a control, and how long its hint shows, in milliseconds.
  int GetHintPause() const { return FHintPause; }
  void SetHintPause(int value) { FHintPause = value; }
  int GetHintHidePause() const { return FHintHidePause; }
  void SetHintHidePause(int value) { FHintHidePause = value; }
  /// What hints are written on; the system's colour by default.
  TColor GetHintColor() const { return FHintColor; }
  void SetHintColor(TColor value) { FHintColor = value; }
  /// Whether hints of controls with an action tell its short cut.
  bool IsHintShortCuts() const { return FHintShortCuts; }
  void SetHintShortCuts(bool value) { FHintShortCuts = value; }

  TExceptionEvent OnException;
  TNotifyEvent OnHint;
  /// A hint is about to be shown beside a control.
  TShowHintEvent OnShowHint;

 protected:
  friend TApplication& Application();

  TApplication() = default;

  void Notification(TComponent* component, TOperation operation) override;

 private:
  QString FTitle;
  QString FHint;
  TCustomForm* FMainForm = nullptr;
  int FHintPause = 500;
  int FHintHidePause = 2500;
  TColor FHintColor = clInfoBk;
  bool FHintShortCuts = true;
  bool FShowHint = true;
  bool FTerminated = false;
};

/// The program's one.
TApplication& Application();

}  // namespace kt
