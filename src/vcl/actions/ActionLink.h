#pragma once

#include "kt/vcl/actions/BasicAction.h"
#include "kt/vcl/controls/ControlTypes.h"
#include "kt/vcl/menus/ShortCut.h"

namespace kt {

class TCustomAction;

/// Carries the properties of an action to a client. A property is linked as long as the client has the value that the
/// action has: then it follows the action, and streams leave it out. A client that was given a value of its own keeps
/// it.
///
/// This class links nothing: descendants override what their clients have.
class TActionLink : public TBasicActionLink {
 public:
  using Inherited = TBasicActionLink;

  /// Null for an action without these properties.
  TCustomAction* GetCustomAction() const;

  virtual bool IsAutoCheckLinked() const { return false; }
  virtual bool IsCaptionLinked() const { return false; }
  virtual bool IsCheckedLinked() const { return false; }
  virtual bool IsEnabledLinked() const { return false; }
  virtual bool IsGroupIndexLinked() const { return false; }
  virtual bool IsHelpContextLinked() const { return false; }
  /// HelpKeyword and HelpType.
  virtual bool IsHelpLinked() const { return false; }
  virtual bool IsHintLinked() const { return false; }
  virtual bool IsImageIndexLinked() const { return false; }
  virtual bool IsShortCutLinked() const { return false; }
  virtual bool IsVisibleLinked() const { return false; }

 protected:
  friend class TCustomAction;

  // The action is about to get that value; it still has the former one.
  virtual void SetAutoCheck(bool) {}
  virtual void SetCaption(const QString&) {}
  virtual void SetChecked(bool) {}
  virtual void SetEnabled(bool) {}
  virtual void SetGroupIndex(int) {}
  virtual void SetHelpContext(int) {}
  virtual void SetHelpKeyword(const QString&) {}
  virtual void SetHelpType(THelpType) {}
  virtual void SetHint(const QString&) {}
  virtual void SetImageIndex(int) {}
  virtual void SetShortCut(TShortCut) {}
  virtual void SetVisible(bool) {}
};

}  // namespace kt
