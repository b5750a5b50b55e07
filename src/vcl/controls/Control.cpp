#include "kt/vcl/controls/Control.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/actions/ControlActionLink.h"
#include "kt/vcl/controls/DragSession.h"
#include "kt/vcl/controls/ExplicitBounds.h"
#include "kt/vcl/controls/MessageAddress.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/menus/PopupMenu.h"

namespace kt {

namespace {

const QLatin1StringView SParentRequired{"Control '%s' has no parent window"};

}  // namespace

const TClassInfo* TControl::Class() {
  static const TClassInfo info = TClassBuilder<TControl>("TControl")
                                     .Property<&TControl::GetLeft, &TControl::SetLeft>("Left")
                                     .Property<&TControl::GetTop, &TControl::SetTop>("Top")
                                     .Property<&TControl::GetWidth, &TControl::SetWidth>("Width")
                                     .Property<&TControl::GetHeight, &TControl::SetHeight>("Height")
                                     .Property<&TControl::GetCursor, &TControl::SetCursor>("Cursor")
                                     .Default(crDefault)
                                     .Property<&TControl::GetHint, &TControl::SetHint>("Hint")
                                     .Stored(&TControl::IsHintStored)
                                     .Property<&TControl::GetHelpType, &TControl::SetHelpType>("HelpType")
                                     .Default(htContext)
                                     .Stored(&TControl::IsHelpStored)
                                     .Property<&TControl::GetHelpKeyword, &TControl::SetHelpKeyword>("HelpKeyword")
                                     .Stored(&TControl::IsHelpStored)
                                     .Property<&TControl::GetHelpContext, &TControl::SetHelpContext>("HelpContext")
                                     .Default(0)
                                     .Stored(&TControl::IsHelpContextStored)
                                     .Done();
  return &info;
}

const TTypeInfo* BorderStyleTypeInfo() {
  static const TEnumTypeInfo info(QStringLiteral("TBorderStyle"),
                                  {QStringLiteral("bsNone"), QStringLiteral("bsSingle")});
  return &info;
}

const TTypeInfo* LeftRightTypeInfo() {
  static const TEnumTypeInfo info(QStringLiteral("TLeftRight"),
                                  {QStringLiteral("taLeftJustify"), QStringLiteral("taRightJustify")});
  return &info;
}

TControl::TControl(TComponent* owner) : TComponent(owner) {}

TControl::~TControl() = default;

void TControl::Construct() {
  TComponent::Construct();
  FConstraints = Make<TSizeConstraints>(this);
  FFont = Make<TFont>();
  FFont->OnChange = TNotifyEvent(this, &TControl::FontChanged);
}

void TControl::Destruct() {
  TDragSession::Forget(*this);
  FAddress.reset();
  FActionLink.reset();
  TWinControl* const parent = FParent;
  const TLifeWatch parentLife(parent);
  // The others move when this one is out of everybody's lists, so that their handlers may free those who had it.
  if (parent) parent->DisableAlign();
  if (FParent) SetParent(nullptr);
  TComponent::Destruct();
  if (parentLife.IsAlive()) GuardedCall([parent] { parent->EnableAlign(); });
}

void TControl::Loaded() {
  TComponent::Loaded();
  RememberAnchorBase();
}

void TControl::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation != opRemove) return;
  if (component == FPopupMenu) FPopupMenu = nullptr;
  if (FActionLink && component == FActionLink->GetAction()) SetAction(nullptr);
}

void TControl::SetPopupMenu(TPopupMenu* value) {
  FPopupMenu = value;
  if (value) value->FreeNotification(this);
}

void TControl::SetHelpKeyword(const QString& value) {
  FHelpKeyword = value;
  if (!HasState(csLoading) && !value.isEmpty()) FHelpType = htKeyword;
}

void TControl::SetHelpContext(int value) {
  FHelpContext = value;
  if (!HasState(csLoading) && value != 0) FHelpType = htContext;
}

