// What items stream besides their published properties.
#include "kt/KTObjectInspector/ItemProperty.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"

namespace kt {

void TKTItemProperty::DefineProperties(TFiler& filer) {
  TKTItemProp::DefineProperties(filer);
  filer.DefineProperty(
      u"TypeData", [this](TReader& reader) { LoadTypeDataProperty(reader); },
      [this](TWriter& writer) { StoreTypeDataProperty(writer); }, FTypeKind != tkUnknown || !FTypeName.isEmpty());
  filer.DefineProperty(
      u"IsAllEqual", [this](TReader& reader) { LoadAllEqualProperty(reader); },
      [this](TWriter& writer) { StoreAllEqualProperty(writer); }, IsAllEqual());
}

/// A list: the number of the kind, and the name of the type.
void TKTItemProperty::LoadTypeDataProperty(TReader& reader) {
  reader.ReadListBegin();
  const int kind = reader.ReadInteger();
  const QString name = reader.ReadString();
  reader.ReadListEnd();
  if (kind < tkUnknown || kind > tkDynArray) throw EReadError(SInvalidPropertyValue.toString());
  SetTypeKind(static_cast<TTypeKind>(kind));
  SetTypeName(name);
}

void TKTItemProperty::StoreTypeDataProperty(TWriter& writer) {
  writer.WriteListBegin();
  writer.WriteInteger(FTypeKind);
  writer.WriteString(FTypeName);
  writer.WriteListEnd();
}

void TKTItemProperty::LoadAllEqualProperty(TReader& reader) { SetAllEqual(reader.ReadBoolean()); }

void TKTItemProperty::StoreAllEqualProperty(TWriter& writer) { writer.WriteBoolean(IsAllEqual()); }

}  // namespace kt
