#pragma once

#include "kt/vcl/stdctrls/ButtonControl.h"

namespace kt {

/// A caption with a sign that is set at one at most of the radio buttons of a parent. The arrow keys take it from one
/// to the next, in the order of the tabs and from the last to the first.
class TRadioButton : public TButtonControl {
 public:
  using Inherited = TButtonControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  bool IsChecked() const { return FChecked; }
  /// Takes the sign from the others. Getting it is a click, whoever does it; TabStop goes along.
  void SetChecked(bool value);
  /// One that is checked says it either way.
  bool IsTabStopStored() const { return IsTabStop() || FChecked; }

  void DefaultHandler(TMessage& message) override;

 protected:
  explicit TRadioButton(TComponent* owner = nullptr) : TButtonControl(owner) {}

  void Construct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void Clicked() override;

 private:
  void ShowState();
  void TurnSiblingsOff();
  TRadioButton* FindNeighbour(bool next) const;
  void GoToNeighbour(bool next);

  bool FChecked = false;
};

}  // namespace kt
