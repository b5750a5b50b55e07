#pragma once

#include "kt/rtl/objects/Interface.h"
#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/Set.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace kt {

class TOwnedComponents;

enum TOperation { opInsert, opRemove };

/// What a component is going through, as bits of ComponentState.
enum TComponentStateItem {
  csLoading,           ///< being read from a stream; ends with Loaded()
  csReading,           ///< its own properties are being read
  csWriting,           ///< its own properties are being written
  csDestroying,        ///< its destruction has begun
  csDesigning,         ///< lives in a form designer
  csAncestor,          ///< introduced by an ancestor form; only in a designer
  csUpdating,          ///< a descendant form is being read over it; only with csAncestor
  csFixups,            ///< refers to a component that is not loaded yet
  csFreeNotification,  ///< somebody watches it
  csInline,            ///< the root of a nested form
  csDesignInstance     ///< the root that a designer edits
};
using TComponentState = TSet<TComponentStateItem>;

enum TComponentStyleItem {
  csInheritable,  ///< can be part of an ancestor form
  csCheckPropAvail,
  csSubComponent,  ///< belongs to a property of its owner and is streamed there, not among the children
  csTransient
};
using TComponentStyle = TSet<TComponentStyleItem>;

/// An object with a name that can own others, be placed on forms and be streamed.
///
/// An owner frees the components it owns when it is destroyed, the last first. A component that is destroyed tells
/// everybody who asked for it (FreeNotification()), and everybody who has the same owner, through
/// Notification(component, opRemove), before its own members go; it may be destroyed inside any notification but its
/// own. Trees of any depth are destroyed in bounded stack: what is more than about a hundred levels down goes from the
/// leaves, each component before its owner's destruction begins instead of within it.
///
/// Cost: inserting, removing the last, finding by name and renaming take constant time on average, and a call for each
/// sibling that overrides Notification() or owns components; removing another one than the last also takes time in
/// proportion to its distance from the end of the owner's list.
class TComponent : public TPersistent, public IInterfaceComponentReference {
 public:
  using Inherited = TPersistent;
  using TCreatedIn = TComponent;
  /// The class whose Notification() has nothing to do of its own; see TInstance.
  using TNotificationRoot = TComponent;
  using TGetChildProc = std::function<void(TComponent* child)>;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TComponent() override;

  /// Unique among the owner's components without regard to case, a valid identifier, or empty. Setting raises
  /// EComponentError "''%s'' is not a valid component name" or "A component named %s already exists".
  const QString& GetName() const { return FName; }
  virtual void SetName(const QString& value);
  /// A number for the application's use.
  int GetTag() const { return FTag; }
  void SetTag(int value) { FTag = value; }

  TComponent* GetOwnerComponent() const { return FOwner; }
  int GetComponentCount() const;
  /// Raises EListError for an index outside 0..GetComponentCount()-1.
  TComponent* GetComponents(int index) const;
  /// The position among the owner's components; -1 without an owner. Setting moves it, cut to the valid range.
  int GetComponentIndex() const;
  void SetComponentIndex(int value);
  /// The owned component of that name, without regard to case, or null.
  TComponent* FindComponent(QStringView name) const;
  /// Takes over the ownership, from the present owner if there is one. Raises EComponentError when the name is taken.
  void InsertComponent(TComponent* component);
  /// Gives up the ownership; the caller owns the component then.
  void RemoveComponent(TComponent* component);
  /// Frees all owned components, the last first.
  void DestroyComponents();
  /// Marks this component and all it owns as being destroyed.
  void Destroying();

  TComponentState GetComponentState() const { return FComponentState; }
  bool HasState(TComponentStateItem item) const { return FComponentState.Has(item); }
  TComponentStyle GetComponentStyle() const { return FComponentStyle; }
  /// A sub-component belongs to a property of its owner and is streamed with it.
  void SetSubComponent(bool isSubComponent) { FComponentStyle.Put(csSubComponent, isSubComponent); }
  /// The place of a component without a window of its own on a designer's form: left in the low word, top in the high
  /// one.
  qint32 GetDesignInfo() const { return FDesignInfo; }
  void SetDesignInfo(qint32 value) { FDesignInfo = value; }

