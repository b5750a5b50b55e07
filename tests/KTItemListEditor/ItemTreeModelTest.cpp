#include "KTItemListEditor/ItemTreeWalk.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ModelRun.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace kt::tests {
namespace {

int StepsToRun() {
  const char* steps = std::getenv("KT_MODEL_STEPS");
  return steps ? std::atoi(steps) : 100000;
}

constexpr const char* kOperations[] = {
    "Add",        "Insert",       "AddCategory", "AddFullPath", "AddNamed",     "Free",       "Delete",
    "Move",       "SetIndex",     "SetName",     "SetVisible",  "SetReadOnly",  "SetEnabled", "SetExpanded",
    "FullOfItem", "FullOfEditor", "SetSorted",   "SetCategory", "Arrange",      "Options",    "Bracket",
    "Categorize", "SetSelected",  "Value",       "Exchange",    "ClearCats",    "Assign",     "LevelBracket",
    "Lock",       "CustomSort",   "Case",        "Orientation", "ActFromInside"};

/// A tree that random operations change, compared with the walk after each.
class TItemTreeModel {
 public:
  TItemTreeModel() {
    FEditor->OnCategorize = [this](TObject*, TKTItemProp*, const QString&, QString&) { ActFromInside(); };
    FEditor->OnSelectCell = [this](TObject*, int, int, bool&) { ActFromInside(); };
  }

  void Step(quint32 number) {
    FRandom = TStepRandom(number);
    FDrawn.clear();
    FOperation = FRandom.Below(static_cast<int>(std::size(kOperations)));
    try {
      Apply(FOperation);
    } catch (const ETORVException&) {
      // A name that was not unique.
    } catch (const EInvalidOperation&) {
      // Something that a handler freed while it was in use.
    } catch (const Exception& error) {
      FError = error.Message();
    }
  }
  QString Fault() const {
    const TItemTreeWalk walk(*FEditor);
    QString fault = FError + walk.ItemFault() + walk.EntriesFault();
    if (FBrackets > 0) return fault + walk.StandingRowsFault();
    fault += walk.RowsFault();
    // The grid follows when nothing keeps it from that any more.
    const bool isFree = !FEditor->IsEditUpdateLocked() && FLevelBrackets.empty();
    return isFree ? fault + walk.LineFault() : fault;
  }
  /// The operation and the numbers that were drawn for it.
  QString StepText() const {
    QStringList drawn;
    for (const int number : FDrawn) drawn.append(QString::number(number));
    return QString::fromUtf8(kOperations[FOperation]) + u'(' + drawn.join(u", ") + u')';
  }

  void EndAllBrackets() {
    while (!FLevelBrackets.empty()) EndLevelBracket(0);
    while (FEditor->GetItems().GetUpdateCount() > 0) FEditor->GetItems().EndUpdate();
    FBrackets = 0;
    while (FEditor->IsEditUpdateLocked()) FEditor->EnableEditUpdate();
  }

 private:
  int Below(int end) {
    FDrawn.push_back(FRandom.Below(end));
    return FDrawn.back();
  }
  TKTItemProps& Top() { return FEditor->GetItems(); }

  /// Null only in an empty tree.
  TKTItemProp* AnyItem() {
    const int count = FEditor->GetItemCount();
    return count == 0 ? nullptr : FEditor->GetItem(Below(count));
  }
  TKTItemProps& AnyLevel() {
    TKTItemProp* item = Below(3) == 0 ? nullptr : AnyItem();
    return item ? item->GetItems() : Top();
  }
  QString AnyName() { return QString(QChar('a' + Below(6))); }

  void Apply(int operation) {
    // Mostly around sixty items, so that some levels are long enough for sums.
    if (FEditor->GetItemCount() > 60 + Below(200)) return delete AnyItem();
    TKTItemProp* item = AnyItem();
    if (operation < 5 || !item) return Add(operation);
    switch (operation) {
      case 5:
        return delete item;
      case 6:
        return item->GetCollection()->Delete(item->GetIndex());
      case 7:
        return Move(*item);
      case 8:
        return item->SetIndex(Below(item->GetCollection()->GetCount()));
      case 9:
        return item->SetName(AnyName());
      case 10:
        return item->SetVisible(!item->GetVisible());
      case 11:
        return item->SetReadOnly(!item->IsReadOnly());
      case 12:
        return item->SetEnabled(!item->GetEnabled());
      case 13:
        return item->SetExpanded(!item->IsExpanded());
      case 14:
        return Below(2) ? item->FullExpand() : item->FullCollapse();
      case 15:
        return Below(2) ? FEditor->FullExpand() : FEditor->FullCollapse();
      case 16:
        return AnyLevel().SetSorted(Below(2) != 0);
      case 17:
        return item->SetCategory(!item->GetCategory());
      case 18:
        return FEditor->SetArrangeByCategory(Below(2) != 0);
      case 19:
        return Options();
      case 20:
        return Bracket();
      case 21:
        return Categorize(*item);
      case 22:
        return FEditor->SetSelected(item);
      case 23:
        return Below(6) == 0 ? AnyLevel().Clear() : item->SetValue(AnyName());
      case 24:
        return item->GetCollection()->Exchange(Below(item->GetCollection()->GetCount()), item->GetIndex());
      case 25:
        return AnyLevel().ClearCategories(Below(2) != 0);
      case 26:
        return Assign(*item);
      case 27:
        return LevelBracket(*item);
      case 28:
        return Lock();
      case 29:
        return AnyLevel().CustomSort(AnyOrder(), Below(2) != 0);
      case 30:
        return FEditor->SetCaseSensitive(Below(2) != 0);
      case 31:
        return FEditor->SetOrientation(Below(2) ? goHorizontal : goVertical);
      default:
        return static_cast<void>(FActsFromInside = Below(4) == 0 ? 3 : 0);
    }
  }

