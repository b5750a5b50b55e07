#include "kt/vcl/actions/Action.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/actions/ActionLink.h"
#include "kt/vcl/actions/ActionList.h"
#include "kt/vcl/forms/Application.h"

namespace kt {

const TClassInfo* TCustomAction::Class() {
  static const TClassInfo info = TClassBuilder<TCustomAction>("TCustomAction").Done();
  return &info;
}

TCustomAction* TActionLink::GetCustomAction() const { return dynamic_cast<TCustomAction*>(GetAction()); }

/// Compares, tells the links while the former value is still there to compare with, stores, and tells the change.
template <class V, class P>
void TCustomAction::Store(V& field, const V& value, void (TActionLink::*tell)(P)) {
  if (field == value) return;
  const V stored = value;
  const auto tellLink = [&](TBasicActionLink& link) {
    if (auto* own = dynamic_cast<TActionLink*>(&link)) (own->*tell)(stored);
  };
  if (!TellLinks(tellLink)) return;
  field = stored;
  Change();
}

void TCustomAction::SetAutoCheck(bool value) { Store(FAutoCheck, value, &TActionLink::SetAutoCheck); }
void TCustomAction::SetCaption(const QString& value) { Store(FCaption, value, &TActionLink::SetCaption); }
void TCustomAction::SetEnabled(bool value) { Store(FEnabled, value, &TActionLink::SetEnabled); }
void TCustomAction::SetHelpContext(int value) { Store(FHelpContext, value, &TActionLink::SetHelpContext); }
void TCustomAction::SetHelpKeyword(const QString& value) { Store(FHelpKeyword, value, &TActionLink::SetHelpKeyword); }
void TCustomAction::SetHelpType(THelpType value) { Store(FHelpType, value, &TActionLink::SetHelpType); }
void TCustomAction::SetHint(const QString& value) { Store(FHint, value, &TActionLink::SetHint); }
void TCustomAction::SetImageIndex(int value) { Store(FImageIndex, value, &TActionLink::SetImageIndex); }
void TCustomAction::SetShortCut(TShortCut value) { Store(FShortCut, value, &TActionLink::SetShortCut); }
void TCustomAction::SetVisible(bool value) { Store(FVisible, value, &TActionLink::SetVisible); }

void TCustomAction::SetChecked(bool value) {
  const TLifeWatch self(this);
  Store(FChecked, value, &TActionLink::SetChecked);
  if (self.IsAlive()) UncheckGroup();
}

void TCustomAction::SetGroupIndex(int value) {
  const TLifeWatch self(this);
  Store(FGroupIndex, value, &TActionLink::SetGroupIndex);
  if (self.IsAlive()) UncheckGroup();
}

void TCustomAction::UncheckGroup() {
  if (!FChecked || FGroupIndex == 0 || !GetActionList()) return;
  TCustomActionList& list = *GetActionList();
  const TLifeWatch self(this);
  const TLifeWatch watchOfList(&list);
  for (int i = 0; self.IsAlive() && watchOfList.IsAlive() && i < list.GetActionCount(); ++i) {
    auto* other = dynamic_cast<TCustomAction*>(list.GetActions(i));
    if (other && other != this && other->FGroupIndex == FGroupIndex) other->SetChecked(false);
  }
}

TShortCutList& TCustomAction::GetSecondaryShortCuts() {
  if (!FSecondaryShortCuts) FSecondaryShortCuts = Make<TShortCutList>();
  return *FSecondaryShortCuts;
}

void TCustomAction::SetSecondaryShortCuts(const TShortCutList& value) {
  GetSecondaryShortCuts().Assign(const_cast<TShortCutList*>(&value));
}

void TCustomAction::SetName(const QString& value) {
  const TComponent* owner = GetOwnerComponent();
  const bool isLoading = HasState(csLoading) || (owner && owner->HasState(csLoading));
  const bool followsName = !isLoading && GetName() == FCaption;
  TContainedAction::SetName(value);
  if (followsName) SetCaption(value);
}

bool TCustomAction::Execute() {
  if (GetActionList() && GetActionList()->GetState() != asNormal) return false;
  const TLifeWatch self(this);
  Update();
  if (!self.IsAlive() || !FEnabled) return false;
  // Of a group, another one has to take the check over.
  if (FAutoCheck && !(FChecked && FGroupIndex != 0)) SetChecked(!FChecked);
  return self.IsAlive() && FEnabled && TContainedAction::Execute();
}

bool TCustomAction::Update() {
  const TLifeWatch self(this);
  if (TContainedAction::Update() || !self.IsAlive()) return true;
  const bool isDone = GetOnExecute() || (GetActionList() && GetActionList()->OnExecute);
  if (FDisableIfNoHandler && !isDone) SetEnabled(false);
  return false;
}

bool TCustomAction::DoHint(QString& hint) {
  bool canShow = true;
  const TLifeWatch self(this);
  OnHint(hint, canShow);
  if (!canShow || !self.IsAlive()) return false;
  const QString key = ShortCutToText(FShortCut);
  if (Application().IsHintShortCuts() && !hint.isEmpty() && !key.isEmpty()) hint += QStringLiteral(" (%1)").arg(key);
  return true;
}

void TCustomAction::ListStateChanged(TActionListState before, TActionListState now) {
  if (now == asSuspendedEnabled) {
    FWasEnabled = FEnabled;
    SetEnabled(true);
  } else if (before == asSuspendedEnabled) {
    SetEnabled(FWasEnabled);
  }
}

void TCustomAction::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TCustomAction*>(source);
  if (!other) return TContainedAction::Assign(source);
  const TLifeWatch self(this);
  const TLifeWatch from(other);
  using TStep = void (*)(TCustomAction&, TCustomAction&);
  static constexpr TStep Steps[] = {
      [](TCustomAction& to, TCustomAction& of) { to.SetAutoCheck(of.FAutoCheck); },
      [](TCustomAction& to, TCustomAction& of) { to.SetCaption(of.FCaption); },
      [](TCustomAction& to, TCustomAction& of) { to.SetChecked(of.FChecked); },
      [](TCustomAction& to, TCustomAction& of) { to.SetEnabled(of.FEnabled); },
      [](TCustomAction& to, TCustomAction& of) { to.SetGroupIndex(of.FGroupIndex); },
      [](TCustomAction& to, TCustomAction& of) { to.SetHelpContext(of.FHelpContext); },
      [](TCustomAction& to, TCustomAction& of) { to.SetHelpKeyword(of.FHelpKeyword); },
      [](TCustomAction& to, TCustomAction& of) { to.SetHelpType(of.FHelpType); },
      [](TCustomAction& to, TCustomAction& of) { to.SetHint(of.FHint); },
      [](TCustomAction& to, TCustomAction& of) { to.SetImageIndex(of.FImageIndex); },
      [](TCustomAction& to, TCustomAction& of) { to.SetShortCut(of.FShortCut); },
      [](TCustomAction& to, TCustomAction& of) {
        if (to.HasSecondaryShortCuts() || of.HasSecondaryShortCuts()) {
          to.SetSecondaryShortCuts(of.GetSecondaryShortCuts());
        }
      },
      [](TCustomAction& to, TCustomAction& of) { to.SetVisible(of.FVisible); },
      [](TCustomAction& to, TCustomAction& of) { to.SetOnExecute(of.GetOnExecute()); },
      [](TCustomAction& to, TCustomAction& of) { to.OnUpdate = of.OnUpdate; },
      [](TCustomAction& to, TCustomAction& of) { to.OnHint = of.OnHint; },
  };
  for (const TStep step : Steps) {
    if (self.IsAlive() && from.IsAlive()) step(*this, *other);
  }
}

