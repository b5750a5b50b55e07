// An inspector may go when it hears that its list of objects is about to change.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"

#include <functional>

namespace kt::tests {
namespace {

/// An inspector that goes when it hears that its objects are about to change.
class TFleetingInspector : public TKTObjectInspector {
 public:
  std::function<void()> OnListUpdating;

 protected:
  TFleetingInspector() = default;
  void ListUpdating() override {
    const auto handler = OnListUpdating;
    TKTObjectInspector::ListUpdating();
    if (handler) handler();
  }
};

class InspectorObjectsLifeTest : public TInspectorTest {
 protected:
  InspectorObjectsLifeTest() {
    FFleeting->GetObjects().Add(FSample.get());
    FSource->GetObjects().Add(FOther.get());
    FFleeting->OnListUpdating = [this] { FFleeting.reset(); };
  }
  /// The change is refused, and nobody touches what has gone.
  template <class F>
  void ExpectRefused(F change) {
    EXPECT_EQ("An object was freed while it was in use",
              MessageOf<EInvalidOperation>([&] { change(FFleeting->GetObjects()); }));
    EXPECT_EQ(nullptr, FFleeting);
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  std::unique_ptr<TFleetingInspector> FFleeting = Make<TFleetingInspector>();
  std::unique_ptr<TKTObjectInspector> FSource = Make<TKTObjectInspector>();
};

TEST_F(InspectorObjectsLifeTest, TheInspectorMayGoWhenAnObjectIsAdded) {
  ExpectRefused([this](TKTInspectorObjects& objects) { objects.Add(FOther.get()); });
}

TEST_F(InspectorObjectsLifeTest, TheInspectorMayGoWhenAnObjectWithAnOwnerIsAdded) {
  ExpectRefused([this](TKTInspectorObjects& objects) { objects.Add(FOther.get(), FSample.get()); });
}

TEST_F(InspectorObjectsLifeTest, TheInspectorMayGoWhenAnObjectIsRemoved) {
  ExpectRefused([this](TKTInspectorObjects& objects) { objects.Remove(FSample.get()); });
}

TEST_F(InspectorObjectsLifeTest, TheInspectorMayGoWhenTheObjectsAreCleared) {
  ExpectRefused([](TKTInspectorObjects& objects) { objects.Clear(); });
}

TEST_F(InspectorObjectsLifeTest, TheInspectorMayGoWhenTheObjectsAreCopied) {
  ExpectRefused([this](TKTInspectorObjects& objects) { objects.Assign(&FSource->GetObjects()); });
}

TEST_F(InspectorObjectsLifeTest, TheInspectorMayGoWhenTheObjectsThatAreThereAreCopied) {
  ExpectRefused([this](TKTInspectorObjects& objects) { objects.AssignNonEmpty(FSource->GetObjects()); });
}

TEST_F(InspectorObjectsLifeTest, TheInspectorMayGoWhenAnInspectedComponentDies) {
  FSample.reset();
  EXPECT_EQ(nullptr, FFleeting);
}

TEST_F(InspectorObjectsLifeTest, TheSourceMayGoWhenItsObjectsAreCopied) {
  FFleeting->OnListUpdating = [this] { FSource.reset(); };
  EXPECT_EQ("An object was freed while it was in use",
            MessageOf<EInvalidOperation>([&] { FFleeting->GetObjects().AssignNonEmpty(FSource->GetObjects()); }));
  EXPECT_EQ(0, FFleeting->GetObjects().GetUpdateCount());
}

TEST_F(InspectorObjectsLifeTest, AnObjectThatDiesWhenItIsAddedIsNotInspected) {
  FFleeting->OnListUpdating = [this] { FOther.reset(); };
  EXPECT_EQ("An object was freed while it was in use",
            MessageOf<EInvalidOperation>([&] { FFleeting->GetObjects().Add(FOther.get()); }));
  EXPECT_EQ(1, FFleeting->GetObjects().GetCount());
  EXPECT_EQ(0, FFleeting->GetObjects().GetUpdateCount());
}

}  // namespace
}  // namespace kt::tests
