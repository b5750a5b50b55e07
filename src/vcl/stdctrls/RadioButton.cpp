#include "kt/vcl/stdctrls/RadioButton.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/stdctrls/ButtonBody.h"

#include <QRadioButton>

namespace kt {

const TClassInfo* TRadioButton::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TRadioButton> builder("TRadioButton");
    Publish::Action(builder);
    builder.Property<&TRadioButton::GetAlignment, &TRadioButton::SetAlignment>("Alignment", &LeftRightTypeInfo)
        .Default(taRightJustify);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    Publish::Caption(builder);
    builder.Property<&TRadioButton::IsChecked, &TRadioButton::SetChecked>("Checked").Default(false);
    Publish::Color(builder);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    builder.Property<&TWinControl::IsTabStop, &TWinControl::SetTabStop>("TabStop").Stored(
        &TRadioButton::IsTabStopStored);
    Publish::Visible(builder);
    builder.Property<&TButtonControl::IsWordWrap, &TButtonControl::SetWordWrap>("WordWrap").Default(false);
    builder.Property<&TControl::OnClick>("OnClick").Stored(&TControl::IsOnClickStored);
    builder.Property<&TControl::OnDblClick>("OnDblClick");
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::ButtonEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TRadioButton::Construct() {
  TButtonControl::Construct();
  SetTabStop(false);
  SetBounds(0, 0, 113, 17);
}

QWidget* TRadioButton::CreateBody(QWidget* parent) { return MakeButton<QRadioButton>(parent); }

void TRadioButton::CreateWnd() {
  TButtonControl::CreateWnd();
  // The siblings of a control need not be those of its window.
  Button()->setAutoExclusive(false);
  ShowState();
}

void TRadioButton::ShowState() {
  if (Button()) Button()->setChecked(FChecked);
}

void TRadioButton::SetChecked(bool value) {
  if (FChecked == value) return;
  FChecked = value;
  const TLifeWatch self(this);
  SetTabStop(value);
  ShowState();
  if (!value) return;
  TurnSiblingsOff();
  // What a form file says is no click.
  if (self.IsAlive() && !HasState(csLoading)) Click();
}

void TRadioButton::TurnSiblingsOff() {
  TWinControl* parent = GetParent();
  for (int i = 0; parent && i < parent->GetControlCount(); ++i) {
    auto* sibling = dynamic_cast<TRadioButton*>(parent->GetControls(i));
    if (sibling && sibling != this) sibling->SetChecked(false);
  }
}

TRadioButton* TRadioButton::FindNeighbour(bool next) const {
  if (!GetParent()) return nullptr;
  const auto tabs = GetParent()->GetTabList();
  const auto count = static_cast<int>(tabs.size());
  const int here = GetTabOrder();
  for (int i = 1; i < count; ++i) {
    TWinControl* const control = tabs[static_cast<std::size_t>((here + (next ? i : count - i)) % count)];
    auto* radio = dynamic_cast<TRadioButton*>(control);
    if (radio && radio->CanFocus()) return radio;
  }
  return nullptr;
}

void TRadioButton::GoToNeighbour(bool next) {
  TRadioButton* const neighbour = FindNeighbour(next);
  if (!neighbour) return;
  const TLifeWatch life(neighbour);
  neighbour->SetFocus();
  if (life.IsAlive() && neighbour->Focused()) neighbour->SetChecked(true);
}

void TRadioButton::DefaultHandler(TMessage& message) {
  const bool isArrow = message.Msg == WM_KEYDOWN && message.WParam >= VK_LEFT && message.WParam <= VK_DOWN;
  const bool isPlain = TShiftState::FromBits(static_cast<quint32>(message.LParam)).IsEmpty();
  if (!isArrow || !isPlain || HasState(csDesigning)) return TButtonControl::DefaultHandler(message);
  // Right leads on as well where texts are read from the right: the buttons stand below each other as a rule.
  GoToNeighbour(message.WParam == VK_RIGHT || message.WParam == VK_DOWN);
}

void TRadioButton::Clicked() {
  const TLifeWatch self(this);
  SetChecked(true);
  // Qt has taken the sign away when it was there.
  if (self.IsAlive()) ShowState();
}

}  // namespace kt
