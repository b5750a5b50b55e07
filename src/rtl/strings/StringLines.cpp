#include "kt/rtl/strings/StringLines.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace kt {

// Lines are moved as plain memory.
static_assert(QTypeInfo<QString>::isRelocatable);
static_assert(sizeof(QString) % alignof(TObject*) == 0);

namespace {

char* Reallocate(char* block, size_t size) {
  void* result = std::realloc(block, size);
  if (!result) throw std::bad_alloc();
  return static_cast<char*>(result);
}

}  // namespace

void TStringLines::SetCapacity(int capacity) {
  Q_ASSERT(capacity >= FCount);
  if (capacity == Capacity()) return;
  if (capacity == 0) return Clear();
  FBlock = Reallocate(FBlock, static_cast<size_t>(capacity) * Stride());
  FCapacity = static_cast<unsigned>(capacity);
}

void TStringLines::SetObject(int index, TObject* object) {
  if (!FHasObjects && !object) return;
  if (!FHasObjects) AddObjectColumn();
  *ObjectAt(index) = object;
}

void TStringLines::AddObjectColumn() {
  constexpr size_t narrow = sizeof(QString);
  constexpr size_t wide = sizeof(QString) + sizeof(TObject*);
  // Always room for one line: realloc of nothing would free the block.
  FBlock = Reallocate(FBlock, std::max(FCapacity, 1u) * wide);
  FCapacity = std::max(FCapacity, 1u);
  FHasObjects = 1;
  for (int i = FCount - 1; i >= 0; --i) {
    const auto place = static_cast<size_t>(i);
    std::memmove(FBlock + place * wide, FBlock + place * narrow, narrow);
    *ObjectAt(i) = nullptr;
  }
}

void TStringLines::Insert(int index, const QString& text, TObject* object) {
  if (object && !FHasObjects) AddObjectColumn();
  if (FCount == Capacity()) SetCapacity(FCount == 0 ? 1 : std::max(4, FCount * 2));
  std::memmove(At(index + 1), At(index), static_cast<size_t>(FCount - index) * Stride());
  new (TextAt(index)) QString(text);
  if (FHasObjects) *ObjectAt(index) = object;
  ++FCount;
}

void TStringLines::Remove(int index) {
  TextAt(index)->~QString();
  --FCount;
  std::memmove(At(index), At(index + 1), static_cast<size_t>(FCount - index) * Stride());
}

void TStringLines::Exchange(int first, int second) {
  std::swap(*TextAt(first), *TextAt(second));
  if (FHasObjects) std::swap(*ObjectAt(first), *ObjectAt(second));
}

void TStringLines::Clear() {
  for (int i = 0; i < FCount; ++i) TextAt(i)->~QString();
  std::free(FBlock);
  FBlock = nullptr;
  FCount = 0;
  FCapacity = 0;
  FHasObjects = 0;
}

void TStringLines::Permute(const std::vector<int>& order) {
  Q_ASSERT(static_cast<int>(order.size()) == FCount);
  if (order.empty()) return;
  char* block = Reallocate(nullptr, FCapacity * Stride());
  char* to = block;
  for (int from : order) {
    std::memcpy(to, At(from), Stride());
    to += Stride();
  }
  std::free(FBlock);
  FBlock = block;
}

}  // namespace kt
