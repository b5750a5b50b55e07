#pragma once

#include "kt/KTObjectInspector.h"

#include <QWidget>

#include <memory>

class QLabel;

/// A window with an inspector for widgets of the same program.
class TInspectorWindow : public QWidget {
 public:
  TInspectorWindow();

  void Inspect(QWidget& widget);

 private:
  std::unique_ptr<kt::TKTObjectInspector> FInspector;
  QLabel* FHead;
};
