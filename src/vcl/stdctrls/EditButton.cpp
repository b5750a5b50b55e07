#include "kt/vcl/stdctrls/EditButton.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWidget>

#include <algorithm>

namespace kt {

namespace {

/// Three squares in a row, as far apart as they are wide.
void DrawDots(QPainter& painter, const QRect& rect, const QColor& color) {
  const int side = std::max(rect.width() >> 3, 1);
  const int x = rect.x() + (rect.width() - side) / 2;
  const int y = rect.y() + (rect.height() - side) / 2;
  for (int left : {x - 2 * side, x, x + 2 * side}) painter.fillRect(left, y, side, side, color);
}

void DrawArrow(QPainter& painter, const QStyleOptionButton& button, const QStyle& style, const QWidget* widget) {
  QStyleOption arrow = button;
  const int side = std::min({button.rect.width(), button.rect.height(), 12});
  arrow.rect = QRect(button.rect.x() + (button.rect.width() - side) / 2,
                     button.rect.y() + (button.rect.height() - side) / 2, side, side);
  style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, widget);
}

}  // namespace

int TEditButton::UsualWidth() { return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent); }

void TEditButton::Draw(TCanvas& canvas, const QRect& rect) const {
  QPainter& painter = canvas.Painter();
  const auto* widget = dynamic_cast<const QWidget*>(painter.device());
  const QStyle& style = widget ? *widget->style() : *QApplication::style();
  QStyleOptionButton option;
  if (widget) option.initFrom(widget);
  // The look of a button does not depend on who has the keyboard or the mouse.
  option.state = IsPressed ? QStyle::State_Sunken : QStyle::State_Raised;
  option.state.setFlag(QStyle::State_Enabled, IsEnabled);
  option.state.setFlag(QStyle::State_Active);
  option.palette.setCurrentColorGroup(IsEnabled ? QPalette::Active : QPalette::Disabled);
  option.rect = rect;
  painter.save();
  painter.fillRect(rect, option.palette.brush(QPalette::Button));
  style.drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, widget);
  if (IsPressed) option.rect.translate(1, 1);
  if (Kind == DropDown) {
    DrawArrow(painter, option, style, widget);
  } else {
    DrawDots(painter, option.rect, option.palette.color(QPalette::ButtonText));
  }
  painter.restore();
}

}  // namespace kt
