#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/vcl/controls/ControlTypes.h"
#include "kt/vcl/imagelist/ChangeLink.h"
#include "kt/vcl/menus/MenuItem.h"
#include "kt/vcl/menus/MenuTypes.h"

#include <memory>

namespace kt {

class TCustomImageList;

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

  /// Whether entries without a letter that chooses them get one when they are shown, and those that share one with an
  /// entry before them another one. Captions stay as they are. Not in a designer.
  TMenuAutoFlag GetAutoHotkeys() const { return FAutoHotkeys; }
  void SetAutoHotkeys(TMenuAutoFlag value);
  /// Whether lines that separate nothing are left out. Not in a designer.
  TMenuAutoFlag GetAutoLineReduction() const { return FAutoLineReduction; }
  void SetAutoLineReduction(TMenuAutoFlag value);
  /// That of the owner, if it is a control, while ParentBiDiMode.
  TBiDiMode GetBiDiMode() const;
  void SetBiDiMode(TBiDiMode value);
  bool IsParentBiDiMode() const { return FParentBiDiMode; }
  void SetParentBiDiMode(bool value);
  bool IsBiDiModeStored() const { return !FParentBiDiMode; }
  /// Where the pictures of the items are from. Not owned.
  TCustomImageList* GetImages() const { return ImagesOf(FImages); }
  void SetImages(TCustomImageList* value);
  /// Kept for the forms that say it: entries are drawn by Qt.
  bool IsOwnerDraw() const { return FOwnerDraw; }
  void SetOwnerDraw(bool value) { FOwnerDraw = value; }

  /// Something about the menu or one of its items has changed. Not while it is being loaded or destroyed.
  TMenuChangeEvent OnChange;

 protected:
  friend class TMenuItem;

  explicit TMenu(TComponent* owner = nullptr) : TComponent(owner) {}

  void Construct() override;
  void Destruct() override;
  void Loaded() override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;
  /// Raises OnChange. A handler may free anything.
  virtual void DoChange(TMenuItem* source, bool rebuild) { OnChange(this, source, rebuild); }

 private:
  void MenuChanged(TMenuItem* source, bool rebuild);

  std::unique_ptr<TMenuItem> FItems;
  std::unique_ptr<TChangeLink> FImages;
  TBiDiMode FBiDiMode = bdLeftToRight;
  TMenuAutoFlag FAutoHotkeys = maAutomatic;
  TMenuAutoFlag FAutoLineReduction = maAutomatic;
  bool FParentBiDiMode = true;
  bool FOwnerDraw = false;
};

}  // namespace kt
