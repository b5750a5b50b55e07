#include "kt/vcl/stdctrls/WindowColors.h"

#include "kt/vcl/graphics/QtColor.h"

#include <QApplication>
#include <QWidget>

namespace kt {

QPalette PaletteAround(const QWidget& widget) {
  return widget.parentWidget() ? widget.parentWidget()->palette() : QApplication::palette();
}

QPalette PaletteOf(const QWidget& widget, TColor ground, TColor text) {
  const QPalette around = PaletteAround(widget);
  QPalette palette;
  if (ground != clWindow) palette.setColor(QPalette::Base, QtColor(ground, around));
  if (text != clWindowText) palette.setColor(QPalette::Text, QtColor(text, around));
  return palette;
}

}  // namespace kt
