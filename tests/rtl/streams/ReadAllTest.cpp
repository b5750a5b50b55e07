#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/ReadAll.h"
#include "kt/rtl/streams/Reader.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;

/// Gives some bytes, then fails or stops; says that it has more.
class TFaultyDevice : public QIODevice {
 public:
  TFaultyDevice(qint64 good, qint64 answer) : FSize(good + 1000), FGood(good), FAnswer(answer) {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    setErrorString(QStringLiteral("the disk is gone"));
  }
  qint64 size() const override { return FSize; }

 protected:
  qint64 readData(char* bytes, qint64 count) override {
    if (FGood == 0) return FAnswer;
    const qint64 done = std::min<qint64>(count, FGood);
    std::fill_n(bytes, done, 'x');
    FGood -= done;
    return done;
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  qint64 FSize;
  qint64 FGood;
  qint64 FAnswer;
};

/// Tells its end by a failure, as pipes do.
class TPipe : public QIODevice {
 public:
  TPipe() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
  bool isSequential() const override { return true; }

 protected:
  qint64 readData(char* bytes, qint64) override {
    if (FIsDone) return -1;
    FIsDone = true;
    bytes[0] = 'p';
    return 1;
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  bool FIsDone = false;
};

constexpr char kAtStart[] = "Stream read error at offset 0: the disk is gone";
constexpr char kLater[] = "Stream read error at offset 70000: the disk is gone";

TEST(ReadAllTest, ADeviceIsReadFromItsPositionToItsEnd) {
  QByteArray data = QByteArray(200'000, 'a') + 'b';
  QBuffer device(&data);
  device.open(QIODevice::ReadOnly);
  device.seek(199'999);
  EXPECT_EQ("ab", ReadAll(device));
  EXPECT_EQ(QByteArray(), ReadAll(device));
}

TEST(ReadAllTest, ADeviceThatFailsRaisesWithTheOffset) {
  TFaultyDevice atStart(0, -1);
  EXPECT_EQ(QLatin1StringView(kAtStart), MessageOf<EReadError>([&] { ReadAll(atStart); }));
  TFaultyDevice later(70'000, -1);
  EXPECT_EQ(QLatin1StringView(kLater), MessageOf<EReadError>([&] { ReadAll(later); }));
}

TEST(ReadAllTest, ADeviceThatStopsBeforeItsEndRaisesWithTheOffset) {
  TFaultyDevice device(70'000, 0);
  EXPECT_EQ(QLatin1StringView(kLater), MessageOf<EReadError>([&] { ReadAll(device); }));
}

TEST(ReadAllTest, ADeviceThatIsNotOpenRaises) {
  QBuffer device;
  EXPECT_THROW(ReadAll(device), EReadError);
}

TEST(ReadAllTest, ASequentialDeviceMayEndWithAFailure) {
  TPipe pipe;
  EXPECT_EQ("p", ReadAll(pipe));
}

TEST(ReadAllTest, AReaderAndAConversionReadDevicesThatWay) {
  TFaultyDevice first(70'000, -1);
  EXPECT_EQ(QLatin1StringView(kLater), MessageOf<EReadError>([&] { TReader reader(first); }));
  TFaultyDevice second(70'000, -1);
  QBuffer out;
  out.open(QIODevice::WriteOnly);
  EXPECT_EQ(QLatin1StringView(kLater), MessageOf<EReadError>([&] { ObjectTextToBinary(second, out); }));
  EXPECT_EQ(QByteArray(), out.data());
}

}  // namespace
}  // namespace kt
