#include "support/Corpus.h"
#include "support/Expect.h"
#include "support/PropPathOracle.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(PropPathCorpusTest, PathsKeepTheirPromises) {
  EXPECT_EQ(QStringList(), tests::BrokenInCorpus("fuzz_prop_path", 30, oracle::CheckPropPath));
}

}  // namespace
}  // namespace kt
