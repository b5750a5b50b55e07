#pragma once

#include "kt/rtl/objects/Object.h"

#include <QSharedData>
#include <QString>

#include <concepts>
#include <functional>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace kt {

/// What an event calls: shared by all copies of the event, immutable.
class TEventHandler : public QSharedData {
 public:
  explicit TEventHandler(const std::type_info& signature, TObject* instance = nullptr)
      : FSignature(&signature), FInstance(instance) {}
  virtual ~TEventHandler() = default;

  const std::type_info& Signature() const { return *FSignature; }
  /// The object whose method is called; null for a plain function or function object.
  TObject* Instance() const { return FInstance; }
  /// True when both call the same method of the same object.
  virtual bool IsSameAs(const TEventHandler& other) const { return this == &other; }
  /// What a method is called that is known by its name only, as those of a form in a designer; empty for others.
  virtual QString MethodName() const { return QString(); }

 private:
  const std::type_info* FSignature;
  TObject* FInstance;
};

/// An event without its signature: what reflection and streams pass around. One pointer wide, a value.
class TMethod {
 public:
  TMethod() = default;
  TMethod(std::nullptr_t) {}

  bool IsEmpty() const { return !FHandler; }
  explicit operator bool() const { return !IsEmpty(); }
  TObject* Instance() const { return FHandler ? FHandler->Instance() : nullptr; }
  const TEventHandler* Handler() const { return FHandler.data(); }

  friend bool operator==(const TMethod& a, const TMethod& b) {
    if (a.FHandler == b.FHandler) return true;
    return a.FHandler && b.FHandler && a.FHandler->IsSameAs(*b.FHandler);
  }

 protected:
  explicit TMethod(const TEventHandler* handler) : FHandler(handler) {}

  QExplicitlySharedDataPointer<const TEventHandler> FHandler;
};

namespace Events {

template <class... A>
class TTypedHandler : public TEventHandler {
 public:
  explicit TTypedHandler(TObject* instance = nullptr) : TEventHandler(typeid(void(A...)), instance) {}
  virtual void Call(A... args) const = 0;
};

template <class F, class... A>
class TFunctionHandler final : public TTypedHandler<A...> {
 public:
  explicit TFunctionHandler(F function) : FFunction(std::move(function)) {}
  void Call(A... args) const override { FFunction(std::forward<A>(args)...); }

 private:
  mutable F FFunction;
};

template <class C, class... A>
class TMemberHandler final : public TTypedHandler<A...> {
 public:
  using TMember = void (C::*)(A...);
  TMemberHandler(C* object, TMember member) : TTypedHandler<A...>(object), FObject(object), FMember(member) {}
  void Call(A... args) const override { (FObject->*FMember)(std::forward<A>(args)...); }
  bool IsSameAs(const TEventHandler& other) const override {
    const auto* same = dynamic_cast<const TMemberHandler*>(&other);
    return same && same->FObject == FObject && same->FMember == FMember;
  }

 private:
  C* FObject;
  TMember FMember;
};

/// Stands for a method whose code is not here. Calling it does nothing.
template <class... A>
class TNamedHandler final : public TTypedHandler<A...> {
 public:
  TNamedHandler(TObject* object, QString name) : TTypedHandler<A...>(object), FName(std::move(name)) {}
  void Call(A...) const override {}
  bool IsSameAs(const TEventHandler& other) const override {
    const auto* same = dynamic_cast<const TNamedHandler*>(&other);
    return same && same->Instance() == this->Instance() && same->FName.compare(FName, Qt::CaseInsensitive) == 0;
  }
  QString MethodName() const override { return FName; }

 private:
  QString FName;
};

}  // namespace Events

/// An event: a place for one handler with the parameters `A`. Empty when unset; calling an empty event does nothing.
/// Copies share the handler. Events made from the same method of the same object are equal; events made from function
/// objects are equal only to their copies.
///
/// The handler is kept alive while it runs, so it may replace or clear the event that called it. The event does not own
/// the object whose method it calls: whoever destroys that object clears the event first.
///
/// A framework event type is a named descendant, so that reflection can tell its name:
///   struct TNotifyEvent : TEvent<TObject*> { using TEvent::TEvent; static constexpr char TypeName[] = "TNotifyEvent";
///   };
template <class... A>
class TEvent : public TMethod {
 public:
  using THandler = Events::TTypedHandler<A...>;

  TEvent() = default;
  TEvent(std::nullptr_t) {}
  /// Calls a method of a framework object.
  template <std::derived_from<TObject> O, class C>
  requires std::derived_from<O, C> TEvent(O* object, void (C::*method)(A...))
      : TMethod(new Events::TMemberHandler<C, A...>(object, method)) {}
  /// Calls a function object, for example a lambda.
  template <class F>
  requires(std::invocable<F&, A...> && !std::derived_from<std::remove_cvref_t<F>, TMethod>) TEvent(F function)
      : TMethod(new Events::TFunctionHandler<F, A...>(std::move(function))) {}

  /// A method of `object` that is known by its name only: a designer shows and streams it, and nothing runs.
  static TMethod Named(TObject* object, const QString& name) {
    TEvent event;
    event.FHandler = new Events::TNamedHandler<A...>(object, name);
    return event;
  }

  static const std::type_info& Signature() { return typeid(void(A...)); }
  static bool Accepts(const TMethod& method) {
    return method.IsEmpty() || method.Handler()->Signature() == Signature();
  }
  /// Takes over a handler of the same signature; Accepts() must hold.
  void SetMethod(const TMethod& method) {
    Q_ASSERT(Accepts(method));
    TMethod::operator=(method);
  }

  void operator()(A... args) const {
    if (!FHandler) return;
    const QExplicitlySharedDataPointer<const TEventHandler> running = FHandler;
    static_cast<const THandler&>(*running).Call(std::forward<A>(args)...);
  }
};

/// The event without further data: something happened to Sender.
struct TNotifyEvent : TEvent<TObject*> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TNotifyEvent";
};

/// A named event type, as TNotifyEvent is.
template <class T>
concept IsEvent = std::derived_from<T, TMethod> && requires {
  T::TypeName;
};

}  // namespace kt
