#pragma once

#include <QtGlobal>

#include <unordered_map>

namespace kt {

class TObject;

/// Tells of any number of objects whether they are still there, in constant time each; TLifeWatch is for one. Lives on
/// the stack, in the thread that uses the objects.
class TLifeTable {
 public:
  /// An object as it was known at one time: another one at the same address is not the same.
  struct TLife {
    TObject* Object = nullptr;
    quint64 Number = 0;
  };

  TLifeTable();
  ~TLifeTable();
  TLifeTable(const TLifeTable&) = delete;
  TLifeTable& operator=(const TLifeTable&) = delete;

  /// `object` may be null.
  TLife Watch(TObject* object);
  /// True for null too.
  bool IsAlive(const TLife& life) const;

  /// Tells all tables of this thread that the memory of an object is about to go.
  static void Forget(const TObject* object) noexcept;

 private:
  std::unordered_map<const TObject*, quint64> FAlive;
  quint64 FLast = 0;
  TLifeTable* FOuter;
};

}  // namespace kt
