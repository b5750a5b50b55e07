#pragma once

#include <QMdiArea>
#include <QPointer>

#include <functional>
#include <memory>

namespace uiview {

/// Shows one form alive, in the frame of a window. What closes a form, such as the buttons of a dialog, leaves it
/// standing.
class TFormHost : public QMdiArea {
 public:
  explicit TFormHost(QWidget* parent = nullptr);
  ~TFormHost() override;

  /// Takes the form; the one before is destroyed, and null leaves none.
  void Show(std::unique_ptr<QWidget> form);
  /// Null for none, also after the form was destroyed from within.
  QWidget* Form() const { return FForm; }
  /// Gives the form the keyboard.
  void FocusForm();

  /// The form was to be closed, and was not.
  std::function<void()> OnClosing;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> FForm;
  QPointer<QMdiSubWindow> FFrame;
};

}  // namespace uiview
