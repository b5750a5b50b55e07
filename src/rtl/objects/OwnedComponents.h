#pragma once

#include <QHashFunctions>
#include <QString>

#include <unordered_map>
#include <vector>

namespace kt {

class TComponent;

/// The components of one owner, in order, with an index by name so that loading a form with many components stays
/// linear. While an owner destroys them all, the index exists only when somebody asks for a name.
///
/// Each operation is done or, when memory runs out, changes nothing; taking out and going through the listeners never
/// need memory.
class TOwnedComponents {
 public:
  const std::vector<TComponent*>& List() const { return FList; }
  int Count() const { return static_cast<int>(FList.size()); }
  /// Searches from the end, where components come and go most.
  int IndexOf(const TComponent* component) const;
  TComponent* Find(QStringView name) const;

  void Add(TComponent* component, const QString& name);
  void Remove(TComponent* component, const QString& name);
  void Move(int from, int to);
  /// The components that have something to do when they are notified, in the order of the list.
  int ListenerCount() { return static_cast<int>(Listeners().size()); }
  TComponent* Listener(int index) { return Listeners()[index]; }
  /// A component has become a listener.
  void ListenersChanged();

  /// One walk through the list at a time.
  void BeginWalk() { FWalk = 0; }
  /// Null at the end.
  TComponent* NextOfWalk() { return FWalk < FList.size() ? FList[FWalk++] : nullptr; }

  /// All are about to go one by one: the index by name is dropped, and made anew when it is asked for.
  void DropIndex();
  void Renamed(TComponent* component, const QString& from, const QString& to);

 private:
  const std::vector<TComponent*>& Listeners();
  void ForgetListener(const TComponent* component);
  void EnsureIndex() const;
  void IndexName(TComponent* component, const QString& name);
  void ForgetName(TComponent* component, const QString& name);

  std::vector<TComponent*> FList;
  /// By the name in lower case. Not a QHash: that ends the program when memory runs out.
  mutable std::unordered_map<QString, TComponent*> FByName;
  mutable bool FHasEqualNames = false;
  mutable bool FIsIndexed = true;
  /// Has room for the whole list as soon as there is a listener.
  std::vector<TComponent*> FListeners;
  bool FListenersAreKnown = true;
  size_t FWalk = 0;
};

}  // namespace kt
