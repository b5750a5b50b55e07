#pragma once

#include "kt/qobjects/ValuePart.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <type_traits>
#include <vector>

namespace kt {

/// Whether values of a type have members of their own: those of Qt that TValueShapes knows, and gadgets with
/// properties.
bool HasShape(QMetaType type);

/// The class of the parts that stand for values of a type with members; its properties are the members, which can only
/// be read. One for each type, for the life of the process. For the user-interface thread.
const TClassInfo* ShapeOf(QMetaType type);

/// The class, derived from that one, of the parts that stand for values which can be written.
const TClassInfo* WritableShapeOf(QMetaType type);

/// Describes the members of a value type by its getters and setters.
template <class T>
class TShapeBuilder {
 public:
  /// `get` is called with a T, `set` with a T and what `get` answers; a setter may raise.
  template <class G, class S>
  TShapeBuilder& Member(const char* name, G get, S set) {
    using V = std::remove_cvref_t<std::invoke_result_t<G, const T&>>;
    TValueMember member;
    member.Name = QString::fromLatin1(name);
    member.Type = QMetaType::fromType<V>();
    if constexpr (std::is_enum_v<V>) member.Enumeration = QMetaEnum::fromType<V>();
    member.Pick = [get](const QVariant& whole) {
      return QVariant::fromValue<V>(std::invoke(get, whole.template value<T>()));
    };
    member.Read = [pick = member.Pick](TValueHolder& holder) { return pick(WholeOf(holder)); };
    member.Write = [set](TValueHolder& holder, const QVariant& value) {
      ChangeWhole(holder, [&](QVariant& whole) {
        T changed = whole.value<T>();
        std::invoke(set, changed, value.value<V>());
        whole = QVariant::fromValue(changed);
      });
    };
    FMembers.push_back(std::move(member));
    return *this;
  }

  std::vector<TValueMember> Done() { return std::move(FMembers); }

 private:
  std::vector<TValueMember> FMembers;
};

/// The members of a font.
std::vector<TValueMember> FontMembers();

}  // namespace kt
