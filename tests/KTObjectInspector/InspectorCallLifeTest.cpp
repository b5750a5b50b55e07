// Whoever an inspector calls may free anything: the getters, setters and names of the inspected objects, and handlers.
#include "KTObjectInspector/LivelyInspector.h"

namespace kt::tests {
namespace {

class InspectorCallLifeTest
    : public TLivelyInspectorTest,
      public testing::WithParamInterface<std::tuple<TLivelyScenario, TInspectorMode, TLivelyDeed>> {
 protected:
  const TLivelyScenario& Scenario() const { return std::get<0>(GetParam()); }
  const TLivelyDeed& Deed() const { return std::get<2>(GetParam()); }

  /// The list of filters belongs to the inspector, and nobody may free a list that is just being changed.
  bool IsAllowedIn(const char* name) const {
    const bool freesInspector = Deed().Do == &TLivelyInspectorTest::FreeInspector;
    return !freesInspector || !QLatin1StringView(name).startsWith(QLatin1StringView("OnFilters"));
  }
  /// The scenario with the deed done in the call of this number; false when there is none.
  bool RunWithDeedAt(int number) {
    int calls = 0;
    TLively::SetHook([&](const char* name) {
      if (calls++ == number && IsAllowedIn(name)) (this->*Deed().Do)();
    });
    try {
      (this->*Scenario().Run)();
    } catch (const Exception& error) {
      // Whoever frees what is in use may be told so.
      EXPECT_EQ("An object was freed while it was in use", error.Message());
    }
    TLively::SetHook({});
    return calls > number;
  }
};

TEST_P(InspectorCallLifeTest, AnyCallMayDoThat) {
  for (int number = 0;; ++number) {
    SCOPED_TRACE(number);
    Renew(std::get<1>(GetParam()));
    if (!RunWithDeedAt(number)) break;
    CheckAllIsWell();
    if (HasFailure()) return;
  }
}

std::string CallTestName(const testing::TestParamInfo<InspectorCallLifeTest::ParamType>& test) {
  return std::string(std::get<0>(test.param).Name) + NameOfMode(std::get<1>(test.param)) + std::get<2>(test.param).Name;
}

INSTANTIATE_TEST_SUITE_P(Calls, InspectorCallLifeTest,
                         testing::Combine(testing::ValuesIn(LivelyScenarios),
                                          testing::Values(imPlain, imSeveralColumns), testing::ValuesIn(LivelyDeeds)),
                         CallTestName);
/// Every item is there several times: what is added by that shows when the tree is built.
INSTANTIATE_TEST_SUITE_P(Categories, InspectorCallLifeTest,
                         testing::Combine(testing::Values(LivelyScenarios[0]), testing::Values(imByCategory),
                                          testing::ValuesIn(LivelyDeeds)),
                         CallTestName);

/// What the scenarios reach.
class InspectorCallsTest : public TLivelyInspectorTest {};

TEST_F(InspectorCallsTest, TheScenariosReachEveryGetterSetterAndHandler) {
  QStringList names;
  for (const TLivelyScenario& scenario : LivelyScenarios) {
    Renew(imByCategory);
    names += CallOutsOf([&] {
      TLively::SetHook(&CallOut);
      (this->*scenario.Run)();
      TLively::SetHook({});
    });
  }
  names.removeDuplicates();
  names.sort();
  EXPECT_EQ(
      "GetAlign GetCaption GetDisplayName GetItems GetLines GetPart GetPartner GetReference GetSize GetStyles GetWhole "
      "IsWholeStored OnAfterScan OnBeforeScan OnCategorize OnCustomPreset OnFiltersChanged OnFiltersChanging "
      "OnGetProperty "
      "OnMatchPreset OnPropertyChanged OnPropertyChanging OnRefreshValue OnSetProperty OnValidate OnValidated "
      "Partner.GetWhole Partner.SetWhole SetAlign SetCaption SetSize SetStyles SetWhole",
      names.join(u' '));
}

class InspectorLinesLifeTest : public TLivelyInspectorTest {};

TEST_F(InspectorLinesLifeTest, AChangeOfOneObjectsLinesMayTakeTheNextObjectAlong) {
  Renew(imPlain);
  static_cast<TStringList*>(FFirst->GetLines())->OnChange = [this](TObject*) { FSecond.reset(); };
  Item("Lines.Items[0]").SetValueLine(0, "new");
  Item("Lines.Items[0]").Validate();
  EXPECT_EQ("new", FFirst->GetLines()->GetStrings(0));
  EXPECT_EQ(nullptr, FSecond);
  CheckAllIsWell();
}

}  // namespace
}  // namespace kt::tests
