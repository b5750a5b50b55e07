#include "kt/qobjects/PropertyKinds.h"

#include "kt/qobjects/MemberAccess.h"
#include "kt/qobjects/NumberTexts.h"
#include "kt/qobjects/ObjectReferences.h"
#include "kt/qobjects/ValueEnums.h"
#include "kt/qobjects/ValueShapes.h"
#include "kt/qobjects/ValueStrings.h"
#include "kt/qobjects/ValueTexts.h"
#include "kt/qobjects/ValueVariants.h"
#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <QCursor>

#include <map>
#include <optional>

namespace kt {

namespace {

/// How values of a member pass through reflection as V.
template <class V>
struct TForm {
  std::function<const TTypeInfo*()> Type;
  std::function<V(const QVariant&)> FromValue;
  /// Gets the present value besides.
  std::function<QVariant(const V&, const QVariant&)> ToValue;
};

/// A default that an ordinal property can declare.
template <class V>
qint64 DefaultOf(const TForm<V>& form, const TValueMember& member) {
  if constexpr (std::same_as<V, qint64>) {
    if (member.HasFresh) return form.FromValue(member.Fresh);
  }
  return TPropInfo::NoDefault;
}

/// What cannot be written has nothing to store.
TPropInfo::TStoredRule StoredRule(const TMemberPtr& member) {
  if (!member->IsStored || !member->Write) return [](TObject&) { return false; };
  return [member](TObject& object) {
    TValueHolder& holder = HolderIn(object);
    const std::optional<QVariant> fresh = holder.FreshValueOf(*member);
    return !fresh || !LooksSame(member->Read(holder), *fresh);
  };
}

template <class V>
TPropInfo::TDefinition Define(const TMemberPtr& member, const TForm<V>& form, TMemberTexts texts = {}) {
  const auto get = [member, form](TObject& object) { return form.FromValue(member->Read(HolderIn(object))); };
  typename TMemberAccess<V>::TSetter set;
  if (member->Write && form.ToValue) {
    set = [member, form](TObject& object, const V& value) {
      ChangeMember(object, *member, [&](const QVariant& current) { return form.ToValue(value, current); });
    };
  }
  return {.Name = member->Name,
          .Type = form.Type,
          .Access = std::make_unique<TMemberAccess<V>>(member, get, set, std::move(texts)),
          .Default = DefaultOf(form, *member),
          .Stored = StoredRule(member)};
}

// Plain values.

QVariant Converted(QVariant value, QMetaType type) {
  if (value.metaType() != type && !value.convert(type)) throw EPropertyConvertError(SInvalidPropertyValue.toString());
  return value;
}

TForm<qint64> BooleanForm() {
  return {[] { return TypeInfos::Boolean(); }, [](const QVariant& value) { return qint64{value.toBool()}; },
          [](qint64 ordinal, const QVariant&) { return QVariant(ordinal != 0); }};
}

TForm<qint64> IntegerForm(QMetaType type, bool isSigned) {
  const int bytes = static_cast<int>(type.sizeOf());
  return {[bytes, isSigned] { return TypeInfos::Integer(bytes, isSigned); },
          [isSigned](const QVariant& value) {
            return isSigned ? value.toLongLong() : static_cast<qint64>(value.toULongLong());
          },
          [type, isSigned](qint64 ordinal, const QVariant&) {
            return Converted(isSigned ? QVariant(ordinal) : QVariant(static_cast<quint64>(ordinal)), type);
          }};
}

TForm<qint64> CharacterForm(QMetaType type) {
  return {[] { return TypeInfos::WideCharacter(); },
          [](const QVariant& value) { return qint64{value.toChar().unicode()}; },
          [type](qint64 ordinal, const QVariant&) {
            return Converted(QVariant(QChar(static_cast<char16_t>(ordinal))), type);
          }};
}

TForm<long double> FloatForm(QMetaType type) {
  const TFloatType storage = type.id() == QMetaType::Float ? ftSingle : ftDouble;
  return {
      [storage] { return TypeInfos::Floating(storage); },
      [](const QVariant& value) { return static_cast<long double>(value.toDouble()); },
      [type](long double number, const QVariant&) { return Converted(QVariant(static_cast<double>(number)), type); }};
}

std::optional<TPropInfo::TDefinition> DefinePlain(const TMemberPtr& member) {
  const QMetaType type = member->Type;
  switch (type.id()) {
    case QMetaType::Bool:
      return Define(member, BooleanForm());
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
      return Define(member, IntegerForm(type, true));
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::Char32:
      return Define(member, IntegerForm(type, false));
    case QMetaType::QChar:
    case QMetaType::Char16:
      return Define(member, CharacterForm(type));
    case QMetaType::Float:
    case QMetaType::Double:
      return Define(member, FloatForm(type), NumberTexts(member));
    default:
      return std::nullopt;
  }
}

// Enumerations.

TForm<qint64> EnumForm(const TValueMember& member) {
  const TQtEnumTypeInfo* info = EnumTypeInfoFor(member.Enumeration);
  return {[info] { return info; }, [info](const QVariant& value) { return info->OrdinalOf(EnumNumber(value)); },
          [info, type = member.Type](qint64 ordinal, const QVariant&) {
            return EnumVariant(type, info->ValueOf(ordinal));
          }};
}

TForm<qint64> FlagsForm(const TValueMember& member) {
  const TQtFlagsTypeInfo* info = FlagsTypeInfoFor(member.Enumeration);
  return {[info] { return info->Set(); }, [info](const QVariant& value) { return info->MembersOf(EnumNumber(value)); },
          [info, type = member.Type](qint64 members, const QVariant& current) {
            return EnumVariant(type, info->WithMembers(EnumNumber(current), members));
          }};
}

/// Flags whose keys are all made of several bits.
TForm<qint64> NumberForm(QMetaType type) {
  return {[] { return TypeInfos::Integer(sizeof(int), true); },
          [](const QVariant& value) { return qint64{EnumNumber(value)}; },
          [type](qint64 ordinal, const QVariant&) { return EnumVariant(type, static_cast<int>(ordinal)); }};
}

/// With more bits than Qt knows of the keys: by the names of those that are certain, else by number.
TForm<QString> WideEnumForm(const TValueMember& member) {
  return {[] { return TypeInfos::LongString(); },
          [keys = member.Enumeration](const QVariant& value) { return WideEnumText(keys, value); },
          [keys = member.Enumeration, type = member.Type](const QString& text, const QVariant&) {
            return WideEnumOfText(keys, type, text);
          }};
}

TPropInfo::TDefinition DefineEnumeration(const TMemberPtr& member) {
  if (IsWideEnum(member->Type)) {
    const auto choices = [keys = member->Enumeration](TValueHolder&) { return WideEnumKeys(keys); };
    return Define(member, WideEnumForm(*member), {.Choices = choices});
  }
  if (!member->Enumeration.isFlag()) return Define(member, EnumForm(*member));
  if (FlagsTypeInfoFor(member->Enumeration)->HasMembers()) return Define(member, FlagsForm(*member));
  return Define(member, NumberForm(member->Type));
}

/// A cursor with a picture of its own keeps it until another shape is chosen.
TForm<qint64> CursorForm() {
  const TQtEnumTypeInfo* info = EnumTypeInfoFor(QMetaEnum::fromType<Qt::CursorShape>());
  return {[info] { return info; },
          [info](const QVariant& value) { return info->OrdinalOf(value.value<QCursor>().shape()); },
          [info](qint64 ordinal, const QVariant& current) {
            const int shape = info->ValueOf(ordinal);
            if (current.value<QCursor>().shape() == shape) return current;
            const bool isOwnPicture = shape < 0 || shape > Qt::LastCursor;
            if (isOwnPicture) throw EPropertyError(SInvalidPropertyValue.toString());
            return QVariant::fromValue(QCursor(static_cast<Qt::CursorShape>(shape)));
          }};
}

// Texts.

/// One for each type, so that editors tell them from each other.
const TTypeInfo* TextTypeInfo(QMetaType type) {
  if (type.id() == QMetaType::QString) return TypeInfos::LongString();
  static std::map<QByteArray, std::unique_ptr<const TTypeInfo>> known;
  auto& info = known[QByteArray(type.name())];
  if (!info) info = std::make_unique<const TTypeInfo>(tkLString, QString::fromUtf8(type.name()));
  return info.get();
}

TForm<QString> TextForm(QMetaType type) {
  const TTextForm* form = FindTextForm(type);
  return {[type] { return TextTypeInfo(type); },
          [form](const QVariant& value) { return value.isValid() ? form->ToText(value) : QString(); },
          [type](const QString& text, const QVariant& current) { return ValueOfText(type, text, current); }};
}

TForm<QString> ReadOnlyForm(QMetaType type) {
  return {[type] { return TextTypeInfo(type); }, [](const QVariant& value) { return ReadOnlyText(value); }, {}};
}

TForm<Variant> VariantForm() {
  return {[] { return TypeInfos::VariantType(); }, &VariantOfValue, &ValueOfVariant};
}

// Objects.

TPropInfo::TDefinition DefineObject(const TMemberPtr& member, TPropInfo::TTypeGetter type,
                                    TMemberAccess<TObject*>::TGetter get, TMemberAccess<TObject*>::TSetter set,
                                    TMemberTexts texts = {}) {
  if (!member->Write) set = {};
  return {.Name = member->Name,
          .Type = std::move(type),
          .Access = std::make_unique<TMemberAccess<TObject*>>(member, std::move(get), std::move(set), std::move(texts)),
          .Stored = StoredRule(member)};
}

/// Below a value of the same type there is none: gadgets may have members of their own type without end.
TPropInfo::TDefinition DefinePart(const TMemberPtr& member) {
  const QMetaType type = member->Type;
  const auto get = [member, type](TObject& object) -> TObject* {
    const auto* outer = dynamic_cast<TValuePart*>(&object);
    if (outer && outer->IsWithin(type)) return nullptr;
    TValueHolder& holder = HolderIn(object);
    return holder.Part(member, [&] {
      return Make<TValuePart>(holder, member, member->Write ? WritableShapeOf(type) : ShapeOf(type));
    });
  };
  const auto set = [get](TObject& object, TObject* const& value) {
    auto* part = static_cast<TValuePart*>(get(object));
    if (part) part->Assign(dynamic_cast<TPersistent*>(value));
  };
  return DefineObject(
      member, [type] { return ShapeOf(type)->TypeInfo(); }, get, set);
}

TPropInfo::TDefinition DefineStrings(const TMemberPtr& member) {
  const auto get = [member](TObject& object) -> TObject* {
    TValueHolder& holder = HolderIn(object);
    TObject* part = holder.Part(member, [&] { return Make<TValueStrings>(holder, member); });
    const TLifeWatch watch(part);
    static_cast<TValueStrings*>(part)->Follow();
    return watch.IsAlive() ? part : nullptr;
  };
  const auto set = [member](TObject& object, TObject* const& value) {
    auto* lines = dynamic_cast<TStrings*>(value);
    if (!lines) throw EInvalidCast(SInvalidCast.toString());
    const QStringList written = LinesOf(*lines);
    ChangeMember(object, *member, [&](const QVariant&) { return QVariant(written); });
  };
  return DefineObject(
      member, [] { return TypeInfos::OfClass(TStrings::Class()); }, get, set, StringsTexts(member));
}

TPropInfo::TDefinition DefineReference(const TMemberPtr& member) {
  const QMetaType type = member->Type;
  const auto get = [member](TObject& object) { return ReferredComponent(HolderIn(object), *member); };
  const auto set = [member, type](TObject& object, TObject* const& value) {
    ChangeMember(object, *member, [&](const QVariant&) { return ValueOfComponent(type, value); });
  };
  return DefineObject(
      member, [type] { return ReferenceTypeInfo(type); }, get, set, ReferenceTexts(member));
}

}  // namespace

TPropInfo::TDefinition DefineProperty(const TMemberPtr& member) {
  const QMetaType type = member->Type;
  if (member->Enumeration.isValid()) return DefineEnumeration(member);
  if (auto plain = DefinePlain(member)) return std::move(*plain);
  if (FindTextForm(type)) return Define(member, TextForm(type));
  if (type.id() == QMetaType::QCursor) return Define(member, CursorForm());
  if (type.id() == QMetaType::QVariant) return Define(member, VariantForm());
  if (type.id() == QMetaType::QStringList) return DefineStrings(member);
  if (IsReference(type)) return DefineReference(member);
  if (HasShape(type)) return DefinePart(member);
  return Define(member, ReadOnlyForm(type));
}

}  // namespace kt
