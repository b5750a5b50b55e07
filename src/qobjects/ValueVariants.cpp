#include "kt/qobjects/ValueVariants.h"

#include "kt/qobjects/ValueTexts.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

namespace kt {

namespace {

/// The types that variants of the framework know themselves.
bool IsPlain(QMetaType type) {
  switch (type.id()) {
    case QMetaType::Bool:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
    case QMetaType::QString:
      return true;
    default:
      return false;
  }
}

}  // namespace

Variant VariantOfValue(const QVariant& value) {
  if (!value.isValid()) return {};
  return IsPlain(value.metaType()) ? Variant::FromQVariant(value) : Variant(ReadOnlyText(value));
}

QVariant ValueOfVariant(const Variant& variant, const QVariant& current) {
  if (!current.isValid()) return variant.ToQVariant();
  const QMetaType type = current.metaType();
  if (IsPlain(type)) {
    QVariant value = variant.ToQVariant();
    if (value.convert(type)) return value;
    throw EPropertyConvertError(SInvalidPropertyValue.toString());
  }
  const QString text = VarToStr(variant);
  if (FindTextForm(type)) return ValueOfText(type, text, current);
  if (text == ReadOnlyText(current)) return current;
  throw EPropReadOnly(SReadOnlyProperty.toString());
}

}  // namespace kt
