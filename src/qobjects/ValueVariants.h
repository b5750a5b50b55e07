#pragma once

#include "kt/rtl/conversions/Variant.h"

#include <QVariant>

namespace kt {

/// A property of type QVariant as the framework's variant: truth values, numbers and texts as such, whatever else has a
/// text form as that text, the rest as the text that is shown of it.
Variant VariantOfValue(const QVariant& value);

/// The way back: a value of the type that the property holds now, or of the variant's when it holds none. Raises
/// EPropertyConvertError for what does not convert, and EPropReadOnly where the present type can only be shown.
QVariant ValueOfVariant(const Variant& variant, const QVariant& current);

}  // namespace kt
