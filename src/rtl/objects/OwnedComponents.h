#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace kt {

class TComponent;

/// The components of one owner, in order, with an index by name so that loading a form with many components stays
/// linear.
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
  void Renamed(TComponent* component, const QString& from, const QString& to);

 private:
  void IndexName(TComponent* component, const QString& name);
  void ForgetName(TComponent* component, const QString& name);

  std::vector<TComponent*> FList;
  QHash<QString, TComponent*> FByName;
  bool FHasEqualNames = false;
};

}  // namespace kt
