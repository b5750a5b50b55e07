#include "KTPropertyPresets/PresetFixture.h"
#include "kt/KTPropertyPresets/PresetRegistry.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "support/InThreads.h"

#include <atomic>

namespace kt::tests {
namespace {

/// A family of presets: B and C descend from A, D from C.
template <const char* Name, class Base>
class TFamilyPreset : public Base {
 public:
  using Inherited = Base;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TFamilyPreset>(Name).Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TFamilyPreset(TCollection* collection) : Base(collection) {}
};

constexpr char NameOfA[] = "TPresetA";
constexpr char NameOfB[] = "TPresetB";
constexpr char NameOfC[] = "TPresetC";
constexpr char NameOfD[] = "TPresetD";
using TPresetA = TFamilyPreset<NameOfA, TKTPropertyPreset>;
using TPresetB = TFamilyPreset<NameOfB, TPresetA>;
using TPresetC = TFamilyPreset<NameOfC, TPresetA>;
using TPresetD = TFamilyPreset<NameOfD, TPresetC>;

class PresetRegistryTest : public testing::Test {
 protected:
  PresetRegistryTest() {
    // There is a list from the first registration on.
    RegisterPresets({});
    RegisterPreset(TKTPropertyPreset::Class());
    FBefore = Registered();
  }
  ~PresetRegistryTest() override {
    UnregisterPresets({TPresetB::Class(), TPresetD::Class(), TPresetC::Class(), TPresetA::Class()});
    EXPECT_EQ(FBefore, Registered());
    UnRegisterClasses({TPresetA::Class(), TPresetB::Class(), TPresetC::Class(), TPresetD::Class()});
  }

  static QStringList Registered() {
    QStringList names;
    const TThreadListLock list(*RegisteredPresets());
    for (void* element : *list) names += static_cast<const TClassInfo*>(element)->ClassName();
    return names;
  }
  /// Without what others have registered.
  std::string Own() { return Registered().mid(FBefore.size()).join(u' ').toStdString(); }

  QStringList FBefore;
};

TEST_F(PresetRegistryTest, TheBaseClassIsNeverOnTheList) {
  RegisterPreset(TKTPropertyPreset::Class());
  EXPECT_EQ("", Own());
}

TEST_F(PresetRegistryTest, AClassIsFollowedByItsAncestors) {
  RegisterPreset(TPresetD::Class());
  EXPECT_EQ("TPresetD TPresetC TPresetA", Own());
}

TEST_F(PresetRegistryTest, AClassIsOnTheListOnce) {
  RegisterPreset(TPresetA::Class());
  RegisterPreset(TPresetA::Class());
  EXPECT_EQ("TPresetA", Own());
}

TEST_F(PresetRegistryTest, AbovePresentClassesNothingIsAdded) {
  RegisterPreset(TPresetA::Class());
  RegisterPreset(TPresetD::Class());
  EXPECT_EQ("TPresetA TPresetD TPresetC", Own());
}

TEST_F(PresetRegistryTest, SeveralClassesComeInTheirOrder) {
  RegisterPresets({TPresetA::Class(), TPresetC::Class(), TPresetB::Class()});
  EXPECT_EQ("TPresetA TPresetC TPresetB", Own());
}

TEST_F(PresetRegistryTest, AnUnregisteredClassTakesItsAncestorsAlong) {
  RegisterPresets({TPresetD::Class(), TPresetB::Class()});
  UnregisterPreset(TPresetD::Class());
  EXPECT_EQ("TPresetB", Own());
}

TEST_F(PresetRegistryTest, UnregisteringStopsAtTheFirstClassThatIsNotThere) {
  RegisterPresets({TPresetD::Class(), TPresetB::Class()});
  UnregisterPreset(TPresetB::Class());
  EXPECT_EQ("TPresetD TPresetC", Own());
  // A has gone with B.
  UnregisterPresets({TPresetB::Class(), TPresetD::Class()});
  EXPECT_EQ("", Own());
}

TEST_F(PresetRegistryTest, AClassThatWasNeverRegisteredLeavesItsAncestors) {
  RegisterPreset(TPresetA::Class());
  UnregisterPreset(TPresetB::Class());
  EXPECT_EQ("TPresetA", Own());
}

TEST_F(PresetRegistryTest, RegisteredClassesAreKnownToStreamsWithAllAncestors) {
  RegisterPreset(TPresetB::Class());
  EXPECT_EQ(TPresetB::Class(), GetClass(u"TPresetB"));
  EXPECT_EQ(TKTPropertyPreset::Class(), GetClass(u"TKTPropertyPreset"));
  UnregisterPreset(TPresetB::Class());
  EXPECT_EQ(TPresetB::Class(), GetClass(u"TPresetB"));
}

TEST_F(PresetRegistryTest, ANameThatStreamsKnowForAnotherClassIsRefused) {
  TClassInfo other({.Name = QStringLiteral("TPresetB"), .Parent = TPersistent::Class()});
  RegisterClass(&other);
  EXPECT_THROW(RegisterPreset(TPresetB::Class()), EFilerError);
  UnRegisterClass(&other);
  EXPECT_EQ("", Own());
}

TEST_F(PresetRegistryTest, NewInspectorsHaveOnePresetOfEachClass) {
  RegisterPresets({TPresetA::Class(), TPresetB::Class()});
  const auto inspector = Make<TPresetInspector>();
  EXPECT_EQ(FBefore.size() + 2, inspector->GetPresets().GetCount());
  EXPECT_LT(inspector->GetPresets().IndexOf(TPresetA::Class()), inspector->GetPresets().IndexOf(TPresetB::Class()));
}

TEST_F(PresetRegistryTest, SeveralThreadsRegisterWhileOthersWalk) {
  std::atomic<int> torn = 0;
  InThreads(4, [&](int thread) {
    for (int i = 0; i < 200; ++i) {
      if (thread % 2 == 0) {
        RegisterPreset(TPresetD::Class());
        UnregisterPreset(TPresetD::Class());
      } else {
        const TThreadListLock list(*RegisteredPresets());
        const bool hasD = list->IndexOf(TPresetD::Class()) >= 0;
        const bool hasA = list->IndexOf(TPresetA::Class()) >= 0;
        if (hasD != hasA) ++torn;
      }
    }
  });
  EXPECT_EQ(0, torn);
  EXPECT_EQ("", Own());
}

}  // namespace
}  // namespace kt::tests
