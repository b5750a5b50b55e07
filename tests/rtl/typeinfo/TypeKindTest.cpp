#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/rtl/typeinfo/TypeKind.h"
#include "support/FormText.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// Publishes a kind and a set of kinds.
class TKindFilter : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TKindFilter>("TKindFilter")
                                       .Property<&TKindFilter::Kind>("Kind")
                                       .Default(tkUnknown)
                                       .Property<&TKindFilter::Kinds>("Kinds")
                                       .Default(tkProperties)
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TTypeKind Kind = tkUnknown;
  TTypeKinds Kinds = tkProperties;

 protected:
  explicit TKindFilter(TComponent* owner = nullptr) : TComponent(owner) {}
};

TEST(TypeKindTest, TheKindsAreASetWithNames) {
  const auto filter = Make<TKindFilter>();
  EXPECT_EQ(QStringLiteral("TTypeKind"), GetPropInfo(filter.get(), u"Kind")->PropType()->Name());
  EXPECT_EQ(QStringLiteral("TTypeKinds"), GetPropInfo(filter.get(), u"Kinds")->PropType()->Name());
  SetSetProp(filter.get(), u"Kinds", u"tkUnknown,tkMethod,tkDynArray");
  EXPECT_EQ((TTypeKinds{tkUnknown, tkMethod, tkDynArray}), filter->Kinds);
  filter->Kinds = tkAny;
  EXPECT_EQ(QStringLiteral("tkUnknown,tkInteger,tkChar,tkEnumeration,tkFloat,tkString,tkSet,tkClass,tkMethod,tkWChar,"
                           "tkLString,tkWString,tkVariant,tkArray,tkRecord,tkInterface,tkInt64,tkDynArray"),
            GetSetProp(filter.get(), u"Kinds"));
}

TEST(TypeKindTest, KindsAreStreamedByName) {
  const char* const text = "object TKindFilter\n  Kind = tkInt64\n  Kinds = [tkInteger, tkDynArray]\nend\n";
  const auto filter = Make<TKindFilter>();
  TReader(tests::BinaryOf(text)).ReadRootComponent(filter.get());
  EXPECT_EQ(tkInt64, filter->Kind);
  EXPECT_EQ((TTypeKinds{tkInteger, tkDynArray}), filter->Kinds);
  EXPECT_EQ(text, tests::TextOf(filter.get()));
}

}  // namespace
}  // namespace kt
