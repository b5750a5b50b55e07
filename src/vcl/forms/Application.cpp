#include "kt/vcl/forms/Application.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/graphics/Presence.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>

namespace kt {

namespace {

bool HasDisplay() {
  if (!HasWidgets()) return false;
  const QString platform = QGuiApplication::platformName();
  return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

}  // namespace

const TClassInfo* TApplication::Class() {
  static const TClassInfo info = TClassBuilder<TApplication>("TApplication").Done();
  return &info;
}

TApplication& Application() {
  // Never freed: exceptions may come as long as the program lives.
  static TApplication* const application = [] {
    TApplication* made = Make<TApplication>().release();
    SetExceptionHandler([made](std::exception_ptr error) { made->HandleException(error); });
    return made;
  }();
  return *application;
}

void TApplication::SetTitle(const QString& value) {
  FTitle = value;
  if (HasGui()) QGuiApplication::setApplicationDisplayName(value);
}

void TApplication::SetHint(const QString& value) {
  if (FHint == value) return;
  FHint = value;
  if (OnHint) return OnHint(this);
  // Without a handler it is for the status bar of the form that the user is in.
  TCustomForm* form = Screen().GetActiveForm();
  if (!form) form = FMainForm;
  if (form) form->Perform(CM_APPLICATIONHINT, 0, PointerMessage(&value));
}

void TApplication::SetShowHint(bool value) {
  FShowHint = value;
  if (!value) HideControlHint();
}

void TApplication::SetMainForm(TCustomForm* value) {
  if (FMainForm == value) return;
  if (FMainForm) RemoveFreeNotification(FMainForm);
  FMainForm = value;
  if (FMainForm) FMainForm->FreeNotification(this);
}

void TApplication::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FMainForm) FMainForm = nullptr;
}

void TApplication::Run() {
  FTerminated = false;
  if (FMainForm) FMainForm->Show();
  if (!FTerminated) QApplication::exec();
}

void TApplication::Terminate() {
  FTerminated = true;
  QCoreApplication::quit();
}

void TApplication::ProcessMessages() { QCoreApplication::processEvents(); }

void TApplication::HandleException(std::exception_ptr error) {
  try {
    std::rethrow_exception(error);
  } catch (const EAbort&) {
  } catch (const Exception& raised) {
    OnException ? OnException(this, raised) : ShowException(raised);
  } catch (const std::exception& raised) {
    const Exception shown(QString::fromUtf8(raised.what()));
    OnException ? OnException(this, shown) : ShowException(shown);
  }
}

void TApplication::ShowException(const Exception& error) {
  if (!HasDisplay()) {
    fprintf(stderr, "%s\n", qUtf8Printable(error.Message()));
    return;
  }
  QMessageBox::critical(QApplication::activeWindow(), FTitle, error.Message());
}

}  // namespace kt
