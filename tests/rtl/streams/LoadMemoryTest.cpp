// How much memory at once a form can make a load ask for: a constant times the size of the form.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "support/Expect.h"
#include "support/HostileForms.h"
#include "support/LargestAllocation.h"
#include "support/Samples.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TLargestAllocation;
using tests::TSample;
using tests::hostile::TNamedForm;

/// The most that may be asked for at once: so many bytes, and so many for each byte of the form.
struct TBound {
  qint64 Fixed;
  qint64 Times;
};

/// An error message or a table; a sibling takes 7 bytes of a form and at most a pointer in each table, which grows to
/// double size, a text in 8-bit characters becomes twice as long.
constexpr TBound kLoading = {4096, 16};
/// A buffer for output, which grows to double size; an item takes 2 bytes of a form and two lines of text.
constexpr TBound kConverting = {16 * 1024, 32};

/// Hostile forms, and the seeds of the fuzz targets.
std::vector<TNamedForm> Forms() {
  std::vector<TNamedForm> forms = tests::hostile::All();
  for (const char* corpus : {"fuzz_binary_reader", "fuzz_live_load", "fuzz_text_parser"}) {
    const QDir folder(QStringLiteral(KT_SOURCE_DIR "/fuzz/corpus/") + QLatin1StringView(corpus));
    for (const QString& name : folder.entryList(QDir::Files)) {
      QFile file(folder.filePath(name));
      if (file.open(QIODevice::ReadOnly)) forms.push_back({corpus, file.readAll()});
    }
  }
  return forms;
}

class LoadMemoryTest : public ::testing::TestWithParam<TNamedForm> {
 protected:
  LoadMemoryTest() {
    RegisterClasses({TSample::Class(), TComponent::Class()});
    // What is made once and kept, class descriptions for example, is made here.
    TReader(tests::hostile::WithItems(1)).ReadRoot<TSample>();
  }
  ~LoadMemoryTest() override { UnRegisterClasses({TSample::Class(), TComponent::Class()}); }

  void SetUp() override {
    if (!TLargestAllocation::IsPossible()) GTEST_SKIP() << "this C library does not let its allocations be watched";
  }

  /// How far the largest request goes beyond the bound; 0 when it keeps to it.
  template <class F>
  static qint64 Excess(TBound bound, F work) {
    const TLargestAllocation largest;
    try {
      work(GetParam().Form);
    } catch (const Exception&) {
      // An error is an answer too.
    }
    return std::max<qint64>(0,
                            static_cast<qint64>(largest.Bytes()) - bound.Fixed - bound.Times * GetParam().Form.size());
  }
  static void Load(const QByteArray& form, TUnknownPolicy policy) {
    TReader reader(form);
    reader.UnknownClasses = policy;
    reader.UnknownProperties = policy;
    const std::unique_ptr<TComponent> root(reader.ReadRootComponent(nullptr));
  }
};

TEST_P(LoadMemoryTest, LoadingStaysWithinAConstantTimesTheForm) {
  EXPECT_EQ(0, Excess(kLoading, [](const QByteArray& form) { Load(form, upRaise); }));
  EXPECT_EQ(0, Excess(kLoading, [](const QByteArray& form) { Load(form, upSkip); }));
  EXPECT_EQ(0, Excess(kLoading, [](const QByteArray& form) { Load(form, upKeep); }));
}

TEST_P(LoadMemoryTest, ConvertingBinaryStaysWithinAConstantTimesTheForm) {
  const auto toText = [](const QByteArray& form) {
    TFormOptions options;
    options.NestingLimit = 8;  // Each level indents each line.
    QByteArray text;
    ObjectBinaryToText(form, text, options);
  };
  EXPECT_EQ(0, Excess(kConverting, toText));
}

TEST_P(LoadMemoryTest, ParsingTextStaysWithinAConstantTimesTheForm) {
  const auto toBinary = [](const QByteArray& form) {
    QByteArray binary;
    ObjectTextToBinary(form, binary);
  };
  EXPECT_EQ(0, Excess(kConverting, toBinary));
}

INSTANTIATE_TEST_SUITE_P(Forms, LoadMemoryTest, ::testing::ValuesIn(Forms()));

TEST(LargestAllocationTest, RequestsOfEveryKindAreSeen) {
  const TLargestAllocation largest;
  const QByteArray bytes(10'000, 'x');
  const std::size_t afterBytes = largest.Bytes();
  const QString text(20'000, u'x');
  const std::size_t afterText = largest.Bytes();
  const std::vector<char> block(50'000);
  // Looked at, so that the optimizer leaves it in.
  EXPECT_EQ(0, *static_cast<const volatile char*>(block.data()));
  const std::size_t least = TLargestAllocation::IsPossible() ? 1 : 0;
  EXPECT_LE(10'000 * least, afterBytes);
  EXPECT_LE(40'000 * least, afterText);
  EXPECT_LE(50'000 * least, largest.Bytes());
  EXPECT_GT(100'000u, largest.Bytes());
}

}  // namespace
}  // namespace kt
