// What keys do on the surface.
#include "designer/surface/Surface.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QKeyEvent>

#include <algorithm>
#include <limits>

namespace designer {

using namespace kt;

namespace {

QPoint DirectionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

/// How far it is from one to another in a direction, what is askew being further; the largest number for what lies
/// elsewhere.
int WayTo(const QRect& from, const QRect& to, QPoint direction) {
  const QPoint by = to.center() - from.center();
  const int along = by.x() * direction.x() + by.y() * direction.y();
  const int askew = std::abs(by.x() * direction.y()) + std::abs(by.y() * direction.x());
  return along > 0 && along >= askew / 4 ? along + 2 * askew : std::numeric_limits<int>::max();
}

/// A component and all below it: what the Tab key reaches on the running form in that order, what it does not reach
/// where the file has it.
void AddInTabOrder(const TFormDocument& document, TComponent& component, std::vector<TComponent*>& all) {
  all.push_back(&component);
  const std::vector<TComponent*> children = document.ChildrenOf(&component);
  std::vector<TWinControl*> windows;
  for (TComponent* child : children) {
    if (auto* window = dynamic_cast<TWinControl*>(child)) windows.push_back(window);
  }
  std::ranges::stable_sort(windows, {}, &TWinControl::GetTabOrder);
  auto next = windows.begin();
  for (TComponent* child : children) {
    AddInTabOrder(document, dynamic_cast<TWinControl*>(child) ? **next++ : *child, all);
  }
}

}  // namespace

void TSurface::keyPressEvent(QKeyEvent* event) {
  GuardedCall([&] {
    if (PressArrow(*event)) return;
    switch (event->key()) {
      case Qt::Key_Escape:
        return GoOut();
      case Qt::Key_Return:
      case Qt::Key_Enter:
        if (OnInspect) OnInspect();
        return;
      default:
        QWidget::keyPressEvent(event);
    }
  });
}

bool TSurface::IsArrow(const QKeyEvent& event) { return !DirectionOf(event.key()).isNull(); }

bool TSurface::PressArrow(QKeyEvent& event) {
  if (!IsArrow(event) || FDrag) return false;
  const QPoint direction = DirectionOf(event.key());
  const QPoint by = direction * (event.modifiers().testFlag(Qt::ControlModifier) ? kGridStep : 1);
  if (event.modifiers().testFlag(Qt::AltModifier)) {
    GoToNeighbour(direction);
  } else if (event.modifiers().testFlag(Qt::ShiftModifier)) {
    SizeSelected(FSession, QSize(by.x(), by.y()));
  } else {
    MoveSelected(FSession, by);
  }
  return true;
}

void TSurface::GoToNeighbour(QPoint direction) {
  TComponent* nearest = nullptr;
  int least = std::numeric_limits<int>::max();
  const TPlaces places = Places();
  TComponent* main = FSession.Main();
  const QRect from = places.RectOf(*main);
  for (TComponent* component : FSession.Components()) {
    if (component == main || component == &FSession.Form() || !places.IsShown(*component)) continue;
    const int way = WayTo(from, places.RectOf(*component), direction);
    if (way >= least) continue;
    least = way;
    nearest = component;
  }
  if (nearest) FSession.Select(nearest);
}

/// Through all that shows, the form too, and round.
void TSurface::GoAlong(bool next) {
  std::vector<TComponent*> all;
  AddInTabOrder(FSession.Document(), FSession.Form(), all);
  const TPlaces places = Places();
  std::erase_if(all, [&](TComponent* component) { return !places.IsShown(*component); });
  const auto found = std::find(all.begin(), all.end(), FSession.Main());
  const size_t at = found == all.end() ? 0 : static_cast<size_t>(found - all.begin());
  FSession.Select(all[(at + (next ? 1 : all.size() - 1)) % all.size()]);
}

bool TSurface::focusNextPrevChild(bool next) {
  GuardedCall([&] { GoAlong(next); });
  return true;
}

bool TSurface::CancelDrag() {
  if (!FDrag) return false;
  const std::unique_ptr<TDrag> drag = std::move(FDrag);
  drag->Cancel();
  update();
  return true;
}

/// Out of what is being done, else to what is around.
void TSurface::GoOut() {
  if (FTool && OnToolDone) OnToolDone();
  if (CancelDrag()) return;
  TComponent* around = FSession.Document().ParentOf(FSession.Main());
  if (around) FSession.Select(around);
}

void TSurface::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
  if (OnFocusChanged) OnFocusChanged();
}

void TSurface::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
  if (OnFocusChanged) OnFocusChanged();
}

}  // namespace designer
