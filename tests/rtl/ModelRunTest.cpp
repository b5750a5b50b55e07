// The runner of the random tests itself: what it does when a machine has a fault.
#include "support/Expect.h"
#include "support/ModelRun.h"

#include <gtest/gtest.h>
#include <memory>

namespace kt::tests {
namespace {

/// Is at fault when a step that ends in 7 has come after one that ends in 3.
class TFaulty {
 public:
  void Step(quint32 number) {
    FDigit = static_cast<int>(number % 10);
    if (FDigit == 3) FHasThree = true;
    if (FDigit == 7 && FHasThree) FIsAtFault = true;
  }
  QString Fault() const { return FIsAtFault ? QStringLiteral("seven after three") : QString(); }
  QString StepText() const { return QString::number(FDigit); }

 private:
  int FDigit = 0;
  bool FHasThree = false;
  bool FIsAtFault = false;
};

auto FaultyRun(quint32 seed) {
  return TModelRun(seed, [] { return std::make_unique<TFaulty>(); });
}

TEST(ModelRunTest, OneSeedGivesTheSameStepsEveryTime) {
  EXPECT_EQ(FaultyRun(5).RandomSteps(100), FaultyRun(5).RandomSteps(100));
  EXPECT_NE(FaultyRun(5).RandomSteps(100), FaultyRun(6).RandomSteps(100));
}

TEST(ModelRunTest, OnlyTheStepsThatAFaultNeedsAreLeft) {
  auto run = FaultyRun(1);
  const std::vector<quint32> steps = run.Shrunk({1, 2, 17, 4, 13, 5, 23, 6, 8, 27, 9, 37, 3});
  EXPECT_EQ((std::vector<quint32>{23, 27}), steps);
}

TEST(ModelRunTest, AReportTellsSeedStepsAndFault) {
  EXPECT_EQ(QStringLiteral("KT_MODEL_SEED=9, 2 steps:\n  3\n  7\nseven after three"), FaultyRun(9).Report({3, 7}));
}

TEST(ModelRunTest, ThousandsOfStepsShrinkToTwo) {
  auto run = FaultyRun(1);
  EXPECT_EQ(2u, run.Shrunk(run.RandomSteps(5000)).size());
}

TEST(ModelRunTest, TheEnvironmentSaysWhichSeedToTake) {
  const QByteArray before = qgetenv("KT_MODEL_SEED");
  qputenv("KT_MODEL_SEED", "123");
  EXPECT_EQ(123u, ModelSeed(4));
  qputenv("KT_MODEL_SEED", "abc");
  EXPECT_EQ(4u, ModelSeed(4));
  qunsetenv("KT_MODEL_SEED");
  EXPECT_EQ(4u, ModelSeed(4));
  if (!before.isEmpty()) qputenv("KT_MODEL_SEED", before);
}

}  // namespace
}  // namespace kt::tests
