#pragma once

#include "kt/vcl/graphics/Canvas.h"

namespace kt {

/// A button inside an editor.
struct TEditButton {
  enum TKind { DropDown, Ellipsis };

  TKind Kind = DropDown;
  bool IsPressed = false;
  bool IsEnabled = true;

  /// The usual width: that of a scroll bar. Needs a QApplication.
  static int UsualWidth();
  /// Draws it in the style and the colours of the window that the canvas paints.
  void Draw(TCanvas& canvas, const QRect& rect) const;
};

}  // namespace kt
