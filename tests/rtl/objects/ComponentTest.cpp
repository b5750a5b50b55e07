#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "support/Expect.h"

#include <QStringList>

#include <functional>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

/// Logs what it is told and can act on it.
class TWatcher : public TComponent {
 public:
  using Inherited = TComponent;
  QString Log;
  std::function<void(TComponent*, TOperation)> OnNotification;

 protected:
  explicit TWatcher(TComponent* owner = nullptr) : TComponent(owner) {}
  void Notification(TComponent* component, TOperation operation) override {
    TComponent::Notification(component, operation);
    Log += (operation == opInsert ? QStringLiteral("+") : QStringLiteral("-")) + component->GetName() + u' ';
    if (OnNotification) OnNotification(component, operation);
  }
};

class TForgetful : public TComponent {
 protected:
  explicit TForgetful(TComponent* owner = nullptr) : TComponent(owner) {}
  void Notification(TComponent*, TOperation) override {}
};

TComponent* Named(TComponent* owner, const char* name) {
  auto* component = New<TComponent>(owner);
  component->SetName(QString::fromLatin1(name));
  return component;
}

QString Names(const TComponent& owner) {
  QStringList names;
  for (int i = 0; i < owner.GetComponentCount(); ++i) names.append(owner.GetComponents(i)->GetName());
  return names.join(u' ');
}

TEST(ComponentTest, AnOwnerListsItsComponentsInOrder) {
  const auto owner = Make<TComponent>();
  Named(owner.get(), "A");
  Named(owner.get(), "B");
  EXPECT_EQ(QStringLiteral("A B"), Names(*owner));
}

TEST(ComponentTest, AnIndexOutsideTheListRaises) {
  const auto owner = Make<TComponent>();
  EXPECT_EQ(QStringLiteral("List index out of bounds (0)"), MessageOf<EListError>([&] { owner->GetComponents(0); }));
}

TEST(ComponentTest, DestroyingAComponentTakesItFromItsOwner) {
  const auto owner = Make<TComponent>();
  TComponent* a = Named(owner.get(), "A");
  Named(owner.get(), "B");
  delete a;
  EXPECT_EQ(QStringLiteral("B"), Names(*owner));
}

TEST(ComponentTest, ComponentsAreFoundByNameWithoutRegardToCase) {
  const auto owner = Make<TComponent>();
  TComponent* a = Named(owner.get(), "Alpha");
  EXPECT_EQ(a, owner->FindComponent(u"aLPHA"));
  EXPECT_EQ(nullptr, owner->FindComponent(u"Beta"));
  EXPECT_EQ(nullptr, owner->FindComponent(u""));
}

/// Notes, when it goes, which of the names A to D a component finds among its own.
class TFarewell : public TComponent {
 public:
  TComponent* Asked = nullptr;
  QString* Found = nullptr;
  void BeforeDestruction() override {
    for (const QStringView name : {u"A", u"B", u"C", u"D"}) {
      if (Asked->FindComponent(name)) *Found += name;
    }
    *Found += u' ';
    TComponent::BeforeDestruction();
  }

 protected:
  explicit TFarewell(TComponent* owner = nullptr) : TComponent(owner) {}
};

void AddFarewell(TComponent* owner, const char* name, QString* found) {
  auto* component = New<TFarewell>(owner);
  component->SetName(QString::fromLatin1(name));
  component->Asked = owner;
  component->Found = found;
}

TEST(ComponentTest, WhileItsComponentsGoAnOwnerFindsThoseThatAreLeft) {
  QString found;
  const auto owner = Make<TComponent>();
  Named(owner.get(), "A");
  AddFarewell(owner.get(), "B", &found);
  AddFarewell(owner.get(), "C", &found);
  Named(owner.get(), "D");
  owner->DestroyComponents();
  EXPECT_EQ(QStringLiteral("AB A "), found);
}

TEST(ComponentTest, AnOwnerThatDestroyedItsComponentsTakesTheirNamesAgain) {
  const auto owner = Make<TComponent>();
  Named(owner.get(), "A");
  owner->DestroyComponents();
  EXPECT_EQ(nullptr, owner->FindComponent(u"A"));
  TComponent* a = Named(owner.get(), "A");
  EXPECT_EQ(a, owner->FindComponent(u"A"));
}

TEST(ComponentTest, ARenamedComponentIsFoundByItsNewNameOnly) {
  const auto owner = Make<TComponent>();
  TComponent* a = Named(owner.get(), "Alpha");
  a->SetName(QStringLiteral("Beta"));
  EXPECT_EQ(nullptr, owner->FindComponent(u"Alpha"));
  EXPECT_EQ(a, owner->FindComponent(u"Beta"));
}

