// Errors that a load finds late, or before it has begun with the properties, tell their place too.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <functional>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TSample;

/// Raises what a test says, in every override that a load calls.
class TRaiser : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TRaiser>("TRaiser").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  static inline std::function<void(QLatin1StringView)> At;
  void Design() { SetDesigning(true); }

 protected:
  explicit TRaiser(TComponent* owner = nullptr) : TComponent(owner) {}
  void Construct() override {
    TComponent::Construct();
    At(QLatin1StringView("Construct"));
  }
  void ReadState(TReader& reader) override {
    TComponent::ReadState(reader);
    At(QLatin1StringView("ReadState"));
  }
  void SetParentComponent(TComponent*) override { At(QLatin1StringView("SetParentComponent")); }
  void Updating() override {
    TComponent::Updating();
    At(QLatin1StringView("Updating"));
  }
  void Updated() override {
    TComponent::Updated();
    At(QLatin1StringView("Updated"));
  }
  void Loaded() override {
    TComponent::Loaded();
    At(QLatin1StringView("Loaded"));
  }
};

class ReaderPlacesTest : public ::testing::Test {
 protected:
  ReaderPlacesTest() { RegisterClasses({TSample::Class(), TComponent::Class(), TRaiser::Class()}); }
  ~ReaderPlacesTest() override { UnRegisterClasses({TSample::Class(), TComponent::Class(), TRaiser::Class()}); }

  /// A load in which a component raises an error in one of its overrides.
  template <class E>
  static void LoadRaising(const char* place, const QByteArray& form = kRaiserInSample, TComponent* root = nullptr) {
    TRaiser::At = [place](QLatin1StringView here) {
      if (here == QLatin1StringView(place)) throw E(QStringLiteral("no"));
    };
    TReader reader(form);
    const std::unique_ptr<TComponent> made(root ? nullptr : reader.ReadRootComponent(nullptr));
    if (root) reader.ReadRootComponent(root);
  }

  static inline const QByteArray kRaiserInSample = BinaryOf("object S: TSample\n  object R: TRaiser\n  end\nend\n");
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

TEST_F(ReaderPlacesTest, AConstructionThatRaisesTellsWhereTheObjectStands) {
  EXPECT_EQ(QStringLiteral("no at offset 15 (S.R)"),
            MessageOf<ERangeError>([] { LoadRaising<ERangeError>("Construct"); }));
  EXPECT_EQ(QStringLiteral("no at offset 4 (R)"),
            MessageOf<EListError>([] { LoadRaising<EListError>("Construct", BinaryOf("object R: TRaiser\nend\n")); }));
}

TEST_F(ReaderPlacesTest, AnOverrideThatRaisesTellsWhereTheObjectStandsAndKeepsItsException) {
  const QString expected = QStringLiteral("no at offset 15 (S.R)");
  EXPECT_EQ(expected, MessageOf<EListError>([] { LoadRaising<EListError>("SetParentComponent"); }));
  EXPECT_EQ(expected, MessageOf<EInvalidOperation>([] { LoadRaising<EInvalidOperation>("ReadState"); }));
  EXPECT_EQ(expected, MessageOf<EConvertError>([] { LoadRaising<EConvertError>("Loaded"); }));
}

TEST_F(ReaderPlacesTest, TheRootHasItsPlaceToo) {
  const QByteArray form = BinaryOf("object R: TRaiser\nend\n");
  EXPECT_EQ(QStringLiteral("no at offset 4 (R)"),
            MessageOf<EListError>([&] { LoadRaising<EListError>("ReadState", form); }));
  EXPECT_EQ(QStringLiteral("no at offset 4 (R)"),
            MessageOf<EListError>([&] { LoadRaising<EListError>("Loaded", form); }));
}

TEST_F(ReaderPlacesTest, AnUpdateThatRaisesTellsWhereTheObjectStands) {
  const auto updateRaising = [](const char* place) {
    TRaiser::At = [](QLatin1StringView) {};
    const auto designed = Make<TRaiser>();
    designed->Design();
    LoadRaising<EListError>(place, BinaryOf("inherited R: TRaiser\nend\n"), designed.get());
  };
  EXPECT_EQ(QStringLiteral("no at offset 4 (R)"), MessageOf<EListError>([&] { updateRaising("Updating"); }));
  EXPECT_EQ(QStringLiteral("no at offset 4 (R)"), MessageOf<EListError>([&] { updateRaising("Updated"); }));
}

TEST_F(ReaderPlacesTest, AnEventThatRaisesTellsWhereTheObjectStands) {
  TReader reader(kRaiserInSample);
  reader.OnCreateComponent = [](const TClassInfo* classInfo, TComponent*) -> TComponent* {
    if (classInfo == TRaiser::Class()) throw EListError(QStringLiteral("no"));
    return nullptr;
  };
  EXPECT_EQ(QStringLiteral("no at offset 15 (S.R)"), MessageOf<EListError>([&] { reader.ReadRootComponent(nullptr); }));
}

TEST_F(ReaderPlacesTest, AnAbortPassesUntouched) {
  EXPECT_EQ(QStringLiteral("no"), MessageOf<EAbort>([] { LoadRaising<EAbort>("Construct"); }));
  EXPECT_EQ(QStringLiteral("no"), MessageOf<EAbort>([] { LoadRaising<EAbort>("Loaded"); }));
}

TEST_F(ReaderPlacesTest, AValueOfAnotherKindTellsItsPlaceOnce) {
  EXPECT_EQ(QStringLiteral("Error reading S.Whole: Invalid property value at offset 20 (S.Whole)"),
            MessageOf<EReadError>(
                [] { TReader(BinaryOf("object S: TSample\n  Whole = 'a'\nend\n")).ReadRootComponent(nullptr); }));
}

}  // namespace
}  // namespace kt
