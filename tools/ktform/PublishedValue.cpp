#include "ktform/PublishedValue.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Numbers.h"
#include "kt/rtl/conversions/TextCompare.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Fixups.h"
#include "kt/rtl/streams/IntegerConsts.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

namespace ktform {
namespace {

bool IsNil(const QString& value) { return value.isEmpty() || kt::SameText(value, u"nil"); }

[[noreturn]] void RaiseInvalidValue() { throw kt::EPropertyConvertError(kt::SInvalidPropertyValue.toString()); }

void SetInteger(const kt::TPropTarget& target, const QString& value) {
  const auto names = kt::FindIntegerConsts(target.Property->PropType());
  const std::optional<qint64> named = names ? names->IdentToInt(value) : std::nullopt;
  kt::SetPropValue(target.Instance, target.Property, kt::Variant(named ? *named : kt::StrToInt64(value)));
}

/// As a text, "1.5" would be taken for a number to be rounded.
void SetInt64(const kt::TPropTarget& target, const QString& value) {
  quint64 natural = 0;
  const bool isUnsigned = kt::Int64TypeOf(target.Property->PropType())->IsUnsigned();
  const bool isNatural = isUnsigned && kt::TryStrToUInt64(value, natural);
  const kt::Variant number = isNatural ? kt::Variant(natural) : kt::Variant(kt::StrToInt64(value));
  kt::SetPropValue(target.Instance, target.Property, number);
}

void SetCharacter(const kt::TPropTarget& target, const QString& value) {
  if (value.size() != 1) RaiseInvalidValue();
  kt::SetPropValue(target.Instance, target.Property, kt::Variant(int(value.front().unicode())));
}

void SetFloat(const kt::TPropTarget& target, const QString& value) {
  long double number = 0;
  if (!kt::TryNeutralToLongDouble(value.toLatin1(), number)) {
    throw kt::EConvertError(kt::Format(kt::SInvalidFloat, {value}));
  }
  kt::SetExtendedProp(target.Instance, target.Property, number);
}

/// Wide Booleans store -1, so their names are no ordinals to go by.
void SetEnumeration(const kt::TPropTarget& target, const QString& value) {
  const bool isTrue = kt::SameText(value, u"True");
  const bool isTruth = kt::IsBoolType(target.Property->PropType()) && (isTrue || kt::SameText(value, u"False"));
  kt::SetPropValue(target.Instance, target.Property, isTruth ? kt::Variant(isTrue) : kt::Variant(value));
}

void SetReference(kt::TComponent* root, const kt::TPropTarget& target, const QString& value) {
  kt::TComponent* component = IsNil(value) ? nullptr : kt::FindNestedComponent(root, value);
  if (!component && !IsNil(value)) RaiseInvalidValue();
  if (target.Property->Kind() == kt::tkInterface) {
    return kt::SetInterfaceProp(target.Instance, target.Property, component);
  }
  kt::SetObjectProp(target.Instance, target.Property, component);
}

void SetEvent(kt::TComponent* root, const kt::TPropTarget& target, const QString& value) {
  const kt::TMethod method = IsNil(value) ? kt::TMethod() : root->ClassType()->FindMethod(value, root);
  if (method.IsEmpty() && !IsNil(value)) RaiseInvalidValue();
  kt::SetMethodProp(target.Instance, target.Property, method);
}

}  // namespace

void SetPublishedValue(kt::TComponent* root, const kt::TPropTarget& target, const QString& value) {
  switch (target.Property->Kind()) {
    case kt::tkInteger:
      return SetInteger(target, value);
    case kt::tkInt64:
      return SetInt64(target, value);
    case kt::tkChar:
    case kt::tkWChar:
      return SetCharacter(target, value);
    case kt::tkFloat:
      return SetFloat(target, value);
    case kt::tkEnumeration:
      return SetEnumeration(target, value);
    case kt::tkClass:
    case kt::tkInterface:
      return SetReference(root, target, value);
    case kt::tkMethod:
      return SetEvent(root, target, value);
    default:
      return kt::SetPropValue(target.Instance, target.Property, kt::Variant(value));
  }
}

}  // namespace ktform
