// The window of TCustomForm.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/FormMenuBar.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/graphics/Presence.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QScreen>

#include <utility>

namespace kt {

namespace {

bool IsSizedByUser(TFormBorderStyle style) { return style == bsSizeable || style == bsSizeToolWin; }

}  // namespace

void TCustomForm::SetAutoScroll(bool value) {
  if (HasState(csLoading)) FIsAutoScrollLoaded = true;
  TScrollingWinControl::SetAutoScroll(value);
}

bool TCustomForm::IsAutoScrollStored() const { return IsAutoScroll() != IsSizedByUser(FBorderStyle); }

QWidget* TCustomForm::CreateBody(QWidget* parent) {
  QWidget* body = TScrollingWinControl::CreateBody(parent);
  if (!parent) body->setWindowFlags(WindowFlags());
  return body;
}

Qt::WindowFlags TCustomForm::WindowFlags() const {
  const Qt::WindowFlags above = FFormStyle == fsStayOnTop ? Qt::WindowStaysOnTopHint : Qt::WindowFlags();
  if (FBorderStyle == bsNone) return Qt::Window | Qt::FramelessWindowHint | above;
  const bool isTool = FBorderStyle == bsToolWindow || FBorderStyle == bsSizeToolWin;
  Qt::WindowFlags flags = isTool ? Qt::Tool : FBorderStyle == bsDialog ? Qt::Dialog : Qt::Window;
  flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | above;
  flags.setFlag(Qt::WindowSystemMenuHint, FBorderIcons.Has(biSystemMenu));
  flags.setFlag(Qt::WindowCloseButtonHint, FBorderIcons.Has(biSystemMenu));
  const bool hasButtons = FBorderStyle == bsSingle || FBorderStyle == bsSizeable;
  flags.setFlag(Qt::WindowMinimizeButtonHint, hasButtons && FBorderIcons.Has(biMinimize));
  flags.setFlag(Qt::WindowMaximizeButtonHint, hasButtons && FBorderIcons.Has(biMaximize));
  flags.setFlag(Qt::WindowContextHelpButtonHint, FBorderIcons.Has(biHelp));
  return flags;
}

void TCustomForm::CreateWnd() {
  // The client area lies below it already when the windows in it are made.
  const TLifeWatch self(this);
  UpdateMenuBar();
  if (!self.IsAlive()) return;
  TScrollingWinControl::CreateWnd();
  if (!self.IsAlive()) return;
  Window()->setWindowTitle(GetText());
  UpdateOpacity();
  UpdateIcon();
  if (FMenuBar) FMenuBar->Place();
}

void TCustomForm::SetBorderStyle(TFormBorderStyle value) {
  if (FBorderStyle == value) return;
  FBorderStyle = value;
  const TLifeWatch self(this);
  if (!FIsAutoScrollLoaded) TScrollingWinControl::SetAutoScroll(IsSizedByUser(value));
  if (!self.IsAlive()) return;
  UpdateWindowFlags();
  UpdateMenuBar();
}

void TCustomForm::SetBorderIcons(TBorderIcons value) {
  if (FBorderIcons == value) return;
  FBorderIcons = value;
  UpdateWindowFlags();
}

/// A form that stands in another window has no frame of its own.
void TCustomForm::UpdateWindowFlags() {
  if (HandleAllocated() && !IsShowing() && Window()->isWindow()) Window()->setWindowFlags(WindowFlags());
}

void TCustomForm::SetWindowState(TWindowState value) {
  FWindowState = value;
  if (!HandleAllocated() || HasState(csDesigning)) return;
  Window()->setWindowState(value == wsMaximized   ? Qt::WindowMaximized
                           : value == wsMinimized ? Qt::WindowMinimized
                                                  : Qt::WindowNoState);
}

void TCustomForm::CMTextChanged(TMessage& message) {
  TScrollingWinControl::CMTextChanged(message);
  if (HandleAllocated()) Window()->setWindowTitle(GetText());
}

/// A form that is being designed shows where its designer puts it, whatever it says of itself.
void TCustomForm::CMVisibleChanged(TMessage& message) {
  if (HasState(csLoading) || HasState(csDesigning) || !HasWidgets()) return;
  const TLifeWatch self(this);
  if (IsVisible() && !IsShowing()) {
    if (!GetHandle()) return;
    PlaceWindow();
    OnShow(this);
    // The handler may also have hidden it again.
    if (!self.IsAlive() || !IsVisible()) return;
    SetWindowState(FWindowState);
    if (!self.IsAlive()) return;
  }
  TScrollingWinControl::CMVisibleChanged(message);
}

void TCustomForm::Loaded() {
  const TLifeWatch self(this);
  UpdateMenuBar();
  if (!self.IsAlive()) return;
  FLoadedClientHeight = -1;
  FIsAutoScrollLoaded = false;
  TScrollingWinControl::Loaded();
  // What the file says of Visible waits until all is read.
  if (self.IsAlive() && IsVisible()) Perform(CM_VISIBLECHANGED, 1);
}

void TCustomForm::PlaceWindow() {
  if (GetParent()) return;
  const bool isCentered = FPosition == poScreenCenter || FPosition == poDesktopCenter ||
                          FPosition == poMainFormCenter || FPosition == poOwnerFormCenter;
  if (FPosition == poDesigned) Window()->move(GetLeft(), GetTop());
  if (!isCentered) return;
  QRect around = AreaToCenterIn();
  auto* const owner = FPosition == poOwnerFormCenter ? dynamic_cast<TCustomForm*>(GetOwnerComponent()) : nullptr;
  TCustomForm* const other = FPosition == poMainFormCenter ? Application().GetMainForm() : owner;
  if (other && other != this && other->IsShowing()) around = other->Window()->frameGeometry();
  QRect place = Window()->frameGeometry();
  place.moveCenter(around.center());
  Window()->move(place.topLeft());
}

void TCustomForm::CMShowingChanged(TMessage& message) {
  TScrollingWinControl::CMShowingChanged(message);
  if (!IsShowing()) return OnHide(this);
  FocusActiveControl();
}

bool TCustomForm::WindowEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      // The window itself never closes: it is hidden when all agree.
      event.ignore();
      Close();
      return true;
    case QEvent::WindowStateChange:
      // The user has buttons for it.
      FWindowState = Window()->isMinimized() ? wsMinimized : Window()->isMaximized() ? wsMaximized : wsNormal;
      return false;
    case QEvent::WindowActivate:
      BecomeActive();
      return false;
    case QEvent::WindowDeactivate:
      // The form that becomes active has told this one already.
      if (!IsActive()) return false;
      Screen().SetActiveForm(nullptr);
      OnDeactivate(this);
      return false;
    default:
      return TScrollingWinControl::WindowEvent(event);
  }
}

