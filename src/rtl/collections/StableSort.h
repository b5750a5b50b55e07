#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace kt {

namespace Sorting {

/// Merges the ordered neighbours [low, middle) and [middle, high). `buffer` is as long as `items`.
template <class T, class F>
void MergeRuns(std::vector<T>& items, std::vector<T>& buffer, const size_t (&bounds)[3], F& compare) {
  const auto [low, middle, high] = bounds;
  if (compare(items[middle - 1], items[middle]) <= 0) return;
  std::copy(items.begin() + low, items.begin() + middle, buffer.begin());
  const size_t leftCount = middle - low;
  size_t left = 0, right = middle, out = low;
  while (left < leftCount && right < high) {
    const bool takeRight = compare(buffer[left], items[right]) > 0;
    items[out++] = takeRight ? items[right++] : buffer[left++];
  }
  std::copy(buffer.begin() + left, buffer.begin() + leftCount, items.begin() + out);
}

}  // namespace Sorting

/// Sorts by `compare`, which answers a negative number, 0 or a positive one. Equal elements keep their order. A
/// bottom-up merge sort: at most n log n comparisons for every input, n - 1 when the input is in order already. A
/// comparison that contradicts itself gives an undefined order, but never leaves the vector or loses an element. One
/// that throws leaves `items` useless: whoever lets it throw sorts a copy.
template <class T, class F>
void StableSort(std::vector<T>& items, F&& compare) {
  const size_t count = items.size();
  std::vector<T> buffer(count);
  for (size_t width = 1; width < count; width *= 2) {
    for (size_t low = 0; low + width < count; low += 2 * width) {
      Sorting::MergeRuns(items, buffer, {low, low + width, std::min(low + 2 * width, count)}, compare);
    }
  }
}

}  // namespace kt
