#include "designer/surface/Places.h"

#include "designer/surface/Bounds.h"
#include "designer/surface/Grid.h"
#include "designer/surface/MenuBarPlaces.h"
#include "designer/surface/StandIns.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/menus/MenuItem.h"

#include <QMenuBar>

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

bool IsOfForm(const TCustomForm& form, const TComponent& component) {
  return &component == &form || component.GetOwnerComponent() == &form;
}

/// What stands above the others comes first: windows lie over what is drawn into the parent.
std::vector<TControl*> FromTop(const TWinControl& parent) {
  std::vector<TControl*> controls;
  for (int i = parent.GetControlCount() - 1; i >= 0; --i) controls.push_back(parent.GetControls(i));
  std::stable_partition(controls.begin(), controls.end(),
                        [](TControl* control) { return dynamic_cast<TWinControl*>(control) != nullptr; });
  return controls;
}

}  // namespace

QRect TPlaces::ClientOf(TWinControl& control) const {
  return {FSurface.mapFromGlobal(control.ClientToScreen({0, 0})), control.GetClientRect().size()};
}

QRect TPlaces::RectOf(TComponent& component) const {
  if (IsStandIn(component)) return StandInRect(component);
  if (const auto* item = dynamic_cast<TMenuItem*>(&component)) return MenuItemRect(*item);
  auto* control = dynamic_cast<TControl*>(&component);
  if (!control) return {ClientOf(FForm).topLeft() + IconPlace(component), QSize(kIconSize, kIconSize)};
  TWinControl* parent = control->GetParent();
  // Above the client area there may be a menu.
  if (!parent) return {InSurface(*FForm.GetHandle()), control->GetBoundsRect().size()};
  return control->GetBoundsRect().translated(ClientOf(*parent).topLeft());
}

QPoint TPlaces::InSurface(const QWidget& widget) const { return FSurface.mapFromGlobal(widget.mapToGlobal(QPoint())); }

QRect TPlaces::MenuItemRect(const TMenuItem& item) const {
  const QRect entry = EntryRect(FForm, item);
  return entry.isEmpty() ? QRect() : entry.translated(InSurface(*MenuBarOf(FForm)));
}

QRect TPlaces::StandInRect(TComponent& component) const {
  TComponent* around = component.GetParentComponent();
  auto* window = dynamic_cast<TWinControl*>(around);
  const bool isNested = around && IsStandIn(*around);
  const QPoint origin = isNested ? RectOf(*around).topLeft() : ClientOf(window ? *window : FForm).topLeft();
  return BoundsOf(component).value_or(QRect(0, 0, kIconSize, kIconSize)).translated(origin);
}

std::vector<TComponent*> TPlaces::StandIns() const {
  std::vector<TComponent*> found;
  for (int i = 0; i < FForm.GetComponentCount(); ++i) {
    TComponent* component = FForm.GetComponents(i);
    if (IsStandIn(*component) && IsShown(*component)) found.push_back(component);
  }
  return found;
}

bool TPlaces::IsIcon(TComponent& component) {
  const bool hasPlace = dynamic_cast<TControl*>(&component) || IsStandIn(component);
  const bool isPart = component.HasParent() || IsOnStandIn(component);
  return !hasPlace && !isPart && component.GetOwnerComponent() && !component.GetComponentStyle().Has(csSubComponent);
}

bool TPlaces::IsShown(TComponent& component) const {
  if (&component == &FForm) return true;
  if (IsStandIn(component)) {
    TComponent* around = component.GetParentComponent();
    return StandInBounds(component) && (!around || IsShown(*around));
  }
  if (const auto* item = dynamic_cast<TMenuItem*>(&component)) return !EntryRect(FForm, *item).isEmpty();
  auto* control = dynamic_cast<TControl*>(&component);
  if (!control) return IsIcon(component);
  auto* window = dynamic_cast<TWinControl*>(control);
  TWinControl* around = window ? window : control->GetParent();
  if (!around || !FForm.ContainsControl(around) || !around->HandleAllocated()) return false;
  return around->GetHandle()->isVisibleTo(FForm.GetHandle());
}

std::vector<TComponent*> TPlaces::Icons() const {
  std::vector<TComponent*> icons;
  for (int i = 0; i < FForm.GetComponentCount(); ++i) {
    TComponent* component = FForm.GetComponents(i);
    if (IsIcon(*component)) icons.push_back(component);
  }
  return icons;
}

/// Those that nobody has placed stand in a row along the lower side.
QPoint TPlaces::IconPlace(TComponent& component) const {
  if (component.GetDesignInfo() != 0) return DesignPlace(component);
  int before = 0;
  for (const TComponent* icon : Icons()) {
    if (icon == &component) break;
    if (icon->GetDesignInfo() == 0) ++before;
  }
  const int inRow = std::max((FForm.GetClientWidth() - kGridStep) / (3 * kIconSize), 1);
  const int top = FForm.GetClientHeight() - 2 * kIconSize * (before / inRow + 1);
  return {kIconSize + (before % inRow) * 3 * kIconSize, std::max(top, 0)};
}

// What is at a place.