void TCustomForm::BecomeActive() {
  if (IsActive()) return;
  TCustomForm* const former = Screen().GetActiveForm();
  Screen().SetActiveForm(this);
  const TLifeWatch self(this);
  if (former) former->OnDeactivate(former);
  if (self.IsAlive() && IsActive()) OnActivate(this);
}

bool TCustomForm::IsActive() const { return Screen().GetActiveForm() == this; }

TModalResult TCustomForm::ShowModal() {
  if (IsVisible() || FModalLoop) throw EInvalidOperation(QStringLiteral("Cannot make a visible window modal"));
  QEventLoop loop;
  FModalResult = mrNone;
  const TLifeWatch self(this);
  QWidget* const window = GetHandle();
  if (!window) return mrCancel;
  window->setWindowModality(Qt::ApplicationModal);
  FModalLoop = &loop;
  // A handler may raise, or free the form.
  struct TDone {
    TCustomForm& Form;
    const TLifeWatch& Life;
    ~TDone() {
      if (!Life.IsAlive()) return;
      Form.FModalLoop = nullptr;
      if (Form.HandleAllocated()) Form.Window()->setWindowModality(Qt::NonModal);
    }
  } done{*this, self};
  Show();
  if (self.IsAlive() && FModalLoop) loop.exec();
  if (!self.IsAlive()) return mrCancel;
  const TModalResult result = FModalResult;
  Hide();
  return result;
}

void TCustomForm::SetModalResult(TModalResult value) {
  FModalResult = value;
  // A handler of the click that sets it may still take it back.
  if (value != mrNone && FModalLoop) PostMessage(CM_MODALANSWERED);
}

void TCustomForm::CloseModal() {
  if (!FModalLoop || FModalResult == mrNone) return;
  const TLifeWatch self(this);
  TCloseAction action = caNone;
  try {
    if (CloseQuery() && self.IsAlive()) {
      action = caHide;
      DoClose(action);
    }
  } catch (...) {
    if (self.IsAlive()) FModalResult = mrNone;
    throw;
  }
  if (!self.IsAlive()) return;
  if (action == caNone) {
    FModalResult = mrNone;
    return;
  }
  if (action == caFree) Release();
  if (FModalLoop) std::exchange(FModalLoop, nullptr)->quit();
}

}  // namespace kt
