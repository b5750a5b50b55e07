// Properties that are not there any more when a scan comes to them.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"

namespace kt::tests {
namespace {

/// Publishes something else from one moment on.
class TTurncoat : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Before() {
    static const TClassInfo info = TClassBuilder<TTurncoat>("TTurncoat")
                                       .Property<&TTurncoat::GetNumber, &TTurncoat::SetNumber>("One")
                                       .Property<&TTurncoat::GetNumber, &TTurncoat::SetNumber>("Two")
                                       .Done();
    return &info;
  }
  static const TClassInfo* After() {
    static const TClassInfo info =
        TClassBuilder<TTurncoat>("TTurncoat").Property<&TTurncoat::GetNumber, &TTurncoat::SetNumber>("One").Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return HasTurned ? After() : Before(); }

  int GetNumber() const { return FNumber; }
  void SetNumber(int value) { FNumber = value; }

  bool HasTurned = false;

 protected:
  explicit TTurncoat(TComponent* owner = nullptr) : TComponent(owner) {}

 private:
  int FNumber = 0;
};

using InspectorVanishedTest = TInspectorTest;

TEST_F(InspectorVanishedTest, APropertyThatIsNotPublishedAnyMoreWhenItsTurnComesRaises) {
  const auto turncoat = Make<TTurncoat>();
  Inspect({turncoat.get()});
  EXPECT_NE(nullptr, Find("Two"));
  FInspector->SetArrangeByCategory(true);
  FInspector->OnCategorize = [&](TObject*, TKTItemProp* item, const QString&, QString&) {
    turncoat->HasTurned |= item != nullptr;
  };
  EXPECT_EQ("Property Two does not exist", MessageOf<EPropertyError>([&] { Rescan(); }));
  EXPECT_FALSE(FInspector->IsEditUpdateLocked());
  EXPECT_EQ(0, Items().GetUpdateCount());
}

}  // namespace
}  // namespace kt::tests
