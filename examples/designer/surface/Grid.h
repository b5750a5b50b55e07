#pragma once

#include <QPoint>
#include <QRect>

#include <array>

namespace designer {

/// The distance of the dots that components keep to.
inline constexpr int kGridStep = 8;
/// The size of what stands for a component that has none of its own.
inline constexpr int kIconSize = 28;
/// Nothing that is designed is wider or higher, nor further away.
inline constexpr int kLargestSize = 0x7FFF;

/// The nearest place on the grid.
int Snapped(int value);
QPoint Snapped(QPoint point);

/// The sides of a rectangle that a handle moves.
struct THandle {
  bool MovesLeft;
  bool MovesTop;
  bool MovesRight;
  bool MovesBottom;
};
inline constexpr int kHandleCount = 8;
/// From the top left corner, clockwise.
inline constexpr std::array<THandle, kHandleCount> kHandles = {{{true, true, false, false},
                                                                {false, true, false, false},
                                                                {false, true, true, false},
                                                                {false, false, true, false},
                                                                {false, false, true, true},
                                                                {false, false, false, true},
                                                                {true, false, false, true},
                                                                {true, false, false, false}}};

/// Where a handle of something at `around` is.
QRect HandleRect(const QRect& around, const THandle& handle);
/// The pointer over a handle.
Qt::CursorShape HandleCursor(const THandle& handle);

}  // namespace designer