// The action for applications.

const TClassInfo* TAction::Class() {
  using T = TAction;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TAction");
    builder.Property<&T::IsAutoCheck, &T::SetAutoCheck>("AutoCheck").Default(false);
    builder.Property<&T::GetCaption, &T::SetCaption>("Caption");
    builder.Property<&T::GetCategory, &T::SetCategory>("Category");
    builder.Property<&T::IsChecked, &T::SetChecked>("Checked").Default(false);
    builder.Property<&T::IsEnabled, &T::SetEnabled>("Enabled").Default(true);
    builder.Property<&T::GetGroupIndex, &T::SetGroupIndex>("GroupIndex").Default(0);
    builder.Property<&T::GetHelpContext, &T::SetHelpContext>("HelpContext").Default(0);
    builder.Property<&T::GetHelpKeyword, &T::SetHelpKeyword>("HelpKeyword");
    builder.Property<&T::GetHelpType, &T::SetHelpType>("HelpType").Default(htKeyword);
    builder.Property<&T::GetHint, &T::SetHint>("Hint");
    builder.Property<&T::GetImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1);
    builder.Property<&T::GetShortCut, &T::SetShortCut>("ShortCut", &ShortCutTypeInfo).Default(0);
    builder.Property<&T::GetSecondaryShortCuts, &T::SetSecondaryShortCuts>("SecondaryShortCuts")
        .Stored(&T::HasSecondaryShortCuts);
    builder.Property<&T::IsVisible, &T::SetVisible>("Visible").Default(true);
    builder.Property<&T::GetOnExecute, &T::SetOnExecute>("OnExecute");
    builder.Property<&T::OnHint>("OnHint");
    builder.Property<&T::OnUpdate>("OnUpdate");
    return builder.Creatable().Done();
  }();
  return &info;
}

void TAction::Construct() {
  TCustomAction::Construct();
  SetDisableIfNoHandler(true);
}

}  // namespace kt
