#include "designer/surface/Surface.h"

#include "designer/surface/Bounds.h"
#include "designer/surface/DesignClicks.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace designer {

using namespace kt;

TSurface::TSurface(TSession& session, QWidget* parent) : QWidget(parent), FSession(session) {
  setObjectName(QStringLiteral("surface"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAccessibleName(QStringLiteral("Form"));
  RegisterOwnDesignClicks();
  session.Listen([this](TNews news) { Heard(news); });
  Describe();
}

TSurface::~TSurface() = default;

void TSurface::Heard(TNews news) {
  // What is dragged goes with its form.
  if (news == nwLeaving) FDrag.reset();
  if (news == nwLeaving) return;
  Describe();
  update();
  // The menu bar shows its entries anew a little later.
  QMetaObject::invokeMethod(this, qOverload<>(&QWidget::update), Qt::QueuedConnection);
}

/// For those who cannot see it.
void TSurface::Describe() {
  QStringList titles;
  for (const TComponent* component : FSession.Selected()) titles.append(TitleOf(*component));
  setAccessibleDescription(QStringLiteral("Selected: ") + titles.join(QStringLiteral(", ")));
}

void TSurface::SetTool(const TClassInfo* value) {
  FTool = value;
  setCursor(value ? Qt::CrossCursor : Qt::ArrowCursor);
}

// The mouse.

const THandle* TSurface::HandleAt(QPoint point) const {
  const std::vector<TComponent*> selected = FSession.Selected();
  TComponent& main = *selected.front();
  if (selected.size() > 1 || !BoundsOf(main) || !Places().IsShown(main)) return nullptr;
  const QRect around = Places().RectOf(main);
  for (const THandle& handle : kHandles) {
    if (CanDrag(main, handle) && HandleRect(around, handle).contains(point)) return &handle;
  }
  return nullptr;
}

/// A click that the live control answers by itself, as one on a tab.
bool TSurface::ClickLive(QPoint point) {
  TWinControl* window = Places().WindowAt(point);
  if (!window || !window->HandleAllocated()) return false;
  const QPoint inside = window->GetHandle()->mapFromGlobal(mapToGlobal(point));
  if (!DesignClick(*window, inside)) return false;
  FSession.Edited(StepText(QStringLiteral("Show page of"), {window}));
  return true;
}

std::unique_ptr<TDrag> TSurface::PressComponent(TComponent& component, QMouseEvent& event) {
  const bool isControl = dynamic_cast<TControl*>(&component);
  const bool isGround =
      &component == &FSession.Form() || (isControl && event.modifiers().testFlag(Qt::ControlModifier));
  if (isGround) {
    return MakeBandDrag(FSession, *this, *Places().ContainerOf(&component), event.pos(),
                        event.modifiers().testFlag(Qt::ShiftModifier));
  }
  if (event.modifiers().testFlag(Qt::ShiftModifier)) {
    FSession.Toggle(&component);
    return nullptr;
  }
  if (!FSession.IsSelected(&component)) FSession.Select(&component);
  return MakeMoveDrag(FSession, component, event.pos());
}

std::unique_ptr<TDrag> TSurface::BeginDrag(QMouseEvent& event) {
  if (FTool) return MakePlaceDrag(FSession, *this, FTool, event.pos());
  if (const THandle* handle = HandleAt(event.pos())) {
    return MakeSizeDrag(FSession, *FSession.Main(), *handle, event.pos());
  }
  TComponent* component = Places().ComponentAt(event.pos());
  if (!component) return nullptr;
  // A click on a page's tab also selects, unless it is one of several that are being taken in.
  if (!TPlaces::IsIcon(*component) && event.modifiers() == Qt::NoModifier && ClickLive(event.pos())) {
    FSession.Select(Places().ComponentAt(event.pos()));
    return nullptr;
  }
  return PressComponent(*component, event);
}

void TSurface::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || FDrag) return;
  GuardedCall([&] { FDrag = BeginDrag(*event); });
}

void TSurface::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void TSurface::mouseMoveEvent(QMouseEvent* event) {
  GuardedCall([&] {
    if (!FDrag) return UpdatePointer(event->pos());
    FDrag->MoveTo(event->pos(), event->modifiers().testFlag(Qt::AltModifier));
    update();
  });
}

void TSurface::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !FDrag) return;
  GuardedCall([&] {
    const std::unique_ptr<TDrag> drag = std::move(FDrag);
    if (FTool && OnToolDone) OnToolDone();
    drag->Drop();
  });
  UpdatePointer(event->pos());
  update();
}

void TSurface::UpdatePointer(QPoint point) {
  if (FTool) return;
  const THandle* handle = HandleAt(point);
  setCursor(handle ? HandleCursor(*handle) : Qt::ArrowCursor);
}

void TSurface::contextMenuEvent(QContextMenuEvent* event) {
  GuardedCall([&] {
    const bool isMouse = event->reason() == QContextMenuEvent::Mouse;
    TComponent* component = isMouse ? Places().ComponentAt(event->pos()) : nullptr;
    if (component && !FSession.IsSelected(component)) FSession.Select(component);
    const QRect main = Places().RectOf(*FSession.Main());
    if (OnMenu) OnMenu(isMouse ? event->globalPos() : mapToGlobal(main.center()));
  });
}

bool TSurface::event(QEvent* event) {
  // The window has other uses for some of these keys.
  if (event->type() == QEvent::ShortcutOverride && IsArrow(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  TComponent* component = Places().ComponentAt(help->pos());
  if (!component) return QWidget::event(event);
  QToolTip::showText(help->globalPos(), TitleOf(*component), this, Places().RectOf(*component));
  return true;
}

}  // namespace designer
