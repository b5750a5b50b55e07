#pragma once

#include "kt/vcl/menus/Menu.h"

namespace kt {

/// The menu at the top of a form: the form whose Menu names it shows its items in a menu bar of Qt's and looks after
/// their short cuts. See TCustomForm::SetMenu().
class TMainMenu : public TMenu {
 public:
  using Inherited = TMenu;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Kept for the forms that say it: menus of several forms are not merged.
  bool IsAutoMerge() const { return FAutoMerge; }
  void SetAutoMerge(bool value) { FAutoMerge = value; }

 protected:
  friend class TFormMenuBar;

  explicit TMainMenu(TComponent* owner = nullptr) : TMenu(owner) {}

  void DoChange(TMenuItem* source, bool rebuild) override;

 private:
  /// The bar that shows it is told first.
  TNotifyEvent FOnBarChange;
  bool FAutoMerge = false;
};

}  // namespace kt
