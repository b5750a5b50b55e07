#pragma once

#include <QObject>

class QWidget;

namespace qtinspect {

/// Keeps a window usable while a modal dialog of the same program is open, which would block it: makes the dialog the
/// window that it stands before. Dialogs that the window itself has opened do block it.
class TModalPass : public QObject {
 public:
  explicit TModalPass(QWidget& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Pass();

  QWidget& FWindow;
};

}  // namespace qtinspect
