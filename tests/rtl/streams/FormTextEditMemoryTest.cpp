// How much memory changing a form takes: a constant times the size of the form, however many objects it has.
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormTextEdit.h"
#include "support/AllocationWatch.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace {

using kt::tests::TAllocationWatch;

/// A form of so many items, with these properties each.
QByteArray FormWithItems(int count, const QByteArray& properties) {
  const QByteArray item = "\n    item" + properties + "\n    end";
  return "object L: TList\n  Left = 1\n  Items = <" + item.repeated(count) + ">\nend\n";
}

QByteArray BinaryOf(const QByteArray& text) {
  QByteArray binary;
  kt::ObjectTextToBinary(text, binary);
  return binary;
}

/// The bytes in use while one value of a form changes, for each byte of its text.
double BytesForEachByte(const QByteArray& form) {
  QByteArray changed = form;
  changed.replace("Left = 1", "Left = 2");
  const QByteArray before = BinaryOf(form);
  const QByteArray after = BinaryOf(changed);
  const TAllocationWatch watch;
  EXPECT_EQ(changed, kt::EditFormText(form, before, after, kt::eeWindows1252));
  return double(watch.Peak()) / double(form.size());
}

/// The text three times, once in a buffer that grows, and the result; beside each what stands where in it: 32 bytes for
/// a property of no less than 12, 28 for an item of no less than 17, in tables that grow to double size; and which
/// items belong together.
constexpr double kMost = 24;

class FormTextEditMemoryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!TAllocationWatch::IsPossible()) GTEST_SKIP() << "this C library does not let its allocations be watched";
  }
};

TEST_F(FormTextEditMemoryTest, ManyEmptyItemsTakeAConstantTimesTheForm) {
  EXPECT_GT(kMost, BytesForEachByte(FormWithItems(20'000, {})));
}

TEST_F(FormTextEditMemoryTest, ManyItemsWithPropertiesTakeAConstantTimesTheForm) {
  EXPECT_GT(kMost, BytesForEachByte(FormWithItems(20'000, "\n      A = 1")));
  EXPECT_GT(kMost, BytesForEachByte(FormWithItems(10'000, "\n      A = 1\n      B = 1\n      C = 1\n      D = 1")));
}

TEST_F(FormTextEditMemoryTest, ManyPropertiesOfOneObjectTakeAConstantTimesTheForm) {
  QByteArray properties;
  for (int i = 0; i < 20'000; ++i) properties += "\n      P" + QByteArray::number(i) + " = 1";
  EXPECT_GT(kMost, BytesForEachByte(FormWithItems(1, properties)));
}

}  // namespace
