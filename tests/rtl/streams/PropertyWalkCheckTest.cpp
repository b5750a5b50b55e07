// What the walk over all properties has to know of the classes of the runtime; and that it finds what is wrong.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/PropertyWalk.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

const TWalkRules& Rules() {
  static const TWalkRules rules{.Handlers = {HandlerOf<TNotifyEvent>()}};
  return rules;
}

void RegisterWalked() {
  RegisterClasses({TSample::Class(), TSamplePart::Class(), TSampleItem::Class(), TSampleItems::Class(),
                   TStringList::Class(), TComponent::Class()});
}

void UnregisterWalked() {
  UnRegisterClasses({TSample::Class(), TSamplePart::Class(), TSampleItem::Class(), TSampleItems::Class(),
                     TStringList::Class(), TComponent::Class()});
}

/// The names of all registered classes that can be created.
std::vector<QString> CreatableNames() {
  RegisterWalked();
  std::vector<QString> names = WalkedClasses();
  UnregisterWalked();
  return names;
}

struct TTwoEvent : TEvent<int, int> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TTwoEvent";
};

/// Whatever can be wrong with a class.
class TForgetful : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  int Number = 0;
  TTwoEvent OnTwo;
  int GetDeaf() const { return 3; }
  void SetDeaf(int) {}
  int GetLoud() const { return 4; }
  void SetLoud(int value) {
    if (value != 4) throw EInvalidOperation(QStringLiteral("no"));
  }

 protected:
  explicit TForgetful(TComponent* owner) : TComponent(owner) {}
  void Loaded() override {
    TComponent::Loaded();
    Number = 0;
  }
};

const TClassInfo* TForgetful::Class() {
  static const TClassInfo info = TClassBuilder<TForgetful>("TForgetful")
                                     .Property<&TForgetful::Number>("Number")
                                     .Default(1)
                                     .Property<&TForgetful::GetDeaf, &TForgetful::SetDeaf>("Deaf")
                                     .Property<&TForgetful::GetLoud, &TForgetful::SetLoud>("Loud")
                                     .Property<&TForgetful::OnTwo>("OnTwo")
                                     .Creatable()
                                     .Done();
  return &info;
}

class PropertyWalkCheck : public ::testing::Test {
 protected:
  PropertyWalkCheck() { RegisterClass(TForgetful::Class()); }
  ~PropertyWalkCheck() override { UnRegisterClass(TForgetful::Class()); }

  const QString Name = QStringLiteral("TForgetful");
};

TEST_F(PropertyWalkCheck, AWrongDefaultIsNoticed) {
  EXPECT_EQ(QStringList{QStringLiteral("TForgetful.Number=0")}, WrongDefaults(Name, Rules()));
}

TEST_F(PropertyWalkCheck, SettersThatRefuseAndEventsWithoutHandlerAreNoticed) {
  const QStringList expected = {QStringLiteral("TForgetful.Deaf=3"), QStringLiteral("TForgetful.Loud: no"),
                                QStringLiteral("TForgetful.OnTwo=")};
  EXPECT_EQ(expected, UnchangedProperties(Name, Rules()));
}

TEST_F(PropertyWalkCheck, AValueThatDoesNotComeBackIsNoticed) {
  const QStringList expected = {QStringLiteral("lost Number=1"), QStringLiteral("got Number=0")};
  EXPECT_EQ(expected, LostOnTheWay(Name, Rules(), wsChanged, wfBinary));
}

TEST_F(PropertyWalkCheck, ExceptionsAreLeftAlone) {
  const TWalkRules rules{.Handlers = {HandlerOf<TTwoEvent>()},
                         .Untouched = {{"TForgetful.Loud", "raises"}, {"TForgetful.Number", "is lost"}},
                         .Choosy = {{"TForgetful.Deaf", "is deaf"}},
                         .OtherDefaults = {{"TForgetful.Number", "is wrong"}}};
  EXPECT_EQ(QStringList(), IdleExceptions(rules));
  EXPECT_EQ(QStringList(), WrongDefaults(Name, rules));
  EXPECT_EQ(QStringList(), UnchangedProperties(Name, rules));
  EXPECT_EQ(QStringList(), LostOnTheWay(Name, rules, wsChanged, wfText));
}

TEST_F(PropertyWalkCheck, WhatNeedNotComeBackIsNotCompared) {
  const TWalkRules rules{.Handlers = {}, .Derived = {{"TForgetful.Number", "is lost"}}};
  EXPECT_EQ(QStringList(), LostOnTheWay(Name, rules, wsChanged, wfBinary));
}

TEST_F(PropertyWalkCheck, ExceptionsForNothingAreNoticed) {
  const TWalkRules rules{.Handlers = {}, .Untouched = {{"TForgetful.Gone", "was there"}, {"TForgetful.Deaf", ""}}};
  const QStringList expected = {QStringLiteral("TForgetful.Gone"), QStringLiteral("TForgetful.Deaf")};
  EXPECT_EQ(expected, IdleExceptions(rules));
}

}  // namespace

TProgramWalk WalkOfProgram() { return {&Rules, &RegisterWalked, &UnregisterWalked, &CreatableNames}; }

}  // namespace kt::tests
