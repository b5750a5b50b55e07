#pragma once

#include <QWidget>

/// A window as any Qt program has them: it knows nothing of inspectors.
class TOrdinaryWindow : public QWidget {
 public:
  TOrdinaryWindow();
};
