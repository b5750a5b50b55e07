#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/Event.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <memory>

namespace kt {

/// A dialog of Qt's that a program keeps on its form and has shown by Execute(). It is modal to the form that the user
/// is in. The component may be freed while the dialog is open, which closes it then without a result.
class TCommonDialog : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetHelpContext() const { return FHelpContext; }
  void SetHelpContext(int value) { FHelpContext = value; }

  /// Shows the dialog and waits for the user; true when he agrees, and then the properties have what he chose. False
  /// while it is open already. Needs a QApplication.
  virtual bool Execute() = 0;

  /// The dialog has closed, and the properties have what was chosen.
  TNotifyEvent OnClose;
  /// The dialog is on the screen.
  TNotifyEvent OnShow;

 protected:
  explicit TCommonDialog(TComponent* owner = nullptr) : TComponent(owner) {}

  void Destruct() override;

  bool IsOpen() const { return FBox != nullptr; }
  /// The window that a dialog belongs to; may be null.
  static QWidget* ParentWindow();
  /// Shows `box` and, when the user agrees, calls `take`, in which the box is still there. The component may be gone
  /// after that; true also when the user agreed to a dialog that a handler of OnClose freed.
  bool Run(std::unique_ptr<QDialog> box, const std::function<void()>& take);
  /// Calls `handle`, for something that Qt tells of the open dialog, as long as the component is there.
  void FromBox(const std::function<void()>& handle);

 private:
  QPointer<QDialog> FBox;
  int FHelpContext = 0;
};

}  // namespace kt
