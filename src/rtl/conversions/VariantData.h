#pragma once

#include "kt/rtl/conversions/Variant.h"

namespace kt {

/// How the types without a Qt type of their own are stored inside a Variant. Not part of the public surface.
struct TVarDateData {
  TDateTime Value = 0;
};

struct TVarOleStrData {
  QString Value;
};

enum TVarNumberKind { nkSigned, nkUnsigned, nkFloat, nkCurrency };

/// A variant taken as a number, without loss.
struct TVarNumber {
  TVarNumberKind Kind = nkSigned;
  qint64 Signed = 0;
  quint64 Unsigned = 0;
  double Float = 0;
  Currency Amount;

  double ToDouble() const;
};

/// The number in a variant. Raises EVariantTypeCastError, naming `target`, when there is none.
TVarNumber NumberOf(const Variant& v, TVarType target);
/// The text in a variant of type varString or varOleStr.
QString StoredText(const Variant& v);
[[noreturn]] void RaiseVarCastError(TVarType source, TVarType target);
[[noreturn]] void RaiseVarOverflowError(TVarType source, TVarType target);

}  // namespace kt
