#pragma once

#include "kt/vcl/actions/ActionTypes.h"
#include "kt/vcl/actions/BasicAction.h"
#include "kt/vcl/actions/ShortCutList.h"
#include "kt/vcl/controls/ControlTypes.h"
#include "kt/vcl/menus/ShortCut.h"

#include <memory>

namespace kt {

class TActionLink;
class TCustomActionList;

/// An action that can be in a list.
class TContainedAction : public TBasicAction {
 public:
  using Inherited = TBasicAction;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TCustomActionList* GetActionList() const { return FActionList; }
  void SetActionList(TCustomActionList* value);
  /// The place in the list, -1 without one. Setting moves it there, cut to the valid range.
  int GetIndex() const;
  void SetIndex(int value);
  /// What the list is divided by, for those who show it.
  const QString& GetCategory() const { return FCategory; }
  void SetCategory(const QString& value);

  /// The list's handler goes first; OnExecute follows unless that has seen to it.
  bool Execute() override;
  bool Update() override;

  TComponent* GetParentComponent() override;
  bool HasParent() override { return FActionList != nullptr; }

 protected:
  explicit TContainedAction(TComponent* owner = nullptr) : TBasicAction(owner) {}

  void Destruct() override;
  void SetParentComponent(TComponent* value) override;
  void Change() override;

 private:
  TCustomActionList* FActionList = nullptr;
  QString FCategory;
};

/// An action with all that its clients can take over from it; see TActionLink.
///
/// The caption follows the name until somebody sets it.
class TCustomAction : public TContainedAction {
 public:
  using Inherited = TContainedAction;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  void SetName(const QString& value) override;

  /// Whether doing it changes Checked.
  bool IsAutoCheck() const { return FAutoCheck; }
  void SetAutoCheck(bool value);
  const QString& GetCaption() const { return FCaption; }
  void SetCaption(const QString& value);
  bool IsChecked() const { return FChecked; }
  /// Checking an action of a group takes the check from the others of it.
  void SetChecked(bool value);
  /// Whether an update that nobody sees to disables what nobody would do.
  bool IsDisableIfNoHandler() const { return FDisableIfNoHandler; }
  void SetDisableIfNoHandler(bool value) { FDisableIfNoHandler = value; }
  bool IsEnabled() const { return FEnabled; }
  void SetEnabled(bool value);
  /// Actions of a list with the same number belong together, unless it is 0.
  int GetGroupIndex() const { return FGroupIndex; }
  void SetGroupIndex(int value);
  int GetHelpContext() const { return FHelpContext; }
  void SetHelpContext(int value);
  const QString& GetHelpKeyword() const { return FHelpKeyword; }
  void SetHelpKeyword(const QString& value);
  THelpType GetHelpType() const { return FHelpType; }
  void SetHelpType(THelpType value);
  const QString& GetHint() const { return FHint; }
  void SetHint(const QString& value);
  /// -1 for none.
  int GetImageIndex() const { return FImageIndex; }
  void SetImageIndex(int value);
  TShortCut GetShortCut() const { return FShortCut; }
  void SetShortCut(TShortCut value);
  /// More keys that do the action; clients do not show them.
  TShortCutList& GetSecondaryShortCuts();
  void SetSecondaryShortCuts(const TShortCutList& value);
  bool HasSecondaryShortCuts() const { return FSecondaryShortCuts && FSecondaryShortCuts->GetCount() > 0; }
  bool IsVisible() const { return FVisible; }
  void SetVisible(bool value);

  /// Brings it up to date, checks it, if it does so by itself, and does it. Not while disabled, nor while its list is
  /// suspended.
  bool Execute() override;
  bool Update() override;
  /// What the short cut does.
  bool HandleShortCut() { return Execute(); }
  /// Asks OnHint, and puts the short cut behind the hint; false when there is to be none.
  bool DoHint(QString& hint);

  /// Copies what clients take over, and the handlers.
  void Assign(TPersistent* source) override;

  THintEvent OnHint;

 protected:
  friend class TCustomActionList;

  explicit TCustomAction(TComponent* owner = nullptr) : TContainedAction(owner) {}

 private:
  template <class V, class P>
  void Store(V& field, const V& value, void (TActionLink::*tell)(P));
  void UncheckGroup();
  void ListStateChanged(TActionListState before, TActionListState now);

  /// From the first time that somebody asks for them.
  std::unique_ptr<TShortCutList> FSecondaryShortCuts;
  QString FCaption;
  QString FHelpKeyword;
  QString FHint;
  int FGroupIndex = 0;
  int FHelpContext = 0;
  int FImageIndex = -1;
  TShortCut FShortCut = scNone;
  THelpType FHelpType = htKeyword;
  bool FAutoCheck = false;
  bool FChecked = false;
  bool FDisableIfNoHandler = false;
  bool FEnabled = true;
  /// What Enabled was before the list had all enabled.
  bool FWasEnabled = true;
  bool FVisible = true;
};

/// The action that applications place in their lists.
class TAction : public TCustomAction {
 public:
  using Inherited = TCustomAction;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TAction(TComponent* owner = nullptr) : TCustomAction(owner) {}

  void Construct() override;
};

}  // namespace kt
