// Random operations on two collections: order, ids, and the log of notifications, compared with a model of vectors.
#include "kt/rtl/collections/Collection.h"
#include "support/Expect.h"
#include "support/ModelRun.h"
#include "support/Samples.h"

#include <gtest/gtest.h>
#include <vector>

namespace kt {
namespace {

using tests::TSampleItem;

class TLogged : public TCollection {
 public:
  TSampleItem* At(int index) const { return static_cast<TSampleItem*>(GetItem(index)); }
  QString State() const {
    QString state;
    for (int i = 0; i < GetCount(); ++i) {
      if (GetItem(i)->GetIndex() != i) state += u'!';
      state += QStringLiteral("%1=%2 ").arg(GetItem(i)->GetID()).arg(At(i)->GetCaption());
    }
    return state;
  }

 protected:
  explicit TLogged(QString& log) : TCollection(TSampleItem::Class()), FLog(log) {}
  void Notify(TCollectionItem* item, TCollectionNotification action) override {
    static const char letters[] = {'+', '-', 'x'};
    FLog += QStringLiteral("%1%2 ").arg(QLatin1Char(letters[action])).arg(item->GetID());
    TCollection::Notify(item, action);
  }
  void Update(TCollectionItem* item) override {
    FLog += item ? QStringLiteral("u%1 ").arg(item->GetID()) : QStringLiteral("u ");
  }

 private:
  QString& FLog;
};

/// What a collection should be and say.
struct TModel {
  struct TItem {
    int Id;
    QString Caption;
  };
  std::vector<TItem> Items;
  int NextId = 0;
  int Brackets = 0;
  QString& Log;

  QString State() const {
    QString state;
    for (const TItem& item : Items) state += QStringLiteral("%1=%2 ").arg(item.Id).arg(item.Caption);
    return state;
  }
  void Changed(const QString& what = QStringLiteral("u ")) {
    if (Brackets == 0) Log += what;
  }
  void Add(const QString& caption) {
    Items.push_back({NextId++, caption});
    Log += QStringLiteral("+%1 ").arg(Items.back().Id);
    Changed();
  }
  QString Extract(int index) {
    const TItem item = Items[index];
    Log += QStringLiteral("-%1 ").arg(item.Id);
    Items.erase(Items.begin() + index);
    Changed();
    return item.Caption;
  }
  void Move(int from, int to) {
    if (from == to) return;
    const TItem item = Items[from];
    Items.erase(Items.begin() + from);
    Items.insert(Items.begin() + to, item);
    Changed();
  }
  void SetCaption(int index, const QString& caption) {
    Items[index].Caption = caption;
    Changed(QStringLiteral("u%1 ").arg(Items[index].Id));
  }
  void Clear() {
    ++Brackets;
    while (!Items.empty()) Extract(static_cast<int>(Items.size()) - 1);
    --Brackets;
  }
};

class TRun {
 public:
  void Step(quint32 number) {
    FRandom = tests::TStepRandom(number);
    const int side = Pick(2);
    TLogged& real = *FReal[side];
    TModel& model = FModel[side];
    const int count = real.GetCount();
    FActual.clear();
    FExpected.clear();
    const int operation = Pick(12);
    FText = QStringLiteral("operation %1 on side %2, which has %3").arg(operation).arg(side).arg(model.State());
    if (operation < 3 || count == 0) return Add(real, model, operation == 0 ? Pick(count + 1) : count);
    const int index = Pick(count);
    switch (operation) {
      case 3:
        FExpected += QStringLiteral("x%1 ").arg(model.Items[index].Id);
        model.Extract(index);
        return real.Delete(index);
      case 4:
        model.Extract(index);
        delete real.GetItem(index);
        return;
      case 5:
      case 6: {
        const int to = Pick(count);
        model.Move(index, to);
        return real.GetItem(index)->SetIndex(to);
      }
      case 7:
        FModel[1 - side].Add(model.Extract(index));
        return real.GetItem(index)->SetCollection(FReal[1 - side].get());
      case 8:
        return Rename(real, model, index);
      case 9:
        if (Pick(20) == 0) AssignFrom(1 - side);
        return;
      case 10:
        if (Pick(20) == 0) Clear(real, model);
        return;
      default:
        return Bracket(real, model);
    }
  }
  QString StepText() const { return FText; }
  QString Fault() const {
    if (Actual() == Expected()) return {};
    return QStringLiteral("is ") + Actual() + QStringLiteral("\ninstead of ") + Expected();
  }

 private:
  QString Actual() const { return FReal[0]->State() + u'/' + FReal[1]->State() + u'/' + FActual; }
  QString Expected() const { return FModel[0].State() + u'/' + FModel[1].State() + u'/' + FExpected; }
  int Pick(int limit) { return FRandom.Below(limit); }

  void Add(TLogged& real, TModel& model, int index) {
    if (real.GetCount() > 40) return Clear(real, model);
    model.Add(QString());
    model.Move(static_cast<int>(model.Items.size()) - 1, index);
    real.Insert(index);
  }
  void Rename(TLogged& real, TModel& model, int index) {
    const QString caption = QString::number(++FLastCaption);
    model.SetCaption(index, caption);
    real.At(index)->SetCaption(caption);
  }
  void AssignFrom(int from) {
    TModel& target = FModel[1 - from];
    ++target.Brackets;
    target.Clear();
    for (const TModel::TItem& item : FModel[from].Items) target.Add(item.Caption);
    --target.Brackets;
    target.Changed();
    FReal[1 - from]->Assign(FReal[from].get());
  }
  static void Clear(TLogged& real, TModel& model) {
    const bool isEmpty = model.Items.empty();
    model.Clear();
    if (!isEmpty) model.Changed();
    real.Clear();
  }
  void Bracket(TLogged& real, TModel& model) {
    if (model.Brackets < 3 && Pick(2) == 0) {
      ++model.Brackets;
      return real.BeginUpdate();
    }
    if (model.Brackets == 0) return;
    --model.Brackets;
    model.Changed();
    real.EndUpdate();
  }

  tests::TStepRandom FRandom;
  QString FText;
  QString FActual;
  QString FExpected;
  std::unique_ptr<TLogged> FReal[2] = {Make<TLogged>(FActual), Make<TLogged>(FActual)};
  TModel FModel[2] = {{{}, 0, 0, FExpected}, {{}, 0, 0, FExpected}};
  int FLastCaption = 0;
};

class NotificationsModelTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(NotificationsModelTest, RandomOperationsGiveTheOrderTheIdsAndTheNotificationsOfTheModel) {
  tests::TModelRun(tests::ModelSeed(GetParam()), [] { return std::make_unique<TRun>(); }).Run(50000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, NotificationsModelTest, ::testing::Values(1u, 2u, 3u));

}  // namespace
}  // namespace kt
