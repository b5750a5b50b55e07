#include "Looks.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

void UseDarkPalette() {
  const QColor ground(53, 53, 53);
  const QColor deep(35, 35, 35);
  // All other shades follow from these two.
  QPalette palette(ground, ground);
  palette.setColor(QPalette::Base, deep);
  palette.setColor(QPalette::AlternateBase, ground);
  palette.setColor(QPalette::ToolTipBase, ground);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                          QPalette::BrightText, QPalette::HighlightedText}) {
    palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
  }
  palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
  palette.setColor(QPalette::Link, QColor(42, 130, 218));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(palette);
}
