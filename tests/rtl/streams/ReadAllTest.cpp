#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/ReadAll.h"
#include "kt/rtl/streams/Reader.h"
#include "support/Expect.h"
#include "support/FaultyDevices.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TFaultyDevice;
using tests::TPipe;

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
