#pragma once

#include "kt/vcl/stdctrls/CustomEdit.h"

namespace kt {

/// The line of text that forms use.
class TEdit : public TCustomEdit {
 public:
  using Inherited = TCustomEdit;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  void DefaultHandler(TMessage& message) override;

 protected:
  explicit TEdit(TComponent* owner = nullptr) : TCustomEdit(owner) {}

  void CreateWnd() override;
  void CMBiDiModeChanged(TMessage& message) override;
};

}  // namespace kt
