#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

/// Picks a widget of this program by a click with Ctrl and Shift held; the click does nothing else.
class TPicker : public QObject {
 public:
  /// `own` is a window whose widgets are never picked.
  explicit TPicker(QWidget* own);

  std::function<void(QWidget&)> OnPick;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> FOwn;
};
