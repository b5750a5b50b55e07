#pragma once

#include <QtGlobal>

#include <cstddef>
#include <functional>
#include <vector>

namespace kt {

/// Which elements of two sequences belong together.
struct TSequencePairs {
  TSequencePairs(std::size_t leftSize, std::size_t rightSize);

  void Pair(quint32 left, quint32 right);
  bool IsLeftPaired(quint32 left) const;
  bool IsRightPaired(quint32 right) const;

  /// For each element the one on the other side; kNoPlace where it has none.
  std::vector<quint32> RightOf;
  std::vector<quint32> LeftOf;
};

/// Pairs elements with the same number: from the front, from the end, then the first of a number that is left over with
/// the first on the other side and so on.
TSequencePairs PairEqual(const std::vector<quint64>& left, const std::vector<quint64>& right);

/// Pairs, in their order, elements that are alone and stand in both sequences behind the same pair, or at the front, as
/// far as `fits` takes them.
void PairNeighbours(TSequencePairs& pairs, const std::function<bool(quint32 left, quint32 right)>& fits);

/// Marks the elements of a longest subsequence that rises; there may be several such.
std::vector<bool> LongestRise(const std::vector<quint32>& values);

}  // namespace kt
