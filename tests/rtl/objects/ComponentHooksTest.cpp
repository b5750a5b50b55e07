// What a component class can override to have its say in who owns what under which name.
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

QString Shown(const QString& name) { return name.isEmpty() ? QStringLiteral("-") : name; }

/// Logs each question and refuses what it is told to refuse.
class TStrict : public TComponent {
 public:
  using Inherited = TComponent;
  static inline QString Log;
  static QString Take() { return std::exchange(Log, QString()).trimmed(); }
  QString Refused;
  void BeginDesign() { SetDesigning(true); }
  void SetDesigned(bool value) { SetDesignInstance(value); }

 protected:
  explicit TStrict(TComponent* owner = nullptr) : TComponent(owner) {}
  void ValidateRename(TComponent* component, const QString& current, const QString& wanted) override {
    Note("rename", Shown(component ? component->GetName() : QString()) + u' ' + Shown(current) + u'>' + Shown(wanted));
    TComponent::ValidateRename(component, current, wanted);
  }
  void ValidateInsert(TComponent* component) override { Note("insert", Shown(component->GetName())); }
  void ValidateContainer(TComponent* container) override {
    Note("container", Shown(container->GetName()));
    TComponent::ValidateContainer(container);
  }

 private:
  void Note(const char* question, const QString& what) {
    Log += Shown(GetName()) + u'.' + QLatin1StringView(question) + u'(' + what + QStringLiteral(") ");
    if (Refused == QLatin1StringView(question)) throw EComponentError(QStringLiteral("refused"));
  }
};

class ComponentHooksTest : public ::testing::Test {
 protected:
  ComponentHooksTest() {
    Owner->SetName(QStringLiteral("O"));
    Free->SetName(QStringLiteral("F"));
    TStrict::Take();
  }

  std::unique_ptr<TStrict> Owner = Make<TStrict>();
  std::unique_ptr<TStrict> Free = Make<TStrict>();
};

TEST_F(ComponentHooksTest, InsertingAsksTheComponentForTheContainerThenTheOwnerForTheInsertionAndTheName) {
  Owner->InsertComponent(Free.get());
  EXPECT_EQ(QStringLiteral("F.container(O) O.insert(F) O.rename(F ->F)"), TStrict::Take());
  Owner->RemoveComponent(Free.get());
}

TEST_F(ComponentHooksTest, RemovingAsksTheOwnerForTheLossOfTheName) {
  Owner->InsertComponent(Free.get());
  TStrict::Take();
  Owner->RemoveComponent(Free.get());
  EXPECT_EQ(QStringLiteral("O.rename(F F>-)"), TStrict::Take());
  EXPECT_EQ(0, Owner->GetComponentCount());
  EXPECT_EQ(nullptr, Free->GetOwnerComponent());
  EXPECT_EQ(QStringLiteral("F"), Free->GetName());
}

TEST_F(ComponentHooksTest, RenamingAsksTheOwner) {
  Owner->InsertComponent(Free.get());
  TStrict::Take();
  Free->SetName(QStringLiteral("G"));
  EXPECT_EQ(QStringLiteral("O.rename(F F>G)"), TStrict::Take());
  EXPECT_EQ(Free.get(), Owner->FindComponent(u"G"));
  Owner->RemoveComponent(Free.get());
}

TEST_F(ComponentHooksTest, RenamingWithoutAnOwnerAsksTheComponentItself) {
  Free->SetName(QStringLiteral("G"));
  EXPECT_EQ(QStringLiteral("F.rename(- F>G)"), TStrict::Take());
}

TEST_F(ComponentHooksTest, InADesignerTheOwnersOfTheOwnerAreAskedToo) {
  Owner->InsertComponent(Free.get());
  auto* inner = New<TStrict>(Free.get());
  inner->SetName(QStringLiteral("I"));
  Owner->BeginDesign();
  TStrict::Take();
  inner->SetName(QStringLiteral("J"));
  EXPECT_EQ(QStringLiteral("F.rename(I I>J) O.rename(I I>J)"), TStrict::Take());
  Owner->RemoveComponent(Free.get());
}

