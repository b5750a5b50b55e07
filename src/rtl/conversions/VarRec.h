#pragma once

#include "kt/rtl/conversions/Currency.h"

#include <QAnyStringView>
#include <QChar>
#include <QLatin1StringView>
#include <QString>
#include <QStringView>

namespace kt {

class Variant;

enum TVarRecKind {
  vtInteger,
  vtInt64,
  vtUInt64,
  vtBoolean,
  vtChar,
  vtExtended,
  vtCurrency,
  vtPointer,
  vtString,
  vtVariant
};

/// One argument of Format(), made from whatever is written in the argument list. Texts and variants are not copied: the
/// argument list must not outlive them, which a list written in the call never does.
class TVarRec {
 public:
  TVarRec(bool value) : FKind(vtBoolean) { FData.Integer = value; }
  TVarRec(char value) : TVarRec(QChar(QLatin1Char(value))) {}
  TVarRec(char16_t value) : TVarRec(QChar(value)) {}
  TVarRec(QChar value) : FKind(vtChar) { FData.Char = value.unicode(); }
  TVarRec(int value) : FKind(vtInteger) { FData.Integer = value; }
  TVarRec(unsigned value) : FKind(vtInt64) { FData.Integer = value; }
  TVarRec(long value) : FKind(sizeof value == 4 ? vtInteger : vtInt64) { FData.Integer = value; }
  TVarRec(unsigned long value) : TVarRec(static_cast<unsigned long long>(value)) {}
  TVarRec(long long value) : FKind(vtInt64) { FData.Integer = value; }
  TVarRec(unsigned long long value) : FKind(vtUInt64) { FData.Unsigned = value; }
  TVarRec(double value) : FKind(vtExtended) { FData.Float = value; }
  TVarRec(long double value) : TVarRec(static_cast<double>(value)) {}
  TVarRec(Currency value) : FKind(vtCurrency) { FData.Integer = value.Scaled(); }
  TVarRec(const QString& value) : TVarRec(QAnyStringView(value)) {}
  TVarRec(QStringView value) : TVarRec(QAnyStringView(value)) {}
  TVarRec(QLatin1StringView value) : TVarRec(QAnyStringView(value)) {}
  /// UTF-8.
  TVarRec(const char* value) : TVarRec(QAnyStringView(value)) {}
  TVarRec(const char16_t* value) : TVarRec(QAnyStringView(value)) {}
  TVarRec(QAnyStringView value) : FKind(vtString), FText(value) {}
  TVarRec(const Variant& value) : FKind(vtVariant) { FData.VariantAt = &value; }
  TVarRec(const void* value) : FKind(vtPointer) { FData.Pointer = value; }

  TVarRecKind Kind() const { return FKind; }
  qint64 AsInteger() const { return FData.Integer; }
  quint64 AsUnsigned() const { return FKind == vtUInt64 ? FData.Unsigned : static_cast<quint64>(FData.Integer); }
  double AsFloat() const { return FData.Float; }
  Currency AsCurrency() const { return Currency::FromScaled(FData.Integer); }
  QChar AsChar() const { return QChar(FData.Char); }
  QAnyStringView AsText() const { return FText; }
  const void* AsPointer() const { return FData.Pointer; }
  const Variant& AsVariant() const { return *FData.VariantAt; }

 private:
  TVarRecKind FKind;
  union {
    qint64 Integer;
    quint64 Unsigned;
    double Float;
    char16_t Char;
    const void* Pointer;
    const Variant* VariantAt;
  } FData{};
  QAnyStringView FText;
};

}  // namespace kt
