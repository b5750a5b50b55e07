#include "kt/vcl/stdctrls/WindowColors.h"

#include "kt/vcl/graphics/LegibleColor.h"
#include "kt/vcl/graphics/QtColor.h"

#include <QApplication>
#include <QWidget>

namespace kt {

namespace {

QColor TextOn(TColor ground, TColor text, const QPalette& around) {
  return QtColor(LegibleColor(text, QtColor(ground, around)), around);
}

}  // namespace

QPalette PaletteAround(const QWidget& widget) {
  return widget.parentWidget() ? widget.parentWidget()->palette() : QApplication::palette();
}

QPalette PaletteOf(const QWidget& widget, TColor ground, TColor text) {
  const QPalette around = PaletteAround(widget);
  QPalette palette;
  if (ground != clWindow) palette.setColor(QPalette::Base, QtColor(ground, around));
  if (text != clWindowText) palette.setColor(QPalette::Text, TextOn(ground, text, around));
  return palette;
}

bool HasColors(const QWidget& widget, TColor ground, TColor text) {
  const QPalette around = PaletteAround(widget);
  return widget.palette().color(QPalette::Active, QPalette::Base) == QtColor(ground, around) &&
         widget.palette().color(QPalette::Active, QPalette::Text) == TextOn(ground, text, around);
}

}  // namespace kt
