#include "kt/vcl/graphics/QtCursor.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

struct TCursorAndShape {
  TCursor Cursor;
  Qt::CursorShape Shape;
};

class QtCursorShapeTest : public ::testing::TestWithParam<TCursorAndShape> {};

TEST_P(QtCursorShapeTest, IsThatOfQt) { EXPECT_EQ(GetParam().Shape, QtCursorShape(GetParam().Cursor)); }

INSTANTIATE_TEST_SUITE_P(
    QtCursorTest, QtCursorShapeTest,
    ::testing::Values(TCursorAndShape{crDefault, Qt::ArrowCursor}, TCursorAndShape{crNone, Qt::BlankCursor},
                      TCursorAndShape{crArrow, Qt::ArrowCursor}, TCursorAndShape{crCross, Qt::CrossCursor},
                      TCursorAndShape{crIBeam, Qt::IBeamCursor}, TCursorAndShape{crSizeNESW, Qt::SizeBDiagCursor},
                      TCursorAndShape{crSizeNS, Qt::SizeVerCursor}, TCursorAndShape{crSizeNWSE, Qt::SizeFDiagCursor},
                      TCursorAndShape{crSizeWE, Qt::SizeHorCursor}, TCursorAndShape{crUpArrow, Qt::UpArrowCursor},
                      TCursorAndShape{crHourGlass, Qt::WaitCursor}, TCursorAndShape{crDrag, Qt::DragMoveCursor},
                      TCursorAndShape{crNoDrop, Qt::ForbiddenCursor}, TCursorAndShape{crHSplit, Qt::SplitHCursor},
                      TCursorAndShape{crVSplit, Qt::SplitVCursor}, TCursorAndShape{crMultiDrag, Qt::DragCopyCursor},
                      TCursorAndShape{crSQLWait, Qt::WaitCursor}, TCursorAndShape{crNo, Qt::ForbiddenCursor},
                      TCursorAndShape{crAppStart, Qt::BusyCursor}, TCursorAndShape{crHelp, Qt::WhatsThisCursor},
                      TCursorAndShape{crHandPoint, Qt::PointingHandCursor},
                      TCursorAndShape{crSizeAll, Qt::SizeAllCursor}, TCursorAndShape{TCursor(-23), Qt::ArrowCursor},
                      TCursorAndShape{TCursor(1), Qt::ArrowCursor}));

}  // namespace
}  // namespace kt
