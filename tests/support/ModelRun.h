#pragma once

#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

/// Random tests that can be repeated, and that show the few steps which matter when one fails.
///
/// What is tested, together with its model, is a machine:
///   void Step(quint32 number);   does what the number says; what it says depends on nothing but the present state
///   QString Fault() const;       how the thing differs from its model; empty when it does not
///   QString StepText() const;    what the last step did
namespace kt::tests {

/// The random numbers of one step: quick to start, so that every step has its own and any of them can be left out.
class TStepRandom {
 public:
  using result_type = quint32;
  static constexpr result_type min() { return 0; }
  static constexpr result_type max() { return 0xFFFFFFFF; }

  explicit TStepRandom(quint32 number = 0) : FState(number) {}
  /// SplitMix64 (Steele, Lea, Flood: Fast splittable pseudorandom number generators, 2014).
  result_type operator()() {
    quint64 mixed = FState += 0x9E3779B97F4A7C15;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    return static_cast<result_type>((mixed ^ (mixed >> 31)) >> 32);
  }
  /// 0 to limit - 1.
  int Below(int limit) { return static_cast<int>((*this)() % static_cast<quint32>(limit)); }

 private:
  quint64 FState;
};

/// `usual`, or the number in the environment variable KT_MODEL_SEED.
inline quint32 ModelSeed(quint32 usual) {
  bool isNumber = false;
  const uint given = qEnvironmentVariable("KT_MODEL_SEED").toUInt(&isNumber);
  return isNumber ? given : usual;
}

/// Runs machines that `make` makes.
template <class TMake>
class TModelRun {
 public:
  using TSteps = std::vector<quint32>;

  /// Once a fault is found, as many steps more as `shrinkingSteps` may be run to find the few that lead to it.
  TModelRun(quint32 seed, TMake make, qint64 shrinkingSteps = 20'000'000)
      : FSeed(seed), FMake(std::move(make)), FShrinkingSteps(shrinkingSteps) {}

  /// Runs so many random steps; after the first fault the test fails, with the seed and the steps that are needed for
  /// it. Answers the machine.
  auto Run(int count) {
    const TSteps steps = RandomSteps(count);
    auto machine = FMake();
    for (size_t i = 0; i < steps.size(); ++i) {
      machine->Step(steps[i]);
      if (machine->Fault().isEmpty()) continue;
      ADD_FAILURE() << Report(Shrunk(TSteps(steps.begin(), steps.begin() + static_cast<int>(i) + 1))).toStdString();
      break;
    }
    return machine;
  }

  TSteps RandomSteps(int count) const {
    TSteps steps(static_cast<size_t>(count));
    std::mt19937 random(FSeed);
    std::generate(steps.begin(), steps.end(), [&] { return static_cast<quint32>(random()); });
    return steps;
  }

  /// As few of the steps as still lead to a fault: leaves out half of them, then quarters, down to single ones.
  TSteps Shrunk(TSteps steps) {
    FLeft = FShrinkingSteps;
    for (size_t piece = std::max<size_t>(steps.size() / 2, 1); FLeft > 0; piece = std::max<size_t>(piece / 2, 1)) {
      const bool isShorter = DropPieces(steps, piece);
      if (piece == 1 && !isShorter) break;
    }
    return steps;
  }

  QString Report(const TSteps& steps) {
    QString text = QStringLiteral("KT_MODEL_SEED=%1, %2 steps:\n").arg(FSeed).arg(steps.size());
    auto machine = FMake();
    for (const quint32 step : steps) {
      machine->Step(step);
      text += QStringLiteral("  ") + machine->StepText() + u'\n';
    }
    return text + machine->Fault();
  }

 private:
  /// True when a piece could be left out.
  bool DropPieces(TSteps& steps, size_t piece) {
    bool isShorter = false;
    for (size_t at = 0; at < steps.size() && FLeft > 0;) {
      TSteps fewer(steps.begin(), steps.begin() + static_cast<qptrdiff>(at));
      fewer.insert(fewer.end(), steps.begin() + static_cast<qptrdiff>(std::min(at + piece, steps.size())), steps.end());
      if (CutAtFault(fewer)) {
        steps = fewer;
        isShorter = true;
      } else {
        at += piece;
      }
    }
    return isShorter;
  }

  /// Takes away what comes after the first fault; false when there is none.
  bool CutAtFault(TSteps& steps) {
    auto machine = FMake();
    for (size_t i = 0; i < steps.size(); ++i, --FLeft) {
      machine->Step(steps[i]);
      if (machine->Fault().isEmpty()) continue;
      steps.resize(i + 1);
      return true;
    }
    return false;
  }

  quint32 FSeed;
  TMake FMake;
  qint64 FShrinkingSteps;
  /// Steps that shrinking may still take.
  qint64 FLeft = 0;
};

}  // namespace kt::tests
