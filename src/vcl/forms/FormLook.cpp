// How the window of TCustomForm looks among others.
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/menus/MenuItem.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QScreen>

namespace kt {

namespace {

constexpr qreal kOpaque = 255;

const QScreen* ScreenOf(TCustomForm* form) {
  return form && form->HandleAllocated() ? form->GetHandle()->screen() : nullptr;
}

}  // namespace

void TCustomForm::SetFormStyle(TFormStyle value) {
  if (FFormStyle == value) return;
  FFormStyle = value;
  if (IsShowing() && !GetParent() && !HasState(csDesigning)) return RecreateWnd();
  UpdateWindowFlags();
}

void TCustomForm::SetAlphaBlend(bool value) {
  FAlphaBlend = value;
  UpdateOpacity();
}

void TCustomForm::SetAlphaBlendValue(quint8 value) {
  FAlphaBlendValue = value;
  UpdateOpacity();
}

/// A form that is being designed has to be seen.
void TCustomForm::UpdateOpacity() {
  if (!HandleAllocated()) return;
  Window()->setWindowOpacity(FAlphaBlend && !HasState(csDesigning) ? FAlphaBlendValue / kOpaque : 1);
}

void TCustomForm::SetIcon(TIcon* value) { FIcon->Assign(value); }

bool TCustomForm::IsIconStored() const { return !FIcon->IsEmpty(); }

void TCustomForm::UpdateIcon() {
  if (!HandleAllocated()) return;
  QIcon icon;
  for (const QImage& image : FIcon->Images()) icon.addPixmap(QPixmap::fromImage(image));
  Window()->setWindowIcon(icon);
}

QRect TCustomForm::AreaToCenterIn() const {
  const QScreen* screen = nullptr;
  if (FDefaultMonitor == dmPrimary) screen = QGuiApplication::primaryScreen();
  if (FDefaultMonitor == dmMainForm) screen = ScreenOf(Application().GetMainForm());
  if (FDefaultMonitor == dmActiveForm) screen = ScreenOf(Screen().GetActiveForm());
  return (screen ? screen : Window()->screen())->availableGeometry();
}

void TCustomForm::SetObjectMenuItem(TMenuItem* value) {
  FObjectMenuItem = value;
  if (value) value->FreeNotification(this);
}

void TCustomForm::SetWindowMenu(TMenuItem* value) {
  FWindowMenu = value;
  if (value) value->FreeNotification(this);
}

}  // namespace kt
