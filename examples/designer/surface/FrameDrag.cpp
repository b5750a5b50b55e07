// What draws a frame while it goes on: selecting with a rubber band, and placing.
#include "designer/surface/Drag.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

/// The points from one to another, both included.
QRect Between(QPoint from, QPoint to) { return QRect(from, to).normalized(); }

class TBandDrag final : public TDrag {
 public:
  TBandDrag(TSession& session, const QWidget& surface, TWinControl& container, QPoint from, bool adds)
      : FSession(session), FSurface(surface), FContainer(&container), FFrom(from), FTo(from), FAdds(adds) {}

  void MoveTo(QPoint point, bool) override {
    FHasBegun = FHasBegun || (point - FFrom).manhattanLength() >= QApplication::startDragDistance();
    FTo = point;
  }
  void Drop() override {
    if (!FContainer) return;
    auto* container = static_cast<TWinControl*>(FContainer.Get());
    std::vector<TComponent*> wanted;
    if (FAdds) wanted = FSession.Selected();
    std::erase(wanted, &FSession.Form());
    const TPlaces places(FSession.Form(), FSurface);
    for (TComponent* component : places.On(*container)) {
      const bool isTouched = FHasBegun && Frame().intersects(places.RectOf(*component));
      const bool isNew = std::find(wanted.begin(), wanted.end(), component) == wanted.end();
      if (isTouched && isNew) wanted.push_back(component);
    }
    if (wanted.empty()) wanted.push_back(container);
    FSession.Select(wanted);
  }
  QRect Frame() const override { return FHasBegun ? Between(FFrom, FTo) : QRect(); }

 private:
  TSession& FSession;
  const QWidget& FSurface;
  TObjectRef FContainer;
  QPoint FFrom;
  QPoint FTo;
  bool FAdds;
  bool FHasBegun = false;
};

class TPlaceDrag final : public TDrag {
 public:
  TPlaceDrag(TSession& session, const QWidget& surface, const TClassInfo* classInfo, QPoint from)
      : FSession(session), FClass(classInfo) {
    const TPlaces places(session.Form(), surface);
    TWinControl* container = places.ContainerAt(from);
    FContainer = container;
    FOrigin = places.ClientOf(*container).topLeft();
    FFrom = FTo = from - FOrigin;
  }

  void MoveTo(QPoint point, bool isFree) override {
    FTo = point - FOrigin;
    FHasBegun = FHasBegun || (FTo - FFrom).manhattanLength() >= QApplication::startDragDistance();
    FIsFree = isFree;
  }
  void Drop() override {
    if (FContainer) PlaceComponent(FSession, FClass, static_cast<TComponent*>(FContainer.Get()), Place());
  }
  QRect Frame() const override { return FHasBegun ? Place().translated(FOrigin) : QRect(); }

 private:
  /// In the client area; empty, at its place, when the button was only clicked.
  QRect Place() const {
    const QPoint from = FIsFree ? FFrom : Snapped(FFrom);
    // A menu bar lies above the client area.
    if (!FHasBegun) return {QPoint(std::max(from.x(), 0), std::max(from.y(), 0)), QSize(0, 0)};
    const QPoint to = FIsFree ? FTo : Snapped(FTo);
    const QRect place = Between(from, to);
    return {place.topLeft(), place.size() - QSize(1, 1)};
  }

  TSession& FSession;
  const TClassInfo* FClass;
  TObjectRef FContainer;
  QPoint FOrigin;
  QPoint FFrom;
  QPoint FTo;
  bool FHasBegun = false;
  bool FIsFree = false;
};

}  // namespace

std::unique_ptr<TDrag> MakeBandDrag(TSession& session, const QWidget& surface, TWinControl& container, QPoint from,
                                    bool adds) {
  return std::make_unique<TBandDrag>(session, surface, container, from, adds);
}

std::unique_ptr<TDrag> MakePlaceDrag(TSession& session, const QWidget& surface, const TClassInfo* classInfo,
                                     QPoint from) {
  return std::make_unique<TPlaceDrag>(session, surface, classInfo, from);
}

void PlaceComponent(TSession& session, const TClassInfo* classInfo, TComponent* container, const QRect& place) {
  TComponent* added = session.Document().Add(classInfo, container, place);
  session.Edited(StepText(QStringLiteral("Add"), {added}));
  session.Select(added);
}

}  // namespace designer
