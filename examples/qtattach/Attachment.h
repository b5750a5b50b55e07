#pragma once

#include "InspectorWindow.h"

#include <QObject>

/// Has an inspector at hand in a program that knows nothing of it: made once, beside the application object. The
/// inspector opens with Ctrl+Shift+I in any window, and when something is picked with Ctrl+Shift+click.
class TAttachment : public QObject {
 public:
  TAttachment();
  ~TAttachment() override;

  TInspectorWindow& Window() { return FWindow; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  TInspectorWindow FWindow;
};
