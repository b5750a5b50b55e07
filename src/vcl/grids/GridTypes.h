#pragma once

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/controls/ControlTypes.h"

#include <QLatin1StringView>
#include <QRect>

#include <algorithm>

namespace kt {

/// A grid was asked for a cell, count or size that it cannot have.
class EInvalidGridOperation : public Exception {
  using Exception::Exception;
};

inline constexpr QLatin1StringView SGridIndexOutOfRange{"Grid index out of range"};
inline constexpr QLatin1StringView SFixedColTooBig{"Fixed column count must be less than column count"};
inline constexpr QLatin1StringView SFixedRowTooBig{"Fixed row count must be less than row count"};
inline constexpr QLatin1StringView SGridTooLarge{"Grid too large for operation"};

/// What a grid looks like and lets its user do. The numbers are those of the bits in form files.
enum TGridOption {
  goFixedVertLine,
  goFixedHorzLine,
  goVertLine,
  goHorzLine,
  goRangeSelect,
  goDrawFocusSelected,
  goRowSizing,
  goColSizing,
  goRowMoving,
  goColMoving,
  goEditing,
  goTabs,
  goRowSelect,
  goAlwaysShowEditor,
  goThumbTracking
};
using TGridOptions = TSet<TGridOption>;

/// What the mouse is doing to a grid.
enum TGridState { gsNormal, gsSelecting, gsRowSizing, gsColSizing, gsRowMoving, gsColMoving };

/// How a cell is to be drawn.
enum TGridDrawStateItem { gdSelected, gdFocused, gdFixed };
using TGridDrawState = TSet<TGridDrawStateItem>;

enum TEditStyle { esSimple, esEllipsis, esPickList };

/// A cell: column and row.
struct TGridCoord {
  int X = 0;
  int Y = 0;
  friend bool operator==(const TGridCoord& a, const TGridCoord& b) = default;
};

/// A block of cells, both corners included.
struct TGridRect {
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;

  /// The smallest block with both cells.
  static TGridRect Spanning(TGridCoord a, TGridCoord b) {
    return {std::min(a.X, b.X), std::min(a.Y, b.Y), std::max(a.X, b.X), std::max(a.Y, b.Y)};
  }
  bool Contains(int col, int row) const { return col >= Left && col <= Right && row >= Top && row <= Bottom; }
  friend bool operator==(const TGridRect& a, const TGridRect& b) = default;
};

/// Sender, column, row, the cell's rectangle in the client area, and how it is to look.
struct TDrawCellEvent : TEvent<TObject*, int, int, const QRect&, TGridDrawState> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TDrawCellEvent";
};
/// Sender, column, row, and whether the cell may become the current one.
struct TSelectCellEvent : TEvent<TObject*, int, int, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TSelectCellEvent";
};
/// Sender, column, row, and the text or mask, which the handler may change.
struct TGetEditEvent : TEvent<TObject*, int, int, QString&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TGetEditEvent";
};
struct TSetEditEvent : TEvent<TObject*, int, int, const QString&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TSetEditEvent";
};
/// Sender, the index that a row or column had, and the one that it has now.
struct TMovedEvent : TEvent<TObject*, int, int> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TMovedEvent";
};

template <>
struct TEnumNames<TGridOption> {
  static constexpr char Name[] = "TGridOption";
  static constexpr const char* Values[] = {"goFixedVertLine", "goFixedHorzLine",     "goVertLine",     "goHorzLine",
                                           "goRangeSelect",   "goDrawFocusSelected", "goRowSizing",    "goColSizing",
                                           "goRowMoving",     "goColMoving",         "goEditing",      "goTabs",
                                           "goRowSelect",     "goAlwaysShowEditor",  "goThumbTracking"};
  static constexpr char SetName[] = "TGridOptions";
};
template <>
struct TEnumNames<TEditStyle> {
  static constexpr char Name[] = "TEditStyle";
  static constexpr const char* Values[] = {"esSimple", "esEllipsis", "esPickList"};
};

}  // namespace kt
