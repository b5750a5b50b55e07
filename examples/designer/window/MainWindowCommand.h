#pragma once

#include "designer/window/MainWindow.h"

#include <QKeySequence>

namespace designer {

/// An action as the window's menus are made of them.
struct TMainWindow::TCommand {
  const char* Name;
  QString Text;
  QKeySequence Key;
  std::function<void()> Do;
  /// The key only counts where components are: elsewhere it edits text.
  bool IsForComponents = false;
};

}  // namespace designer
