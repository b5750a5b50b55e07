#include "kt/vcl/controls/WinControl.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <algorithm>

namespace kt {

const TClassInfo* TWinControl::Class() {
  static const TClassInfo info = TClassBuilder<TWinControl>("TWinControl").Done();
  return &info;
}

void TWinControl::Destruct() {
  Destroying();
  DestroyHandle();
  while (!FControls.empty()) {
    TControl* last = FControls.back();
    RemoveControl(last);
    delete last;
  }
  TControl::Destruct();
}

TControl* TWinControl::GetControls(int index) const {
  if (index < 0 || index >= GetControlCount()) throw EListError(Format(SListIndexError, {index}));
  return FControls[index];
}

bool TWinControl::ContainsControl(const TControl* control) const {
  while (control && control != this) control = control->GetParent();
  return control != nullptr;
}

void TWinControl::InsertControl(TControl* control) {
  const TLifeWatch self(this);
  const TObjectRef child(control);
  // The handlers of a control that gets another look or place may free both.
  const auto isStillHere = [&] { return self.IsAlive() && child && control->FParent == this; };
  FControls.push_back(control);
  control->FParent = this;
  auto* const window = dynamic_cast<TWinControl*>(control);
  if (window) {
    FTabList.push_back(window);
    window->TakeWindowAlong();
    if (self.IsAlive()) TabsChanged();
  }
  for (quint32 message : {CM_PARENTCOLORCHANGED, CM_PARENTFONTCHANGED, CM_PARENTCTL3DCHANGED, CM_PARENTSHOWHINTCHANGED,
                          CM_PARENTBIDIMODECHANGED}) {
    if (!isStillHere()) return;
    if (!control->HasState(csReading)) control->Perform(message);
  }
  if (!isStillHere()) return;
  control->RememberAnchorBase();
  AlignControl(control);
  if (!isStillHere()) return;
  if (!window) control->Invalidate();
  Perform(CM_CONTROLLISTCHANGE, PointerMessage(control), 1);
}

void TWinControl::RemoveControl(TControl* control) {
  const auto found = std::find(FControls.begin(), FControls.end(), control);
  if (found == FControls.end()) return;
  Perform(CM_CONTROLLISTCHANGE, PointerMessage(control), 0);
  if (auto* window = dynamic_cast<TWinControl*>(control)) {
    window->DestroyHandle();
    std::erase(FTabList, window);
  } else {
    control->Invalidate();
  }
  std::erase(FControls, control);
  control->FParent = nullptr;
  if (!HasState(csDestroying)) AlignControl(nullptr);
}

int TWinControl::GetTabOrder() const {
  if (!GetParent()) return -1;
  const auto& list = GetParent()->FTabList;
  return static_cast<int>(std::find(list.begin(), list.end(), this) - list.begin());
}

void TWinControl::SetTabOrder(int value) {
  if (HasState(csReading)) {
    // Siblings that come before may not be there yet.
    FTabOrder = value;
  } else {
    UpdateTabOrder(value);
  }
}

void TWinControl::UpdateTabOrder(int value) {
  if (!GetParent() || value < 0) return;
  auto& list = GetParent()->FTabList;
  std::erase(list, this);
  list.insert(list.begin() + std::min<int>(value, static_cast<int>(list.size())), this);
  TabsChanged();
}

void TWinControl::FixupTabList() {
  std::vector<TWinControl*> wanted = FTabList;
  const auto orderOf = [](const TWinControl* control) { return control->FTabOrder; };
  std::erase_if(wanted, [&](const TWinControl* control) { return orderOf(control) < 0; });
  std::stable_sort(wanted.begin(), wanted.end(),
                   [&](const TWinControl* a, const TWinControl* b) { return orderOf(a) < orderOf(b); });
  for (TWinControl* control : wanted) control->UpdateTabOrder(std::exchange(control->FTabOrder, -1));
}

void TWinControl::SetTabStop(bool value) {
  if (FTabStop == value) return;
  FTabStop = value;
  Perform(CM_TABSTOPCHANGED);
}

void TWinControl::Loaded() {
  TControl::Loaded();
  FixupTabList();
  Realign();
}

void TWinControl::GetChildren(const TGetChildProc& proc, TComponent* root) {
  for (TControl* control : std::vector<TControl*>(FControls)) {
    if (control->GetOwnerComponent() == root) proc(control);
  }
}

void TWinControl::SetChildOrder(TComponent* child, int order) {
  auto* control = dynamic_cast<TControl*>(child);
  if (std::erase(FControls, control) == 0) return;
  FControls.insert(FControls.begin() + std::clamp(order, 0, GetControlCount()), control);
  if (!dynamic_cast<TWinControl*>(control)) control->Invalidate();
}

void TWinControl::NotifyControls(quint32 msg) {
  const TLifeWatch self(this);
  // A handler may take controls away, or this one.
  for (int i = 0; self.IsAlive() && i < GetControlCount(); ++i) FControls[i]->Perform(msg);
}

void TWinControl::CMFontChanged(TMessage& message) {
  TControl::CMFontChanged(message);
  NotifyControls(CM_PARENTFONTCHANGED);
}

void TWinControl::CMColorChanged(TMessage& message) {
  TControl::CMColorChanged(message);
  NotifyControls(CM_PARENTCOLORCHANGED);
}

void TWinControl::CMBiDiModeChanged(TMessage& message) {
  TControl::CMBiDiModeChanged(message);
  NotifyControls(CM_PARENTBIDIMODECHANGED);
}

/// A control in somebody's layout has a window above it instead of a parent.
void TWinControl::CMParentBiDiModeChanged(TMessage& message) {
  if (GetParent()) return TControl::CMParentBiDiModeChanged(message);
  if (!IsParentBiDiMode() || !HandleAllocated()) return;
  const TLifeWatch self(this);
  SetBiDiMode(FWindow->layoutDirection() == Qt::RightToLeft ? bdRightToLeft : bdLeftToRight);
  if (self.IsAlive()) SetParentBiDiMode(true);
}

void TWinControl::CMShowHintChanged(TMessage&) { NotifyControls(CM_PARENTSHOWHINTCHANGED); }

}  // namespace kt
