#include "KTItemListEditor/ItemScenarios.h"
#include "support/Expect.h"

namespace kt::tests {
namespace {

/// What a handler does to the tree that it was called from.
enum TDeed { FreesCurrent, FreesFirst, FreesLast, FreesBelow, Clears, Inserts, Expands, Sorts, Moves, Assigns };

std::string NameOfDeed(TDeed deed) {
  constexpr const char* Names[] = {"FreesCurrent", "FreesFirst", "FreesLast", "FreesBelow", "Clears",
                                   "Inserts",      "Expands",    "Sorts",     "Moves",      "Assigns"};
  return Names[deed];
}

void PrintTo(TDeed deed, std::ostream* out) { *out << NameOfDeed(deed); }

/// Every call of a handler changes the tree in its turn: nothing crashes, and the lists, the counts and the locks are
/// right.
class ItemHandlersTest : public TItemScenarioTest,
                         public testing::WithParamInterface<std::tuple<TItemScenario, TDeed>> {
 protected:
  ItemHandlersTest() : TItemScenarioTest(false) {}

  void Do(TDeed deed) {
    const int last = FEditor->GetItemCount() - 1;
    switch (deed) {
      case FreesCurrent:
        return delete FEditor->GetSelected();
      case FreesFirst:
        return delete FEditor->GetItem(0);
      case FreesLast:
        return delete FEditor->GetItem(last);
      case FreesBelow:
        return delete FEditor->GetItem(std::min(1, last));
      case Clears:
        return Items().Clear();
      case Inserts:
        return static_cast<void>(Items().Insert(0));
      case Expands:
        return FEditor->FullExpand();
      case Sorts:
        return Items().SetSorted(!Items().GetSorted());
      case Moves:
        return MoveFirstToLast();
      case Assigns:
        return AssignLastToFirst();
    }
  }
  void MoveFirstToLast() {
    if (Items().GetCount() < 2) return;
    FEditor->GetItem(0)->SetCollection(&Items().GetItem(Items().GetCount() - 1)->GetItems());
  }
  void AssignLastToFirst() {
    TKTItemProp* last = FEditor->GetItem(FEditor->GetItemCount() - 1);
    if (!last || last->HasItems()) return;
    FHasCopies |= last->GetDefaultCategory();
    FEditor->GetItem(0)->Assign(last);
  }
  /// The scenario with the deed done in the call of a handler that has this number; false when there is none.
  bool RunWithDeedAt(int number) {
    int calls = 0;
    const auto handler = [&](const char*) {
      if (calls++ == number) Do(std::get<TDeed>(GetParam()));
    };
    try {
      Run(std::get<TItemScenario>(GetParam()), handler);
    } catch (const Exception&) {
      // That an object was freed while it was in use, or is missing where the scenario goes on.
    } catch (const TNoItem&) {
    }
    return calls > number;
  }
  /// Answers the number of deeds.
  int DoAtEachHandler(const std::function<void()>& renew) {
    for (int number = 0;; ++number) {
      renew();
      if (!RunWithDeedAt(number)) return number;
      CheckAllIsWell();
      if (HasFailure()) return number + 1;
    }
  }
};

TEST_P(ItemHandlersTest, AHandlerMayChangeTheTreeAnywhere) {
  const int count = DoAtEachHandler([this] { Renew(); });
  RecordProperty("deeds", count);
}

TEST_P(ItemHandlersTest, AHandlerMayChangeTheTreeAnywhereWithTheInplaceEditorOpen) {
  const int count = DoAtEachHandler([this] { RenewOpen(); });
  RecordProperty("deeds", count);
}

INSTANTIATE_TEST_SUITE_P(Scenarios, ItemHandlersTest,
                         testing::Combine(testing::ValuesIn(ItemScenarios),
                                          testing::Values(FreesCurrent, FreesFirst, FreesLast, FreesBelow, Clears,
                                                          Inserts, Expands, Sorts, Moves, Assigns)),
                         [](const auto& test) {
                           return std::string(std::get<0>(test.param).Name) + NameOfDeed(std::get<1>(test.param));
                         });

}  // namespace
}  // namespace kt::tests
