#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <QRect>
#include <QStyle>
#include <QStyledItemDelegate>

#include <functional>

namespace kt {

class TCanvas;
class TWinControl;

/// What a line that is drawn by its program looks like at the moment.
enum TOwnerDrawStateItem {
  odSelected,
  odGrayed,
  odDisabled,
  odChecked,
  odFocused,
  odDefault,
  odHotLight,
  odInactive,
  odNoAccel,
  odNoFocusRect,
  odReserved1,
  odReserved2,
  odComboBoxEdit  ///< not in the list, but what is picked of it
};
using TOwnerDrawState = TSet<TOwnerDrawStateItem>;

/// Draws a line on the canvas of the control, in a place of its client area or list.
struct TDrawItemEvent : TEvent<TWinControl*, int, const QRect&, TOwnerDrawState> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TDrawItemEvent";
};
/// Says how high a line is; it comes with the height that lines have.
struct TMeasureItemEvent : TEvent<TWinControl*, int, int&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TMeasureItemEvent";
};

/// Has the lines of a view of Qt's drawn by somebody else.
class TOwnerDrawDelegate : public QStyledItemDelegate {
 public:
  /// False leaves the line to Qt.
  using TDraw = std::function<bool(QPainter&, const QRect&, int index, TOwnerDrawState)>;

  TOwnerDrawDelegate(QObject* parent, TDraw draw) : QStyledItemDelegate(parent), FDraw(std::move(draw)) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  TDraw FDraw;
};

TOwnerDrawState OwnerDrawStateOf(QStyle::State state);
/// Has a canvas ready to draw a line of a control: with its font and ground, or those of what is selected.
void BeginOwnerDraw(TCanvas& canvas, TWinControl& control, QPainter& painter, const QRect& rect, TOwnerDrawState state);
/// What a line looks like as long as nobody draws it.
void DrawPlainItem(TCanvas& canvas, const QRect& rect, const QString& text);

}  // namespace kt