TComponent* TControl::GetParentComponent() { return FParent; }

/// A text that is as the name was keeps to it.
void TControl::SetName(const QString& value) {
  const auto* const owner = dynamic_cast<const TControl*>(GetOwnerComponent());
  const bool isLoading = HasState(csLoading) || (owner && owner->HasState(csLoading));
  const bool takesText = FControlStyle.Has(csSetCaption) && !isLoading && GetText() == GetName();
  TComponent::SetName(value);
  if (takesText) SetText(value);
}

void TControl::SetParentComponent(TComponent* value) { SetParent(dynamic_cast<TWinControl*>(value)); }

void TControl::SetParent(TWinControl* value) {
  if (FParent == value) return;
  const TLifeWatch self(this);
  const TLifeWatch next(value);
  if (FParent) FParent->RemoveControl(this);
  // A handler of those that the control leaves behind may have put it somewhere else.
  if (next.IsAlive() && self.IsAlive() && !FParent) value->InsertControl(this);
}

void TControl::SetVisible(bool value) {
  if (FVisible == value) return;
  FVisible = value;
  const TLifeWatch self(this);
  Perform(CM_VISIBLECHANGED, value);
  if (self.IsAlive()) RequestAlign();
}

void TControl::SetEnabled(bool value) {
  if (FEnabled == value) return;
  FEnabled = value;
  Perform(CM_ENABLEDCHANGED);
}

void TControl::SetText(const QString& value) {
  if (GetText() == value) return;
  FText = value;
  Perform(CM_TEXTCHANGED);
}

void TControl::SetCursor(TCursor value) {
  if (FCursor == value) return;
  FCursor = value;
  Perform(CM_CURSORCHANGED);
}

void TControl::CMCursorChanged(TMessage&) {
  if (FParent) FParent->ChildCursorChanged(*this);
}

void TControl::SetZOrder(bool isTopmost) {
  if (FParent) FParent->SetChildOrder(this, isTopmost ? FParent->GetControlCount() : 0);
}

bool TControl::ShowsInParent() const {
  return FVisible || (HasState(csDesigning) && !FControlStyle.Has(csNoDesignVisible));
}

void TControl::InvalidateInParent(const QRect& place) {
  if (FParent) FParent->InvalidateRect(place);
}

QPoint TControl::ClientToScreen(QPoint point) {
  if (!FParent) throw EInvalidOperation(Format(SParentRequired, {GetName()}));
  return FParent->ClientToScreen(point + QPoint(FLeft, FTop));
}

QPoint TControl::ScreenToClient(QPoint point) {
  if (!FParent) throw EInvalidOperation(Format(SParentRequired, {GetName()}));
  return FParent->ScreenToClient(point) - QPoint(FLeft, FTop);
}

void TControl::SetShowHint(bool value) {
  if (FShowHint == value) return;
  FShowHint = value;
  FParentShowHint = false;
  Perform(CM_SHOWHINTCHANGED);
}

void TControl::SetParentShowHint(bool value) {
  if (FParentShowHint == value) return;
  FParentShowHint = value;
  if (FParent && !HasState(csLoading)) Perform(CM_PARENTSHOWHINTCHANGED);
}

void TControl::CMParentShowHintChanged(TMessage&) {
  if (!FParentShowHint || !FParent) return;
  const TLifeWatch self(this);
  SetShowHint(FParent->FShowHint);
  if (self.IsAlive()) FParentShowHint = true;
}

qintptr TControl::Perform(quint32 msg, qintptr wParam, qintptr lParam) {
  TMessage message{msg, wParam, lParam, 0};
  WndProc(message);
  return message.Result;
}

void TControl::PostMessage(quint32 msg, qintptr wParam, qintptr lParam) {
  if (!FAddress) FAddress = std::make_unique<TMessageAddress>(this);
  FAddress->Post({msg, wParam, lParam, 0});
}

}  // namespace kt
