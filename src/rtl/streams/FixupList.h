#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kt {

class TComponent;
class TPersistent;
class TPropInfo;

/// A reference to a component that is known by name only.
struct TFixup {
  /// Null when one of the objects was destroyed while the reference was being set.
  TPersistent* Instance;
  const TPropInfo* Property;
  /// The form, or nested form, that the name is relative to; the forms around it come next.
  TComponent* Root;
  /// "Button1", or "DataModule1.Table1" for a component of another form, or names joined by dots for nested ones.
  QString Name;
  /// Where the property was found, for messages and for keeping what cannot be set: an object and a path from there.
  TPersistent* PathStart;
  QString Path;
  /// The policy was to keep: the reference becomes unknown data when its target is a stand-in, and is written back
  /// while it waits.
  bool IsKept;
  /// Where the name begins in its stream; errors show it, unless it is negative.
  qint64 Offset = 0;
  /// The component that holds the reference, which has csFixups while it waits in a TFixupList; set by that.
  TComponent* Holder = nullptr;
};

/// References that wait, in the order they came. Finding and removing those of an object takes time in proportion to
/// their number, whatever else waits.
class TFixupList {
 public:
  /// Numbers rise in the order of Add() and are never used again.
  using TNumber = quint64;

  /// A failed allocation leaves the list as it was.
  void Add(TFixup fixup);
  size_t Count() const { return FFixups.size(); }
  /// The number that the next reference gets.
  TNumber NextNumber() const { return FNext; }
  /// The first reference from `number` on with its number, or null.
  const std::pair<const TNumber, TFixup>* From(TNumber number) const;
  void Remove(TNumber number);
  /// Removes the references that an object holds, that were found from it on, or that are relative to it.
  void RemoveAllOf(const TPersistent* object);
  /// What a property of an object waits for, or null.
  const TFixup* Find(const TPersistent* instance, const TPropInfo* property) const;
  /// What the references that are relative to a root wait for.
  QStringList NamesOf(const TPersistent* root) const;

 private:
  /// Numbers of references that are gone may stay until the object goes.
  using TIndex = std::unordered_map<const TPersistent*, std::vector<TNumber>>;

  std::map<TNumber, TFixup> FFixups;
  TNumber FNext = 0;
  TIndex FByInstance;
  /// Also by root, by start of the path and by holder.
  TIndex FByObject;
  std::unordered_map<const TComponent*, size_t> FCountOfHolder;
};

}  // namespace kt
