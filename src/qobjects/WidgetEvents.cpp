#include "kt/qobjects/WidgetEvents.h"

#include <map>

namespace kt {

namespace {

QStringList Names(const char* names) { return QString::fromLatin1(names).split(u' '); }

const std::map<QEvent::Type, QStringList>& Table() {
  static const std::map<QEvent::Type, QStringList> table = {
      {QEvent::Move, Names("geometry frameGeometry normalGeometry pos x y")},
      {QEvent::Resize, Names("geometry frameGeometry normalGeometry rect size width height childrenRect")},
      {QEvent::Show, Names("visible")},
      {QEvent::Hide, Names("visible")},
      {QEvent::ShowToParent, Names("visible")},
      {QEvent::HideToParent, Names("visible")},
      {QEvent::EnabledChange, Names("enabled")},
      {QEvent::FontChange, Names("font")},
      {QEvent::PaletteChange, Names("palette")},
      {QEvent::CursorChange, Names("cursor")},
      {QEvent::StyleChange, Names("styleSheet")},
      {QEvent::ToolTipChange, Names("toolTip")},
      {QEvent::LayoutDirectionChange, Names("layoutDirection")},
      {QEvent::LocaleChange, Names("locale")},
      {QEvent::MouseTrackingChange, Names("mouseTracking")},
      {QEvent::ModifiedChange, Names("windowModified")},
      {QEvent::WindowStateChange, Names("minimized maximized fullScreen windowState")},
      {QEvent::WindowActivate, Names("isActiveWindow")},
      {QEvent::WindowDeactivate, Names("isActiveWindow")},
      {QEvent::FocusIn, Names("focus")},
      {QEvent::FocusOut, Names("focus")},
      {QEvent::AcceptDropsChange, Names("acceptDrops")},
      {QEvent::ReadOnlyChange, Names("readOnly")},
      {QEvent::LayoutRequest, Names("sizeHint minimumSizeHint")},
  };
  return table;
}

}  // namespace

const QStringList& PropertiesChangedBy(QEvent::Type type) {
  static const QStringList none;
  const auto found = Table().find(type);
  return found == Table().end() ? none : found->second;
}

}  // namespace kt
