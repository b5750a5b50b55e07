#pragma once

#include "designer/inspector/DesignInspector.h"
#include "designer/session/Session.h"

#include <QWidget>

#include <functional>
#include <memory>

class QComboBox;
class QLineEdit;
class QTabBar;
class QToolButton;

namespace designer {

/// The object inspector with what belongs around it: which component it is about, a filter, and how it is to look.
class TInspectorPanel : public QWidget {
 public:
  explicit TInspectorPanel(TSession& session, QWidget* parent = nullptr);
  ~TInspectorPanel() override;

  TDesignInspector& Inspector() const { return *FInspector; }
  /// For the name of a file with a picture; empty for none.
  std::function<QString()> OnAskPicture;
  /// Gives the grid the keyboard.
  void FocusGrid();
  void FocusFilter();
  /// The row with the cursor; a row that has nothing to collapse stands for the one that it is below.
  void ExpandSelected();
  void CollapseSelected();
  /// What the button of the row with the cursor does, if it has one.
  void EditSelected();
  void ShowEvents(bool value);
  void SetCategories(bool value);
  void SetAcross(bool value);
  /// A column for each selected component.
  void SetCompare(bool value);

 private:
  void Heard(TNews news);
  void Build();
  QToolButton* MakeSwitch(const QString& text, const QString& hint, std::function<void(bool)> changed);
  void Inspect();
  void FillCombo();
  void ComboPicked(int index);
  void Written(const QString& name);

  TSession& FSession;
  std::unique_ptr<TDesignInspector> FInspector;
  QComboBox* FCombo;
  QLineEdit* FFilter;
  QTabBar* FPages;
  QToolButton* FCategories = nullptr;
  QToolButton* FAcross = nullptr;
  QToolButton* FCompare = nullptr;
  bool FIsFilling = false;
};

}  // namespace designer
