// Whoever an inspector calls may throw; it is told to the caller, nothing stays locked, and the next scan is whole.
#include "KTObjectInspector/LivelyInspector.h"

namespace kt::tests {
namespace {

class InspectorThrowTest : public TLivelyInspectorTest,
                           public testing::WithParamInterface<std::tuple<TLivelyScenario, TInspectorMode>> {
 protected:
  void RunThrowing() {
    Renew(std::get<1>(GetParam()));
    TLively::SetHook(&CallOut);
    (this->*std::get<0>(GetParam()).Run)();
    TLively::SetHook({});
    // What the handler of errors was told is no less told.
    if (!FErrors.isEmpty()) throw Exception(FErrors.first());
  }
};

TEST_P(InspectorThrowTest, AnExceptionOfAnyCallLeavesNothingLockedAndTheNextScanWhole) {
  const int count = ThrowAtEachCallOut(
      thOurs, [this] { RunThrowing(); }, [this] { CheckAllIsWell(); });
  EXPECT_LT(0, count);
}

TEST_P(InspectorThrowTest, AForeignExceptionOfAnyCallLeavesNothingLockedAndTheNextScanWhole) {
  const int count = ThrowAtEachCallOut(
      thForeign, [this] { RunThrowing(); }, [this] { CheckAllIsWell(); });
  EXPECT_LT(0, count);
}

std::string ThrowTestName(const testing::TestParamInfo<InspectorThrowTest::ParamType>& test) {
  return std::string(std::get<0>(test.param).Name) + NameOfMode(std::get<1>(test.param));
}

INSTANTIATE_TEST_SUITE_P(Calls, InspectorThrowTest,
                         testing::Combine(testing::ValuesIn(LivelyScenarios),
                                          testing::Values(imPlain, imSeveralColumns)),
                         ThrowTestName);
INSTANTIATE_TEST_SUITE_P(Categories, InspectorThrowTest,
                         testing::Combine(testing::Values(LivelyScenarios[0]), testing::Values(imByCategory)),
                         ThrowTestName);

class InspectorThrowOnceTest : public TLivelyInspectorTest {
 protected:
  InspectorThrowOnceTest() { Renew(imPlain); }

  /// From the call of that name and number on, once.
  void ThrowAt(const QString& name, int number) {
    TLively::SetHook([=, this](const char* called) {
      if (name != QLatin1StringView(called) || FCalls++ != number) return;
      throw Exception("no");
    });
  }

  int FCalls = 0;
};

TEST_F(InspectorThrowOnceTest, WhatWasWrittenBeforeTheSecondObjectRefusedStaysWritten) {
  ThrowAt("SetWhole", 1);
  Item("Whole").SetValueLine(0, "5");
  Item("Whole").Validate();
  TLively::SetHook({});
  EXPECT_EQ("no", FErrors.join(u'|'));
  EXPECT_EQ(5, FFirst->GetWhole());
  CheckAllIsWell();
}

TEST_F(InspectorThrowOnceTest, AGetterThatThrowsInTheMiddleOfAScanIsToldToTheCaller) {
  ThrowAt("GetSize", 0);
  EXPECT_EQ("no", MessageOf<Exception>([this] { FInspector->Rescan(); }));
  CheckAllIsWell();
  EXPECT_NE(nullptr, Find("Part.Size"));
}

TEST_F(InspectorThrowOnceTest, TheEndOfAScanIsStillToldAfterAnException) {
  QStringList log;
  FInspector->OnAfterScan = [&](TObject*, TKTItemProperty* item) { log += item ? item->GetName() : QString("whole"); };
  ThrowAt("GetReference", 0);
  EXPECT_EQ("no", MessageOf<Exception>([this] { FInspector->Rescan(); }));
  EXPECT_EQ("Items[0] Items[1] Items Lines Part Partner whole", log.join(u' '));
}

TEST_F(InspectorThrowOnceTest, TheFirstOfTwoExceptionsOfAScanIsTheOneThatIsTold) {
  FInspector->OnAfterScan = [](TObject*, TKTItemProperty* item) {
    if (!item) throw std::runtime_error("second");
  };
  ThrowAt("GetReference", 0);
  EXPECT_EQ("no", MessageOf<Exception>([this] { FInspector->Rescan(); }));
  FInspector->OnAfterScan = {};
  CheckAllIsWell();
}

// With what is being typed.

TEST_F(InspectorThrowOnceTest, AComponentThatDiesLeavesTheListAlsoWhenWhatIsTypedCannotBeWritten) {
  Show();
  FInspector->SetSelected(&Item("Whole"));
  TWindowProbe::Settle();
  FInspector->InplaceEditor()->SelectAll();
  TWindowProbe::Type("5");
  ThrowAt("OnSetEditText", 0);
  FFirst.reset();
  TLively::SetHook({});
  EXPECT_EQ("no", FErrors.join(u'|'));
  ASSERT_EQ(1, FInspector->GetObjects().GetCount());
  EXPECT_EQ(FSecond.get(), FInspector->GetObjects().GetItem(0)->GetObjects());
  TWindowProbe::Settle();
  CheckAllIsWell();
  EXPECT_NE(0, FInspector->GetItems().GetCount());
}

TEST_F(InspectorThrowOnceTest, AnObjectIsNotAddedWhenWhatIsTypedCannotBeWritten) {
  Show();
  FInspector->SetSelected(&Item("Whole"));
  TWindowProbe::Settle();
  FInspector->InplaceEditor()->SelectAll();
  TWindowProbe::Type("5");
  ThrowAt("OnSetEditText", 0);
  EXPECT_EQ("no", MessageOf<Exception>([this] { FInspector->GetObjects().Add(FThird.get()); }));
  EXPECT_EQ(2, FInspector->GetObjects().GetCount());
  CheckAllIsWell();
}

}  // namespace
}  // namespace kt::tests