TControl* TPlaces::ControlAt(TWinControl& parent, QPoint point) const {
  if (!ClientOf(parent).contains(point)) return &parent;
  for (TControl* control : FromTop(parent)) {
    if (!RectOf(*control).contains(point) || !IsShown(*control)) continue;
    auto* window = dynamic_cast<TWinControl*>(control);
    return window ? ControlAt(*window, point) : control;
  }
  return &parent;
}

/// What is part of another component stands for that.
TComponent* TPlaces::Selectable(TControl* control) const {
  while (control && !IsOfForm(FForm, *control)) control = control->GetParent();
  return control;
}

TComponent* TPlaces::ComponentAt(QPoint point) const {
  const std::vector<TComponent*> icons = Icons();
  const auto icon = std::find_if(icons.rbegin(), icons.rend(),
                                 [&](TComponent* component) { return RectOf(*component).contains(point); });
  if (icon != icons.rend()) return *icon;
  const std::vector<TComponent*> boxes = StandIns();
  const auto box = std::find_if(boxes.rbegin(), boxes.rend(),
                                [&](TComponent* component) { return RectOf(*component).contains(point); });
  if (box != boxes.rend()) return *box;
  if (TComponent* part = MenuPartAt(FForm, FSurface.mapToGlobal(point))) return part;
  return RectOf(FForm).contains(point) ? Selectable(ControlAt(FForm, point)) : nullptr;
}

TWinControl* TPlaces::WindowAt(QPoint point) const {
  if (!RectOf(FForm).contains(point)) return nullptr;
  TControl* control = ControlAt(FForm, point);
  auto* window = dynamic_cast<TWinControl*>(control);
  return window ? window : control->GetParent();
}

TWinControl* TPlaces::ContainerOf(TComponent* component) const {
  auto* control = dynamic_cast<TControl*>(component);
  while (control && control != &FForm) {
    // On its pages, of which one shows.
    if (auto* pages = dynamic_cast<TPageControl*>(control); pages && pages->GetActivePage())
      return pages->GetActivePage();
    const bool accepts = control->GetControlStyle().Has(csAcceptsControls) && IsOfForm(FForm, *control);
    if (auto* window = dynamic_cast<TWinControl*>(control); window && accepts) return window;
    control = control->GetParent();
  }
  return &FForm;
}

TWinControl* TPlaces::ContainerAt(QPoint point) const {
  return RectOf(FForm).contains(point) ? ContainerOf(ControlAt(FForm, point)) : &FForm;
}

std::vector<TComponent*> TPlaces::On(TWinControl& container) const {
  std::vector<TComponent*> found;
  for (int i = 0; i < container.GetControlCount(); ++i) {
    TControl* control = container.GetControls(i);
    if (IsOfForm(FForm, *control) && IsShown(*control)) found.push_back(control);
  }
  if (&container != &FForm) return found;
  for (TComponent* icon : Icons()) found.push_back(icon);
  for (TComponent* box : StandIns()) found.push_back(box);
  return found;
}

// Containers.

std::vector<TWinControl*> TPlaces::Containers() const {
  std::vector<TWinControl*> found = {&FForm};
  for (int i = 0; i < FForm.GetComponentCount(); ++i) {
    auto* window = dynamic_cast<TWinControl*>(FForm.GetComponents(i));
    if (window && window->GetControlStyle().Has(csAcceptsControls) && IsShown(*window)) found.push_back(window);
  }
  return found;
}

QRegion TPlaces::Ground(TWinControl& container) const {
  QRegion ground(ClientOf(container));
  for (TWinControl* around = container.GetParent(); around; around = around->GetParent()) ground &= ClientOf(*around);
  for (int i = 0; i < container.GetControlCount(); ++i) {
    TControl* control = container.GetControls(i);
    if (IsShown(*control)) ground -= RectOf(*control);
  }
  for (TComponent* box : StandIns()) ground -= RectOf(*box);
  return ground;
}

// Moving.

bool IsMovable(TComponent& component) {
  if (IsStandIn(component)) return StandInBounds(component) && !IsStandInAligned(component);
  auto* control = dynamic_cast<TControl*>(&component);
  if (!control) return TPlaces::IsIcon(component);
  // A page lies where its tabs leave room.
  if (dynamic_cast<TTabSheet*>(control)) return false;
  return control->GetParent() && (control->GetAlign() == alNone || control->GetAlign() == alCustom);
}

QPoint DesignPlace(const TComponent& component) {
  const auto info = static_cast<quint32>(component.GetDesignInfo());
  return {static_cast<qint16>(info & 0xFFFF), static_cast<qint16>(info >> 16)};
}

void SetDesignPlace(TComponent& component, QPoint place) {
  // Nothing at all would say that nobody has placed it.
  const int least = place.y() > 0 ? 0 : 1;
  const auto left = static_cast<quint16>(std::clamp(place.x(), least, 0x7FFF));
  const auto top = static_cast<quint16>(std::clamp(place.y(), 0, 0x7FFF));
  component.SetDesignInfo(static_cast<qint32>(static_cast<quint32>(top) << 16 | left));
}

}  // namespace designer
