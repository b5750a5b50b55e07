#include "kt/vcl/graphics/QtCursor.h"

#include <iterator>

namespace kt {
namespace {

/// By the number without its sign.
constexpr Qt::CursorShape kShapes[] = {
    Qt::ArrowCursor,         // crDefault
    Qt::BlankCursor,         // crNone
    Qt::ArrowCursor,         // crArrow
    Qt::CrossCursor,         // crCross
    Qt::IBeamCursor,         // crIBeam
    Qt::SizeAllCursor,       // 5 has no name
    Qt::SizeBDiagCursor,     // crSizeNESW
    Qt::SizeVerCursor,       // crSizeNS
    Qt::SizeFDiagCursor,     // crSizeNWSE
    Qt::SizeHorCursor,       // crSizeWE
    Qt::UpArrowCursor,       // crUpArrow
    Qt::WaitCursor,          // crHourGlass
    Qt::DragMoveCursor,      // crDrag
    Qt::ForbiddenCursor,     // crNoDrop
    Qt::SplitHCursor,        // crHSplit
    Qt::SplitVCursor,        // crVSplit
    Qt::DragCopyCursor,      // crMultiDrag
    Qt::WaitCursor,          // crSQLWait
    Qt::ForbiddenCursor,     // crNo
    Qt::BusyCursor,          // crAppStart
    Qt::WhatsThisCursor,     // crHelp
    Qt::PointingHandCursor,  // crHandPoint
    Qt::SizeAllCursor,       // crSizeAll
};
static_assert(std::size(kShapes) == -crSizeAll + 1);

}  // namespace

Qt::CursorShape QtCursorShape(TCursor cursor) {
  const bool isKnown = cursor <= 0 && cursor >= crSizeAll;
  return isKnown ? kShapes[-cursor] : Qt::ArrowCursor;
}

}  // namespace kt
