#pragma once

#include <QString>

#include <cstddef>
#include <vector>

namespace kt {

class TObject;

/// The lines of a string list: texts with an object each, in one block of memory.
///
/// Made for many lists of few lines. An empty one holds no block, the block of a single line has room for one line
/// only, and places for objects exist from the first object that is not null. Objects are not owned. Indices are not
/// checked. Cost: 16 bytes, and 24 bytes a line (32 with objects) beside the text itself.
class TStringLines {
 public:
  TStringLines() = default;
  TStringLines(const TStringLines&) = delete;
  TStringLines& operator=(const TStringLines&) = delete;
  ~TStringLines() { Clear(); }

  int Count() const { return FCount; }
  int Capacity() const { return static_cast<int>(FCapacity); }
  /// Makes room for `capacity` lines in all, not less than Count().
  void SetCapacity(int capacity);

  const QString& Text(int index) const { return *TextAt(index); }
  void SetText(int index, const QString& text) { *TextAt(index) = text; }
  TObject* Object(int index) const { return FHasObjects ? *ObjectAt(index) : nullptr; }
  void SetObject(int index, TObject* object);

  void Insert(int index, const QString& text, TObject* object);
  void Remove(int index);
  void Exchange(int first, int second);
  /// Removes all lines and frees the block.
  void Clear();
  /// Brings the lines into another order: line i becomes what line order[i] was.
  void Permute(const std::vector<int>& order);

  /// Bytes held besides this object and the texts.
  size_t HeapSize() const { return FCapacity * Stride(); }

 private:
  size_t Stride() const { return sizeof(QString) + (FHasObjects ? sizeof(TObject*) : 0); }
  char* At(int index) const { return FBlock + static_cast<size_t>(index) * Stride(); }
  QString* TextAt(int index) const { return reinterpret_cast<QString*>(At(index)); }
  TObject** ObjectAt(int index) const { return reinterpret_cast<TObject**>(At(index) + sizeof(QString)); }
  void AddObjectColumn();

  char* FBlock = nullptr;
  int FCount = 0;
  unsigned FCapacity : 31 = 0;
  unsigned FHasObjects : 1 = 0;
};

}  // namespace kt
