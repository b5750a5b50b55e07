#include "kt/vcl/forms/FormMenuBar.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Presence.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/menus/MenuContents.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace kt {

TFormMenuBar::TFormMenuBar(TCustomForm& form, TMainMenu& menu) : FForm(form), FMenu(menu) {
  FMenu.FOnBarChange = TNotifyEvent([this](TObject*) { ItemsChanged(); });
}

TFormMenuBar::~TFormMenuBar() {
  FMenu.FOnBarChange = nullptr;
  if (!FBar) return;
  // An entry of it may be what is being handled.
  FBar->hide();
  FBar->setParent(nullptr);
  FBar->deleteLater();
}

void TFormMenuBar::EnsureBar() {
  if (FBar || !HasWidgets()) return;
  FBar = new QMenuBar;
  FBar->setNativeMenuBar(false);
  TellMenuHints(*FBar);
}

QWidget* TFormMenuBar::FindOpen() const {
  QWidget* popup = QApplication::activePopupWidget();
  while (popup && popup->parentWidget() != FBar) popup = popup->parentWidget();
  return popup;
}

void TFormMenuBar::ItemsChanged() {
  if (!FBar || std::exchange(FIsPosted, true)) return;
  const auto show = [this] {
    FIsPosted = false;
    GuardedCall([this] { FForm.UpdateMenuBar(); });
  };
  QMetaObject::invokeMethod(&FAddress, show, Qt::QueuedConnection);
}

void TFormMenuBar::ShowItems() {
  EnsureBar();
  if (!FBar) return;
  if (auto* open = qobject_cast<QMenu*>(FindOpen())) {
    QObject::connect(open, &QMenu::aboutToHide, &FAddress, [this] { ItemsChanged(); });
    return;
  }
  FBar->setLayoutDirection(FMenu.GetBiDiMode() == bdLeftToRight ? Qt::LeftToRight : Qt::RightToLeft);
  ShowMenuItems(*FBar, FMenu.GetItems(), [](TMenuItem& item) { item.Click(); });
  FHeight = FBar->actions().isEmpty() ? 0 : FBar->sizeHint().height();
}

void TFormMenuBar::Place() {
  if (!FBar || !FForm.HandleAllocated()) return;
  if (FBar->parentWidget() != FForm.Window()) FBar->setParent(FForm.Window());
  FBar->setGeometry(0, 0, FForm.GetWidth(), FHeight);
  FBar->setVisible(FHeight > 0);
}

void TFormMenuBar::LeaveWindow() {
  if (!FBar) return;
  FBar->hide();
  FBar->setParent(nullptr);
}

}  // namespace kt
