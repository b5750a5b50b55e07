#include "kt/rtl/streams/SequencePairs.h"

#include "kt/rtl/streams/FormLayout.h"

#include <QHash>

#include <algorithm>

namespace kt {

TSequencePairs::TSequencePairs(std::size_t leftSize, std::size_t rightSize)
    : RightOf(leftSize, kNoPlace), LeftOf(rightSize, kNoPlace) {}

void TSequencePairs::Pair(quint32 left, quint32 right) {
  RightOf[left] = right;
  LeftOf[right] = left;
}

bool TSequencePairs::IsLeftPaired(quint32 left) const { return RightOf[left] != kNoPlace; }

bool TSequencePairs::IsRightPaired(quint32 right) const { return LeftOf[right] != kNoPlace; }

TSequencePairs PairEqual(const std::vector<quint64>& left, const std::vector<quint64>& right) {
  TSequencePairs pairs(left.size(), right.size());
  quint32 front = 0;
  auto leftEnd = quint32(left.size());
  auto rightEnd = quint32(right.size());
  for (; front < std::min(leftEnd, rightEnd) && left[front] == right[front]; ++front) pairs.Pair(front, front);
  while (leftEnd > front && rightEnd > front && left[leftEnd - 1] == right[rightEnd - 1])
    pairs.Pair(--leftEnd, --rightEnd);

  QHash<quint64, std::vector<quint32>> waiting;
  for (quint32 i = leftEnd; i-- > front;) waiting[left[i]].push_back(i);
  for (quint32 i = front; i < rightEnd; ++i) {
    const auto found = waiting.find(right[i]);
    if (found == waiting.end() || found->empty()) continue;
    pairs.Pair(found->back(), i);
    found->pop_back();
  }
  return pairs;
}

void PairNeighbours(TSequencePairs& pairs, const std::function<bool(quint32, quint32)>& fits) {
  quint32 left = 0;
  for (quint32 right = 0; right < pairs.LeftOf.size(); ++right) {
    if (pairs.IsRightPaired(right)) {
      left = pairs.LeftOf[right] + 1;
    } else if (left < pairs.RightOf.size() && !pairs.IsLeftPaired(left) && fits(left, right)) {
      pairs.Pair(left++, right);
    }
  }
}

std::vector<bool> LongestRise(const std::vector<quint32>& values) {
  // For each length, the place of the smallest value that ends a rise of that length; and what comes before a value.
  std::vector<quint32> ends;
  std::vector<quint32> previous(values.size(), kNoPlace);
  for (quint32 i = 0; i < values.size(); ++i) {
    const auto longer = std::lower_bound(ends.begin(), ends.end(), values[i],
                                         [&values](quint32 end, quint32 value) { return values[end] < value; });
    if (longer != ends.begin()) previous[i] = *(longer - 1);
    if (longer == ends.end()) {
      ends.push_back(i);
    } else {
      *longer = i;
    }
  }
  std::vector<bool> rises(values.size());
  for (quint32 i = ends.empty() ? kNoPlace : ends.back(); i != kNoPlace; i = previous[i]) rises[i] = true;
  return rises;
}

}  // namespace kt
