#include "kt/rtl/streams/BinaryFormWriter.h"

namespace kt {

void TBinaryFormWriter::BeginObject(const TFormObject& object) {
  if (FFrames.empty()) FWriter.WriteSignature();
  if (!FFrames.empty() && FFrames.back().Kind == fkProperties) {
    FFrames.back().Kind = fkChildren;
    FWriter.WriteListEnd();
  }
  FWriter.Path().EnterObject(object.Name, object.ClassName);
  FFrames.push_back({fkProperties});
  FWriter.WriteObjectHeader(object);
}

void TBinaryFormWriter::EndObject() {
  Q_ASSERT(!FFrames.empty());
  if (FFrames.back().Kind == fkProperties) FWriter.WriteListEnd();
  FWriter.WriteListEnd();
  FFrames.pop_back();
  FWriter.Path().Leave();
}

void TBinaryFormWriter::Close(TFrameKind kind) {
  Q_ASSERT(!FFrames.empty() && FFrames.back().Kind == kind);
  Q_UNUSED(kind);
  FFrames.pop_back();
  FWriter.WriteListEnd();
}

void TBinaryFormWriter::Property(QStringView path) { FWriter.WritePropertyName(path); }

void TBinaryFormWriter::Constant(TFormConstant value) {
  // In a list the byte of a null would be the end of the list, so there the word is stored.
  const bool ends = value == fcNull && !FFrames.empty() && FFrames.back().Kind == fkList;
  if (ends) return FWriter.WritePlainIdent(FormConstantName(value));
  FWriter.WriteConstant(value);
}

void TBinaryFormWriter::Integer(qint64 value) { FWriter.WriteInteger(value); }

void TBinaryFormWriter::Float(TFloatKind kind, Extended value) {
  switch (kind) {
    case fkExtended:
      return FWriter.WriteFloat(value);
    case fkSingle:
      return FWriter.WriteSingle(float(value));
    case fkDate:
      return FWriter.WriteDate(double(value));
    case fkDouble:
      return FWriter.WriteDouble(double(value));
  }
}

void TBinaryFormWriter::Currency(qint64 tenThousandths) { FWriter.WriteCurrency(tenThousandths); }

void TBinaryFormWriter::String(QStringView value) { FWriter.WriteString(value); }

void TBinaryFormWriter::Identifier(QStringView name) { FWriter.WritePlainIdent(name); }

void TBinaryFormWriter::Binary(QByteArrayView data) { FWriter.WriteBinary(data); }

void TBinaryFormWriter::BeginSet() { FWriter.WriteSetBegin(); }

void TBinaryFormWriter::SetElement(QStringView name) { FWriter.WriteSetElement(name); }

void TBinaryFormWriter::EndSet() { FWriter.WriteSetEnd(); }

void TBinaryFormWriter::BeginList() {
  FFrames.push_back({fkList});
  FWriter.WriteListBegin();
}

void TBinaryFormWriter::EndList() { Close(fkList); }

void TBinaryFormWriter::BeginCollection() {
  FFrames.push_back({fkCollection});
  FWriter.WriteCollectionBegin();
}

void TBinaryFormWriter::BeginItem(std::optional<int> index) {
  Q_ASSERT(!FFrames.empty() && FFrames.back().Kind == fkCollection);
  FWriter.Path().EnterItem(FFrames.back().NextItem++);
  FFrames.push_back({fkItem});
  if (index) FWriter.WriteInteger(*index);
  FWriter.WriteListBegin();
}

void TBinaryFormWriter::EndItem() {
  Close(fkItem);
  FWriter.Path().Leave();
}

void TBinaryFormWriter::EndCollection() { Close(fkCollection); }

}  // namespace kt
