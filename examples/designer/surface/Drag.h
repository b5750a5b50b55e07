#pragma once

#include "designer/session/Session.h"
#include "designer/surface/Grid.h"
#include "designer/surface/Places.h"

#include <QPoint>
#include <QRect>
#include <QString>

#include <memory>
#include <vector>

class QWidget;

namespace designer {

/// Something that goes on from the press of a mouse button to its release. Points are those of the surface.
class TDrag {
 public:
  TDrag() = default;
  TDrag(const TDrag&) = delete;
  TDrag& operator=(const TDrag&) = delete;
  virtual ~TDrag() = default;

  /// The mouse has moved. `isFree`: not only along the grid.
  virtual void MoveTo(QPoint point, bool isFree) = 0;
  /// The button was released.
  virtual void Drop() = 0;
  /// The Escape key: as if nothing had been done.
  virtual void Cancel() {}
  /// A frame to be drawn meanwhile, or an empty one.
  virtual QRect Frame() const { return {}; }
};

/// Moves components; `pressed` is the one that keeps to the grid. Those that keep to a side stay where they are.
std::unique_ptr<TDrag> MakeMoveDrag(TSession& session, kt::TComponent& pressed, QPoint from);
/// Sizes what has bounds by one of its handles.
std::unique_ptr<TDrag> MakeSizeDrag(TSession& session, kt::TComponent& component, const THandle& handle, QPoint from);
/// Selects what a frame touches of what stands on a container. `adds`: besides what is selected already.
std::unique_ptr<TDrag> MakeBandDrag(TSession& session, const QWidget& surface, kt::TWinControl& container, QPoint from,
                                    bool adds);
/// Places a new component of a class.
std::unique_ptr<TDrag> MakePlaceDrag(TSession& session, const QWidget& surface, const kt::TClassInfo* classInfo,
                                     QPoint from);

/// Moves or sizes by so many pixels what can be: the arrow keys.
void MoveSelected(TSession& session, QPoint by);
void SizeSelected(TSession& session, QSize by);
/// Whether a handle of a component can be dragged: of a control that keeps to a side only the one towards the middle,
/// of the form only those that leave its top left corner alone.
bool CanDrag(kt::TComponent& component, const THandle& handle);
/// Creates a component on a container, at a place in its client area, and selects it.
void PlaceComponent(TSession& session, const kt::TClassInfo* classInfo, kt::TComponent* container, const QRect& place);

}  // namespace designer
