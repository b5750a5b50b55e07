#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/HostileForms.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using namespace tests::hostile;
using tests::BinaryOf;
using tests::MessageOf;
using tests::TSample;

/// Damaged forms that are loaded over an existing one, which has to stay as it is.
class HostileFormsTest : public ::testing::Test {
 protected:
  HostileFormsTest() {
    RegisterClasses({TSample::Class(), TComponent::Class()});
    FExisting = Make<TSample>();
    FExisting->SetName(QStringLiteral("Mine"));
    FExisting->Whole = 7;
    New<TSample>(FExisting.get())->SetName(QStringLiteral("Old"));
    FAlive = TSample::Alive;
  }
  ~HostileFormsTest() override {
    EXPECT_EQ(FAlive, TSample::Alive);
    EXPECT_EQ(QStringLiteral("Mine"), FExisting->GetName());
    EXPECT_EQ(7, FExisting->Whole);
    EXPECT_EQ(1, FExisting->GetComponentCount());
    EXPECT_FALSE(FExisting->HasState(csLoading));
    UnRegisterClasses({TSample::Class(), TComponent::Class()});
  }

  template <class E>
  QString ErrorOf(const QByteArray& form) {
    return MessageOf<E>([&] { TReader(form).ReadRootComponent(FExisting.get()); });
  }
  static std::unique_ptr<TSample> Load(const QByteArray& form) { return TReader(form).ReadRoot<TSample>(); }

  std::unique_ptr<TSample> FExisting;
  int FAlive = 0;
};

TEST_F(HostileFormsTest, TenThousandLevelsOfObjectsAreTooDeep) {
  const QString error = ErrorOf<EReadError>(Nested(10'000));
  EXPECT_TRUE(error.startsWith(QStringLiteral("Nesting deeper than 1000 levels at offset 10013 (")))
      << error.toStdString();
}

TEST_F(HostileFormsTest, AsManyLevelsAsAllowedAreLoaded) {
  const auto root = Load(Nested(1000));
  EXPECT_EQ(FAlive + 1000, TSample::Alive);
  EXPECT_EQ(999, root->GetComponentCount());
}

TEST_F(HostileFormsTest, CountsOfTwoThousandMillionAreRefusedWithTheirPlace) {
  const QString expected = QStringLiteral("Stream read error at offset 24 (S.Text)");
  EXPECT_EQ(expected, ErrorOf<EReadError>(WithHugeText(vaLString)));
  EXPECT_EQ(expected, ErrorOf<EReadError>(WithHugeText(vaWString)));
  EXPECT_EQ(expected, ErrorOf<EReadError>(WithHugeText(vaUTF8String)));
  EXPECT_EQ(expected, ErrorOf<EReadError>(WithHugeText(vaBinary)));
}

TEST_F(HostileFormsTest, FiftyThousandSiblingsAreLoaded) {
  const auto root = Load(kSignature + Opened("S") + FiftyThousandChildren() + '\0');
  EXPECT_EQ(50'000, root->GetComponentCount());
}

TEST_F(HostileFormsTest, FiftyThousandSiblingsAreTakenBackWhenTheLastIsWrong) {
  const QByteArray last = ShortText("TNoSuch") + ShortText("Last") + QByteArray(2, 0);
  EXPECT_EQ(QStringLiteral("Class TNoSuch not found at offset 700015 (S.Last)"),
            ErrorOf<EClassNotFound>(kSignature + Opened("S") + FiftyThousandChildren() + last + '\0'));
}

TEST_F(HostileFormsTest, FiftyThousandItemsAreLoaded) {
  const auto root = Load(WithItems(50'000));
  EXPECT_EQ(50'000, root->GetItems().GetCount());
}

TEST_F(HostileFormsTest, DanglingReferencesWaitAndAreForgottenWithTheirForm) {
  const auto root = Load(WithReference("Nobody.Nothing"));
  EXPECT_EQ(nullptr, root->Partner);
  EXPECT_EQ(QStringList{QStringLiteral("Nobody.Nothing")}, GetFixupReferenceNames(root.get()));
}

TEST_F(HostileFormsTest, ReferencesInACircleAreSet) {
  const auto root =
      Load(BinaryOf("object S: TSample\n  Partner = A\n  object A: TSample\n    Partner = B\n  end\n"
                    "  object B: TSample\n    Partner = Owner\n  end\nend\n"));
  EXPECT_EQ(root.get(), static_cast<TSample*>(static_cast<TSample*>(root->Partner)->Partner)->Partner);
}

TEST_F(HostileFormsTest, AComponentMayReferToItself) {
  const auto root = Load(BinaryOf("object S: TSample\n  Partner = S\nend\n"));
  EXPECT_EQ(root.get(), root->Partner);
}

}  // namespace
}  // namespace kt
