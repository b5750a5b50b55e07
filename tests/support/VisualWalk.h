#pragma once

#include "kt/vcl/actions/ActionTypes.h"
#include "kt/vcl/comctrls/TabTypes.h"
#include "kt/vcl/controls/ControlTypes.h"
#include "kt/vcl/controls/DragTypes.h"
#include "kt/vcl/dialogs/FontDialog.h"
#include "kt/vcl/forms/FormTypes.h"
#include "kt/vcl/grids/GridTypes.h"
#include "kt/vcl/menus/MenuTypes.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "kt/vcl/stdctrls/ScrollBar.h"
#include "support/PropertyWalk.h"

/// What the walk over all properties has to know of the visual platform.
namespace kt::tests {

inline std::vector<TClassInfo::TPublishedMethod> VisualHandlers() {
  return {HandlerOf<TNotifyEvent>(),
          HandlerOf<TKeyEvent>(),
          HandlerOf<TKeyPressEvent>(),
          HandlerOf<TMouseEvent>(),
          HandlerOf<TMouseMoveEvent>(),
          HandlerOf<TCanResizeEvent>(),
          HandlerOf<TConstrainedResizeEvent>(),
          HandlerOf<TContextPopupEvent>(),
          HandlerOf<TCloseEvent>(),
          HandlerOf<TCloseQueryEvent>(),
          HandlerOf<TShortCutEvent>(),
          HandlerOf<TDrawCellEvent>(),
          HandlerOf<TSelectCellEvent>(),
          HandlerOf<TGetEditEvent>(),
          HandlerOf<TSetEditEvent>(),
          HandlerOf<TMovedEvent>(),
          HandlerOf<TActionEvent>(),
          HandlerOf<THintEvent>(),
          HandlerOf<TMouseWheelEvent>(),
          HandlerOf<TMouseWheelUpDownEvent>(),
          HandlerOf<TDragDropEvent>(),
          HandlerOf<TDragOverEvent>(),
          HandlerOf<TEndDragEvent>(),
          HandlerOf<TStartDragEvent>(),
          HandlerOf<TScrollEvent>(),
          HandlerOf<TFDApplyEvent>(),
          HandlerOf<TMenuChangeEvent>(),
          HandlerOf<TTabChangingEvent>(),
          HandlerOf<TTabGetImageEvent>(),
          HandlerOf<TDrawItemEvent>(),
          HandlerOf<TMeasureItemEvent>(),
          HandlerOf<TLBGetDataEvent>(),
          HandlerOf<TLBGetDataObjectEvent>(),
          HandlerOf<TLBFindDataEvent>()};
}

}  // namespace kt::tests
