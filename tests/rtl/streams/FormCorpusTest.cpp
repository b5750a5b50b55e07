#include "support/FormOracle.h"
#include "support/FormTesting.h"
#include "support/LiveOracle.h"

#include <QDir>

namespace kt {
namespace {

using namespace kt::testing;

/// What breaks when each file of the corpus goes through `check`; a broken promise comes as its text.
template <typename TCheck>
QStringList Broken(const QString& corpus, TCheck check) {
  const QDir folder(QStringLiteral(KT_SOURCE_DIR "/fuzz/corpus/") + corpus);
  const QStringList names = folder.entryList(QDir::Files);
  QStringList broken;
  if (names.size() < 15) broken += QStringLiteral("files are missing");
  for (const QString& name : names) {
    try {
      check(FileContent(folder.filePath(name)));
    } catch (const std::exception& error) {
      broken += name + QStringLiteral(": ") + QString::fromUtf8(error.what());
    }
  }
  return broken;
}

TEST(FormCorpusTest, TheTextParserKeepsItsPromises) {
  EXPECT_EQ(QStringList(), Broken(QStringLiteral("fuzz_text_parser"), oracle::CheckTextForm));
}

TEST(FormCorpusTest, TheBinaryReaderKeepsItsPromises) {
  EXPECT_EQ(QStringList(), Broken(QStringLiteral("fuzz_binary_reader"), oracle::CheckBinaryForm));
}

TEST(FormCorpusTest, LoadingIntoObjectsKeepsItsPromises) {
  const auto check = [](const QByteArray& form) { oracle::CheckLiveLoad(form); };
  EXPECT_EQ(QStringList(), Broken(QStringLiteral("fuzz_live_load"), check));
  EXPECT_EQ(QStringList(), Broken(QStringLiteral("fuzz_binary_reader"), check));
}

}  // namespace
}  // namespace kt
