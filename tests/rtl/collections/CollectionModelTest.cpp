// Random operations on two collections, compared after every step with plain vectors of ids.
#include "kt/rtl/collections/Collection.h"
#include "support/Expect.h"
#include "support/ModelRun.h"
#include "support/Samples.h"

#include <gtest/gtest.h>
#include <vector>

namespace kt {
namespace {

using tests::TSampleItem;
using tests::TSampleItems;

class TCollectionModel {
 public:
  void Step(quint32 number) {
    FRandom = tests::TStepRandom(number);
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

  QString StepText() const { return FText; }
  QString Fault() const {
    for (int side : {0, 1}) {
      const QString actual = Actual(side), expected = Expected(side);
      if (actual != expected) return QStringLiteral("side %1 has %2 instead of %3").arg(side).arg(actual, expected);
    }
    return {};
  }

 private:
  int Pick(int limit) { return FRandom.Below(limit); }
  void Note(const char* what, int side, int index = -1, int to = -1) {
    FText = QStringLiteral("%1 side %2, %3 to %4").arg(QLatin1StringView(what)).arg(side).arg(index).arg(to);
  }
  /// The tags of a side as the collection has them; an item whose own index is wrong has a mark.
  QString Actual(int side) const {
    QString tags;
    for (int i = 0; i < FCollections[side]->GetCount(); ++i) {
      if (FCollections[side]->GetItem(i)->GetIndex() != i) tags += u'!';
      tags += FCollections[side]->ItemAt(i)->GetCaption() + u' ';
    }
    return tags;
  }
  QString Expected(int side) const {
    QString tags;
    for (int tag : FModel[side]) tags += QString::number(tag) + u' ';
    return tags;
  }
  int Size(int side) const { return static_cast<int>(FModel[side].size()); }
  TSampleItems& Items(int side) { return *FCollections[side]; }

  void Add(int side) {
    Note("Add", side);
    Items(side).AddItem(QString::number(++FLastTag));
    FModel[side].push_back(FLastTag);
  }
  void Insert(int side, int index) {
    Note("Insert", side, index);
    static_cast<TSampleItem*>(Items(side).Insert(index))->SetCaption(QString::number(++FLastTag));
    FModel[side].insert(FModel[side].begin() + index, FLastTag);
  }
  void Delete(int side, int index) {
    Note("Delete", side, index);
    Items(side).Delete(index);
    FModel[side].erase(FModel[side].begin() + index);
  }
  void Free(int side, int index) {
    Note("Free", side, index);
    delete Items(side).GetItem(index);
    FModel[side].erase(FModel[side].begin() + index);
  }
  void Move(int side, int from, int to) {
    Note("Move", side, from, to);
    Items(side).GetItem(from)->SetIndex(to);
    const int tag = FModel[side][from];
    FModel[side].erase(FModel[side].begin() + from);
    FModel[side].insert(FModel[side].begin() + to, tag);
  }
  void MoveAcross(int side, int index) {
    Note("MoveAcross", side, index);
    Items(side).GetItem(index)->SetCollection(FCollections[1 - side].get());
    FModel[1 - side].push_back(FModel[side][index]);
    FModel[side].erase(FModel[side].begin() + index);
  }
  void Clear(int side) {
    Note("Clear", side);
    Items(side).Clear();
    FModel[side].clear();
  }

  tests::TStepRandom FRandom;
  QString FText;
  std::unique_ptr<TSampleItems> FCollections[2] = {Make<TSampleItems>(nullptr), Make<TSampleItems>(nullptr)};
  std::vector<int> FModel[2];
  int FLastTag = 0;
};

class CollectionModelTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(CollectionModelTest, RandomOperationsGiveTheOrderOfAPlainVector) {
  tests::TModelRun(tests::ModelSeed(GetParam()), [] { return std::make_unique<TCollectionModel>(); }).Run(5000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, CollectionModelTest, ::testing::Values(1u, 2u, 3u, 4u));

}  // namespace
}  // namespace kt
