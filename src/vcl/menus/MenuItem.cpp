#include "kt/vcl/menus/MenuItem.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/actions/BasicAction.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/menus/Menu.h"
#include "kt/vcl/menus/MenuActionLink.h"

#include <algorithm>

namespace kt {

namespace {

constexpr QLatin1StringView SMenuIndexError{"Menu index out of range"};
constexpr QLatin1StringView SMenuReinserted{"Menu inserted twice"};
constexpr QLatin1StringView SMenuNotFound{"Sub-menu is not in menu"};

QString WithoutHotkey(QString caption) { return caption.remove(u'&'); }

}  // namespace

const TClassInfo* TMenuItem::Class() {
  using T = TMenuItem;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TMenuItem");
    builder.Property<&T::GetAction, &T::SetAction>("Action");
    builder.Property<&T::IsAutoCheck, &T::SetAutoCheck>("AutoCheck").Default(false).Stored(&T::IsAutoCheckStored);
    builder.Property<&T::GetAutoHotkeys, &T::SetAutoHotkeys>("AutoHotkeys").Default(maParent);
    builder.Property<&T::GetAutoLineReduction, &T::SetAutoLineReduction>("AutoLineReduction").Default(maParent);
    builder.Property<&T::GetBitmap, &T::SetBitmap>("Bitmap").Stored(&T::IsBitmapStored);
    builder.Property<&T::GetBreak, &T::SetBreak>("Break").Default(mbNone);
    builder.Property<&T::GetCaption, &T::SetCaption>("Caption").Stored(&T::IsCaptionStored);
    builder.Property<&T::IsChecked, &T::SetChecked>("Checked").Default(false).Stored(&T::IsCheckedStored);
    builder.Property<&T::GetSubMenuImages, &T::SetSubMenuImages>("SubMenuImages");
    builder.Property<&T::IsDefault, &T::SetDefault>("Default").Default(false);
    builder.Property<&T::IsEnabled, &T::SetEnabled>("Enabled").Default(true).Stored(&T::IsEnabledStored);
    builder.Property<&T::GetGroupIndex, &T::SetGroupIndex>("GroupIndex").Default(0).Stored(&T::IsGroupIndexStored);
    builder.Property<&T::GetHelpContext, &T::SetHelpContext>("HelpContext").Default(0).Stored(&T::IsHelpContextStored);
    builder.Property<&T::GetHint, &T::SetHint>("Hint").Stored(&T::IsHintStored);
    builder.Property<&T::GetImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1).Stored(&T::IsImageIndexStored);
    builder.Property<&T::IsRadioItem, &T::SetRadioItem>("RadioItem").Default(false);
    builder.Property<&T::GetShortCut, &T::SetShortCut>("ShortCut", &ShortCutTypeInfo)
        .Default(0)
        .Stored(&T::IsShortCutStored);
    builder.Property<&T::IsVisible, &T::SetVisible>("Visible").Default(true).Stored(&T::IsVisibleStored);
    builder.Property<&T::OnClick>("OnClick").Stored(&T::IsOnClickStored);
    return builder.Creatable().Done();
  }();
  return &info;
}

TMenuItem::TMenuItem(TComponent* owner) : TComponent(owner) {}

TMenuItem::~TMenuItem() = default;

void TMenuItem::Destruct() {
  Destroying();
  FActionLink.reset();
  FSubMenuImages.reset();
  if (FParent) FParent->Remove(this);
  Clear();
  TComponent::Destruct();
}

void TMenuItem::CheckIndex(int index, int end) const {
  if (index < 0 || index >= end) throw EMenuError(SMenuIndexError);
}

TMenuItem* TMenuItem::GetItems(int index) const {
  CheckIndex(index, GetCount());
  return FItems[index];
}

void TMenuItem::Insert(int index, TMenuItem* item) {
  CheckIndex(index, GetCount() + 1);
  if (item->FParent) throw EMenuError(SMenuReinserted);
  FItems.insert(FItems.begin() + index, item);
  item->FParent = this;
  MenuChanged(true);
}

void TMenuItem::Delete(int index) {
  GetItems(index)->FParent = nullptr;
  FItems.erase(FItems.begin() + index);
  MenuChanged(true);
}

void TMenuItem::Remove(TMenuItem* item) {
  const int index = IndexOf(item);
  if (index < 0) throw EMenuError(SMenuNotFound);
  Delete(index);
}

void TMenuItem::Clear() {
  const TLifeWatch self(this);
  while (self.IsAlive() && !FItems.empty()) {
    TMenuItem* last = FItems.back();
    const TLifeWatch item(last);
    Delete(GetCount() - 1);
    if (item.IsAlive()) delete last;
  }
}

int TMenuItem::IndexOf(const TMenuItem* item) const {
  const auto found = std::find(FItems.begin(), FItems.end(), item);
  return found == FItems.end() ? -1 : static_cast<int>(found - FItems.begin());
}

TMenuItem* TMenuItem::Find(const QString& caption) const {
  for (TMenuItem* item : FItems) {
    if (WithoutHotkey(item->FCaption).compare(WithoutHotkey(caption), Qt::CaseInsensitive) == 0) return item;
  }
  return nullptr;
}

bool TMenuItem::Contains(const TMenuItem* item) const {
  return std::any_of(FItems.begin(), FItems.end(),
                     [item](const TMenuItem* below) { return below == item || below->Contains(item); });
}

TMenuItem* TMenuItem::FindShortCut(TShortCut shortCut) {
  if (shortCut == scNone || !FEnabled) return nullptr;
  if (FShortCut == shortCut && FItems.empty()) return this;
  for (TMenuItem* item : FItems) {
    if (TMenuItem* found = item->FindShortCut(shortCut)) return found;
  }
  return nullptr;
}

void TMenuItem::SetDefault(bool value) {
  if (FDefault == value) return;
  FDefault = value;
  if (value && FParent) {
    for (TMenuItem* item : FParent->FItems) {
      if (item != this) item->FDefault = false;
    }
  }
  MenuChanged(false);
}

TComponent* TMenuItem::GetParentComponent() {
  if (FParent && FParent->FMenu) return FParent->FMenu;
  return FParent;
}

void TMenuItem::SetParentComponent(TComponent* value) {
  if (FParent) FParent->Remove(this);
  if (auto* menu = dynamic_cast<TMenu*>(value)) {
    menu->GetItems().Add(this);
  } else if (auto* item = dynamic_cast<TMenuItem*>(value)) {
    item->Add(this);
  }
}

void TMenuItem::GetChildren(const TGetChildProc& proc, TComponent*) {
  for (TMenuItem* item : std::vector<TMenuItem*>(FItems)) proc(item);
}

void TMenuItem::SetChildOrder(TComponent* child, int order) {
  auto* item = dynamic_cast<TMenuItem*>(child);
  if (std::erase(FItems, item) == 0) return;
  FItems.insert(FItems.begin() + std::clamp(order, 0, GetCount()), item);
  MenuChanged(true);
}

}  // namespace kt