  void Add(int operation) {
    TKTItemProps& level = AnyLevel();
    switch (operation) {
      case 0:
        return static_cast<void>(level.Add());
      case 1:
        return static_cast<void>(level.Insert(Below(level.GetCount() + 1)));
      case 2:
        return static_cast<void>(level.AddCategory(AnyName(), Below(2) != 0));
      case 3:
        return static_cast<void>(level.AddFullPath(AnyName() + "." + AnyName(), AnyName(), Below(2) != 0));
      default:
        return static_cast<void>(level.Add(AnyName(), AnyName()));
    }
  }

  void Move(TKTItemProp& item) {
    TKTItemProps& target = AnyLevel();
    for (TKTItemProp* above = target.GetParent(); above; above = above->GetParent()) {
      if (above == &item) return;
    }
    item.SetCollection(&target);
  }

  void Assign(TKTItemProp& item) {
    TKTItemProp* source = AnyItem();
    if (source->GetLevel() > 1 || FEditor->GetItemCount() > 100) return;
    const std::unique_ptr<TKTItemProp> copy = Make<TKTItemProp>(nullptr);
    copy->Assign(source);
    item.Assign(copy.get());
  }

  void Options() {
    FEditor->SetDisplayOptions(TILEDisplayOptions::FromBits(static_cast<quint32>(Below(16))));
    FEditor->SetPropertyOptions(TILEPropOptions::FromBits(static_cast<quint32>(Below(3) == 0 ? 15 : 7)));
  }

  void Bracket() {
    if (FBrackets > 0 && Below(3) > 0) {
      --FBrackets;
      Top().EndUpdate();
    } else if (FBrackets < 3) {
      ++FBrackets;
      Top().BeginUpdate();
    }
  }

  /// Of a level below the top: the rows follow all the same.
  void LevelBracket(TKTItemProp& item) {
    if (FLevelBrackets.size() > 4 || (!FLevelBrackets.empty() && Below(2))) {
      return EndLevelBracket(static_cast<size_t>(Below(static_cast<int>(FLevelBrackets.size()))));
    }
    auto watch = std::make_unique<TItemWatch>(&item);
    item.GetItems().BeginUpdate();
    FLevelBrackets.push_back(std::move(watch));
  }
  void EndLevelBracket(size_t number) {
    const std::unique_ptr<TItemWatch> item = std::move(FLevelBrackets[number]);
    FLevelBrackets.erase(FLevelBrackets.begin() + static_cast<std::ptrdiff_t>(number));
    if (*item) (*item)->GetItems().EndUpdate();
  }

  void Lock() {
    return FEditor->IsEditUpdateLocked() && Below(3) ? FEditor->EnableEditUpdate() : FEditor->DisableEditUpdate();
  }

  TKTItemPropsCompare AnyOrder() {
    if (Below(3) == 0) return [](TKTItemProps&, int, int) { return 0; };
    const int sign = Below(2) ? 1 : -1;
    return [sign](TKTItemProps& items, int first, int second) {
      return sign * items.CompareStrings(items.GetItem(first)->GetName(), items.GetItem(second)->GetName());
    };
  }

  void Categorize(TKTItemProp& item) {
    const std::unique_ptr<TStringList> map = Make<TStringList>();
    map->SetCommaText("a=X,b=Y,a=Z");
    if (FEditor->GetItemCount() > 100) return;
    if (Below(2)) return FEditor->Categorize(&item, *map, Below(2) != 0);
    FEditor->Categorize(*map, false);
  }

  /// What a handler does to the tree that it was called from.
  void ActFromInside() {
    if (FActsFromInside <= 0) return;
    --FActsFromInside;
    TKTItemProp* item = AnyItem();
    if (!item) return;
    switch (Below(10)) {
      case 0:
        return item->SetVisible(!item->GetVisible());
      case 1:
        return item->SetExpanded(!item->IsExpanded());
      case 2:
        return static_cast<void>(item->GetItems().Add());
      case 3:
        return delete item;
      case 4:
        return Move(*item);
      case 5:
        return item->SetName(AnyName());
      case 6:
        return AnyLevel().SetSorted(Below(2) != 0);
      case 7:
        return Below(10) == 0 ? Top().Clear() : AnyLevel().Clear();
      case 8:
        return item->SetIndex(Below(item->GetCollection()->GetCount()));
      default:
        return item->SetReadOnly(!item->IsReadOnly());
    }
  }

  std::unique_ptr<TKTItemListEditor> FEditor = Make<TKTItemListEditor>();
  TStepRandom FRandom;
  int FOperation = 0;
  /// What no operation may raise.
  QString FError;
  std::vector<int> FDrawn;
  int FBrackets = 0;
  int FActsFromInside = 0;
  /// The parents of the levels that are in a bracket.
  std::vector<std::unique_ptr<TItemWatch>> FLevelBrackets;
};

class ItemTreeModelTest : public testing::TestWithParam<unsigned> {};

TEST_P(ItemTreeModelTest, TheListsAreThoseOfAFullWalkAfterEveryStep) {
  TModelRun run(
      ModelSeed(GetParam()), [] { return std::make_unique<TItemTreeModel>(); }, 200'000);
  const auto model = run.Run(StepsToRun() / 4);
  model->EndAllBrackets();
  EXPECT_EQ(QString(), model->Fault());
}

INSTANTIATE_TEST_SUITE_P(Seeds, ItemTreeModelTest, testing::Values(1u, 2u, 3u, 4u));

}  // namespace
}  // namespace kt::tests
