#pragma once

#include <QPoint>
#include <QString>

#include <random>

namespace kt::tests {

/// Where everything at random comes from: the same seed, the same run.
class TMonkeyDice {
 public:
  explicit TMonkeyDice(unsigned seed) : FRandom(seed) {}

  int Below(int limit) { return static_cast<int>(FRandom() % static_cast<unsigned>(limit)); }
  bool Rarely(int times) { return Below(times) == 0; }
  template <class C>
  auto OneOf(const C& values) {
    return values[static_cast<size_t>(Below(static_cast<int>(std::size(values))))];
  }
  QString AnyName() { return QString(QChar(u'a' + Below(8))); }
  QPoint AnyPlace() { return {Below(340) - 10, Below(260) - 10}; }

 private:
  std::mt19937 FRandom;
};

}  // namespace kt::tests
