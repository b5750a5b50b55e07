#pragma once

#include "kt/rtl/objects/Component.h"

#include <QObject>
#include <QPointer>

#include <unordered_map>

namespace kt {

class TValueHolder;
struct TValueMember;

/// Remembers which objects the members of a holder pointed to when they were read last, and has those members read
/// again when one is destroyed. A pointer that its owner has left as it was is known to lead nowhere then, until the
/// member changes.
class TReferenceWatch : public TComponent {
 public:
  using Inherited = TComponent;

  /// `object` is what the member points to. One of another thread is only known to be gone once somebody asks.
  void Follow(const TValueMember& member, QObject& object);
  /// Whether the object that lived there when the member was read is gone.
  bool IsGone(const TValueMember& member, const QObject* object) const;
  /// The member points to nothing, or has been written: what was there is no matter any more.
  void Forget(const TValueMember& member) { FTargets.erase(&member); }
  /// The owner of the pointer has told of a change.
  void Refreshed(const QString& member);

 protected:
  explicit TReferenceWatch(TValueHolder& holder) : FHolder(holder) {}

  void Notification(TComponent* component, TOperation operation) override;

 private:
  struct TTarget {
    /// Null once it is gone.
    TComponent* Component = nullptr;
    const QObject* Address = nullptr;
    /// Knows also what dies in another thread.
    QPointer<QObject> Object;
    bool IsGone = false;
  };

  bool IsFollowed(const TComponent& component) const;

  TValueHolder& FHolder;
  std::unordered_map<const TValueMember*, TTarget> FTargets;
};

}  // namespace kt
