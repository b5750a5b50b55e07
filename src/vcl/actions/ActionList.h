#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/vcl/actions/ActionTypes.h"
#include "kt/vcl/controls/ControlTypes.h"
#include "kt/vcl/imagelist/ChangeLink.h"

#include <memory>
#include <vector>

namespace kt {

class TContainedAction;
class TCustomImageList;

/// Actions kept together: in an order, streamed as children, done and brought up to date by common handlers first. A
/// form listens for the short cuts of the lists that it owns.
///
/// Frees its actions when it is destroyed, whoever owns them.
class TCustomActionList : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetActionCount() const { return static_cast<int>(FActions.size()); }
  /// Raises EListError for an index outside 0..GetActionCount()-1.
  TContainedAction* GetActions(int index) const;
  /// Where the pictures that actions have numbers of are from, for those who show them. Not owned.
  TCustomImageList* GetImages() const { return ImagesOf(FImages); }
  void SetImages(TCustomImageList* value);
  TActionListState GetState() const { return FState; }
  void SetState(TActionListState value);

  /// Asks OnExecute and OnUpdate; true when a handler has seen to the action.
  bool ExecuteAction(TBasicAction& action);
  bool UpdateAction(TBasicAction& action);
  /// Does the action with that key as its short cut; false when there is none that was done.
  bool IsShortCut(quint16 key, TShiftState shift);

  /// An action has come, gone, or changed.
  TNotifyEvent OnChange;
  TActionEvent OnExecute;
  TNotifyEvent OnStateChange;
  TActionEvent OnUpdate;

 protected:
  friend class TContainedAction;

  explicit TCustomActionList(TComponent* owner = nullptr) : TComponent(owner) {}

  void Destruct() override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;
  virtual void Change();

 private:
  void AddAction(TContainedAction* action);
  void RemoveAction(TContainedAction* action);
  int IndexOf(const TContainedAction* action) const;
  void MoveAction(TContainedAction* action, int index);

  std::vector<TContainedAction*> FActions;
  std::unique_ptr<TChangeLink> FImages;
  TActionListState FState = asNormal;
};

/// The list of actions that applications place on their forms.
class TActionList : public TCustomActionList {
 public:
  using Inherited = TCustomActionList;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TActionList(TComponent* owner = nullptr) : TCustomActionList(owner) {}
};

}  // namespace kt
