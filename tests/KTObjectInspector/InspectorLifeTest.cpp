// Whatever is inspected may go at any moment, in any handler.
#include "KTObjectInspector/InspectorFixture.h"

#include <functional>

namespace kt::tests {
namespace {

/// What a handler does to those who called it.
struct TDeed {
  const char* Name;
  std::function<void(class InspectorLifeTest&)> Do;
};

void PrintTo(const TDeed& deed, std::ostream* out) { *out << deed.Name; }

class InspectorLifeTest : public TInspectorTest, public testing::WithParamInterface<TDeed> {
 public:
  void FreeSample() { FSample.reset(); }
  void FreePartner() { FPartner.reset(); }
  void FreeAll() {
    FSample.reset();
    FOther.reset();
    FPartner.reset();
  }
  void ClearObjects() {
    if (FInspector) FInspector->GetObjects().Clear();
  }
  void ClearItems() {
    if (FInspector) FInspector->GetItems().Clear();
  }
  void DeleteItems() {
    if (FSample) FSample->GetItems().Clear();
  }
  void AskForScan() {
    if (FInspector) FInspector->Rescan();
  }
  void FreeInspector() { FInspector.reset(); }

 protected:
  InspectorLifeTest() {
    FSample->GetItems().AddItem("one");
    FOther->GetItems().AddItem("one");
    FSample->Partner = FOther->Partner = FPartner.get();
    FPartner->FreeNotification(FSample.get());
    FPartner->FreeNotification(FOther.get());
    FInspector->SetInplaceCollections(true);
  }
  /// Does the deed once.
  void Deed() {
    if (!std::exchange(FDone, true)) GetParam().Do(*this);
  }
  /// Whatever has happened: what is left can be listed and read.
  void ExpectAllIsWell() {
    EXPECT_TRUE(FDone);
    if (!FInspector) return;
    Deliver();
    EXPECT_FALSE(FInspector->IsEditUpdateLocked());
    EXPECT_EQ(0, FInspector->GetItems().GetUpdateCount());
    FInspector->Rescan();
    FInspector->RefreshProperties();
    Deliver();
    const bool hasObjects = FInspector->GetObjects().GetCount() > 0;
    EXPECT_EQ(hasObjects, FInspector->GetItems().GetCount() > 0);
  }
  void ExpectNoThrow(const std::function<void()>& action) {
    try {
      action();
    } catch (const Exception& error) {
      // Whoever frees what is in use may be told so.
      EXPECT_EQ("An object was freed while it was in use", error.Message());
    }
  }

