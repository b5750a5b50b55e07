#include "kt/vcl/graphics/QtColor.h"

#include "kt/vcl/graphics/Presence.h"

#include <QGuiApplication>
#include <QPalette>

#include <iterator>

namespace kt {
namespace {

struct TRole {
  QPalette::ColorGroup Group;
  QPalette::ColorRole Role;
};

/// By the number of the system colour.
constexpr TRole kRoles[] = {
    {QPalette::Active, QPalette::Midlight},         // clScrollBar
    {QPalette::Active, QPalette::Dark},             // clBackground
    {QPalette::Active, QPalette::Highlight},        // clActiveCaption
    {QPalette::Active, QPalette::Window},           // clInactiveCaption
    {QPalette::Active, QPalette::Window},           // clMenu
    {QPalette::Active, QPalette::Base},             // clWindow
    {QPalette::Active, QPalette::Shadow},           // clWindowFrame
    {QPalette::Active, QPalette::WindowText},       // clMenuText
    {QPalette::Active, QPalette::Text},             // clWindowText
    {QPalette::Active, QPalette::HighlightedText},  // clCaptionText
    {QPalette::Active, QPalette::Window},           // clActiveBorder
    {QPalette::Active, QPalette::Window},           // clInactiveBorder
    {QPalette::Active, QPalette::Dark},             // clAppWorkSpace
    {QPalette::Active, QPalette::Highlight},        // clHighlight
    {QPalette::Active, QPalette::HighlightedText},  // clHighlightText
    {QPalette::Active, QPalette::Window},           // clBtnFace, which forms are filled with
    {QPalette::Active, QPalette::Dark},             // clBtnShadow
    {QPalette::Disabled, QPalette::Text},           // clGrayText
    {QPalette::Active, QPalette::WindowText},       // clBtnText
    {QPalette::Disabled, QPalette::WindowText},     // clInactiveCaptionText
    {QPalette::Active, QPalette::Light},            // clBtnHighlight
    {QPalette::Active, QPalette::Shadow},           // cl3DDkShadow
    {QPalette::Active, QPalette::Midlight},         // cl3DLight
    {QPalette::Active, QPalette::ToolTipText},      // clInfoText
    {QPalette::Active, QPalette::ToolTipBase},      // clInfoBk
    {QPalette::Active, QPalette::Window},           // 25 has no name
    {QPalette::Active, QPalette::Link},             // clHotLight
    {QPalette::Active, QPalette::Highlight},        // clGradientActiveCaption
    {QPalette::Active, QPalette::Window},           // clGradientInactiveCaption
    {QPalette::Active, QPalette::Highlight},        // clMenuHighlight
    {QPalette::Active, QPalette::Window},           // clMenuBar
};

}  // namespace

QColor QtColor(TColor color, const QPalette& palette) {
  const auto bits = static_cast<quint32>(color);
  if (IsSystemColor(color)) {
    const quint32 number = bits & 0xFF;
    if (number >= std::size(kRoles)) return Qt::black;
    return palette.color(kRoles[number].Group, kRoles[number].Role);
  }
  if (color == clNone) return Qt::transparent;
  if (color == clDefault) return palette.color(QPalette::Active, QPalette::Text);
  return QColor(static_cast<int>(bits & 0xFF), static_cast<int>(bits >> 8 & 0xFF), static_cast<int>(bits >> 16 & 0xFF));
}

QColor QtColor(TColor color) { return QtColor(color, HasGui() ? QGuiApplication::palette() : QPalette()); }

TColor ColorOf(const QColor& color) {
  return static_cast<TColor>(color.red() | color.green() << 8 | color.blue() << 16);
}

TColor ColorToRGB(TColor color) { return IsSystemColor(color) ? ColorOf(QtColor(color)) : color; }

}  // namespace kt
