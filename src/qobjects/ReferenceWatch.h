#pragma once

#include "kt/rtl/objects/Component.h"

#include <unordered_map>

class QObject;

namespace kt {

class TValueHolder;
struct TValueMember;

/// Remembers which objects the members of a holder pointed to when they were read last, and has those members read
/// again when one is destroyed. A pointer that its owner has left as it was is known to lead nowhere then, until the
/// member changes.
class TReferenceWatch : public TComponent {
 public:
  using Inherited = TComponent;

  /// `object`, which lives in this thread, is what the member points to.
  void Follow(const TValueMember& member, QObject& object);
  /// Whether the object that lived there when the member was read is gone.
  bool IsGone(const TValueMember& member, const QObject* object) const;
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
    bool IsGone = false;
  };

  bool IsFollowed(const TComponent& component) const;

  TValueHolder& FHolder;
  std::unordered_map<const TValueMember*, TTarget> FTargets;
};

}  // namespace kt
