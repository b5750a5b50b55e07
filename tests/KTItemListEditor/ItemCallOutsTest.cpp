#include "KTItemListEditor/ItemScenarios.h"
#include "support/CallOuts.h"

namespace kt::tests {
namespace {

/// Every hook, handler and comparison throws in its turn.
class ItemCallOutsTest : public TItemScenarioTest, public testing::WithParamInterface<TItemScenario> {
 protected:
  ItemCallOutsTest() : TItemScenarioTest(true) {}
};

/// Every handler does.
class ItemHandlerCallOutsTest : public TItemScenarioTest, public testing::WithParamInterface<TItemScenario> {
 protected:
  ItemHandlerCallOutsTest() : TItemScenarioTest(false) {}
};

TEST_P(ItemCallOutsTest, AnExceptionOfAnyCallOutLeavesListsCountsAndLocksConsistent) {
  const auto run = [this] {
    Renew();
    Run(GetParam(), &CallOut);
  };
  const int count = ThrowAtEachCallOut(thOurs, run, [this] { CheckAllIsWell(); });
  EXPECT_LT(0, count);
}

TEST_P(ItemCallOutsTest, AForeignExceptionOfAnyCallOutLeavesListsCountsAndLocksConsistent) {
  const auto run = [this] {
    Renew();
    Run(GetParam(), &CallOut);
  };
  ThrowAtEachCallOut(thForeign, run, [this] { CheckAllIsWell(); });
}

TEST_P(ItemHandlerCallOutsTest, AnExceptionOfAnyHandlerIsNoneTheWorseWithTheInplaceEditorOpen) {
  const auto run = [this] {
    RenewOpen();
    Run(GetParam(), &CallOut);
  };
  ThrowAtEachCallOut(thOurs, run, [this] { CheckAllIsWell(); });
}

INSTANTIATE_TEST_SUITE_P(Scenarios, ItemCallOutsTest, testing::ValuesIn(ItemScenarios),
                         [](const auto& test) { return std::string(test.param.Name); });

INSTANTIATE_TEST_SUITE_P(Scenarios, ItemHandlerCallOutsTest, testing::ValuesIn(ItemScenarios),
                         [](const auto& test) { return std::string(test.param.Name); });

/// Validation changes no list; what its handlers throw is handed on.
TEST(ItemValidateCallOutsTest, AnExceptionOfAnyHandlerComesOut) {
  const auto editor = Make<TKTItemListEditor>();
  TKTItemProp* item = editor->GetItems().Add("a", "1");
  editor->OnValidate = [](TObject*, TKTItemProp*, int) { CallOut("OnValidate"); };
  editor->OnValidated = [](TObject*, TKTItemProp*, int) { CallOut("OnValidated"); };
  const int count = ThrowAtEachCallOut(
      thOurs, [&] { item->Validate(); }, [] {});
  EXPECT_EQ(2, count);
}

}  // namespace
}  // namespace kt::tests