  std::unique_ptr<TSample> FPartner = Make<TSample>();
  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  bool FDone = false;
};

TEST_P(InspectorLifeTest, BeforeAScan) {
  FInspector->OnBeforeScan = [this](TObject*, TKTItemProperty*, bool&) { Deed(); };
  FInspector->GetObjects().Add(FSample.get());
  FInspector->GetObjects().Add(FOther.get());
  ExpectNoThrow([&] { FInspector->Rescan(); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, BeforeAnItemIsEntered) {
  FInspector->OnBeforeScan = [this](TObject*, TKTItemProperty* item, bool&) {
    if (item && item->GetPropertyKind() == pkCollectionItem) Deed();
  };
  FInspector->GetObjects().Add(FSample.get());
  FInspector->GetObjects().Add(FOther.get());
  ExpectNoThrow([&] { FInspector->Rescan(); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, AfterAnItemWasEntered) {
  FInspector->OnAfterScan = [this](TObject*, TKTItemProperty* item) {
    if (item) Deed();
  };
  FInspector->GetObjects().Add(FSample.get());
  FInspector->GetObjects().Add(FOther.get());
  ExpectNoThrow([&] { FInspector->Rescan(); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, AfterAScan) {
  FInspector->OnAfterScan = [this](TObject*, TKTItemProperty* item) {
    if (!item) Deed();
  };
  FInspector->GetObjects().Add(FSample.get());
  ExpectNoThrow([&] { FInspector->Rescan(); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, WhileAValueIsRefreshed) {
  Inspect({FSample.get(), FOther.get()});
  FInspector->OnRefreshValue = [this](TObject*, TKTItemProperty* item) {
    if (item && item->GetName() == QLatin1StringView("Partner")) Deed();
  };
  ExpectNoThrow([&] { FInspector->RefreshProperties(); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, WhileAValueIsRead) {
  Inspect({FSample.get(), FOther.get()});
  Item("Partner.Whole").SetOnGetProperty([this](TObject*, TObject*, const QString&, QString&) { Deed(); });
  ExpectNoThrow([&] { FInspector->RefreshProperties(); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, WhileAValueIsWritten) {
  Inspect({FSample.get(), FOther.get()});
  Item("Partner.Whole").SetOnSetProperty([this](TObject*, TObject*, const QString&, const QString&) { Deed(); });
  ExpectNoThrow([&] { Edit("Partner.Whole", "5"); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, BeforeAValueIsWritten) {
  Inspect({FSample.get(), FOther.get()});
  FInspector->OnPropertyChanging = [this](TObject*, TKTItemProperty*) { Deed(); };
  ExpectNoThrow([&] { Edit("Whole", "5"); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, BeforeAValueIsWrittenByItsAccessor) {
  Inspect({FSample.get(), FOther.get()});
  FInspector->OnPropertyChanging = [this](TObject*, TKTItemProperty*) { Deed(); };
  ExpectNoThrow([&] { Item("Whole").SetOrdProperty(5, -1); });
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, AfterAValueWasWritten) {
  Inspect({FSample.get(), FOther.get()});
  FInspector->OnPropertyChanged = [this](TObject*, TKTItemProperty*) { Deed(); };
  Edit("Align", "saTop");
  Deliver();
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, WhileAValueIsValidated) {
  Inspect({FSample.get(), FOther.get()});
  FInspector->OnValidated = [this](TObject*, TKTItemProp*, int) { Deed(); };
  ExpectNoThrow([&] { Edit("Whole", "5"); });
  ExpectAllIsWell();
}

/// The list of filters belongs to the inspector, and nobody may free a list that is just being changed.
class InspectorFiltersLifeTest : public InspectorLifeTest {};

TEST_P(InspectorFiltersLifeTest, WhileFiltersChange) {
  Inspect({FSample.get(), FOther.get()});
  FInspector->OnFiltersChanged = [this](TObject*) { Deed(); };
  FInspector->GetFilters().Add("Tag");
  ExpectAllIsWell();
}

TEST_P(InspectorLifeTest, FromOutside) {
  Inspect({FSample.get(), FOther.get()});
  Deed();
  ExpectAllIsWell();
}

const TDeed kDeeds[] = {{"FreesTheFirstObject", &InspectorLifeTest::FreeSample},
                        {"FreesAReferredObject", &InspectorLifeTest::FreePartner},
                        {"FreesEverything", &InspectorLifeTest::FreeAll},
                        {"ClearsTheObjects", &InspectorLifeTest::ClearObjects},
                        {"ClearsTheTree", &InspectorLifeTest::ClearItems},
                        {"DeletesTheCollectionsItems", &InspectorLifeTest::DeleteItems},
                        {"AsksForARescan", &InspectorLifeTest::AskForScan},
                        {"FreesTheInspector", &InspectorLifeTest::FreeInspector}};

std::string DeedName(const testing::TestParamInfo<TDeed>& test) { return test.param.Name; }

INSTANTIATE_TEST_SUITE_P(Deeds, InspectorLifeTest, testing::ValuesIn(kDeeds), DeedName);
INSTANTIATE_TEST_SUITE_P(Deeds, InspectorFiltersLifeTest, testing::ValuesIn(std::begin(kDeeds), std::end(kDeeds) - 1),
                         DeedName);

}  // namespace
}  // namespace kt::tests
