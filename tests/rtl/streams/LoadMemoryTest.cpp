// How much memory a form can make a load ask for, at once and in all: a constant times the size of the form.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "support/AllocationWatch.h"
#include "support/Expect.h"
#include "support/HostileForms.h"
#include "support/Samples.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TAllocationWatch;
using tests::TSample;
using tests::hostile::TNamedForm;

/// So many bytes, and so many for each byte of the form.
struct TLimit {
  qint64 Fixed;
  qint64 Times;
};

/// The most that may be asked for at once, and that may be in use at one time.
struct TBound {
  TLimit AtOnce;
  TLimit InUse;
};

/// At once: an error message or a table; a sibling takes 7 bytes of a form and at most a pointer in each table, which
/// grows to double size, a text in 8-bit characters becomes twice as long. In use: an item takes 2 bytes of a form, and
/// is an object with a collection of its own, which stands in its collection and in the list of what was created.
constexpr TBound kLoading = {{4096, 16}, {16 * 1024, 96}};
/// A buffer for output, which grows to double size; an item takes 2 bytes of a form and two lines of text.
constexpr TBound kConverting = {{16 * 1024, 32}, {16 * 1024, 32}};
/// The same where lines are indented as deep as they ever are, by 120 blanks.
constexpr TBound kConvertingDeep = {{16 * 1024, 256}, {16 * 1024, 256}};

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
    if (!TAllocationWatch::IsPossible()) GTEST_SKIP() << "this C library does not let its allocations be watched";
  }

  /// What is beyond the bound: "" when the work keeps to it.
  template <class F>
  static std::string Excess(const TBound& bound, F work) {
    const TAllocationWatch watch;
    try {
      work(GetParam().Form);
    } catch (const Exception&) {
      // An error is an answer too.
    }
    return Beyond(bound.AtOnce, watch.Largest(), " at once ") + Beyond(bound.InUse, watch.Peak(), " in use");
  }
  static std::string Beyond(const TLimit& limit, std::size_t bytes, const char* what) {
    const qint64 most = limit.Fixed + limit.Times * GetParam().Form.size();
    return static_cast<qint64>(bytes) > most ? std::to_string(bytes) + what : std::string();
  }
  static void ToText(const QByteArray& form, int nestingLimit) {
    TFormOptions options;
    options.NestingLimit = nestingLimit;
    QByteArray text;
    ObjectBinaryToText(form, text, options);
  }
  static void Load(const QByteArray& form, TUnknownPolicy policy) {
    TReader reader(form);
    reader.UnknownClasses = policy;
    reader.UnknownProperties = policy;
    const std::unique_ptr<TComponent> root(reader.ReadRootComponent(nullptr));
  }
};

TEST_P(LoadMemoryTest, LoadingStaysWithinAConstantTimesTheForm) {
  EXPECT_EQ("", Excess(kLoading, [](const QByteArray& form) { Load(form, upRaise); }));
  EXPECT_EQ("", Excess(kLoading, [](const QByteArray& form) { Load(form, upSkip); }));
  EXPECT_EQ("", Excess(kLoading, [](const QByteArray& form) { Load(form, upKeep); }));
}

TEST_P(LoadMemoryTest, ConvertingAShallowBinaryStaysWithinAConstantTimesTheForm) {
  EXPECT_EQ("", Excess(kConverting, [](const QByteArray& form) { ToText(form, 8); }));
}

TEST_P(LoadMemoryTest, ConvertingABinaryOfAnyDepthStaysWithinAConstantTimesTheForm) {
  EXPECT_EQ("", Excess(kConvertingDeep, [](const QByteArray& form) { ToText(form, kDefaultNestingLimit); }));
}

TEST_P(LoadMemoryTest, ParsingTextStaysWithinAConstantTimesTheForm) {
  const auto toBinary = [](const QByteArray& form) {
    QByteArray binary;
    ObjectTextToBinary(form, binary);
  };
  EXPECT_EQ("", Excess(kConverting, toBinary));
}

INSTANTIATE_TEST_SUITE_P(Forms, LoadMemoryTest, ::testing::ValuesIn(Forms()));

TEST(AllocationWatchTest, RequestsOfEveryKindAreSeen) {
  const TAllocationWatch watch;
  const QByteArray bytes(10'000, 'x');
  const std::size_t afterBytes = watch.Largest();
  const QString text(20'000, u'x');
  const std::size_t afterText = watch.Largest();
  const std::vector<char> block(50'000);
  // Looked at, so that the optimizer leaves it in.
  EXPECT_EQ(0, *static_cast<const volatile char*>(block.data()));
  const std::size_t least = TAllocationWatch::IsPossible() ? 1 : 0;
  EXPECT_LE(10'000 * least, afterBytes);
  EXPECT_LE(40'000 * least, afterText);
  EXPECT_LE(50'000 * least, watch.Largest());
  EXPECT_GT(100'000u, watch.Largest());
  EXPECT_LE(100'000 * least, watch.Peak());
  EXPECT_GT(110'000u, watch.Peak());
}

TEST(AllocationWatchTest, WhatIsGivenBackIsNotInUseAnyMore) {
  const TAllocationWatch watch;
  for (int i = 0; i < 10; ++i) {
    QByteArray bytes(10'000, 'x');
    bytes.resize(30'000);
  }
  const std::size_t least = TAllocationWatch::IsPossible() ? 1 : 0;
  EXPECT_LE(30'000 * least, watch.Peak());
  EXPECT_GT(50'000u, watch.Peak());
}

}  // namespace
}  // namespace kt
