#include "kt/vcl/grids/SparseSizes.h"

#include <algorithm>

namespace kt {

void TSparseSizes::SetUsual(int value) {
  FUsual = value;
  FExceptions.clear();
}

void TSparseSizes::ChangeUsual(int value) {
  FUsual = value;
  std::erase_if(FExceptions, [value](const TException& exception) { return exception.Value == value; });
}

std::vector<TSparseSizes::TException>::const_iterator TSparseSizes::Find(int index) const {
  return std::lower_bound(FExceptions.begin(), FExceptions.end(), index,
                          [](const TException& exception, int wanted) { return exception.Index < wanted; });
}

int TSparseSizes::Get(int index) const {
  if (FExceptions.empty()) return FUsual;
  const auto found = Find(index);
  return found != FExceptions.end() && found->Index == index ? found->Value : FUsual;
}

void TSparseSizes::Set(int index, int value) {
  const auto found = FExceptions.begin() + (Find(index) - FExceptions.cbegin());
  const bool exists = found != FExceptions.end() && found->Index == index;
  if (value == FUsual) {
    if (exists) FExceptions.erase(found);
  } else if (exists) {
    found->Value = value;
  } else {
    FExceptions.insert(found, {index, value});
  }
}

void TSparseSizes::Truncate(int count) { FExceptions.erase(Find(count), FExceptions.cend()); }

void TSparseSizes::Move(int from, int to) {
  const int moved = Get(from);
  Set(from, FUsual);
  const int first = std::min(from, to);
  const int last = std::max(from, to);
  const int shift = from < to ? -1 : 1;
  for (TException& exception : FExceptions) {
    if (exception.Index >= first && exception.Index <= last) exception.Index += shift;
  }
  Set(to, moved);
}

qint64 TSparseSizes::Sum(int first, int last, int extra) const {
  if (last < first) return 0;
  const auto size = [extra](int value) -> qint64 { return value < 0 ? 0 : qint64{value} + extra; };
  qint64 sum = (qint64{last} - first + 1) * size(FUsual);
  for (auto it = Find(first); it != FExceptions.end() && it->Index <= last; ++it) sum += size(it->Value) - size(FUsual);
  return sum;
}

}  // namespace kt