  /// Asks that `component` be told, through its Notification(), when this one is destroyed; and the other way round.
  /// Components with the same owner are told anyway.
  void FreeNotification(TComponent* component);
  void RemoveFreeNotification(TComponent* component);

  QString GetNamePath() override;
  TComponent* GetComponent() override { return this; }
  /// The component that holds this one on the screen, or null.
  virtual TComponent* GetParentComponent() { return nullptr; }
  virtual bool HasParent() { return false; }

 protected:
  friend class TFixupList;
  friend class TLoad;
  friend class TOwnedComponents;
  friend class TReader;
  friend class TUndoLog;
  friend class TWriter;

  /// `owner` may be null.
  explicit TComponent(TComponent* owner = nullptr);

  void Construct() override;
  void BeforeDestruction() override;
  void Destruct() override;
  void DefineProperties(TFiler& filer) override;
  TPersistent* GetOwner() override { return FOwner; }

  /// `component` was inserted into, or is leaving, this component or its owner, or was watched and dies. Overrides call
  /// the inherited one, which passes the notification to all owned components.
  virtual void Notification(TComponent* component, TOperation operation);
  /// Everything read from the stream is in place; references too.
  virtual void Loaded() { FComponentState.Exclude(csLoading); }
  /// In a designer, a descendant form is about to be read over this inherited component.
  virtual void Updating() { FComponentState.Include(csUpdating); }
  /// The end of Updating(): its properties and references are in place, or the load has failed.
  virtual void Updated() { FComponentState.Exclude(csUpdating); }
  virtual void ReadState(class TReader& reader);
  virtual void WriteState(class TWriter& writer);
  /// Calls `proc` for each child to be streamed below this component, in order. `root` is the form being streamed.
  virtual void GetChildren(const TGetChildProc& proc, TComponent* root);
  /// The owner that children read from a stream get; null for the root.
  virtual TComponent* GetChildOwner() { return nullptr; }
  virtual TComponent* GetChildParent() { return this; }
  virtual void SetChildOrder(TComponent*, int) {}
  virtual void SetParentComponent(TComponent*) {}
  virtual void SetAncestor(bool value);
  void SetDesigning(bool value, bool setChildren = true);
  void SetInline(bool value) { FComponentState.Put(csInline, value); }
  void SetDesignInstance(bool value) { FComponentState.Put(csDesignInstance, value); }
  /// Raises when `component`, one of this owner's, must not be renamed from `current` to `wanted`.
  virtual void ValidateRename(TComponent* component, const QString& current, const QString& wanted);
  virtual void ValidateContainer(TComponent* container);
  virtual void ValidateInsert(TComponent*) {}
  void ChangeName(const QString& value);
  /// Whether the class overrides Notification(); TInstance knows.
  void SetHearsNotifications(bool value) { FHearsNotifications = value; }

  TComponentState FComponentState;
  TComponentStyle FComponentStyle = {csInheritable};

 private:
  /// True when Notification() would do something here or further down.
  bool HearsNotifications() const { return FHearsNotifications || FOwned; }
  /// The only one of the owned that passes notifications on, if it does nothing else with them.
  TComponent* OnlyDeafListener();
  TOwnedComponents& EnsureOwned();
  void Forget(TComponent* component);
  void DestroyLast();
  void DestroyFromLeaves();
  /// Calls `enter` for this component and all below it, owners first; where it answers false it does not go below.
  template <class F>
  void Walk(F enter);
  void TellWatchers();
  void RemoveWatcher(TComponent* component);

  TComponent* FOwner = nullptr;
  /// Handed over by the constructor; Construct() inserts.
  TComponent* FNewOwner;
  QString FName;
  int FTag = 0;
  qint32 FDesignInfo = 0;
  bool FHearsNotifications = true;
  std::unique_ptr<TOwnedComponents> FOwned;
  std::vector<TComponent*> FFreeNotifies;
};

}  // namespace kt
