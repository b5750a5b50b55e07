#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/vcl/imagelist/ChangeLink.h"
#include "kt/vcl/menus/MenuTypes.h"
#include "kt/vcl/menus/ShortCut.h"

#include <QImage>

#include <memory>
#include <vector>

namespace kt {

class TBasicAction;
class TBitmap;
class TCustomImageList;
class TMenu;
class TMenuActionLink;

/// A menu item cannot be where it was asked to be.
class EMenuError : public Exception {
  using Exception::Exception;
};

/// An entry of a menu, which may have a menu of its own below it. A caption of "-" makes a line between entries; the
/// letter behind "&" is the one that chooses the entry.
///
/// Frees the items below it when it is destroyed. What changes is told to the menu, whose OnChange may free anything.
class TMenuItem : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  ~TMenuItem() override;

  /// What the entry does, and where it has its properties from, as long as nobody gives it others. Not owned.
  TBasicAction* GetAction() const;
  void SetAction(TBasicAction* value);
  /// Has the action brought up to date, and those of all entries below: before the menu opens, and before a short cut
  /// counts. May free anything.
  void InitiateActions();

  const QString& GetCaption() const { return FCaption; }
  void SetCaption(const QString& value);
  /// Whether a click changes Checked.
  bool IsAutoCheck() const { return FAutoCheck; }
  void SetAutoCheck(bool value) { FAutoCheck = value; }
  /// What the menu of that name says of all of them, for the entries below this one.
  TMenuItemAutoFlag GetAutoHotkeys() const { return FAutoHotkeys; }
  void SetAutoHotkeys(TMenuItemAutoFlag value);
  TMenuItemAutoFlag GetAutoLineReduction() const { return FAutoLineReduction; }
  void SetAutoLineReduction(TMenuItemAutoFlag value);
  /// With maParent resolved.
  bool AssignsHotkeys() const;
  bool ReducesLines() const;
  /// The picture of an entry without a number in a list of pictures. Its lower left pixel is transparent.
  TBitmap& GetBitmap();
  void SetBitmap(const TBitmap& value);
  TMenuBreak GetBreak() const { return FBreak; }
  void SetBreak(TMenuBreak value);
  bool IsChecked() const { return FChecked; }
  /// Checking a radio item takes the check from the others of its group.
  void SetChecked(bool value);
  /// Shown in bold. One of its neighbours at most.
  bool IsDefault() const { return FDefault; }
  void SetDefault(bool value);
  bool IsEnabled() const { return FEnabled; }
  void SetEnabled(bool value);
  /// Radio items next to each other with the same number belong together.
  quint8 GetGroupIndex() const { return FGroupIndex; }
  void SetGroupIndex(quint8 value);
  int GetHelpContext() const { return FHelpContext; }
  void SetHelpContext(int value) { FHelpContext = value; }
  /// Its long share goes to the application while the entry is highlighted.
  const QString& GetHint() const { return FHint; }
  void SetHint(const QString& value) { FHint = value; }
  /// The number of the picture in GetImageList(), -1 for none.
  int GetImageIndex() const { return FImageIndex; }
  void SetImageIndex(int value);
  bool IsRadioItem() const { return FRadioItem; }
  void SetRadioItem(bool value);
  TShortCut GetShortCut() const { return FShortCut; }
  void SetShortCut(TShortCut value);
  /// Where the pictures of the entries below are from; else from the list further out. Not owned.
  TCustomImageList* GetSubMenuImages() const { return ImagesOf(FSubMenuImages); }
  void SetSubMenuImages(TCustomImageList* value);
  bool IsVisible() const { return FVisible; }
  void SetVisible(bool value);

  // The items below.
  int GetCount() const { return static_cast<int>(FItems.size()); }
  /// Raises EMenuError "Menu index out of range", as do the others that take an index.
  TMenuItem* GetItems(int index) const;
  void Add(TMenuItem* item) { Insert(GetCount(), item); }
  /// Raises EMenuError "Menu inserted twice" for an item that is in a menu.
  void Insert(int index, TMenuItem* item);
  /// Takes an item out, without freeing it.
  void Delete(int index);
  /// Raises EMenuError "Sub-menu is not in menu".
  void Remove(TMenuItem* item);
  /// Frees all items below.
  void Clear();
  int IndexOf(const TMenuItem* item) const;
  /// The item below with a caption, compared without "&" and without regard to case; null when there is none.
  TMenuItem* Find(const QString& caption) const;
  /// Whether the item is somewhere below this one.
  bool Contains(const TMenuItem* item) const;
  /// The first item with a short cut that can be chosen, all levels searched; or null.
  TMenuItem* FindShortCut(TShortCut shortCut);

  TMenuItem* GetParent() const { return FParent; }
  /// The menu that the item is somewhere in; null when it is in none.
  TMenu* GetParentMenu() const;
  /// The list that the picture is from, or null.
  TCustomImageList* GetImageList() const;
  /// The picture, of a list or its own; null when there is none.
  QImage GetImage();
  int GetMenuIndex() const { return FParent ? FParent->IndexOf(this) : -1; }
  bool IsLine() const { return FCaption == u"-"; }
  /// What choosing the entry does: checks it, if it does so by itself, and raises OnClick or does the action. Not while
  /// disabled.
  virtual void Click();

  TComponent* GetParentComponent() override;
  bool HasParent() override { return FParent != nullptr; }

  // What streams ask: not what comes from the action.
  bool IsAutoCheckStored() const;
  bool IsBitmapStored() const;
  bool IsCaptionStored() const;
  bool IsCheckedStored() const;
  bool IsEnabledStored() const;
  bool IsGroupIndexStored() const;
  bool IsHelpContextStored() const;
  bool IsHintStored() const;
  bool IsImageIndexStored() const;
  bool IsOnClickStored() const;
  bool IsShortCutStored() const;
  bool IsVisibleStored() const;

  TNotifyEvent OnClick;

 protected:
  friend class TMenu;

  explicit TMenuItem(TComponent* owner = nullptr);

  void Destruct() override;
  void Notification(TComponent* component, TOperation operation) override;
  /// Takes over what `action` has. `onlyDefaults`: not where the entry has a value of its own.
  virtual void ActionChange(TObject* action, bool onlyDefaults);
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;
  void SetParentComponent(TComponent* value) override;

 private:
  /// Keeps a value that shows, and tells when it is another one.
  template <class V>
  void Show(V& field, const V& value);
  /// Tells the menu. `rebuild`: entries have come or gone.
  void MenuChanged(bool rebuild);
  void CheckIndex(int index, int end) const;
  void UncheckGroup();
  void DoActionChange(TObject* sender);

  std::unique_ptr<TMenuActionLink> FActionLink;
  std::vector<TMenuItem*> FItems;
  TMenuItem* FParent = nullptr;
  /// The menu whose root this is.
  TMenu* FMenu = nullptr;
  std::unique_ptr<TBitmap> FBitmap;
  std::unique_ptr<TChangeLink> FSubMenuImages;
  QString FCaption;
  QString FHint;
  int FHelpContext = 0;
  int FImageIndex = -1;
  TMenuBreak FBreak = mbNone;
  TMenuItemAutoFlag FAutoHotkeys = maParent;
  TMenuItemAutoFlag FAutoLineReduction = maParent;
  TShortCut FShortCut = scNone;
  quint8 FGroupIndex = 0;
  bool FAutoCheck = false;
  bool FChecked = false;
  bool FDefault = false;
  bool FEnabled = true;
  bool FRadioItem = false;
  bool FVisible = true;
};

}  // namespace kt
