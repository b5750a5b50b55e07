#include "kt/vcl/controls/CursorShapes.h"

namespace kt {

Qt::CursorShape CursorShapeOf(TCursor cursor) {
  switch (cursor) {
    case crNone:
      return Qt::BlankCursor;
    case crCross:
      return Qt::CrossCursor;
    case crIBeam:
      return Qt::IBeamCursor;
    case crSizeNESW:
      return Qt::SizeBDiagCursor;
    case crSizeNS:
      return Qt::SizeVerCursor;
    case crSizeNWSE:
      return Qt::SizeFDiagCursor;
    case crSizeWE:
      return Qt::SizeHorCursor;
    case crUpArrow:
      return Qt::UpArrowCursor;
    case crHourGlass:
    case crSQLWait:
      return Qt::WaitCursor;
    case crDrag:
    case crMultiDrag:
      return Qt::DragMoveCursor;
    case crNoDrop:
    case crNo:
      return Qt::ForbiddenCursor;
    case crHSplit:
      return Qt::SplitHCursor;
    case crVSplit:
      return Qt::SplitVCursor;
    case crAppStart:
      return Qt::BusyCursor;
    case crHelp:
      return Qt::WhatsThisCursor;
    case crHandPoint:
      return Qt::PointingHandCursor;
    case crSizeAll:
      return Qt::SizeAllCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace kt
