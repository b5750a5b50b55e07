// Objects that tell of their changes themselves.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/PropListener.h"

#include <algorithm>

namespace kt::tests {
namespace {

/// Tells of each change of its number, and counts how often that is read.
class TTellingSample : public TComponent, public IPropNotifier {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TTellingSample>("TTellingSample")
                                       .Property<&TTellingSample::GetNumber, &TTellingSample::SetNumber>("Number")
                                       .Property<&TTellingSample::Partner>("Partner")
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  int GetNumber() const {
    ++Reads;
    return FNumber;
  }
  void SetNumber(int value) {
    FNumber = value;
    Tell("Number");
  }
  void CountTo(int last) {
    for (int i = 1; i <= last; ++i) SetNumber(i);
  }
  void Tell(const QString& name) {
    for (IPropListener* listener : Listeners) listener->PropChanged(this, name);
  }
  void AddPropListener(IPropListener* listener) override { Listeners.push_back(listener); }
  void RemovePropListener(IPropListener* listener) override {
    Listeners.erase(std::remove(Listeners.begin(), Listeners.end(), listener), Listeners.end());
  }

  TComponent* Partner = nullptr;
  std::vector<IPropListener*> Listeners;
  mutable int Reads = 0;

 protected:
  explicit TTellingSample(TComponent* owner = nullptr) : TComponent(owner) {}

 private:
  int FNumber = 0;
};

class PropertyWatchTest : public TInspectorTest {
 protected:
  ~PropertyWatchTest() override {
    // Before what it listens to.
    FInspector.reset();
    EXPECT_EQ(0u, FSample ? FSample->Listeners.size() : 0u);
  }

  std::unique_ptr<TTellingSample> FSample = Make<TTellingSample>();
};

TEST_F(PropertyWatchTest, AnObjectInTheTreeIsListenedToOnce) {
  Inspect({FSample.get()});
  EXPECT_EQ(1u, FSample->Listeners.size());
  Rescan();
  EXPECT_EQ(1u, FSample->Listeners.size());
}

TEST_F(PropertyWatchTest, AnObjectThatLeavesTheTreeIsNotListenedToAnyLonger) {
  Inspect({FSample.get()});
  FInspector->GetObjects().Clear();
  Deliver();
  EXPECT_EQ(0u, FSample->Listeners.size());
}

TEST_F(PropertyWatchTest, AVetoedScanListensToNobody) {
  Inspect({FSample.get()});
  FInspector->OnBeforeScan = [](TObject*, TKTItemProperty*, bool& result) { result = false; };
  Rescan();
  EXPECT_EQ(0u, FSample->Listeners.size());
}

TEST_F(PropertyWatchTest, ManyChangesAreReadOnce) {
  Inspect({FSample.get()});
  FSample->Reads = 0;
  FSample->CountTo(1000);
  Deliver();
  EXPECT_EQ("1000", Value("Number"));
  // The text, and the raw value.
  EXPECT_EQ(2, FSample->Reads);
}

TEST_F(PropertyWatchTest, AChangeThatIsToldWhileTheObjectsAreBeingChangedIsSeenByTheScan) {
  Inspect({FSample.get()});
  FInspector->GetObjects().BeginUpdate();
  FSample->SetNumber(7);
  Deliver();
  FInspector->GetObjects().EndUpdate();
  Deliver();
  EXPECT_EQ("7", Value("Number"));
  FSample->SetNumber(8);
  Deliver();
  EXPECT_EQ("8", Value("Number"));
}

TEST_F(PropertyWatchTest, AReferenceThatLeadsNowhereAnyMoreHasTheTreeBuiltAnew) {
  const auto partner = Make<TTellingSample>();
  FSample->Partner = partner.get();
  Inspect({FSample.get()});
  ASSERT_NE(nullptr, Find("Partner.Number"));
  FSample->Partner = nullptr;
  FSample->Tell("Partner");
  Deliver();
  // The refresh has asked for a scan.
  Deliver();
  EXPECT_EQ(nullptr, Find("Partner.Number"));
  EXPECT_EQ(0u, partner->Listeners.size());
}

TEST_F(PropertyWatchTest, AnUnknownPropertyIsNobodysConcern) {
  Inspect({FSample.get()});
  FSample->Tell("Unknown");
  Deliver();
  EXPECT_EQ("0", Value("Number"));
}

TEST_F(PropertyWatchTest, AnObjectMayGoWithItsChange) {
  Inspect({FSample.get()});
  FSample->SetNumber(3);
  FSample.reset();
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

}  // namespace
}  // namespace kt::tests
