#pragma once

#include <QObject>
#include <QPointer>

class QMenuBar;

namespace kt {

class TCustomForm;
class TMainMenu;

/// The bar at the top of a form that shows its menu. Belongs to the form. The menu must outlive
/// it.
class TFormMenuBar {
 public:
  TFormMenuBar(TCustomForm& form, TMainMenu& menu);
  ~TFormMenuBar();
  TFormMenuBar(const TFormMenuBar&) = delete;
  TFormMenuBar& operator=(const TFormMenuBar&) = delete;

  /// In pixels; 0 for a menu without visible items, and where there is no QApplication to show one.
  int GetHeight() const { return FHeight; }
  /// Puts the bar where it belongs, if the form has a window.
  void Place();
  /// Takes the bar out of a window that goes.
  void LeaveWindow();
  /// Shows the items as they are now; when a menu of the bar is open, after that.
  void ShowItems();

 private:
  /// Has the form show them when control is back at the event queue.
  void ItemsChanged();
  void EnsureBar();
  /// The menu below the bar that is open, or null.
  QWidget* FindOpen() const;

  TCustomForm& FForm;
  TMainMenu& FMenu;
  QPointer<QMenuBar> FBar;
  int FHeight = 0;
  bool FIsPosted = false;
  /// What is posted goes with it.
  QObject FAddress;
};

}  // namespace kt
