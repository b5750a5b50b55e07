#pragma once

#include "kt/qobjects/ValueMember.h"
#include "kt/rtl/typeinfo/PropInfo.h"

namespace kt {

/// The published property that a member is, of the kind that its type asks for:
///   truth values, whole numbers of every width, numbers with decimals and characters as such;
///   enumerations by the names of their keys, flags as sets, cursors by their shape;
///   texts, bytes, colours, dates and times, locales, key sequences, addresses as texts;
///   lists of texts as string lists, fonts, sizes, places and gadgets as objects whose members go back as a whole;
///   pointers to objects as references to their components; variants as such.
/// Everything else is a text that can only be read. What a fresh object has is the declared default of ordinals, and
/// decides for all whether the property is stored.
TPropInfo::TDefinition DefineProperty(const TMemberPtr& member);

}  // namespace kt
