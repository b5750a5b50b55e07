// Errors that a load finds late, or before it has begun with the properties, tell their place too.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TSample;

class ReaderPlacesTest : public ::testing::Test {
 protected:
  ReaderPlacesTest() { RegisterClasses({TSample::Class(), TComponent::Class()}); }
  ~ReaderPlacesTest() override { UnRegisterClasses({TSample::Class(), TComponent::Class()}); }
};

TEST_F(ReaderPlacesTest, AReferenceThatCannotBeSetTellsWhereItsNameStands) {
  const QByteArray form =
      BinaryOf("object S: TSample\n  object A: TSample\n    Sibling = B\n  end\n  object B: TComponent\n  end\nend\n");
  const qsizetype value = form.indexOf("Sibling") + 7;
  EXPECT_EQ(QStringLiteral("Error reading A.Sibling: Invalid class typecast at offset %1 (S.A.Sibling)").arg(value),
            MessageOf<EReadError>([&] { TReader(form).ReadRootComponent(nullptr); }));
}

TEST_F(ReaderPlacesTest, ARootWhoseNameIsNoneTellsWhereItBegins) {
  const QByteArray form("TPF0\7TSample\3a b\0\0", 18);
  const auto root = Make<TSample>();
  const QString expected = QStringLiteral("''a b'' is not a valid component name at offset 4 (a b)");
  EXPECT_EQ(expected, MessageOf<EComponentError>([&] { TReader(form).ReadRootComponent(root.get()); }));
  EXPECT_EQ(expected, MessageOf<EComponentError>([&] { TReader(form).ReadRootComponent(nullptr); }));
}

}  // namespace
}  // namespace kt
