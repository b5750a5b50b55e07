// What happens to a scan, and to requests for one, while another is under way.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"

namespace kt::tests {
namespace {

/// Counts the requests for a scan that are delivered.
class TCountingInspector : public TKTObjectInspector {
 public:
  int Requests = 0;
  void Dispatch(TMessage& message) override {
    if (message.Msg == KT_INVALIDATESCAN) ++Requests;
    TKTObjectInspector::Dispatch(message);
  }

 protected:
  TCountingInspector() = default;
};

class InspectorNestedScanTest : public TInspectorTest {
 protected:
  std::unique_ptr<TSample> FSample = Make<TSample>();
};

TEST_F(InspectorNestedScanTest, AnEventLoopInsideAScanIsNotKeptBusyByAPendingRequest) {
  const auto inspector = Make<TCountingInspector>();
  inspector->GetObjects().Add(FSample.get());
  Deliver();
  inspector->InvalidateScan();
  int scans = 0;
  inspector->OnBeforeScan = [&](TObject*, TKTItemProperty* item, bool&) {
    if (item || scans++ > 0) return;
    for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
  };
  inspector->Requests = 0;
  inspector->Rescan();
  EXPECT_EQ(1, inspector->Requests);
  EXPECT_EQ(1, scans);
  for (int i = 0; i < 3; ++i) Deliver();
  EXPECT_EQ(2, inspector->Requests);
  EXPECT_EQ(2, scans);
}

TEST_F(InspectorNestedScanTest, AScanAskedForInsideOneThatFailsFollowsAllTheSame) {
  FInspector->GetObjects().Add(FSample.get());
  FInspector->OnBeforeScan = [&](TObject*, TKTItemProperty* item, bool&) {
    if (!item) return;
    FInspector->Rescan();
    FInspector->OnBeforeScan = {};
    throw EConvertError("no");
  };
  EXPECT_THROW(FInspector->Rescan(), EConvertError);
  Deliver();
  EXPECT_NE(nullptr, Find("Part.Size"));
}

TEST_F(InspectorNestedScanTest, AHandlerMayFreeTheInspectorWhenTheTreeIsClearedForAVetoedScan) {
  Inspect({FSample.get()});
  FInspector->SetSelected(Find("Whole"));
  bool isFreed = false;
  FInspector->OnBeforeScan = [](TObject*, TKTItemProperty*, bool& result) { result = false; };
  FInspector->OnSelectCell = [&](TObject*, int, int, bool&) {
    if (!std::exchange(isFreed, true)) FInspector.reset();
  };
  try {
    FInspector->Rescan();
  } catch (const Exception& error) {
    EXPECT_EQ("An object was freed while it was in use", error.Message());
  }
  EXPECT_TRUE(isFreed);
}

}  // namespace
}  // namespace kt::tests
