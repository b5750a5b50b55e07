#pragma once

#include <QtGlobal>

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace kt {

/// An ordered sequence of pointers for lists whose elements know their own position.
///
/// Elements lie in slots; the unused slots form one gap that moves to where elements come and go. An element keeps its
/// slot until the gap passes over it, so its index follows from its slot in constant time. The element appended last is
/// kept aside until the next change, because collections append first and move to the wanted place afterwards.
///
/// Cost: inserting, moving and removing take the distance of the place from that of the change before, so a run of
/// changes at either end or anywhere takes constant time each; a change at a random place takes a third of the length
/// on average.
///
/// `T` gives TGapSequence access to a member `int FSlot`, which is the sequence's own: -1 outside.
template <class T>
class TGapSequence {
 public:
  /// Keeps something about the slots, such as sums over them, in step with the sequence.
  class TObserver {
   public:
    virtual ~TObserver() = default;
    /// An element went from one slot to another; -1 stands for no slot: not in the sequence, or kept aside.
    virtual void Moved(T* element, int from, int to) = 0;
    /// Any element may have another slot now.
    virtual void Rearranged() = 0;
  };

  /// Null for nobody. The sequence does not own it.
  void Observe(TObserver* observer) { FObserver = observer; }

  int Count() const { return FCount + (FAside ? 1 : 0); }

  T* At(int index) const {
    Q_ASSERT(index >= 0 && index < Count());
    return index == FCount ? FAside : FSlots[index < FGapStart ? index : index + GapSize()];
  }

  int IndexOf(const T* element) const {
    if (element == FAside) return FCount;
    return element->FSlot < FGapStart ? element->FSlot : element->FSlot - GapSize();
  }

  void Append(T* element) {
    Settle();
    FAside = element;
    element->FSlot = AsideSlot;
  }

  void Remove(T* element) {
    if (element == FAside) {
      FAside = nullptr;
    } else {
      RemoveAt(IndexOf(element));
      if (FObserver) FObserver->Moved(element, element->FSlot, -1);
    }
    element->FSlot = -1;
    if (Count() == 0) Release();
  }

  void Move(int from, int to) {
    if (from == to) return;
    EnsureRoom();
    T* element = At(from);
    if (element == FAside) {
      FAside = nullptr;
    } else {
      Settle();
      EnsureRoom();
      RemoveAt(from);
    }
    InsertAt(to, element);
  }

  /// Brings the elements into another order: element i becomes what element order[i] was. `order` is a permutation of
  /// all indices.
  void Permute(const std::vector<int>& order) {
    Q_ASSERT(static_cast<int>(order.size()) == Count());
    Settle();
    MoveGap(FCount);
    const std::unique_ptr<T*[]> previous = std::exchange(FSlots, std::make_unique_for_overwrite<T*[]>(FCapacity));
    for (int index = 0; index < FCount; ++index) {
      FSlots[index] = previous[order[index]];
      FSlots[index]->FSlot = index;
    }
    if (FObserver) FObserver->Rearranged();
  }

  /// The slots are 0..Capacity()-1, in the order of the elements.
  int Capacity() const { return FCapacity; }
  /// Null for a slot in the gap.
  T* AtSlot(int slot) const { return slot >= FGapStart && slot < FGapStart + GapSize() ? nullptr : FSlots[slot]; }
  /// -1 for an element kept aside, which comes after all slots.
  int SlotOf(const T* element) const { return element->FSlot == AsideSlot ? -1 : element->FSlot; }
  T* Aside() const { return FAside; }

  /// Makes room for `capacity` elements in all.
  void Reserve(int capacity) {
    if (capacity > FCapacity) Grow(capacity);
  }

  /// Bytes held besides this object.
  size_t HeapSize() const { return sizeof(T*) * static_cast<size_t>(FCapacity); }

 private:
  static constexpr int AsideSlot = std::numeric_limits<int>::max();

  int GapSize() const { return FCapacity - FCount; }

  void Settle() {
    if (!FAside) return;
    EnsureRoom();
    InsertAt(FCount, std::exchange(FAside, nullptr));
  }

  /// The only place that can fail, before anything has changed.
  void EnsureRoom() {
    if (FCount == FCapacity) Grow(FCapacity < 4 ? 4 : FCapacity * 2);
  }

  void InsertAt(int index, T* element) {
    MoveGap(index);
    Put(FGapStart, element);
    ++FGapStart;
    ++FCount;
  }

  void RemoveAt(int index) {
    // Next to either side of the gap, removing only widens it.
    if (index + 1 == FGapStart) {
      --FGapStart;
    } else {
      MoveGap(index);
    }
    --FCount;
  }

  void MoveGap(int index) {
    const int gap = GapSize();
    for (; FGapStart > index; --FGapStart) Put(FGapStart - 1 + gap, FSlots[FGapStart - 1]);
    for (; FGapStart < index; ++FGapStart) Put(FGapStart, FSlots[FGapStart + gap]);
  }

  void Put(int slot, T* element) {
    const int from = SlotOf(element);
    FSlots[slot] = element;
    element->FSlot = slot;
    if (FObserver) FObserver->Moved(element, from, slot);
  }

  void Grow(int capacity) {
    std::unique_ptr<T*[]> previous = std::exchange(FSlots, std::make_unique_for_overwrite<T*[]>(capacity));
    std::copy_n(previous.get(), FGapStart, FSlots.get());
    const int shift = capacity - FCapacity;
    for (int slot = FGapStart + GapSize(); slot < FCapacity; ++slot) {
      FSlots[slot + shift] = previous[slot];
      FSlots[slot + shift]->FSlot = slot + shift;
    }
    FCapacity = capacity;
    if (FObserver) FObserver->Rearranged();
  }

  void Release() {
    FSlots.reset();
    FCapacity = 0;
    FGapStart = 0;
    if (FObserver) FObserver->Rearranged();
  }

  std::unique_ptr<T*[]> FSlots;
  T* FAside = nullptr;
  TObserver* FObserver = nullptr;
  int FCapacity = 0;
  /// Without the element kept aside.
  int FCount = 0;
  int FGapStart = 0;
};

}  // namespace kt
