#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/vcl/menus/MenuItem.h"

#include <memory>

namespace kt {

/// What all menus have: their items.
class TMenu : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// The root, whose items are those of the menu.
  TMenuItem& GetItems() { return *FItems; }
  /// Clicks the item with that key as its short cut; false when there is none that can be chosen.
  bool IsShortCut(quint16 key, TShiftState shift);

 protected:
  explicit TMenu(TComponent* owner = nullptr) : TComponent(owner) {}

  void Construct() override;
  void Destruct() override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;

 private:
  std::unique_ptr<TMenuItem> FItems;
};

}  // namespace kt
