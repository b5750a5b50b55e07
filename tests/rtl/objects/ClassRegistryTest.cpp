#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSample;

class ClassRegistryTest : public ::testing::Test {
 protected:
  ~ClassRegistryTest() override { UnRegisterClasses({TSample::Class(), TComponent::Class(), TPersistent::Class()}); }
};

TEST_F(ClassRegistryTest, ARegisteredClassIsFoundWithoutRegardToCase) {
  RegisterClass(TSample::Class());
  EXPECT_EQ(TSample::Class(), GetClass(u"tsample"));
  EXPECT_EQ(TSample::Class(), FindClass(u"TSAMPLE"));
}

TEST_F(ClassRegistryTest, TheAncestorsUpToPersistentAreRegisteredToo) {
  RegisterClass(TSample::Class());
  EXPECT_EQ(TComponent::Class(), GetClass(u"TComponent"));
  EXPECT_EQ(TPersistent::Class(), GetClass(u"TPersistent"));
  EXPECT_EQ(nullptr, GetClass(u"TObject"));
}

TEST_F(ClassRegistryTest, GettingAnUnknownClassAnswersNull) { EXPECT_EQ(nullptr, GetClass(u"TNoSuchClass")); }

TEST_F(ClassRegistryTest, FindingAnUnknownClassRaises) {
  EXPECT_EQ(QStringLiteral("Class TNoSuchClass not found"),
            MessageOf<EClassNotFound>([] { FindClass(u"TNoSuchClass"); }));
}

TEST_F(ClassRegistryTest, RegisteringTwiceDoesNothing) {
  RegisterClasses({TSample::Class(), TSample::Class()});
  const auto classes = RegisteredClasses();
  EXPECT_EQ(1, std::count(classes.begin(), classes.end(), TSample::Class()));
}

TEST_F(ClassRegistryTest, AnotherClassOfTheSameNameIsRefused) {
  RegisterClass(TSample::Class());
  const TClassInfo impostor({.Name = QStringLiteral("TSAMPLE"), .Parent = TComponent::Class()});
  EXPECT_EQ(QStringLiteral("A class named TSAMPLE already exists"),
            MessageOf<EFilerError>([&] { RegisterClass(&impostor); }));
}

TEST_F(ClassRegistryTest, ARefusedClassLeavesNoneOfItsLineBehind) {
  RegisterClass(TSample::Class());
  const TClassInfo impostor({.Name = QStringLiteral("TSAMPLE"), .Parent = TComponent::Class()});
  const TClassInfo child({.Name = QStringLiteral("TChildOfImpostor"), .Parent = &impostor});
  EXPECT_EQ(QStringLiteral("A class named TSAMPLE already exists"),
            MessageOf<EFilerError>([&] { RegisterClass(&child); }));
  EXPECT_EQ(nullptr, GetClass(u"TChildOfImpostor"));
}

TEST_F(ClassRegistryTest, AnUnregisteredClassIsGoneAndItsAncestorsStay) {
  RegisterClass(TSample::Class());
  UnRegisterClass(TSample::Class());
  EXPECT_EQ(nullptr, GetClass(u"TSample"));
  EXPECT_EQ(TComponent::Class(), GetClass(u"TComponent"));
}

}  // namespace
}  // namespace kt
