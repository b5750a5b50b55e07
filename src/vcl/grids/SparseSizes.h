#pragma once

#include <QtGlobal>

#include <vector>

namespace kt {

/// One number for each index, nearly all of them the same: the widths of columns, the heights of rows. Only the
/// exceptions take memory and time, k below: a million usual rows cost nothing.
///
/// Reading takes O(log k). Writing takes O(log k) at the end of the exceptions and O(k) before it.
class TSparseSizes {
 public:
  explicit TSparseSizes(int usual) : FUsual(usual) {}

  int GetUsual() const { return FUsual; }
  /// Sets all of them: the exceptions are forgotten.
  void SetUsual(int value);
  /// Keeps the exceptions, but for those of that very value.
  void ChangeUsual(int value);
  int Get(int index) const;
  void Set(int index, int value);
  bool HasExceptions() const { return !FExceptions.empty(); }

  /// Forgets the exceptions from `count` on.
  void Truncate(int count);
  /// Takes the number of `from` out and puts it in at `to`; those between move up or down by one.
  void Move(int from, int to);
  /// The sum over `first` to `last`, both included, each number enlarged by `extra`. Numbers below 0 count as 0 and are
  /// not enlarged. O(k).
  qint64 Sum(int first, int last, int extra = 0) const;

 private:
  struct TException {
    int Index;
    int Value;
  };
  std::vector<TException>::const_iterator Find(int index) const;

  int FUsual;
  /// By ascending index; each differs from FUsual.
  std::vector<TException> FExceptions;
};

}  // namespace kt
