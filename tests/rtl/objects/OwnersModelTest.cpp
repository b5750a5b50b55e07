// Random owners and free notifications, compared with a set of pairs: who owns whom, and who is told of what.
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "support/ModelRun.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace kt {
namespace {

class TOwnersModel;

/// Tells the model what it hears and when it dies.
class TPlayer : public TComponent {
 public:
  using Inherited = TComponent;
  const int Id;
  ~TPlayer() override;

 protected:
  TPlayer(TComponent* owner, TOwnersModel& model, int id) : TComponent(owner), Id(id), FModel(model) {}
  void Notification(TComponent* component, TOperation operation) override;

 private:
  TOwnersModel& FModel;
};

class TOwnersModel {
 public:
  /// Who was told what of whom.
  using TTold = std::set<std::tuple<int, char, int>>;

  ~TOwnersModel() {
    while (!FPlayers.empty()) delete FPlayers.at(RootOf(FPlayers.begin()->first));
  }

  void Step(quint32 number) {
    FRandom = tests::TStepRandom(number);
    FTold.clear();
    FExpected.clear();
    FNested = 0;
    const int count = static_cast<int>(FOwner.size());
    const int operation = count < 5 ? 0 : Pick(count > 60 ? 12 : 9);
    FText = QStringLiteral("create");
    if (operation < 2 || FPlayers.empty()) return Create();
    const int one = AnyPlayer();
    const int other = AnyPlayer();
    FText = QStringLiteral("operation %1 with %2 and %3").arg(operation).arg(one).arg(other);
    if (operation == 2) return Insert(one, other);
    if (operation == 3) return Remove(one);
    if (operation < 6) return Watch(one, other);
    if (operation == 6) return Unwatch(one, other);
    FFreesInside = operation == 8;
    Free(one);
  }

  /// Empty when the components are as the model has them.
  QString Fault() const {
    if (FPlayers.size() != FOwner.size()) return QStringLiteral("others are alive");
    for (const auto& [id, player] : FPlayers) {
      const auto* owner = static_cast<TPlayer*>(player->GetOwnerComponent());
      if (FOwner.at(id) != (owner ? owner->Id : 0)) return QStringLiteral("the owner of %1").arg(id);
    }
    // Which of the two pairs of a double death is told depends on who dies first.
    if (FNested > 0) return {};
    return FTold == FExpected ? QString() : QStringLiteral("told %1 instead of %2").arg(Text(FTold), Text(FExpected));
  }
  QString StepText() const { return FText; }
  int NestedFrees() const { return FNestedFrees; }

  void Died(int id) { FPlayers.erase(id); }
  void Heard(const TPlayer* listener, TComponent* component, TOperation operation) {
    FTold.insert({listener->Id, operation == opInsert ? '+' : '-', static_cast<TPlayer*>(component)->Id});
    if (!FFreesInside || operation == opInsert) return;
    FFreesInside = false;
    const int victim = AnyPlayer();
    // Neither who is dying, nor who owns that or hears of it.
    if (IsIn(victim, FDying) || IsIn(FDying, victim) || IsIn(listener->Id, victim)) return;
    ++FNestedFrees;
    FNested = victim;
    delete FPlayers.at(victim);
  }

 private:
  using TPair = std::pair<int, int>;

  int Pick(int limit) { return FRandom.Below(limit); }
  int AnyPlayer() { return std::next(FPlayers.begin(), Pick(static_cast<int>(FPlayers.size())))->first; }
  int RootOf(int id) const {
    while (FOwner.at(id)) id = FOwner.at(id);
    return id;
  }
  /// True when `id` is `top` or below it.
  bool IsIn(int id, int top) const {
    for (; id; id = FOwner.at(id)) {
      if (id == top) return true;
    }
    return false;
  }
  static TPair PairOf(int a, int b) { return {std::min(a, b), std::max(a, b)}; }
  static QString Text(const TTold& told) {
    QStringList texts;
    for (const auto& [listener, what, subject] : told) {
      texts.append(QStringLiteral("%1%2%3").arg(listener).arg(QLatin1Char(what)).arg(subject));
    }
    return texts.join(u' ');
  }