TEST(ComponentTest, ANameThatASiblingHasIsRefused) {
  const auto owner = Make<TComponent>();
  Named(owner.get(), "A");
  TComponent* b = Named(owner.get(), "B");
  EXPECT_EQ(QStringLiteral("A component named a already exists"),
            MessageOf<EComponentError>([&] { b->SetName(QStringLiteral("a")); }));
  EXPECT_EQ(QStringLiteral("B"), b->GetName());
}

TEST(ComponentTest, ChangingOnlyTheCaseOfANameIsAllowed) {
  const auto owner = Make<TComponent>();
  TComponent* a = Named(owner.get(), "alpha");
  a->SetName(QStringLiteral("Alpha"));
  EXPECT_EQ(a, owner->FindComponent(u"Alpha"));
}

TEST(ComponentTest, ANameMustBeAnIdentifier) {
  const auto component = Make<TComponent>();
  EXPECT_EQ(QStringLiteral("''1st one'' is not a valid component name"),
            MessageOf<EComponentError>([&] { component->SetName(QStringLiteral("1st one")); }));
}

TEST(ComponentTest, InsertingAComponentWhoseNameIsTakenIsRefused) {
  const auto owner = Make<TComponent>();
  Named(owner.get(), "A");
  const auto stranger = Make<TComponent>();
  stranger->SetName(QStringLiteral("A"));
  EXPECT_THROW(owner->InsertComponent(stranger.get()), EComponentError);
  EXPECT_EQ(nullptr, stranger->GetOwnerComponent());
}

TEST(ComponentTest, TheComponentIndexMovesWithinTheOwner) {
  const auto owner = Make<TComponent>();
  Named(owner.get(), "A");
  Named(owner.get(), "B");
  TComponent* c = Named(owner.get(), "C");
  c->SetComponentIndex(0);
  EXPECT_EQ(QStringLiteral("C A B"), Names(*owner));
  c->SetComponentIndex(99);
  EXPECT_EQ(QStringLiteral("A B C"), Names(*owner));
  EXPECT_EQ(2, c->GetComponentIndex());
}

TEST(ComponentTest, TheComponentIndexIsMinusOneWithoutAnOwner) {
  EXPECT_EQ(-1, Make<TComponent>()->GetComponentIndex());
}

TEST(ComponentTest, AnOwnerIsToldOfInsertionAndRemoval) {
  const auto owner = Make<TWatcher>();
  TComponent* a = Named(owner.get(), "A");
  delete a;
  EXPECT_EQ(QStringLiteral("+ -A "), owner->Log);
}

TEST(ComponentTest, SiblingsAreToldOfEachOthersRemoval) {
  const auto owner = Make<TComponent>();
  auto* watcher = New<TWatcher>(owner.get());
  watcher->Log.clear();
  delete Named(owner.get(), "A");
  EXPECT_EQ(QStringLiteral("+ -A "), watcher->Log);
}

TEST(ComponentTest, AWatcherOfAnotherOwnerIsToldOnce) {
  const auto watcher = Make<TWatcher>();
  auto watched = Make<TComponent>();
  watched->SetName(QStringLiteral("W"));
  watched->FreeNotification(watcher.get());
  watched->FreeNotification(watcher.get());
  watched.reset();
  EXPECT_EQ(QStringLiteral("-W "), watcher->Log);
}

TEST(ComponentTest, WatchingWorksInBothDirections) {
  auto a = Make<TWatcher>();
  auto b = Make<TWatcher>();
  a->SetName(QStringLiteral("A"));
  a->FreeNotification(b.get());
  b->SetName(QStringLiteral("B"));
  b.reset();
  EXPECT_EQ(QStringLiteral("-B "), a->Log);
}

TEST(ComponentTest, RemoveFreeNotificationEndsTheWatch) {
  const auto watcher = Make<TWatcher>();
  auto watched = Make<TComponent>();
  watched->FreeNotification(watcher.get());
  watched->RemoveFreeNotification(watcher.get());
  watched.reset();
  EXPECT_EQ(QString(), watcher->Log);
}

TEST(ComponentTest, AWatcherThatForgetsTheInheritedNotificationIsToldOnceAndLetGo) {
  auto watcher = Make<TForgetful>();
  auto watched = Make<TComponent>();
  watched->FreeNotification(watcher.get());
  watched.reset();
  watcher.reset();
}

