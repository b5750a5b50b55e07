#include "support/Corpus.h"
#include "support/FormOracle.h"
#include "support/FormTesting.h"
#include "support/LiveOracle.h"

namespace kt {
namespace {

using tests::BrokenInCorpus;

TEST(FormCorpusTest, TheTextParserKeepsItsPromises) {
  EXPECT_EQ(QStringList(), BrokenInCorpus("fuzz_text_parser", 15, oracle::CheckTextForm));
}

TEST(FormCorpusTest, TheBinaryReaderKeepsItsPromises) {
  EXPECT_EQ(QStringList(), BrokenInCorpus("fuzz_binary_reader", 15, oracle::CheckBinaryForm));
}

TEST(FormCorpusTest, LoadingIntoObjectsKeepsItsPromises) {
  const auto check = [](const QByteArray& form) { oracle::CheckLiveLoad(form); };
  EXPECT_EQ(QStringList(), BrokenInCorpus("fuzz_live_load", 15, check));
  EXPECT_EQ(QStringList(), BrokenInCorpus("fuzz_binary_reader", 15, check));
}

}  // namespace
}  // namespace kt
