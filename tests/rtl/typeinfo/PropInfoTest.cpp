#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

std::unique_ptr<TPropAccess> TextRoad() {
  return std::make_unique<TFunctionAccess<QString>>([](TObject&) { return QStringLiteral("text"); },
                                                    TFunctionAccess<QString>::TSetter());
}

TEST(PropInfoTest, ADefinitionWithoutATypeOrARoadIsRefused) {
  EXPECT_EQ(QStringLiteral("Invalid property"), MessageOf<EPropertyError>([] {
              TPropInfo({QStringLiteral("P"), {}, TextRoad()});
            }));
  EXPECT_EQ(QStringLiteral("Invalid property"), MessageOf<EPropertyError>([] {
              TPropInfo({QStringLiteral("P"), &TypeInfos::LongString, nullptr});
            }));
}

TEST(PropInfoTest, ATypeThatTurnsOutToBeMissingIsRefused) {
  const TPropInfo property({QStringLiteral("P"), []() -> const TTypeInfo* { return nullptr; }, TextRoad()});
  EXPECT_EQ(QStringLiteral("Invalid property"), MessageOf<EPropertyError>([&] { property.Kind(); }));
}

TEST(PropInfoTest, ATypeThatIsNotWhatItsKindSaysIsRefused) {
  static const TTypeInfo bare(tkString, QStringLiteral("TBare"));
  const TPropInfo property({QStringLiteral("P"), [] { return &bare; }, TextRoad()});
  const auto object = Make<TPersistent>();
  EXPECT_EQ(QStringLiteral("Invalid property type: TBare"),
            MessageOf<EPropertyError>([&] { SetStrProp(object.get(), &property, QString()); }));
}

TEST(PropInfoTest, ARoadOfAnotherFamilyThanTheKindIsRefused) {
  const TPropInfo property({QStringLiteral("P"), &TypeInfoOf<int>, TextRoad()});
  const auto object = Make<TPersistent>();
  EXPECT_EQ(QStringLiteral("Invalid property type: Integer"),
            MessageOf<EPropertyError>([&] { GetOrdProp(object.get(), &property); }));
}

TEST(PropInfoTest, ARoadOfTheFamilyIsTaken) {
  const TPropInfo property({QStringLiteral("P"), &TypeInfos::LongString, TextRoad()});
  const auto object = Make<TPersistent>();
  EXPECT_EQ(QStringLiteral("text"), GetStrProp(object.get(), &property));
}

}  // namespace
}  // namespace kt
