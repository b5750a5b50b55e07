#include "kt/KTPropertyPresets/PresetRegistry.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class TBarePreset : public TKTPropertyPreset {
 public:
  using Inherited = TKTPropertyPreset;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TBarePreset>("TBarePreset").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TBarePreset(TCollection* collection) : TKTPropertyPreset(collection) {}
};

TEST(BarePresetRegistryTest, BeforeTheFirstRegistrationThereIsNoListAndNothingToUnregister) {
  ASSERT_EQ(nullptr, RegisteredPresets());
  UnregisterPreset(TBarePreset::Class());
  UnregisterPresets({TBarePreset::Class()});
  EXPECT_EQ(nullptr, RegisteredPresets());
  RegisterPreset(TBarePreset::Class());
  ASSERT_NE(nullptr, RegisteredPresets());
  EXPECT_EQ(1, TThreadListLock(*RegisteredPresets())->GetCount());
  UnregisterPreset(TBarePreset::Class());
  EXPECT_EQ(0, TThreadListLock(*RegisteredPresets())->GetCount());
  UnRegisterClasses({TBarePreset::Class()});
}

}  // namespace
}  // namespace kt::tests
