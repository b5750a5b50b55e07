#pragma once

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/MemberAccess.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <cstddef>

namespace kt {

/// Describes a class, one line a published property, in the class's own .cpp:
///
///   const TClassInfo* TShape::Class() {
///     static const TClassInfo info = TClassBuilder<TShape>("TShape")
///                                        .Property<&TShape::GetWidth, &TShape::SetWidth>("Width").Default(65)
///                                        .Property<&TShape::GetColor, &TShape::SetColor>("Color", &ColorTypeInfo)
///                                        .Property<&TShape::GetCount>("Count")           // read-only
///                                        .Property<&TShape::OnClick>("OnClick")          // an event
///                                        .Creatable()
///                                        .Done();
///     return &info;
///   }
///
/// Getter and setter are checked by the compiler. The ancestor is T::Inherited.
template <class T>
class TClassBuilder {
 public:
  explicit TClassBuilder(const char* name) {
    FDefinition.Name = QString::fromLatin1(name);
    if constexpr (!std::same_as<T, TObject>) FDefinition.Parent = T::Inherited::Class();
  }

  /// Publishes a property. `Get` and `Set` are (member) functions; a data member is both. Without `Set` it is
  /// read-only; without `Get` the type is unknown, so only class infos made at run time have write-only properties.
  /// `type` names a type of its own, for example a colour's.
  template <auto Get, auto Set = nullptr>
  TClassBuilder& Property(const char* name, const TTypeInfo* (*type)() = nullptr) {
    using TAccess = TMemberAccess<T, Get, Set>;
    FDefinition.Properties.push_back({.Name = QString::fromLatin1(name),
                                      .Type = type ? type : &TypeInfoOf<typename TAccess::TValue>,
                                      .Access = std::make_unique<TAccess>(),
                                      .Default = TPropInfo::NoDefault,
                                      .Stored = {}});
    return *this;
  }

  /// The declared default of the property before: an ordinal, a Boolean, an enumerator or a set.
  template <class V>
  TClassBuilder& Default(const V& value) {
    Last().Default = OrdinalOf(value);
    return *this;
  }

  /// The property before is never streamed.
  TClassBuilder& NotStored() {
    Last().Stored = [](TObject&) { return false; };
    return *this;
  }

  /// The property before is streamed while the predicate, a member function without parameters, answers true.
  template <class P>
  TClassBuilder& Stored(P predicate) {
    Last().Stored = [predicate](TObject& instance) { return std::invoke(predicate, static_cast<T&>(instance)); };
    return *this;
  }

  /// Publishes a method under a name that form files can use for an event.
  template <class C, class... A>
  TClassBuilder& Method(const char* name, void (C::*method)(A...)) {
    FDefinition.Methods.push_back({QString::fromLatin1(name), [method](TObject* instance) -> TMethod {
                                     return TEvent<A...>(static_cast<T*>(instance), method);
                                   }});
    return *this;
  }

  /// Instances can be made through the class reference: the constructor takes what T::TCreatedIn says.
  TClassBuilder& Creatable() {
    FDefinition.Factory = [](TObject* parent) -> TObject* {
      if constexpr (std::is_void_v<typename T::TCreatedIn>) {
        return Make<T>().release();
      } else {
        return Make<T>(static_cast<typename T::TCreatedIn*>(parent)).release();
      }
    };
    return *this;
  }

  TClassInfo Done() { return TClassInfo(std::move(FDefinition)); }

 private:
  TPropInfo::TDefinition& Last() {
    Q_ASSERT(!FDefinition.Properties.empty());
    return FDefinition.Properties.back();
  }

  TClassInfo::TDefinition FDefinition;
};

}  // namespace kt
