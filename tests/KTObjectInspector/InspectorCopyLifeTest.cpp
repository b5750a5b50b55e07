// One inspector may go while it is copied to another.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"

namespace kt::tests {
namespace {

class InspectorCopyLifeTest : public TInspectorTest {
 protected:
  InspectorCopyLifeTest() {
    FSource->GetFilters().Add("Tag");
    FSource->GetObjects().Add(FSample.get());
  }
  void FreeSource(TObject*) { FSource.reset(); }
  /// The copy ends where the source went.
  void ExpectCopyEnds() {
    EXPECT_EQ("An object was freed while it was in use",
              MessageOf<EInvalidOperation>([this] { FInspector->Assign(FSource.get()); }));
    EXPECT_EQ("Tag", FInspector->GetFilters().GetText().trimmed());
    EXPECT_EQ(0, FInspector->GetObjects().GetUpdateCount());
    EXPECT_EQ(0, FInspector->GetObjects().GetCount());
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TKTObjectInspector> FSource = Make<TKTObjectInspector>();
};

TEST_F(InspectorCopyLifeTest, TheSourceMayGoBeforeTheFiltersAreCopied) {
  FInspector->OnFiltersChanging = [this](TObject* sender) { FreeSource(sender); };
  ExpectCopyEnds();
}

TEST_F(InspectorCopyLifeTest, TheSourceMayGoAfterTheFiltersWereCopied) {
  FInspector->OnFiltersChanged = [this](TObject* sender) { FreeSource(sender); };
  ExpectCopyEnds();
}

}  // namespace
}  // namespace kt::tests