TEST_F(ComponentHooksTest, ARefusedNameStays) {
  Owner->InsertComponent(Free.get());
  Owner->Refused = QStringLiteral("rename");
  EXPECT_EQ(QStringLiteral("refused"), MessageOf<EComponentError>([&] { Free->SetName(QStringLiteral("G")); }));
  EXPECT_EQ(QStringLiteral("F"), Free->GetName());
  Owner->Refused.clear();
  Owner->RemoveComponent(Free.get());
}

TEST_F(ComponentHooksTest, ARefusedInsertionLeavesTheComponentWhereItIs) {
  const auto other = Make<TComponent>();
  other->InsertComponent(Free.get());
  Owner->Refused = QStringLiteral("insert");
  EXPECT_THROW(Owner->InsertComponent(Free.get()), EComponentError);
  EXPECT_EQ(other.get(), Free->GetOwnerComponent());
  EXPECT_EQ(0, Owner->GetComponentCount());
  other->RemoveComponent(Free.get());
}

TEST_F(ComponentHooksTest, AComponentMayRefuseItsContainer) {
  Free->Refused = QStringLiteral("container");
  EXPECT_EQ(QStringLiteral("refused"), MessageOf<EComponentError>([&] { Owner->InsertComponent(Free.get()); }));
  EXPECT_EQ(nullptr, Free->GetOwnerComponent());
}

TEST_F(ComponentHooksTest, ARefusedRemovalLeavesTheComponentOwned) {
  Owner->InsertComponent(Free.get());
  Owner->Refused = QStringLiteral("rename");
  EXPECT_THROW(Owner->RemoveComponent(Free.get()), EComponentError);
  EXPECT_EQ(Owner.get(), Free->GetOwnerComponent());
  Owner->Refused.clear();
  Owner->RemoveComponent(Free.get());
}

TEST_F(ComponentHooksTest, AComponentThatIsConstructedAsksInItsConstruction) {
  New<TStrict>(Owner.get());
  EXPECT_EQ(QStringLiteral("-.container(O) O.insert(-) O.rename(- ->-)"), TStrict::Take());
}

TEST_F(ComponentHooksTest, TheRootThatADesignerEditsIsMarkedAlone) {
  auto* child = New<TStrict>(Owner.get());
  Owner->SetDesigned(true);
  EXPECT_EQ(TComponentState{csDesignInstance}, Owner->GetComponentState());
  EXPECT_FALSE(child->HasState(csDesignInstance));
  Owner->SetDesigned(false);
  EXPECT_EQ(TComponentState(), Owner->GetComponentState());
}

TEST_F(ComponentHooksTest, AComponentThatIsNoControlHasNoParentWhoeverOwnsIt) {
  auto* child = New<TStrict>(Owner.get());
  EXPECT_FALSE(child->HasParent());
  EXPECT_EQ(nullptr, child->GetParentComponent());
}

TEST(InterfaceTest, TheReferenceToAComponentHasTheNumberThatItsTypeSays) {
  EXPECT_EQ(QStringLiteral("{e28b1858-ec86-4559-8fcd-6b4f824151ed}"), IInterfaceComponentReference::Guid.toString());
  const TTypeInfo* type = TypeInfoOf<IInterfaceComponentReference*>();
  EXPECT_EQ(tkInterface, type->Kind());
  EXPECT_EQ(QStringLiteral("IInterfaceComponentReference"), type->Name());
  EXPECT_EQ(IInterfaceComponentReference::Guid, static_cast<const TInterfaceTypeInfo*>(type)->Guid());
}

/// Takes every name.
class TLax : public TComponent {
 public:
  using Inherited = TComponent;

 protected:
  explicit TLax(TComponent* owner = nullptr) : TComponent(owner) {}
  void ValidateRename(TComponent*, const QString&, const QString&) override {}
};

TEST_F(ComponentHooksTest, WhereEqualNamesAreAllowedTheNextOfThemIsFoundWhenOneGoes) {
  const auto owner = Make<TLax>();
  auto* first = New<TLax>(owner.get());
  auto* second = New<TLax>(owner.get());
  first->SetName(QStringLiteral("Same"));
  second->SetName(QStringLiteral("SAME"));
  EXPECT_EQ(first, owner->FindComponent(u"same"));
  delete first;
  EXPECT_EQ(second, owner->FindComponent(u"same"));
  second->SetName(QStringLiteral("Other"));
  EXPECT_EQ(nullptr, owner->FindComponent(u"same"));
}

}  // namespace
}  // namespace kt
