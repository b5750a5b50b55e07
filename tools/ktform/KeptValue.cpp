#include "ktform/KeptValue.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Numbers.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/FormNumbers.h"
#include "kt/rtl/typeinfo/MemberAccess.h"

#include <optional>

namespace ktform {
namespace {

kt::TKeptData::TProperty* FindKept(kt::TComponent* component, QStringView path) {
  kt::TKeptData* kept = kt::FindKeptData(component);
  if (!kept) return nullptr;
  for (kt::TKeptData::TProperty& property : kept->Properties) {
    if (kt::SameText(property.Path, path)) return &property;
  }
  return nullptr;
}

long double FloatOf(const QString& value) {
  long double number = 0;
  if (!kt::TryNeutralToLongDouble(value.toLatin1(), number)) {
    throw kt::EConvertError(kt::Format(kt::SInvalidFloat, {value}));
  }
  return number;
}

/// The nearest number of a narrower type; raises for one that this cannot hold.
template <class T>
T Narrowed(const QString& value) {
  return kt::MemberAccess::NarrowedFloat<T>(FloatOf(value));
}

/// A name, or a number as the text format writes it.
QString SetElementOf(const QString& text) {
  if (kt::IsValidIdent(text)) return text;
  const std::optional<qint64> number = kt::ParseFormInteger(text.toLatin1());
  if (!number) throw kt::EPropertyError(kt::SInvalidPropertyValue.toString());
  return QString::number(*number);
}

void WriteSet(kt::TBinaryWriter& writer, QString value) {
  value.remove(u'[').remove(u']').replace(u' ', u',');
  writer.WriteSetBegin();
  for (const QString& element : value.split(u',', Qt::SkipEmptyParts)) writer.WriteSetElement(SetElementOf(element));
  writer.WriteSetEnd();
}

/// Writes `value` as the type that the property has in the form.
void WriteAs(kt::TBinaryWriter& writer, kt::TValueType type, const QString& value) {
  switch (type) {
    case kt::vaString:
    case kt::vaLString:
    case kt::vaWString:
    case kt::vaUTF8String:
      return writer.WriteString(value);
    case kt::vaInt8:
    case kt::vaInt16:
    case kt::vaInt32:
    case kt::vaInt64:
      return writer.WriteInteger(kt::StrToInt64(value));
    case kt::vaIdent:
    case kt::vaFalse:
    case kt::vaTrue:
    case kt::vaNil:
      if (!kt::IsValidIdent(value, kt::drAllowDots)) break;
      return writer.WriteIdent(value);
    case kt::vaExtended:
      return writer.WriteFloat(FloatOf(value));
    case kt::vaSingle:
      return writer.WriteSingle(Narrowed<float>(value));
    case kt::vaDouble:
      return writer.WriteDouble(Narrowed<double>(value));
    case kt::vaDate:
      return writer.WriteDate(Narrowed<double>(value));
    case kt::vaCurrency:
      return writer.WriteCurrency(kt::MemberAccess::AmountOfFloat(FloatOf(value)).Scaled());
    case kt::vaSet:
      return WriteSet(writer, value);
    default:
      break;
  }
  throw kt::EPropertyError(kt::SInvalidPropertyValue.toString());
}

}  // namespace

bool HasKeptValue(kt::TComponent* component, QStringView path) { return FindKept(component, path) != nullptr; }

void SetKeptValue(kt::TComponent* component, QStringView path, const QString& value) {
  kt::TKeptData::TProperty* property = FindKept(component, path);
  if (!property) throw kt::EPropertyError(kt::Format(kt::SUnknownProperty, {path}));
  QByteArray bytes;
  kt::TBinaryWriter writer(bytes);
  WriteAs(writer, static_cast<kt::TValueType>(property->Value.front()), value);
  writer.Flush();
  property->Value = bytes;
}

}  // namespace ktform
