#pragma once

#include "kt/vcl/actions/ActionLink.h"

namespace kt {

class TMenuItem;

/// Links an entry of a menu: its look, its short cut, and OnClick.
class TMenuActionLink : public TActionLink {
 public:
  using Inherited = TActionLink;

  bool IsAutoCheckLinked() const override;
  bool IsCaptionLinked() const override;
  bool IsCheckedLinked() const override;
  bool IsEnabledLinked() const override;
  bool IsGroupIndexLinked() const override;
  bool IsHelpContextLinked() const override;
  bool IsHintLinked() const override;
  bool IsImageIndexLinked() const override;
  bool IsShortCutLinked() const override;
  bool IsVisibleLinked() const override;
  bool IsOnExecuteLinked() const override;

 protected:
  explicit TMenuActionLink(TMenuItem& client) : FClient(client) {}

  void SetAutoCheck(bool value) override;
  void SetCaption(const QString& value) override;
  void SetChecked(bool value) override;
  void SetEnabled(bool value) override;
  void SetGroupIndex(int value) override;
  void SetHelpContext(int value) override;
  void SetHint(const QString& value) override;
  void SetImageIndex(int value) override;
  void SetShortCut(TShortCut value) override;
  void SetVisible(bool value) override;
  void SetOnExecute(const TNotifyEvent& value) override;

 private:
  TMenuItem& FClient;
};

}  // namespace kt
