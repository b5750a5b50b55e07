#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QStringList>

#include <vector>

/// The walk over every registered class and every property: fresh instances against declared defaults, then every
/// property changed, written, read into another instance, and compared. Events get a published method of the form,
/// references a component of it.
namespace kt::tests {

/// The form that holds the walked object: the root of the stream, which owns what references lead to.
class TWalkForm : public TComponent {
 public:
  using Inherited = TComponent;
  const TClassInfo* ClassType() const override { return FClassInfo; }

  /// The handler of every event.
  template <class... A>
  void Handle(A...) {}

  /// The object that is written and read: a component is a child of the form, another object a property of it.
  TPersistent* Walked = nullptr;
  /// The component that references to a class are set to, made when it is first asked for; null when no registered
  /// class fits.
  TComponent* EnsureTarget(const TClassInfo* declared);
  void EnsureTargetsOf(const TWalkForm& other);

 protected:
  explicit TWalkForm(const TClassInfo* classInfo) : TComponent(nullptr), FClassInfo(classInfo) {}
  void DefineProperties(TFiler& filer) override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;

 private:
  const TClassInfo* FClassInfo;
};

/// A published method of the form for events of type E.
template <IsEvent E>
TClassInfo::TPublishedMethod HandlerOf() {
  const auto bind = []<class... A>(TObject* form, const TEvent<A...>*) -> TMethod {
    void (TWalkForm::*handle)(A...) = &TWalkForm::Handle<A...>;
    return TEvent<A...>(static_cast<TWalkForm*>(form), handle);
  };
  return {QStringLiteral("Handle") + QLatin1StringView(E::TypeName),
          [bind](TObject* form) { return bind(form, static_cast<const E*>(nullptr)); }};
}

/// A property, "TClass.Property", that is left out somewhere, and why.
struct TWalkException {
  const char* Property;
  const char* Reason;
};

struct TWalkRules {
  std::vector<TClassInfo::TPublishedMethod> Handlers;
  /// Stay as they are in a fresh instance.
  std::vector<TWalkException> Untouched = {};
  /// Do not keep every value that their type has, and so may come to have the one they had.
  std::vector<TWalkException> Choosy = {};
  /// Need not have the same value after the way through a form.
  std::vector<TWalkException> Derived = {};
  /// Have another value in a fresh instance than they declare.
  std::vector<TWalkException> OtherDefaults = {};
};

/// The names of the registered classes that can be created.
std::vector<QString> WalkedClasses();

// What is wrong with a class, a line for each property or difference; nothing when all is well.

/// Ordinal properties that a fresh instance has not as they declare.
QStringList WrongDefaults(const QString& className, const TWalkRules& rules);
/// Writable properties that cannot be given another value.
QStringList UnchangedProperties(const QString& className, const TWalkRules& rules);
/// What is different after the way through a form: of a fresh instance, or of one with every property changed.
enum TWalkState { wsFresh, wsChanged };
enum TWalkFormat { wfBinary, wfText };
QStringList LostOnTheWay(const QString& className, const TWalkRules& rules, TWalkState state, TWalkFormat format);

/// What a test program walks; PropertyWalkTest.cpp asks for it, and the program has it in a file of its own.
struct TProgramWalk {
  const TWalkRules& (*Rules)();
  /// Around each test.
  void (*Register)();
  void (*Unregister)();
  /// The names of the walked classes; leaves none registered that was not.
  std::vector<QString> (*Classes)();
};
TProgramWalk WalkOfProgram();

/// Exceptions that name no property of a registered class, or stand there without a reason.
QStringList IdleExceptions(const TWalkRules& rules);

}  // namespace kt::tests
