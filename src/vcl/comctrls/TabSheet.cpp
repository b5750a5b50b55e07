#include "kt/vcl/comctrls/TabSheet.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/controls/Publish.h"

#include <QLatin1StringView>

#include <utility>

namespace kt {

namespace {

constexpr QLatin1StringView SPageIndexError{"%d is an invalid PageIndex value. PageIndex must be between 0 and %d"};

}  // namespace

const TClassInfo* TTabSheet::Class() {
  using T = TTabSheet;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TTabSheet");
    Publish::Caption(builder);
    Publish::Constraints(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    // The page control knows the place, and who is visible.
    builder.Property<&TControl::GetHeight, &TControl::SetHeight>("Height").NotStored();
    builder.Property<&T::IsHighlighted, &T::SetHighlighted>("Highlighted").Default(false);
    builder.Property<&T::GetImageIndex, &T::SetImageIndex>("ImageIndex").Default(0);
    builder.Property<&TControl::GetLeft, &TControl::SetLeft>("Left").NotStored();
    builder.Property<&T::GetPageIndex, &T::SetPageIndex>("PageIndex").NotStored();
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    builder.Property<&T::IsTabVisible, &T::SetTabVisible>("TabVisible").Default(true);
    builder.Property<&TControl::GetTop, &TControl::SetTop>("Top").NotStored();
    builder.Property<&TControl::IsVisible, &TControl::SetVisible>("Visible").NotStored();
    builder.Property<&TControl::GetWidth, &TControl::SetWidth>("Width").NotStored();
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    builder.Property<&T::OnHide>("OnHide");
    Publish::ButtonEvents(builder);
    builder.Property<&TControl::OnResize>("OnResize");
    builder.Property<&T::OnShow>("OnShow");
    return builder.Creatable().Done();
  }();
  return &info;
}

void TTabSheet::Construct() {
  TWinControl::Construct();
  SetControlStyle({csAcceptsControls, csCaptureMouse, csSetCaption, csDoubleClicks, csNoDesignVisible});
  SetVisibleFlag(false);
  SetAlign(alClient);
}

TPageControl* TTabSheet::GetPageControl() const { return dynamic_cast<TPageControl*>(GetParent()); }

void TTabSheet::SetPageControl(TPageControl* value) { SetParent(value); }

int TTabSheet::GetPageIndex() const {
  const TPageControl* control = GetPageControl();
  return control ? control->IndexOfPage(this) : -1;
}

void TTabSheet::SetPageIndex(int value) {
  TPageControl* control = GetPageControl();
  if (!control) return;
  const int last = control->GetPageCount() - 1;
  if (value < 0 || value > last) throw EListError(Format(SPageIndexError, {value, last}));
  control->MovePage(this, value);
}

int TTabSheet::GetTabIndex() const {
  const TPageControl* control = GetPageControl();
  return control ? control->TabOfPage(this) : -1;
}

void TTabSheet::TabChanged() {
  if (TPageControl* control = GetPageControl()) control->TabsChanged();
}

void TTabSheet::SetTabVisible(bool value) {
  if (FTabVisible == value) return;
  FTabVisible = value;
  const TLifeWatch self(this);
  if (!value && GetPageControl()) GetPageControl()->TabOfPageGoes(this);
  if (self.IsAlive()) TabChanged();
}

void TTabSheet::SetImageIndex(int value) {
  if (FImageIndex == value) return;
  FImageIndex = value;
  TabChanged();
}

void TTabSheet::SetHighlighted(bool value) {
  if (FHighlighted == value) return;
  FHighlighted = value;
  TabChanged();
}

void TTabSheet::CMTextChanged(TMessage& message) {
  TWinControl::CMTextChanged(message);
  TabChanged();
}

void TTabSheet::CMShowingChanged(TMessage& message) {
  TWinControl::CMShowingChanged(message);
  UpdateShown();
}

void TTabSheet::CMVisibleChanged(TMessage& message) {
  const TLifeWatch self(this);
  TWinControl::CMVisibleChanged(message);
  if (self.IsAlive()) UpdateShown();
}

void TTabSheet::UpdateShown() {
  const bool isShown = IsVisible() && (IsShowing() || FIsShown);
  if (HasState(csDestroying) || std::exchange(FIsShown, isShown) == isShown || HasState(csDesigning)) return;
  isShown ? OnShow(this) : OnHide(this);
}

}  // namespace kt
