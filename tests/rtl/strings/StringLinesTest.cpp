#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringLines.h"

#include <gtest/gtest.h>
#include <string>

namespace kt {
namespace {

class StringLinesTest : public testing::Test {
 protected:
  /// Lines as "a b* c", where * stands for an object.
  std::string Shown() const {
    QString text;
    for (int i = 0; i < FLines.Count(); ++i) {
      if (i > 0) text += u' ';
      text += FLines.Text(i);
      if (FLines.Object(i)) text += u'*';
    }
    return text.toStdString();
  }
  void Fill(const char* letters) {
    for (const char* letter = letters; *letter; ++letter)
      FLines.Insert(FLines.Count(), QString(QChar(*letter)), nullptr);
  }

  TStringLines FLines;
  std::unique_ptr<TObject> FObject = Make<TObject>();
};

TEST_F(StringLinesTest, AnEmptyListHoldsNoMemory) {
  EXPECT_EQ(0, FLines.Count());
  EXPECT_EQ(0, FLines.Capacity());
  EXPECT_EQ(0u, FLines.HeapSize());
}

TEST_F(StringLinesTest, OneLineHasRoomForOneLineOnly) {
  Fill("a");
  EXPECT_EQ(1, FLines.Capacity());
  EXPECT_EQ(sizeof(QString), FLines.HeapSize());
}

TEST_F(StringLinesTest, GrowsInSteps) {
  Fill("ab");
  EXPECT_EQ(4, FLines.Capacity());
  Fill("cde");
  EXPECT_EQ(8, FLines.Capacity());
  EXPECT_EQ("a b c d e", Shown());
}

TEST_F(StringLinesTest, LinesAreInsertedAnywhere) {
  FLines.Insert(0, "b", nullptr);
  FLines.Insert(0, "a", nullptr);
  FLines.Insert(2, "d", nullptr);
  FLines.Insert(2, "c", nullptr);
  EXPECT_EQ("a b c d", Shown());
}

TEST_F(StringLinesTest, ObjectsHaveNoPlaceUntilThereIsOne) {
  Fill("ab");
  FLines.SetObject(0, nullptr);
  EXPECT_EQ(4 * sizeof(QString), FLines.HeapSize());
  FLines.SetObject(1, FObject.get());
  EXPECT_EQ(4 * (sizeof(QString) + sizeof(void*)), FLines.HeapSize());
  EXPECT_EQ("a b*", Shown());
}

TEST_F(StringLinesTest, TheFirstLineMayComeWithAnObject) {
  FLines.Insert(0, "a", FObject.get());
  EXPECT_EQ("a*", Shown());
  EXPECT_EQ(1, FLines.Capacity());
}

TEST_F(StringLinesTest, AnObjectInAFullListWidensIt) {
  Fill("abcd");
  FLines.Insert(2, "x", FObject.get());
  EXPECT_EQ("a b x* c d", Shown());
}

TEST_F(StringLinesTest, ObjectsMoveWithTheirLines) {
  Fill("abc");
  FLines.SetObject(2, FObject.get());
  FLines.Remove(0);
  EXPECT_EQ("b c*", Shown());
  FLines.Insert(0, "x", nullptr);
  EXPECT_EQ("x b c*", Shown());
  FLines.Exchange(0, 2);
  EXPECT_EQ("c* b x", Shown());
  FLines.Permute({2, 0, 1});
  EXPECT_EQ("x c* b", Shown());
}

TEST_F(StringLinesTest, LinesWithoutObjectsArePermuted) {
  Fill("abcd");
  FLines.Permute({3, 1, 0, 2});
  EXPECT_EQ("d b a c", Shown());
  FLines.Exchange(0, 3);
  EXPECT_EQ("c b a d", Shown());
}

TEST_F(StringLinesTest, NoLinesArePermutedToNone) {
  FLines.Permute({});
  EXPECT_EQ(0, FLines.Count());
}

TEST_F(StringLinesTest, CapacityGrowsAndShrinksAroundTheLines) {
  Fill("ab");
  FLines.SetCapacity(10);
  EXPECT_EQ(10, FLines.Capacity());
  FLines.SetCapacity(2);
  EXPECT_EQ(2, FLines.Capacity());
  EXPECT_EQ("a b", Shown());
}

TEST_F(StringLinesTest, RoomIsKeptForAListThatWaitsForItsFirstObject) {
  FLines.SetCapacity(3);
  FLines.Insert(0, "a", FObject.get());
  EXPECT_EQ(3, FLines.Capacity());
  EXPECT_EQ("a*", Shown());
}

TEST_F(StringLinesTest, NoCapacityFreesTheBlock) {
  Fill("a");
  FLines.Remove(0);
  FLines.SetCapacity(0);
  EXPECT_EQ(0u, FLines.HeapSize());
}

TEST_F(StringLinesTest, ClearFreesTheBlockAndForgetsTheObjects) {
  FLines.Insert(0, "a", FObject.get());
  FLines.Clear();
  EXPECT_EQ(0u, FLines.HeapSize());
  Fill("b");
  EXPECT_EQ(sizeof(QString), FLines.HeapSize());
}

TEST_F(StringLinesTest, ALineOfTheListItselfCanBeInserted) {
  Fill("abcd");
  FLines.Insert(0, QString(FLines.Text(3)), nullptr);
  EXPECT_EQ("d a b c d", Shown());
}

}  // namespace
}  // namespace kt
