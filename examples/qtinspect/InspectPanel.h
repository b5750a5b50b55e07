#pragma once

#include "designer/inspector/DesignInspector.h"
#include "qtinspect/Selection.h"

#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;
class QToolButton;

namespace qtinspect {

/// The object inspector over the selected objects, with a filter and switches.
class TInspectPanel : public QWidget {
 public:
  explicit TInspectPanel(TSelection& selection, QWidget* parent = nullptr);
  ~TInspectPanel() override;

  designer::TDesignInspector& Inspector() const { return *FInspector; }
  void FocusGrid();
  void FocusFilter();
  /// Lists properties below the classes that declare them.
  void SetGroups(bool value);
  /// Also those that their class hides from designers.
  void SetHidden(bool value);
  /// The selected property, in all inspected objects, as it was before any change.
  void ResetSelected();
  /// Lets go of what is inspected, and of what is being typed.
  void LetGo();

 private:
  void Build();
  QToolButton* MakeButton(const QString& text, const QString& hint);
  void Inspect();
  void FillCategories(const std::vector<QObject*>& objects);

  TSelection& FSelection;
  std::unique_ptr<designer::TDesignInspector> FInspector;
  QLabel* FHead;
  QLineEdit* FFilter;
  QToolButton* FGroups;
  QToolButton* FHidden;
};

}  // namespace qtinspect