TEST(ComponentTest, AWatcherMayFreeAnotherWatcherInsideTheNotification) {
  const auto first = Make<TWatcher>();
  auto second = Make<TWatcher>();
  auto watched = Make<TComponent>();
  watched->FreeNotification(second.get());
  watched->FreeNotification(first.get());
  first->OnNotification = [&](TComponent*, TOperation) { second.reset(); };
  watched.reset();
  EXPECT_EQ(nullptr, second);
}

TEST(ComponentTest, AWatcherMayFreeItsSiblingInsideTheNotification) {
  const auto owner = Make<TComponent>();
  TComponent* sibling = New<TComponent>(owner.get());
  auto* watcher = New<TWatcher>(owner.get());
  auto watched = Make<TComponent>();
  watched->FreeNotification(watcher);
  watcher->OnNotification = [&sibling, dying = watched.get()](TComponent* component, TOperation) {
    if (component == dying) delete std::exchange(sibling, nullptr);
  };
  watched.reset();
  EXPECT_EQ(1, owner->GetComponentCount());
}

TEST(ComponentTest, AnExceptionInANotificationDoesNotStopTheDestruction) {
  int reported = 0;
  const TExceptionHandler previous = SetExceptionHandler([&reported](std::exception_ptr) { ++reported; });
  const auto owner = Make<TWatcher>();
  TComponent* a = Named(owner.get(), "A");
  owner->OnNotification = [](TComponent*, TOperation) { throw EInvalidOperation(QStringLiteral("no")); };
  delete a;
  owner->OnNotification = {};
  SetExceptionHandler(previous);
  EXPECT_EQ(1, reported);
  EXPECT_EQ(0, owner->GetComponentCount());
}

TEST(ComponentTest, DestroyingAnOwnerFreesTheLastComponentFirst) {
  auto owner = Make<TComponent>();
  TComponent* a = Named(owner.get(), "A");
  TComponent* b = Named(owner.get(), "B");
  const auto outsider = Make<TWatcher>();
  a->FreeNotification(outsider.get());
  b->FreeNotification(outsider.get());
  owner.reset();
  EXPECT_EQ(QStringLiteral("-B -A "), outsider->Log);
}

TEST(ComponentTest, InsertingAComponentTakesItFromItsOwner) {
  const auto from = Make<TComponent>();
  const auto to = Make<TComponent>();
  TComponent* moved = Named(from.get(), "A");
  to->InsertComponent(moved);
  EXPECT_EQ(0, from->GetComponentCount());
  EXPECT_EQ(to.get(), moved->GetOwnerComponent());
}

TEST(ComponentTest, NotificationsReachAListenerBehindAComponentThatIsNone) {
  const auto owner = Make<TComponent>();
  TComponent* middle = Named(owner.get(), "Middle");
  auto* listener = New<TWatcher>(middle);
  listener->Log.clear();
  delete Named(owner.get(), "A");
  EXPECT_EQ(QStringLiteral("+ -A "), listener->Log);
}

TEST(ComponentTest, NotificationsGoToTheLastListenerFirstAlsoAfterAMove) {
  QString log;
  const auto owner = Make<TComponent>();
  auto* first = New<TWatcher>(owner.get());
  auto* second = New<TWatcher>(owner.get());
  first->OnNotification = [&log](TComponent*, TOperation) { log += QStringLiteral("1"); };
  second->OnNotification = [&log](TComponent*, TOperation) { log += QStringLiteral("2"); };
  New<TComponent>(owner.get());
  second->SetComponentIndex(0);
  New<TComponent>(owner.get());
  EXPECT_EQ(QStringLiteral("2112"), log);
}

TEST(ComponentTest, DestroyingMarksAllOwnedComponents) {
  const auto owner = Make<TComponent>();
  TComponent* inner = Named(Named(owner.get(), "A"), "B");
  owner->Destroying();
  EXPECT_TRUE(inner->HasState(csDestroying));
}

TEST(ComponentTest, TheNamePathIsTheName) {
  const auto component = Make<TComponent>();
  component->SetName(QStringLiteral("Form1"));
  EXPECT_EQ(QStringLiteral("Form1"), component->GetNamePath());
}

TEST(ComponentTest, AnInterfaceReferenceLeadsBackToTheComponent) {
  const auto component = Make<TComponent>();
  IInterface* reference = static_cast<IInterfaceComponentReference*>(component.get());
  EXPECT_EQ(component.get(), ComponentBehind(reference));
  EXPECT_EQ(nullptr, ComponentBehind(nullptr));
}

TEST(ComponentTest, ASubComponentIsMarkedInItsStyle) {
  const auto component = Make<TComponent>();
  component->SetSubComponent(true);
  EXPECT_TRUE(component->GetComponentStyle().Has(csSubComponent));
}

}  // namespace
}  // namespace kt