  void Create() {
    const int owner = FOwner.empty() || Pick(4) == 0 ? 0 : AnyPlayer();
    const int id = ++FLastId;
    SetOwner(id, owner);
    if (owner) ExpectAll(owner, '+', id);
    auto player = Make<TPlayer>(owner ? FPlayers.at(owner) : nullptr, *this, id);
    FPlayers[id] = player.release();
  }
  void Insert(int owner, int id) {
    if (IsIn(owner, id)) return;
    if (FOwner[id] != owner) {
      if (FOwner[id]) ExpectAll(FOwner[id], '-', id);
      SetOwner(id, owner);
      ExpectAll(owner, '+', id);
    }
    FPlayers.at(owner)->InsertComponent(FPlayers.at(id));
  }
  void Remove(int id) {
    if (!FOwner[id]) return;
    ExpectAll(FOwner[id], '-', id);
    FPlayers.at(FOwner[id])->RemoveComponent(FPlayers.at(id));
    SetOwner(id, 0);
  }
  void Watch(int one, int other) {
    if (one == other) return;
    FPlayers.at(one)->FreeNotification(FPlayers.at(other));
    FIsWatched.insert(one);
    if (FOwner[one] && FOwner[one] == FOwner[other]) return;
    if (FPairs.insert(PairOf(one, other)).second) FIsWatched.insert(other);
  }
  void Unwatch(int one, int other) {
    FPlayers.at(one)->RemoveFreeNotification(FPlayers.at(other));
    FPairs.erase(PairOf(one, other));
  }
  void Free(int id) {
    FDying = id;
    delete FPlayers.at(id);
    FFreesInside = false;
    ExpectDeath(id);
    if (FNested) ExpectDeath(FNested);
  }

  void SetOwner(int id, int owner) {
    if (FOwner[id]) std::erase(FChildren[FOwner[id]], id);
    FOwner[id] = owner;
    if (owner) FChildren[owner].push_back(id);
  }
  /// `top` and all below it are told of `subject`, and no longer watch it when it goes.
  void ExpectAll(int top, char what, int subject) {
    for (const auto& [id, owner] : FOwner) {
      if (!IsIn(id, top)) continue;
      FExpected.insert({id, what, subject});
      if (what == '-') FPairs.erase(PairOf(id, subject));
    }
  }
  void ExpectDeath(int id) {
    const std::set<TPair> pairs = FPairs;
    for (const auto& [a, b] : pairs) {
      if (a == id || b == id) ExpectAll(a == id ? b : a, '-', id);
    }
    while (!FChildren[id].empty()) {
      const int child = FChildren[id].back();
      if (FIsWatched.count(child)) ExpectAll(id, '-', child);
      SetOwner(child, 0);
      ExpectDeath(child);
    }
    if (FOwner[id]) ExpectAll(FOwner[id], '-', id);
    SetOwner(id, 0);
    FOwner.erase(id);
    FChildren.erase(id);
  }

  tests::TStepRandom FRandom;
  QString FText;
  std::map<int, TPlayer*> FPlayers;
  int FLastId = 0;
  // What the model knows: the owner of each (0 for none) and the owned in order, who watch each other, and who was ever
  // asked to tell.
  std::map<int, int> FOwner;
  std::map<int, std::vector<int>> FChildren;
  std::set<TPair> FPairs;
  std::set<int> FIsWatched;
  TTold FTold;
  TTold FExpected;
  // One who hears of a death may free another.
  bool FFreesInside = false;
  int FDying = 0;
  int FNested = 0;
  int FNestedFrees = 0;
};

TPlayer::~TPlayer() { FModel.Died(Id); }

void TPlayer::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  FModel.Heard(this, component, operation);
}

class OwnersModelTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(OwnersModelTest, RandomOwnersAndWatchersAreToldAsASetOfPairsSays) {
  tests::TModelRun run(tests::ModelSeed(GetParam()), [] { return std::make_unique<TOwnersModel>(); });
  const auto model = run.Run(50000);
  EXPECT_GT(model->NestedFrees(), 100);
}

INSTANTIATE_TEST_SUITE_P(Seeds, OwnersModelTest, ::testing::Values(1u, 2u, 3u));

}  // namespace
}  // namespace kt
