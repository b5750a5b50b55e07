#include "support/ConversionOracle.h"
#include "support/Corpus.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(ConversionCorpusTest, ConversionsKeepTheirPromises) {
  EXPECT_EQ(QStringList(), tests::BrokenInCorpus("fuzz_conversions", 30, oracle::CheckConversions));
}

}  // namespace
}  // namespace kt
