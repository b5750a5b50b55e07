// The menu of TCustomForm.
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/FormMenuBar.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/menus/MainMenu.h"

#include <QLatin1StringView>

#include <utility>

namespace kt {

namespace {

constexpr QLatin1StringView SDuplicateMenus{"Menu '%s' is already being used by another form"};

}  // namespace

bool TCustomForm::ShowsMenu() const {
  return FMenu && !FMenu->HasState(csDestroying) && (FBorderStyle != bsDialog || HasState(csDesigning));
}

void TCustomForm::SetMenu(TMainMenu* value) {
  if (FMenu == value) return;
  for (int i = 0; value && i < Screen().GetFormCount(); ++i) {
    if (Screen().GetForms(i)->FMenu == value) throw EInvalidOperation(Format(SDuplicateMenus, {value->GetName()}));
  }
  const int before = GetClientMargins().top();
  FMenuBar.reset();
  TMainMenu* const former = std::exchange(FMenu, value);
  if (former && !former->HasState(csDestroying)) RemoveFreeNotification(former);
  if (value) value->FreeNotification(this);
  UpdateMenuBar(before);
}

void TCustomForm::UpdateMenuBar(int before) {
  if (HasState(csDestroying)) return;
  if (!ShowsMenu()) {
    FMenuBar.reset();
  } else {
    if (!FMenuBar) FMenuBar = std::make_unique<TFormMenuBar>(*this, *FMenu);
    FMenuBar->ShowItems();
    FMenuBar->Place();
  }
  if (GetClientMargins().top() == before) return;
  const TLifeWatch self(this);
  if (HasState(csLoading) && FLoadedClientHeight >= 0) TScrollingWinControl::SetClientHeight(FLoadedClientHeight);
  if (!self.IsAlive()) return;
  PlaceChildWindows();
  Invalidate();
  Realign();
}

QMargins TCustomForm::GetClientMargins() const {
  QMargins margins = TScrollingWinControl::GetClientMargins();
  if (FMenuBar) margins.setTop(margins.top() + FMenuBar->GetHeight());
  return margins;
}

void TCustomForm::SetClientHeight(int value) {
  if (HasState(csLoading)) FLoadedClientHeight = value;
  TScrollingWinControl::SetClientHeight(value);
}

void TCustomForm::BoundsUpdated() {
  TScrollingWinControl::BoundsUpdated();
  if (FMenuBar) FMenuBar->Place();
}

void TCustomForm::DestroyWnd() {
  if (FMenuBar) FMenuBar->LeaveWindow();
  TScrollingWinControl::DestroyWnd();
}

void TCustomForm::CMBiDiModeChanged(TMessage& message) {
  const TLifeWatch self(this);
  TScrollingWinControl::CMBiDiModeChanged(message);
  if (self.IsAlive()) UpdateMenuBar();
}

}  // namespace kt
