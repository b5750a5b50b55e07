#pragma once

#include <QMainWindow>

/// A window as any Qt program has them: it knows nothing of inspectors. Opens a modal dialog and a second window.
class TOrdinaryWindow : public QMainWindow {
 public:
  TOrdinaryWindow();

 private:
  void BuildForm();
  void BuildMenus();
  void OpenDialog();
  void OpenSecond();
};
