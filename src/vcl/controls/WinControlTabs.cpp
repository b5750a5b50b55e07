// How the windows of TWinControl get the order in which the Tab key visits them.
#include "kt/vcl/controls/WinControl.h"

namespace kt {

namespace {

TWinControl& TopmostOf(TWinControl& control) {
  TWinControl* top = &control;
  while (top->GetParent()) top = top->GetParent();
  return *top;
}

}  // namespace

void TWinControl::TabsChanged() {
  TWinControl& top = TopmostOf(*this);
  // Many changes, as when a form is built, are worth one new order.
  if (!top.HandleAllocated() || std::exchange(top.FAreTabsOld, true)) return;
  top.PostMessage(CM_ORDERTABS);
}

void TWinControl::TabsNeeded() { TopmostOf(*this).BringTabsUpToDate(); }

void TWinControl::BringTabsUpToDate() {
  if (!std::exchange(FAreTabsOld, false) || !HandleAllocated()) return;
  const Qt::FocusPolicy policy = FWindow->focusPolicy();
  // The way begins here, also where the keyboard itself cannot be, as on a form.
  if (policy == Qt::NoFocus) FWindow->setFocusPolicy(Qt::TabFocus);
  QWidget* last = FWindow;
  OrderTabs(last);
  if (policy == Qt::NoFocus) FWindow->setFocusPolicy(policy);
}

void TWinControl::OrderTabs(QWidget*& last) const {
  for (const TWinControl* control : FTabList) {
    QWidget* const window = control->FWindow;
    if (!window || window->window() != FWindow->window()) continue;
    // Qt lets only those be ordered that can have the keyboard: a panel passes it on to the controls in it.
    if (window->focusPolicy() != Qt::NoFocus) {
      QWidget::setTabOrder(last, window);
      last = window;
    }
    control->OrderTabs(last);
  }
}

TWinControl* TWinControl::FindFirst(bool tabStopsOnly) const {
  for (TWinControl* control : FTabList) {
    if (!control->CanFocus()) continue;
    if (control->FTabStop || !tabStopsOnly) return control;
    if (TWinControl* const inside = control->FindFirst(tabStopsOnly)) return inside;
  }
  return nullptr;
}

void TWinControl::SelectFirst() {
  TWinControl* first = FindFirst(true);
  if (!first) first = FindFirst(false);
  if (first) first->SetFocus();
}

void TWinControl::UpdateFocusPolicy() {
  const bool takesClicks = (FWindow->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus;
  if (takesClicks) {
    FWindow->setFocusPolicy(FTabStop ? Qt::StrongFocus : Qt::ClickFocus);
  } else {
    FWindow->setFocusPolicy(FTabStop ? Qt::TabFocus : Qt::NoFocus);
  }
}

void TWinControl::CMTabStopChanged(TMessage&) {
  if (!HandleAllocated()) return;
  UpdateFocusPolicy();
  TabsChanged();
}

}  // namespace kt
