#include "kt/vcl/comctrls/PageControl.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/forms/Form.h"

#include <algorithm>
#include <utility>

namespace kt {

namespace {

/// The first control on a page that the keyboard can be led to.
TWinControl* FirstOf(const TWinControl& parent) {
  for (TWinControl* control : parent.GetTabList()) {
    if (!control->CanFocus()) continue;
    if (control->IsTabStop()) return control;
    if (TWinControl* below = FirstOf(*control)) return below;
  }
  return nullptr;
}

}  // namespace

void TPageControl::Construct() {
  TWinControl::Construct();
  SetControlStyle({csCaptureMouse, csDoubleClicks});
  SetTabStop(true);
  SetBounds(0, 0, 289, 193);
}

void TPageControl::Destruct() {
  Destroying();
  FImages.reset();
  TWinControl::Destruct();
}

void TPageControl::Loaded() {
  TWinControl::Loaded();
  const TLifeWatch self(this);
  UpdateActivePage();
  if (self.IsAlive()) TabsChanged();
}

void TPageControl::GetChildren(const TGetChildProc& proc, TComponent* root) {
  for (TTabSheet* page : std::vector<TTabSheet*>(FPages)) {
    if (page->GetOwnerComponent() == root) proc(page);
  }
}

void TPageControl::SetChildOrder(TComponent* child, int order) {
  auto* page = dynamic_cast<TTabSheet*>(child);
  if (page && IndexOfPage(page) >= 0) MovePage(page, std::clamp(order, 0, GetPageCount() - 1));
}

// Pages.

TTabSheet* TPageControl::GetPages(int index) const {
  if (index < 0 || index >= GetPageCount()) throw EListError(Format(SListIndexError, {index}));
  return FPages[index];
}

int TPageControl::IndexOfPage(const TTabSheet* page) const {
  const auto found = std::find(FPages.begin(), FPages.end(), page);
  return found == FPages.end() ? -1 : static_cast<int>(found - FPages.begin());
}

int TPageControl::GetTabCount() const {
  return static_cast<int>(
      std::count_if(FPages.begin(), FPages.end(), [](const TTabSheet* page) { return page->IsTabVisible(); }));
}

int TPageControl::TabOfPage(const TTabSheet* page) const {
  const int index = IndexOfPage(page);
  if (index < 0 || !page->IsTabVisible()) return -1;
  return static_cast<int>(std::count_if(FPages.begin(), FPages.begin() + index,
                                        [](const TTabSheet* other) { return other->IsTabVisible(); }));
}

TTabSheet* TPageControl::FindPageOfTab(int tab) const {
  for (TTabSheet* page : FPages) {
    if (page->IsTabVisible() && tab-- == 0) return page;
  }
  return nullptr;
}

void TPageControl::InsertPage(TTabSheet* page) {
  FPages.push_back(page);
  page->SetVisible(false);
  // What is anchored on it has to know where it is before all is loaded.
  if (HasState(csLoading)) page->SetBounds(0, 0, GetDisplayRect().width(), GetDisplayRect().height());
  TabsChanged();
}

void TPageControl::RemovePage(TTabSheet* page) {
  if (IndexOfPage(page) < 0) return;
  TTabSheet* next = FindNextPage(page, true, !HasState(csDesigning));
  std::erase(FPages, page);
  const bool wasActive = FActivePage == page;
  if (wasActive) FActivePage = nullptr;
  if (HasState(csDestroying)) return;
  const TLifeWatch self(this);
  if (wasActive && next != page) SetActivePage(next);
  if (self.IsAlive()) TabsChanged();
}

void TPageControl::MovePage(TTabSheet* page, int index) {
  if (IndexOfPage(page) == index) return;
  std::erase(FPages, page);
  FPages.insert(FPages.begin() + index, page);
  TabsChanged();
}

TTabSheet* TPageControl::FindNextPage(TTabSheet* page, bool forward, bool checkTabVisible) const {
  const int count = GetPageCount();
  const int found = IndexOfPage(page);
  int index = found >= 0 ? found : forward ? count - 1 : 0;
  for (int i = 0; i < count; ++i) {
    index = (index + (forward ? 1 : count - 1)) % count;
    if (!checkTabVisible || FPages[index]->IsTabVisible()) return FPages[index];
  }
  return nullptr;
}

void TPageControl::UpdateActivePage() {
  if (HasState(csLoading) || FActivePage) return;
  SetActivePage(FindPageOfTab(0));
}

void TPageControl::TabOfPageGoes(TTabSheet* page) {
  if (page != FActivePage) return;
  SetActivePage(FindNextPage(page, true, true));
}

void TPageControl::LeaveFocusTo(TTabSheet* page) {
  TCustomForm* form = GetParentForm(this);
  const bool isInside = form && FActivePage && FActivePage->ContainsControl(form->GetActiveControl());
  if (!isInside) return;
  TWinControl* first = page ? FirstOf(*page) : nullptr;
  form->SetActiveControl(first ? first : CanFocus() ? this : nullptr);
}

void TPageControl::SetActivePage(TTabSheet* value) {
  if (FActivePage == value || (value && IndexOfPage(value) < 0)) return;
  const TLifeWatch self(this);
  const TObjectRef next(value);
  const TObjectRef former(FActivePage);
  const auto nextPage = [&next] { return static_cast<TTabSheet*>(next.Get()); };
  if (value) value->SetVisible(true);
  if (self.IsAlive()) LeaveFocusTo(nextPage());
  if (!self.IsAlive()) return;
  FActivePage = IndexOfPage(nextPage()) >= 0 ? nextPage() : nullptr;
  // A handler may have had the former one shown again.
  auto* formerPage = static_cast<TTabSheet*>(former.Get());
  if (formerPage && formerPage != FActivePage) formerPage->SetVisible(false);
  if (self.IsAlive()) ShowActiveTab();
}

void TPageControl::SetActivePageIndex(int value) {
  SetActivePage(value >= 0 && value < GetPageCount() ? FPages[value] : nullptr);
}

void TPageControl::SetTabIndex(int value) {
  if (TTabSheet* page = FindPageOfTab(value)) SetActivePage(page);
}

// What the user does.

bool TPageControl::CanChange() {
  bool isAllowed = true;
  const TTabChangingEvent handler = OnChanging;
  handler(this, isAllowed);
  return isAllowed;
}

void TPageControl::Change() {
  const TNotifyEvent handler = OnChange;
  handler(this);
}

void TPageControl::Choose(TTabSheet* page) {
  if (!page || page == FActivePage) return;
  const TLifeWatch self(this);
  const TObjectRef chosen(page);
  const bool isDesigning = HasState(csDesigning);
  const bool isAllowed = isDesigning || CanChange();
  if (!self.IsAlive()) return;
  auto* next = static_cast<TTabSheet*>(chosen.Get());
  const bool isChange = isAllowed && next && next != FActivePage && IndexOfPage(next) >= 0;
  if (isChange) SetActivePage(next);
  if (!self.IsAlive()) return;
  ShowActiveTab();
  if (isChange && !isDesigning) Change();
}

void TPageControl::SelectNextPage(bool forward, bool checkTabVisible) {
  Choose(FindNextPage(FActivePage, forward, checkTabVisible));
}

void TPageControl::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case CM_CONTROLLISTCHANGE: {
      auto* page = dynamic_cast<TTabSheet*>(MessagePointer<TControl>(message.WParam));
      if (!page) return TWinControl::Dispatch(message);
      return message.LParam != 0 ? InsertPage(page) : RemovePage(page);
    }
    case CM_DESIGNHITTEST: {
      const QPoint point = PointOfMessage(message.LParam);
      const TTabSheet* page = FindPageOfTabAt(point.x(), point.y());
      message.Result = page && page != FActivePage;
      return;
    }
    case CM_DIALOGKEY: {
      const auto shift = TShiftState::FromBits(static_cast<quint32>(message.LParam));
      const bool isMine =
          message.WParam == VK_TAB && shift.Has(ssCtrl) && !shift.Has(ssAlt) && ContainsControl(TFocus::Current());
      if (!isMine) return TWinControl::Dispatch(message);
      message.Result = 1;
      return SelectNextPage(!shift.Has(ssShift));
    }
    default:
      TWinControl::Dispatch(message);
  }
}

}  // namespace kt
