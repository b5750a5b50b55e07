#include "kt/vcl/stdctrls/OwnerDraw.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/Canvas.h"

#include <QPainter>

namespace kt {

namespace {

/// Before the text of a line.
constexpr int kTextIndent = 2;

}  // namespace

void TOwnerDrawDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  // A handler may free the control, whose view is on the stack.
  const TControlBody::TInEvent running;
  bool isDrawn = false;
  painter->save();
  GuardedCall([&] { isDrawn = FDraw(*painter, option.rect, index.row(), OwnerDrawStateOf(option.state)); });
  painter->restore();
  if (!isDrawn) QStyledItemDelegate::paint(painter, option, index);
}

TOwnerDrawState OwnerDrawStateOf(QStyle::State state) {
  TOwnerDrawState result;
  if (state.testFlag(QStyle::State_Selected)) result.Include(odSelected);
  if (state.testFlag(QStyle::State_HasFocus)) result.Include(odFocused);
  if (!state.testFlag(QStyle::State_Enabled)) result.Include(odDisabled);
  if (!state.testFlag(QStyle::State_Active)) result.Include(odInactive);
  return result;
}

void BeginOwnerDraw(TCanvas& canvas, TWinControl& control, QPainter& painter, const QRect& rect,
                    TOwnerDrawState state) {
  const bool isSelected = state.Has(odSelected);
  if (control.HandleAllocated()) canvas.SetPalette(control.GetHandle()->palette());
  painter.setClipRect(rect, Qt::IntersectClip);
  canvas.Begin(painter, rect);
  canvas.SetFont(&control.GetFont());
  if (isSelected) canvas.GetFont().SetColor(clHighlightText);
  if (state.Has(odDisabled)) canvas.GetFont().SetColor(clGrayText);
  canvas.GetBrush().SetColor(isSelected ? clHighlight : control.GetColor());
}

void DrawPlainItem(TCanvas& canvas, const QRect& rect, const QString& text) {
  canvas.TextRect(rect, rect.x() + kTextIndent, rect.y() + (rect.height() - canvas.TextHeight(text)) / 2, text);
}

}  // namespace kt
