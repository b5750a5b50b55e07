#pragma once

#include "kt/vcl/actions/ActionLink.h"

namespace kt {

class TControl;

/// Links a control: its text, Enabled, help, Hint, Visible and OnClick.
class TControlActionLink : public TActionLink {
 public:
  using Inherited = TActionLink;

  bool IsCaptionLinked() const override;
  bool IsEnabledLinked() const override;
  bool IsHelpContextLinked() const override;
  bool IsHelpLinked() const override;
  bool IsHintLinked() const override;
  bool IsVisibleLinked() const override;
  bool IsOnExecuteLinked() const override;
  /// The action's word on the hint of the control; false when there is to be none.
  bool DoShowHint(QString& hint) const;

 protected:
  friend class TControl;

  explicit TControlActionLink(TControl& client) : FClient(client) {}

  void Construct() override;
  void Destruct() override;
  void SetCaption(const QString& value) override;
  void SetEnabled(bool value) override;
  void SetHelpContext(int value) override;
  void SetHelpKeyword(const QString& value) override;
  void SetHelpType(THelpType value) override;
  void SetHint(const QString& value) override;
  void SetVisible(bool value) override;
  void SetOnExecute(const TNotifyEvent& value) override;

  TControl& Client() const { return FClient; }

 private:
  friend class TIdleActions;

  TControl& FClient;
};

}  // namespace kt
