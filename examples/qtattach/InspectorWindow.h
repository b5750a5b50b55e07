#pragma once

#include "qtinspect/InspectPane.h"
#include "qtinspect/ModalPass.h"

#include <QWidget>

/// A window with an inspector for all other windows of the same program. It does not keep the program running, and is
/// usable while dialogs of the program are open.
class TInspectorWindow : public QWidget {
 public:
  TInspectorWindow();

  qtinspect::TInspectPane& Pane() const { return *FPane; }
  /// Opens the window where it was closed, and brings it to the front.
  void Come();

 private:
  std::vector<QObject*> OtherWindows() const;

  qtinspect::TInspectPane* FPane;
};
