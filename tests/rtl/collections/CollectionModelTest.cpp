// Random operations on two collections, compared after every step with plain vectors of ids.
#include "kt/rtl/collections/Collection.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kt {
namespace {

using tests::TSampleItem;
using tests::TSampleItems;

class TCollectionModel {
 public:
  explicit TCollectionModel(unsigned seed) : FRandom(seed) {}

  void Step() {
    const int side = Pick(2);
    switch (Pick(7)) {
      case 0:
        Add(side);
        break;
      case 1:
        Insert(side, Pick(Size(side) + 1));
        break;
      case 2:
        if (Size(side) > 0) Delete(side, Pick(Size(side)));
        break;
      case 3:
        if (Size(side) > 0) Free(side, Pick(Size(side)));
        break;
      case 4:
        if (Size(side) > 0) Move(side, Pick(Size(side)), Pick(Size(side)));
        break;
      case 5:
        if (Size(side) > 0) MoveAcross(side, Pick(Size(side)));
        break;
      default:
        if (Pick(200) == 0) Clear(side);
    }
  }

  /// The tags of a side as the collection has them, with each item's own index checked on the way.
  std::vector<int> Actual(int side) const {
    std::vector<int> tags;
    for (int i = 0; i < FCollections[side]->GetCount(); ++i) {
      EXPECT_EQ(i, FCollections[side]->GetItem(i)->GetIndex());
      tags.push_back(FCollections[side]->ItemAt(i)->GetCaption().toInt());
    }
    return tags;
  }
  const std::vector<int>& Expected(int side) const { return FModel[side]; }

 private:
  int Pick(int limit) { return static_cast<int>(FRandom() % static_cast<unsigned>(limit)); }
  int Size(int side) const { return static_cast<int>(FModel[side].size()); }
  TSampleItems& Items(int side) { return *FCollections[side]; }

  void Add(int side) {
    Items(side).AddItem(QString::number(++FLastTag));
    FModel[side].push_back(FLastTag);
  }
  void Insert(int side, int index) {
    static_cast<TSampleItem*>(Items(side).Insert(index))->SetCaption(QString::number(++FLastTag));
    FModel[side].insert(FModel[side].begin() + index, FLastTag);
  }
  void Delete(int side, int index) {
    Items(side).Delete(index);
    FModel[side].erase(FModel[side].begin() + index);
  }
  void Free(int side, int index) {
    delete Items(side).GetItem(index);
    FModel[side].erase(FModel[side].begin() + index);
  }
  void Move(int side, int from, int to) {
    Items(side).GetItem(from)->SetIndex(to);
    const int tag = FModel[side][from];
    FModel[side].erase(FModel[side].begin() + from);
    FModel[side].insert(FModel[side].begin() + to, tag);
  }
  void MoveAcross(int side, int index) {
    Items(side).GetItem(index)->SetCollection(FCollections[1 - side].get());
    FModel[1 - side].push_back(FModel[side][index]);
    FModel[side].erase(FModel[side].begin() + index);
  }
  void Clear(int side) {
    Items(side).Clear();
    FModel[side].clear();
  }

  std::mt19937 FRandom;
  std::unique_ptr<TSampleItems> FCollections[2] = {Make<TSampleItems>(nullptr), Make<TSampleItems>(nullptr)};
  std::vector<int> FModel[2];
  int FLastTag = 0;
};

class CollectionModelTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(CollectionModelTest, RandomOperationsGiveTheOrderOfAPlainVector) {
  TCollectionModel model(GetParam());
  for (int step = 0; step < 5000; ++step) {
    model.Step();
    ASSERT_EQ(model.Expected(0), model.Actual(0)) << "seed " << GetParam() << ", step " << step;
    ASSERT_EQ(model.Expected(1), model.Actual(1)) << "seed " << GetParam() << ", step " << step;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, CollectionModelTest, ::testing::Values(1u, 2u, 3u, 4u));

}  // namespace
}  // namespace kt
