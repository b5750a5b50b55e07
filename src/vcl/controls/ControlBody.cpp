#include "kt/vcl/controls/ControlBody.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/controls/KeyCodes.h"
#include "kt/vcl/controls/WinControl.h"

#include <QCursor>
#include <QHelpEvent>
#include <QPaintEvent>

#include <algorithm>

namespace kt {

namespace {

bool TakesTab(const QWidget* widget) {
  return (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget->focusProxy() && !widget->isWindow() &&
         widget->isVisible() && widget->isEnabled();
}

/// Such a widget, or what is in it, has to stay where its window looks for it until that is painted.
bool IsBeingPainted(const QWidget& widget) {
  const auto isPainted = [](const QWidget* w) { return w->testAttribute(Qt::WA_WState_InPaintEvent); };
  const QList<QWidget*> inside = widget.findChildren<QWidget*>();
  return isPainted(&widget) || std::any_of(inside.begin(), inside.end(), isPainted);
}

}  // namespace

TControlBody::~TControlBody() {
  if (Pressed == this) Pressed = nullptr;
  if (FControl) FControl->WindowDestroyed();
}

TControlBody* TControlBody::Of(const QObject* widget) {
  return const_cast<TControlBody*>(dynamic_cast<const TControlBody*>(widget));
}

TWinControl* TControlBody::ControlOf(const QObject* widget) {
  const TControlBody* body = Of(widget);
  return body ? body->FControl : nullptr;
}

void TControlBody::Retire() {
  FControl = nullptr;
  if (TInEvent::Running == 0) {
    delete FWidget;
    return;
  }
  FWidget->hide();
  if (!IsBeingPainted(*FWidget)) FWidget->setParent(nullptr);
  FWidget->deleteLater();
}

void TControlBody::RunInherited() {
  if (!FEvent || FInheritedDone) return;
  FInheritedDone = true;
  FInheritedResult = (*FInherited)(FEvent);
}

bool TControlBody::HandleEvent(QEvent* event, const TInherited& inherited) {
  if (!FControl) return inherited(event);
  const TInEvent running;
  // Handlers may have the event loop run, and so this again.
  QEvent* const outerEvent = std::exchange(FEvent, event);
  const TInherited* const outerInherited = std::exchange(FInherited, &inherited);
  const bool outerDone = std::exchange(FInheritedDone, false);
  const bool outerResult = std::exchange(FInheritedResult, true);
  bool isTranslated = true;
  GuardedCall([&] { isTranslated = Translate(event); });
  if (!isTranslated) RunInherited();
  const bool result = FInheritedResult;
  FEvent = outerEvent;
  FInherited = outerInherited;
  FInheritedDone = outerDone;
  FInheritedResult = outerResult;
  return result;
}

bool TControlBody::Translate(QEvent* event) {
  switch (event->type()) {
    case QEvent::Paint:
      return Paint(event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return Press(static_cast<QMouseEvent*>(event)), true;
    case QEvent::MouseButtonRelease:
      return Release(static_cast<QMouseEvent*>(event)), true;
    case QEvent::MouseMove:
      return Move(static_cast<QMouseEvent*>(event)), true;
    case QEvent::KeyPress:
      return PressKey(static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      return Key(static_cast<QKeyEvent*>(event));
    case QEvent::Wheel:
      return Wheel(static_cast<QWheelEvent*>(event));
    case QEvent::InputMethod:
      return Input(static_cast<QInputMethodEvent*>(event));
    case QEvent::ContextMenu:
      return OpenMenu(static_cast<QContextMenuEvent*>(event));
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      return Focus(static_cast<QFocusEvent*>(event)), true;
    case QEvent::Move:
    case QEvent::Resize:
      RunInherited();
      return Geometry(), true;
    case QEvent::Show:
    case QEvent::Hide:
      RunInherited();
      if (FControl) FControl->WindowShown(event->type() == QEvent::Show);
      return true;
    case QEvent::LayoutDirectionChange:
      RunInherited();
      if (FControl && !FControl->GetParent()) FControl->Perform(CM_PARENTBIDIMODECHANGED);
      return true;
    case QEvent::Enter:
      HintControlChanged(FControl);
      // It was never away.
      if (std::exchange(FHasKeptPointer, false)) return false;
      PointerCameTo(*FWidget);
      if (FControl) FControl->PointerCame(InClient(static_cast<QEnterEvent*>(event)->position()));
      return false;
    case QEvent::Leave:
      FHasKeptPointer = FControl->KeepsPointer();
      if (FHasKeptPointer) return false;
      HideControlHint();
      HintControlChanged(FControl->GetParent());
      if (FControl) FControl->PointerWent();
      PointerWentFrom(*FWidget);
      return false;
    case QEvent::ToolTip: {
      // Qt's own pause may be shorter than the program's.
      if (IsHintWaiting()) return true;
      const auto* help = static_cast<QHelpEvent*>(event);
      ShowHintAt(*FControl, InClient(help->pos()), help->globalPos());
      return true;
    }
    default:
      return FControl->WindowEvent(*event);
  }
}

void TControlBody::PointerCameTo(const QWidget& child) {
  const TControlBody* const body = child.isWindow() ? nullptr : Of(child.parentWidget());
  if (body && body->FControl) body->FControl->PointerWent();
}

void TControlBody::PointerWentFrom(const QWidget& child) {
  QWidget* const parent = child.isWindow() ? nullptr : child.parentWidget();
  const TControlBody* const body = Of(parent);
  if (!body || !body->FControl) return;
  const QPoint place = parent->mapFromGlobal(QCursor::pos());
  if (parent->rect().contains(place)) body->FControl->PointerCame(body->InClient(place));
}

bool TControlBody::MoveFocusPastOwner(bool next) {
  if (FControl) FControl->TabsNeeded();
  TWinControl* const owner = FControl ? FControl->FocusOwner() : nullptr;
  QWidget* const start = owner && owner != FControl ? owner->Window() : nullptr;
  if (!start) return false;
  const auto following = [next](QWidget* w) { return next ? w->nextInFocusChain() : w->previousInFocusChain(); };
  for (QWidget* w = following(start); w && w != start; w = following(w)) {
    if (start->isAncestorOf(w) || !TakesTab(w)) continue;
    w->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return true;
}

bool TControlBody::Paint(QEvent* event) {
  const QRect clip = static_cast<QPaintEvent*>(event)->rect();
  FControl->PaintWindow(clip);
  if (FControl) FControl->PaintControls(clip);
  return true;
}

QPoint TControlBody::InClient(QPointF place) const { return place.toPoint() - FControl->GetClientOrigin(); }

void TControlBody::Geometry() {
  if (FControl) FControl->WindowMoved(FWidget->geometry());
}

}  // namespace kt
