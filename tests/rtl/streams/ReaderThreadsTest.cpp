#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/IntegerConsts.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "support/InThreads.h"
#include "support/Samples.h"

#include <atomic>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::InThreads;
using tests::SampleColorTypeInfo;
using tests::TSample;

constexpr char kThreadForm[] = R"(object Form1: TSample
  Whole = 7
  Color = 255
  Partner = Other1
  Items = <
    item
      Caption = 'x'
    end>
  OnAction = HandleAction
  object Other1: TSample
    Sibling = Form1
    Foreign = 1
  end
  object Alien1: TAlien
    Left = 1
  end
end
)";

/// What a form looks like after it was loaded and saved.
QByteArray LoadedAndSaved(const QByteArray& binary) {
  TReader reader(binary);
  reader.UnknownClasses = reader.UnknownProperties = upKeep;
  const std::unique_ptr<TComponent> form(reader.ReadRootComponent(nullptr));
  return WriteComponentToBinary(form.get());
}

TEST(ReaderThreadsTest, SeveralThreadsLoadAndSaveFormsOfTheirOwn) {
  constexpr int threads = 4, turns = 40;
  RegisterClass(TSample::Class());
  QByteArray binary;
  ObjectTextToBinary(kThreadForm, binary);
  const QByteArray expected = LoadedAndSaved(binary);
  std::atomic<int> good = 0;
  InThreads(threads, [&](int) {
    for (int i = 0; i < turns; ++i) good += LoadedAndSaved(binary) == expected;
  });
  UnRegisterClass(TSample::Class());
  EXPECT_EQ(threads * turns, good);
}

TEST(ReaderThreadsTest, NamesOfAnIntegerTypeMayChangeWhileOthersUseThem) {
  constexpr int threads = 4, turns = 200;
  std::atomic<int> good = 0;
  InThreads(threads, [&](int number) {
    const QString own = QString::number(number);
    for (int i = 0; i < turns; ++i) {
      RegisterIntegerConsts(SampleColorTypeInfo(),
                            {[](QStringView) { return std::optional<qint64>(7); }, [own](qint64) { return own; }});
      const auto names = FindIntegerConsts(SampleColorTypeInfo());
      good += names && names->IntToIdent(7).size() == 1 && names->IdentToInt(u"any") == 7;
    }
  });
  UnRegisterIntegerConsts(SampleColorTypeInfo());
  EXPECT_EQ(threads * turns, good);
}

}  // namespace
}  // namespace kt
