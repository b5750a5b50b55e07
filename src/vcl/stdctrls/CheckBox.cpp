#include "kt/vcl/stdctrls/CheckBox.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/stdctrls/ButtonBody.h"

#include <QCheckBox>

namespace kt {

namespace {

Qt::CheckState QtState(TCheckBoxState state) {
  return state == cbGrayed ? Qt::PartiallyChecked : state == cbChecked ? Qt::Checked : Qt::Unchecked;
}

}  // namespace

const TClassInfo* TCustomCheckBox::Class() {
  static const TClassInfo info = TClassBuilder<TCustomCheckBox>("TCustomCheckBox").Done();
  return &info;
}

const TClassInfo* TCheckBox::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TCheckBox> builder("TCheckBox");
    Publish::Action(builder);
    builder.Property<&TCheckBox::GetAlignment, &TCheckBox::SetAlignment>("Alignment", &LeftRightTypeInfo)
        .Default(taRightJustify);
    builder.Property<&TCheckBox::IsAllowGrayed, &TCheckBox::SetAllowGrayed>("AllowGrayed").Default(false);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    Publish::Caption(builder);
    builder.Property<&TCheckBox::IsChecked, &TCheckBox::SetChecked>("Checked").NotStored();
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
    builder.Property<&TCheckBox::GetState, &TCheckBox::SetState>("State").Default(cbUnchecked);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    Publish::Visible(builder);
    builder.Property<&TButtonControl::IsWordWrap, &TButtonControl::SetWordWrap>("WordWrap").Default(false);
    builder.Property<&TControl::OnClick>("OnClick").Stored(&TControl::IsOnClickStored);
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::ButtonEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TCustomCheckBox::Construct() {
  TButtonControl::Construct();
  SetBounds(0, 0, 97, 17);
}

QWidget* TCustomCheckBox::CreateBody(QWidget* parent) { return MakeButton<QCheckBox>(parent); }

void TCustomCheckBox::CreateWnd() {
  TButtonControl::CreateWnd();
  ShowState();
}

void TCustomCheckBox::ShowState() {
  auto* box = static_cast<QCheckBox*>(Button());
  if (!box) return;
  // Qt draws the third state of such boxes only.
  box->setTristate(FAllowGrayed || FState == cbGrayed);
  box->setCheckState(QtState(FState));
}

void TCustomCheckBox::SetAllowGrayed(bool value) {
  if (FAllowGrayed == value) return;
  FAllowGrayed = value;
  ShowState();
}

void TCustomCheckBox::SetState(TCheckBoxState value) {
  if (FState == value) return;
  FState = value;
  ShowState();
  // What a form file says is no click.
  if (!HasState(csLoading)) Click();
}

void TCustomCheckBox::Toggle() {
  switch (FState) {
    case cbUnchecked:
      return SetState(FAllowGrayed ? cbGrayed : cbChecked);
    case cbChecked:
      return SetState(cbUnchecked);
    case cbGrayed:
      return SetState(cbChecked);
  }
}

void TCustomCheckBox::Clicked() {
  const TLifeWatch self(this);
  Toggle();
  // Qt has toggled the box by itself, and a handler may have thought otherwise.
  if (self.IsAlive()) ShowState();
}

}  // namespace kt
