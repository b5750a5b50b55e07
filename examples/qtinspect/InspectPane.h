#pragma once

#include "qtinspect/InspectPanel.h"
#include "qtinspect/ObjectTree.h"
#include "qtinspect/Outline.h"
#include "qtinspect/Picker.h"
#include "qtinspect/Selection.h"

#include <QWidget>

class QToolButton;

namespace qtinspect {

/// The tree of a program's objects and, below it, the object inspector over those that are selected in the tree or
/// picked by pointer; frames these where they stand, as long as it is to be seen itself.
class TInspectPane : public QWidget {
 public:
  /// `roots` is what stands at the top of the tree; only what is in them can be picked.
  explicit TInspectPane(TObjectTree::TRoots roots, QWidget* parent = nullptr);
  ~TInspectPane() override;

  TSelection& Selection() { return FSelection; }
  TPicker& Picker() { return FPicker; }
  TObjectTree& Tree() const { return *FTree; }
  TInspectPanel& Panel() const { return *FPanel; }
  /// What is framed as selected.
  const TOutline& Outline() const { return FOutline; }
  /// After an object was picked.
  std::function<void()> OnPicked;

  /// The tree as lines, and below it the properties of what is selected: what is modified has a star before it.
  QString Text();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Build();
  void ShowFrames();
  void Picked(QObject& object, bool adds);
  bool MayPick(const QWidget& widget) const;

  TSelection FSelection;
  TObjectTree::TRoots FRoots;
  TOutline FOutline;
  TPicker FPicker;
  QToolButton* FPick;
  TObjectTree* FTree;
  TInspectPanel* FPanel;
};

}  // namespace qtinspect
