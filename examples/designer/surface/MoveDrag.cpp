// Moving components with the mouse and the arrow keys.
#include "designer/surface/Bounds.h"
#include "designer/surface/Drag.h"

#include <QApplication>

namespace designer {

using namespace kt;

namespace {

QPoint PlaceOf(TComponent& component) {
  const std::optional<QRect> bounds = BoundsOf(component);
  return bounds ? bounds->topLeft() : DesignPlace(component);
}

void SetPlace(TComponent& component, QPoint place) {
  const std::optional<QRect> bounds = BoundsOf(component);
  bounds ? SetBoundsOf(component, QRect(place, bounds->size())) : SetDesignPlace(component, place);
}

/// Not those that go along with what they stand on.
bool MovesByItself(const TSession& session, TComponent& component) {
  if (!IsMovable(component)) return false;
  const TFormDocument& document = session.Document();
  for (TComponent* around = document.ParentOf(&component); around; around = document.ParentOf(around)) {
    if (around != &session.Form() && session.IsSelected(around)) return false;
  }
  return true;
}

std::vector<TComponent*> ToMove(const TSession& session) {
  std::vector<TComponent*> found;
  for (TComponent* component : session.Selected()) {
    if (MovesByItself(session, *component)) found.push_back(component);
  }
  return found;
}

class TMoveDrag final : public TDrag {
 public:
  TMoveDrag(TSession& session, TComponent& pressed, QPoint from)
      : FSession(session), FComponent(&pressed), FFrom(from) {
    for (TComponent* component : ToMove(session)) FMoved.push_back({TObjectRef(component), PlaceOf(*component)});
    FPressed = PlaceOf(pressed);
  }

  void MoveTo(QPoint point, bool isFree) override {
    const QPoint by = point - FFrom;
    FHasBegun = FHasBegun || by.manhattanLength() >= QApplication::startDragDistance();
    if (!FHasBegun) return;
    MoveBy(isFree ? by : Snapped(FPressed + by) - FPressed);
  }
  void Drop() override {
    // A mere click takes one out of several.
    if (!FHasBegun) {
      if (FComponent) FSession.Select(static_cast<TComponent*>(FComponent.Get()));
      return;
    }
    std::vector<TComponent*> moved;
    for (const TMoved& each : FMoved) {
      if (each.Component) moved.push_back(static_cast<TComponent*>(each.Component.Get()));
    }
    if (!moved.empty()) FSession.Edited(StepText(QStringLiteral("Move"), moved));
  }
  void Cancel() override {
    if (FHasBegun) MoveBy({0, 0});
  }

 private:
  struct TMoved {
    TObjectRef Component;
    QPoint From;
  };

  void MoveBy(QPoint by) {
    for (const TMoved& each : FMoved) {
      if (each.Component) SetPlace(*static_cast<TComponent*>(each.Component.Get()), each.From + by);
    }
    FSession.Editing();
  }

  TSession& FSession;
  TObjectRef FComponent;
  QPoint FFrom;
  QPoint FPressed;
  std::vector<TMoved> FMoved;
  bool FHasBegun = false;
};

}  // namespace

std::unique_ptr<TDrag> MakeMoveDrag(TSession& session, TComponent& pressed, QPoint from) {
  return std::make_unique<TMoveDrag>(session, pressed, from);
}

void MoveSelected(TSession& session, QPoint by) {
  const std::vector<TComponent*> moved = ToMove(session);
  if (moved.empty()) return;
  for (TComponent* component : moved) SetPlace(*component, PlaceOf(*component) + by);
  const QString text = StepText(QStringLiteral("Move"), moved);
  session.Edited(text, text + session.SelectionKey());
}

}  // namespace designer
