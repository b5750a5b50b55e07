#include "kt/KTPropertyPresets/MatchClassName.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

TEST(MatchClassNameTest, TheClassItselfMatchesWithoutRegardToCase) {
  EXPECT_TRUE(IsMatchClassName(TComponent::Class(), u"TComponent"));
  EXPECT_TRUE(IsMatchClassName(TComponent::Class(), u"tCOMPONENT"));
}

TEST(MatchClassNameTest, AnyAncestorMatches) {
  EXPECT_TRUE(IsMatchClassName(TComponent::Class(), u"TPersistent"));
  EXPECT_TRUE(IsMatchClassName(TComponent::Class(), u"TObject"));
}

TEST(MatchClassNameTest, OtherClassesAndDescendantsDoNotMatch) {
  EXPECT_FALSE(IsMatchClassName(TPersistent::Class(), u"TComponent"));
  EXPECT_FALSE(IsMatchClassName(TPersistent::Class(), u""));
}

TEST(MatchClassNameTest, NoClassMatchesNothing) {
  const auto names = Make<TStringList>();
  names->Add("TObject");
  EXPECT_FALSE(IsMatchClassName(nullptr, u"TObject"));
  EXPECT_FALSE(IsMatchClassName(nullptr, *names));
}

TEST(MatchClassNameTest, OneOfTheLinesIsEnough) {
  const auto names = Make<TStringList>();
  names->SetCommaText("TStrings,tpersistent");
  EXPECT_TRUE(IsMatchClassName(TComponent::Class(), *names));
  EXPECT_FALSE(IsMatchClassName(TObject::Class(), *names));
}

TEST(MatchClassNameTest, NoLineMatchesNothing) {
  EXPECT_FALSE(IsMatchClassName(TComponent::Class(), *Make<TStringList>()));
}

}  // namespace
}  // namespace kt::tests
