#pragma once

#include <QEvent>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>

#include <vector>

namespace kt {

class TQObjectComponent;

/// The components of objects of Qt's, one for each: makes them, has them follow the tree of the objects, and destroys
/// them with their objects, and before these move to another thread.
///
/// Sees every event of each such object; what is not about the tree or a property costs one look at its type.
class TQObjectRegistry final : public QObject {
 public:
  /// The component of a complete object, made with those of all that it belongs to and of all below. Null for what is
  /// left of an object whose destruction has been told.
  TQObjectComponent* ComponentFor(QObject& object);
  /// Null when there is none.
  TQObjectComponent* FindComponent(const QObject* object) const { return FComponents.value(object); }
  /// A component is being destroyed.
  void Forget(TQObjectComponent& component);
  /// Does at once what waits for the event queue.
  void Settle();
  void SettleObject(const QObject* object);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend TQObjectRegistry& QObjectRegistry();
  TQObjectRegistry() = default;

  QObject& TopWithoutComponent(QObject& object);
  QObject* ParentToFollow(const QObject& object);
  bool IsLeftover(QObject& object);
  static bool IsDying(QObject& object);
  void AddTrees(const std::vector<QPointer<QObject>>& tops);
  void AddOne(QObject& object);
  void FollowParent(QObject& object);
  void FollowChildren(const QObject& object);
  void ObjectDestroyed(QObject* object);
  void NameChanged();
  void ChildRemoved(QObject* child);
  void ObjectLeaves(QObject& object);
  void SettleLater();

  QHash<const QObject*, TQObjectComponent*> FComponents;
  /// Whose destruction has been told: what is left of an object that its children still call their parent.
  QSet<const QObject*> FDying;
  /// Whose children, or whose parent, has changed.
  QSet<const QObject*> FUnsettled;
  bool FIsSettling = false;
};

/// The registry of the user-interface thread; lives as long as the process.
TQObjectRegistry& QObjectRegistry();

}  // namespace kt
