// What entries look like, and how their menu hears of it.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ActionList.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/menus/Menu.h"
#include "kt/vcl/menus/MenuActionLink.h"

namespace kt {

TMenu* TMenuItem::GetParentMenu() const {
  const TMenuItem* top = this;
  while (top->FParent) top = top->FParent;
  return top->FMenu;
}

void TMenuItem::MenuChanged(bool rebuild) {
  if (HasState(csDestroying)) return;
  if (TMenu* menu = GetParentMenu()) menu->MenuChanged(this, rebuild);
}

template <class V>
void TMenuItem::Show(V& field, const V& value) {
  if (field == value) return;
  field = value;
  MenuChanged(false);
}

void TMenuItem::SetCaption(const QString& value) { Show(FCaption, value); }
void TMenuItem::SetAutoHotkeys(TMenuItemAutoFlag value) { Show(FAutoHotkeys, value); }
void TMenuItem::SetAutoLineReduction(TMenuItemAutoFlag value) { Show(FAutoLineReduction, value); }
void TMenuItem::SetBreak(TMenuBreak value) { Show(FBreak, value); }
void TMenuItem::SetEnabled(bool value) { Show(FEnabled, value); }
void TMenuItem::SetImageIndex(int value) { Show(FImageIndex, value); }
void TMenuItem::SetShortCut(TShortCut value) { Show(FShortCut, value); }

void TMenuItem::SetVisible(bool value) {
  if (FVisible == value) return;
  FVisible = value;
  MenuChanged(true);
}

void TMenuItem::UncheckGroup() {
  if (!FParent) return;
  for (TMenuItem* item : FParent->FItems) {
    if (item != this && item->FRadioItem && item->FGroupIndex == FGroupIndex) item->FChecked = false;
  }
}

void TMenuItem::SetChecked(bool value) {
  if (FChecked == value) return;
  FChecked = value;
  if (value && FRadioItem) UncheckGroup();
  MenuChanged(false);
}

void TMenuItem::SetRadioItem(bool value) {
  if (FRadioItem == value) return;
  FRadioItem = value;
  if (FChecked && value) UncheckGroup();
  MenuChanged(false);
}

void TMenuItem::SetGroupIndex(quint8 value) {
  if (FGroupIndex == value) return;
  FGroupIndex = value;
  if (FChecked && FRadioItem) UncheckGroup();
  MenuChanged(false);
}

bool TMenuItem::AssignsHotkeys() const {
  if (FAutoHotkeys != maParent) return FAutoHotkeys == maAutomatic;
  if (FParent) return FParent->AssignsHotkeys();
  return FMenu && FMenu->GetAutoHotkeys() == maAutomatic;
}

bool TMenuItem::ReducesLines() const {
  if (FAutoLineReduction != maParent) return FAutoLineReduction == maAutomatic;
  if (FParent) return FParent->ReducesLines();
  return FMenu && FMenu->GetAutoLineReduction() == maAutomatic;
}

// Pictures.

TBitmap& TMenuItem::GetBitmap() {
  if (!FBitmap) {
    FBitmap = Make<TBitmap>();
    FBitmap->SetTransparent(true);
    FBitmap->OnChange = TNotifyEvent([this](TObject*) { MenuChanged(false); });
  }
  return *FBitmap;
}

void TMenuItem::SetBitmap(const TBitmap& value) {
  TBitmap& bitmap = GetBitmap();
  if (&bitmap == &value) return;
  const TLifeWatch self(this);
  bitmap.Assign(const_cast<TBitmap*>(&value));
  if (self.IsAlive()) FBitmap->SetTransparent(true);
}

bool TMenuItem::IsBitmapStored() const { return FBitmap && !FBitmap->IsEmpty(); }

void TMenuItem::SetSubMenuImages(TCustomImageList* value) {
  if (GetSubMenuImages() == value) return;
  FollowImages(FSubMenuImages, value, TNotifyEvent([this](TObject*) { MenuChanged(true); }));
  MenuChanged(true);
}

TCustomImageList* TMenuItem::GetImageList() const {
  for (const TMenuItem* item = FParent; item; item = item->FParent) {
    if (item->GetSubMenuImages()) return item->GetSubMenuImages();
  }
  const TMenu* menu = GetParentMenu();
  return menu ? menu->GetImages() : nullptr;
}

QImage TMenuItem::GetImage() {
  const TCustomImageList* list = GetImageList();
  const QImage image = list ? list->GetImage(FImageIndex) : QImage();
  return image.isNull() && FBitmap ? FBitmap->GetVisibleImage() : image;
}

}  // namespace kt
