#include "kt/vcl/dialogs/CommonDialog.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/Screen.h"

#include <QApplication>
#include <QDialog>

namespace kt {

const TClassInfo* TCommonDialog::Class() {
  static const TClassInfo info =
      TClassBuilder<TCommonDialog>("TCommonDialog")
          .Property<&TCommonDialog::GetHelpContext, &TCommonDialog::SetHelpContext>("HelpContext")
          .Default(0)
          .Property<&TCommonDialog::OnClose>("OnClose")
          .Property<&TCommonDialog::OnShow>("OnShow")
          .Done();
  return &info;
}

void TCommonDialog::Destruct() {
  if (QDialog* box = FBox) {
    FBox = nullptr;
    box->reject();
  }
  TComponent::Destruct();
}

QWidget* TCommonDialog::ParentWindow() {
  TCustomForm* form = Screen().GetActiveForm();
  return form && form->HandleAllocated() ? form->GetHandle()->window() : QApplication::activeWindow();
}

void TCommonDialog::FromBox(const std::function<void()>& handle) {
  // Handlers may free the form, whose windows have to outlive what Qt is doing.
  const TControlBody::TInEvent running;
  if (IsOpen()) GuardedCall(handle);
}

bool TCommonDialog::Run(std::unique_ptr<QDialog> box, const std::function<void()>& take) {
  // Its parent may take it along.
  const QPointer<QDialog> shown(box.release());
  struct TDone {
    const QPointer<QDialog>& Shown;
    ~TDone() { delete Shown.data(); }
  } done{shown};
  FBox = shown;
  const TLifeWatch self(this);
  const auto tellShown = [ref = TObjectRef(this)] {
    if (auto* dialog = static_cast<TCommonDialog*>(ref.Get())) dialog->FromBox([dialog] { dialog->OnShow(dialog); });
  };
  QMetaObject::invokeMethod(shown, tellShown, Qt::QueuedConnection);
  const bool isAgreed = shown->exec() == QDialog::Accepted;
  if (!self.IsAlive()) return false;
  FBox = nullptr;
  if (isAgreed && shown) take();
  if (self.IsAlive()) OnClose(this);
  return isAgreed;
}

}  // namespace kt
