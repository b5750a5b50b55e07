#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Persistent.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSamplePart;

/// Knows how to copy itself into a TSamplePart.
class TPartSource : public TPersistent {
 protected:
  void AssignTo(TPersistent* dest) override {
    auto* part = dynamic_cast<TSamplePart*>(dest);
    if (!part) return TPersistent::AssignTo(dest);
    part->SetSize(77);
  }
};

TEST(PersistentTest, AssignFromAClassThatNeitherSideKnowsRaises) {
  const auto part = Make<TSamplePart>();
  const auto other = Make<TPersistent>();
  EXPECT_EQ(QStringLiteral("Cannot assign a TPersistent to a TSamplePart"),
            MessageOf<EConvertError>([&] { part->Assign(other.get()); }));
}

TEST(PersistentTest, AssignFromNothingRaises) {
  const auto part = Make<TSamplePart>();
  EXPECT_EQ(QStringLiteral("Cannot assign a nil to a TSamplePart"),
            MessageOf<EConvertError>([&] { part->Assign(nullptr); }));
}

TEST(PersistentTest, AssignAsksTheSourceWhenTheDestinationDoesNotKnowItsClass) {
  const auto part = Make<TSamplePart>();
  const auto source = Make<TPartSource>();
  part->Assign(source.get());
  EXPECT_EQ(77, part->GetSize());
}

TEST(PersistentTest, TheNamePathWithoutAnOwnerIsTheClassName) {
  EXPECT_EQ(QStringLiteral("TPersistent"), Make<TPersistent>()->GetNamePath());
}

}  // namespace
}  // namespace kt
