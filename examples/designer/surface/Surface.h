#pragma once

#include "designer/session/Session.h"
#include "designer/surface/Drag.h"
#include "designer/surface/Places.h"

#include <QWidget>

#include <functional>
#include <memory>

class QPainter;

namespace designer {

/// What lies, transparent, over the live form and takes keys and mouse in its place: shows the grid, the icons of
/// components without a place and what is selected, and selects, moves, sizes and places.
///
/// The mouse: a click selects, with Shift it takes in or out. A drag moves what is selected, along the grid; with Alt
/// freely. On the form's ground, or with Ctrl on any container, a drag selects what its frame touches. The handles
/// size.
///
/// Keys: the arrows move by a pixel, with Shift they size; with Ctrl both go by a step of the grid. With Alt they go to
/// the neighbour. Tab and Shift+Tab go through all components in the order of their tabs, Escape goes to what is
/// around, Return to the inspector.
class TSurface : public QWidget {
 public:
  TSurface(TSession& session, QWidget* parent);
  ~TSurface() override;

  /// The class that the next click places; null for none.
  void SetTool(const kt::TClassInfo* value);
  const kt::TClassInfo* Tool() const { return FTool; }
  /// Takes back what the mouse is in the middle of; false when there is nothing.
  bool CancelDrag();
  bool IsDragging() const { return FDrag != nullptr; }
  /// The tool was used, or laid aside.
  std::function<void()> OnToolDone;
  /// The Return key.
  std::function<void()> OnInspect;
  std::function<void(QPoint globalPoint)> OnMenu;
  std::function<void()> OnFocusChanged;

  TPlaces Places() const { return {FSession.Form(), *this}; }

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool event(QEvent* event) override;

 private:
  void Heard(TNews news);
  void Describe();

  // Painting.
  void PaintGrid(QPainter& painter);
  void PaintStandIns(QPainter& painter);
  void PaintIcons(QPainter& painter);
  void PaintSelection(QPainter& painter);
  void PaintHandles(QPainter& painter, kt::TComponent& component);

  // The mouse.
  std::unique_ptr<TDrag> BeginDrag(QMouseEvent& event);
  std::unique_ptr<TDrag> PressComponent(kt::TComponent& component, QMouseEvent& event);
  bool ClickLive(QPoint point);
  /// The handle at a place, of the only component that is selected; or null.
  const THandle* HandleAt(QPoint point) const;
  void UpdatePointer(QPoint point);

  // Keys.
  static bool IsArrow(const QKeyEvent& event);
  bool PressArrow(QKeyEvent& event);
  void GoToNeighbour(QPoint direction);
  void GoAlong(bool next);
  void GoOut();

  TSession& FSession;
  const kt::TClassInfo* FTool = nullptr;
  std::unique_ptr<TDrag> FDrag;
};

}  // namespace designer
