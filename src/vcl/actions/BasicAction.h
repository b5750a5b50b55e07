#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/Event.h"

#include <functional>
#include <vector>

namespace kt {

class TBasicAction;

/// What connects one client, a control or a menu item, with an action. It belongs to the client and leaves its action
/// when either of them dies.
class TBasicActionLink : public TObject {
 public:
  using Inherited = TObject;

  TBasicAction* GetAction() const { return FAction; }
  virtual void SetAction(TBasicAction* value);
  /// Has the action done for `component`; true when somebody did it.
  virtual bool Execute(TComponent* component = nullptr);
  /// Has the action brought up to date; true when somebody did so.
  virtual bool Update();
  /// Whether the client does what the action does, and nothing else.
  virtual bool IsOnExecuteLinked() const { return true; }

  /// The action has changed, which is the sender.
  TNotifyEvent OnChange;

 protected:
  friend class TBasicAction;

  TBasicActionLink() = default;

  void Destruct() override;
  virtual void Change();
  virtual void SetOnExecute(const TNotifyEvent&) {}

 private:
  TBasicAction* FAction = nullptr;
};

/// Something that a program can do, and that any number of clients have done: the root of all actions.
///
/// Neither owns the other; the clients are told of changes through their links, and may free anything meanwhile.
class TBasicAction : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// The client for which it is being done, or was last; null when nobody said.
  TComponent* GetActionComponent() const { return FActionComponent; }
  void SetActionComponent(TComponent* value);
  const TNotifyEvent& GetOnExecute() const { return FOnExecute; }
  void SetOnExecute(const TNotifyEvent& value);

  /// Raises OnExecute; true when there is a handler.
  virtual bool Execute();
  /// Raises OnUpdate; true when there is a handler.
  virtual bool Update();

  void RegisterChanges(TBasicActionLink& link);
  void UnRegisterChanges(TBasicActionLink& link);

  /// Something about it has changed.
  TNotifyEvent OnChange;
  /// The time to set Enabled, Checked and the like, when nothing else is to be done.
  TNotifyEvent OnUpdate;

 protected:
  explicit TBasicAction(TComponent* owner = nullptr) : TComponent(owner) {}

  void Destruct() override;
  void Notification(TComponent* component, TOperation operation) override;
  /// Tells all links and raises OnChange.
  virtual void Change();
  /// Calls `tell` for each link; false when the action is gone afterwards.
  bool TellLinks(const std::function<void(TBasicActionLink& link)>& tell);

 private:
  bool HasLink(const TBasicActionLink* link) const;

  std::vector<TBasicActionLink*> FLinks;
  TComponent* FActionComponent = nullptr;
  TNotifyEvent FOnExecute;
};

}  // namespace kt
