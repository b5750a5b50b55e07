#include "kt/vcl/forms/Form.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/TextPlaces.h"
#include "kt/vcl/actions/ActionList.h"
#include "kt/vcl/controls/KeyCodes.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/FormMenuBar.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/menus/MainMenu.h"

#include <QBuffer>
#include <QEventLoop>
#include <QLatin1StringView>

namespace kt {

TCustomForm::TCustomForm(TComponent* owner) : TScrollingWinControl(owner) {}

TCustomForm::~TCustomForm() = default;

void TCustomForm::Construct() {
  FIcon = Make<TIcon>();
  FIcon->OnChange = TNotifyEvent([this](TObject*) { UpdateIcon(); });
  TScrollingWinControl::Construct();
  FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
  SetVisibleFlag(false);
  SetParentColor(false);
  SetParentFont(false);
  SetColor(clBtnFace);
  SetBounds(0, 0, 320, 240);
  Screen().AddForm(this);
}

void TCustomForm::AfterConstruction() {
  TScrollingWinControl::AfterConstruction();
  OnCreate(this);
}

void TCustomForm::BeforeDestruction() {
  TScrollingWinControl::BeforeDestruction();
  GuardedCall([this] { OnDestroy(this); });
}

void TCustomForm::Destruct() {
  if (FModalLoop) FModalLoop->quit();
  Screen().RemoveForm(this);
  FMenuBar.reset();
  TScrollingWinControl::Destruct();
}

void TCustomForm::Notification(TComponent* component, TOperation operation) {
  TScrollingWinControl::Notification(component, operation);
  if (operation == opRemove && component == FActiveControl) FActiveControl = nullptr;
  if (operation == opRemove) std::erase(FActionLists, component);
  if (operation == opRemove && component == FMenu) SetMenu(nullptr);
  if (operation == opRemove && component == FObjectMenuItem) FObjectMenuItem = nullptr;
  if (operation == opRemove && component == FWindowMenu) FWindowMenu = nullptr;
  auto* list = operation == opInsert ? dynamic_cast<TCustomActionList*>(component) : nullptr;
  if (list && list->GetOwnerComponent() == this) FActionLists.push_back(list);
  const bool isNewInDesigner = operation == opInsert && HasState(csDesigning) && !HasState(csLoading);
  auto* menu = isNewInDesigner && !FMenu ? dynamic_cast<TMainMenu*>(component) : nullptr;
  if (menu && menu->GetOwnerComponent() == this) SetMenu(menu);
}

bool TCustomForm::IsActionKey(quint16 key, TShiftState shift) {
  const TLifeWatch self(this);
  if (OnShortCut) {
    TMessage message{WM_KEYDOWN, key, shift.Bits(), 0};
    bool isUsed = false;
    OnShortCut(this, message, isUsed);
    if (isUsed || !self.IsAlive()) return true;
  }
  if (FMenu && FMenu->IsShortCut(key, shift)) return true;
  for (size_t i = 0; self.IsAlive() && i < FActionLists.size(); ++i) {
    if (FActionLists[i]->IsShortCut(key, shift)) return true;
  }
  return !self.IsAlive();
}

void TCustomForm::GetChildren(const TGetChildProc& proc, TComponent* root) {
  TScrollingWinControl::GetChildren(proc, root);
  if (root != this) return;
  for (int i = 0; i < GetComponentCount(); ++i) {
    // Controls have been written with their parents.
    TComponent* component = GetComponents(i);
    if (!component->HasParent()) proc(component);
  }
}

void TCustomForm::Dispatch(TMessage& message) {
  if (message.Msg == CM_RELEASE) {
    delete this;
    return;
  }
  if (message.Msg == CM_MODALANSWERED) return CloseModal();
  TScrollingWinControl::Dispatch(message);
}

void TCustomForm::SetActiveControl(TWinControl* value) {
  if (FActiveControl == value) return;
  // In a designer a control can stand on something whose class is unknown there.
  if (value && !HasState(csDesigning) && (value == this || !ContainsControl(value))) {
    throw EInvalidOperation(QStringLiteral("Cannot focus a disabled or invisible window"));
  }
  // Who counts as active looks different.
  if (FActiveControl) FActiveControl->Invalidate();
  if (value) value->Invalidate();
  FActiveControl = value;
  if (value) value->FreeNotification(this);
  if (IsShowing()) FocusActiveControl();
}

void TCustomForm::FocusActiveControl() {
  // The keyboard is the designer's.
  if (HasState(csDesigning)) return;
  if (FActiveControl && FActiveControl->CanFocus()) FActiveControl->SetFocus();
}

void TCustomForm::ControlFocused(TWinControl* control) {
  TScrollingWinControl::ControlFocused(control);
  if (control == this) return;
  FActiveControl = control;
  control->FreeNotification(this);
  Perform(CM_FOCUSCHANGED, 0, PointerMessage(control));
}

bool TCustomForm::PreviewKey(TMessage& message) {
  if (!FKeyPreview) return false;
  const auto shift = TShiftState::FromBits(static_cast<quint32>(message.LParam));
  if (message.Msg == WM_CHAR) {
    QChar character(static_cast<char16_t>(message.WParam));
    KeyPress(character);
    message.WParam = character.unicode();
    return message.WParam == 0;
  }
  auto key = static_cast<quint16>(message.WParam);
  const bool isDown = message.Msg == WM_KEYDOWN || message.Msg == WM_SYSKEYDOWN;
  isDown ? KeyDown(key, shift) : KeyUp(key, shift);
  message.WParam = key;
  return key == 0;
}

bool TCustomForm::CloseQuery() {
  bool canClose = true;
  OnCloseQuery(this, canClose);
  return canClose;
}

void TCustomForm::Close() {
  if (FModalLoop) return SetModalResult(mrCancel);
  const TLifeWatch self(this);
  if (!CloseQuery() || !self.IsAlive()) return;
  const bool isMain = Application().GetMainForm() == this;
  TCloseAction action = caHide;
  DoClose(action);
  if (action == caNone || !self.IsAlive()) return;
  if (isMain) return Application().Terminate();
  if (action == caHide) Hide();
  if (action == caFree) Release();
  if (action == caMinimize) SetWindowState(wsMinimized);
}

TCustomForm* GetParentForm(TControl* control) {
  while (control && !dynamic_cast<TCustomForm*>(control)) control = control->GetParent();
  return static_cast<TCustomForm*>(control);
}

void ReadFormText(TCustomForm& form, const QByteArray& text) {
  QByteArray binary;
  ObjectTextToBinary(text, binary);
  TReader reader(binary);
  reader.SetPlaceWording(PlacesInText(text));
  reader.ReadRootComponent(&form);
}

}  // namespace kt
