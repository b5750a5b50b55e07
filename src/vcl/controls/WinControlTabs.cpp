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
  QWidget* last = FWindow;
  OrderTabs(last);
}

void TWinControl::OrderTabs(QWidget*& last) const {
  for (const TWinControl* control : FTabList) {
    QWidget* const window = control->FWindow;
    if (!window || window->window() != last->window()) continue;
    QWidget::setTabOrder(last, window);
    last = window;
    control->OrderTabs(last);
  }
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
