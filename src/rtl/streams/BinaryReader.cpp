#include "kt/rtl/streams/BinaryReader.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/BinaryFormParser.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

namespace kt {
namespace {

constexpr quint8 kKnownFlags = ffInherited | ffChildPos | ffInline;

/// The resource type of raw data, as the number that follows the mark of an ordinal.
constexpr quint16 kRawDataType = 10;

}  // namespace

QString TBinaryReader::AtPlace(const QString& what, qint64 offset) const {
  return kt::AtPlace(FWording, what, offset, FPath.ToString());
}

void TBinaryReader::FailReading(QLatin1StringView what, qint64 offset) {
  throw EReadError(AtPlace(QString(what), offset < 0 ? Position() : offset));
}

void TBinaryReader::FailImage() { throw EInvalidImage(AtPlace(QString(SInvalidImage), Position())); }

inline const char* TBinaryReader::Take(qsizetype count) {
  const char* bytes = FSource.Take(count);
  if (bytes == nullptr) FailReading(SReadError);
  return bytes;
}

template <typename T>
inline T TBinaryReader::TakeNumber() {
  return qFromLittleEndian<T>(Take(sizeof(T)));
}

QByteArrayView TBinaryReader::TakeCounted() {
  const auto count = qsizetype(TakeNumber<quint32>());
  return {Take(count), count};
}

void TBinaryReader::ReadSignature() {
  const char* bytes = FSource.Take(kFormSignature.size());
  if (bytes == nullptr && IsAtEnd()) FailReading(SReadError);
  if (bytes == nullptr || QByteArrayView(bytes, kFormSignature.size()) != kFormSignature) {
    const qint64 start = Position() - (bytes == nullptr ? 0 : kFormSignature.size());
    throw EInvalidImage(AtPlace(QString(SInvalidImage), start));
  }
}

qint64 TBinaryReader::ReadResourceHeader() {
  if (!IsAtResourceHeader()) FailImage();
  Take(1);
  if (TakeNumber<quint16>() != kRawDataType) FailImage();
  // A name is text up to a zero byte, or the same mark and a number.
  if (IsAtResourceHeader())
    Take(3);
  else
    while (*Take(1) != 0) continue;
  Take(sizeof(quint16));
  return TakeNumber<quint32>();
}

void TBinaryReader::ReadPrefix(TFilerFlags& flags, int& childPos) {
  flags = {};
  const int next = FSource.Peek();
  if (next < 0 || (next & 0xF0) != kPrefixMark) return;
  if (next & 0x0F & ~kKnownFlags) FailImage();
  Take(1);
  flags = TFilerFlags::fromInt(next & 0x0F);
  // Never written together; an inherited frame is found through its ancestor, so that flag is the one that counts.
  if (flags.testFlag(ffInherited)) flags.setFlag(ffInline, false);
  if (flags.testFlag(ffChildPos)) childPos = ReadInteger();
}

TValueType TBinaryReader::NextValue() {
  const int next = FSource.Peek();
  if (next < 0) FailReading(SReadError);
  if (next > vaDouble) FailReading(SInvalidPropertyValue);
  return TValueType(next);
}

TValueType TBinaryReader::ReadValue() {
  const TValueType type = NextValue();
  Take(1);
  return type;
}

bool TBinaryReader::EndOfList() {
  const int next = FSource.Peek();
  if (next < 0) FailReading(SReadError);
  return next == vaNull;
}

void TBinaryReader::Check(TValueType type) {
  if (NextValue() != type) FailReading(SInvalidPropertyValue);
  Take(1);
}

qint64 TBinaryReader::TakeInteger(TValueType type) {
  switch (type) {
    case vaInt8:
      return TakeNumber<qint8>();
    case vaInt16:
      return TakeNumber<qint16>();
    case vaInt32:
      return TakeNumber<qint32>();
    case vaInt64:
      return TakeNumber<qint64>();
    default:
      FailReading(SInvalidPropertyValue, Position() - 1);
  }
}

qint64 TBinaryReader::TakeCurrency() { return TakeNumber<qint64>(); }

Extended TBinaryReader::TakeFloat(TValueType type) {
  switch (type) {
    case vaExtended:
      return DecodeExtended(Take(kExtendedSize));
    case vaSingle:
      return TakeNumber<float>();
    case vaDate:
    case vaDouble:
      return TakeNumber<double>();
    case vaCurrency:
      return Extended(TakeCurrency()) / 10000;
    default:
      return Extended(TakeInteger(type));
  }
}

QStringView TBinaryReader::TakeName() {
  const auto count = qsizetype(TakeNumber<quint8>());
  DecodeName({Take(count), count}, FEncoding, FScratch);
  return FScratch;
}

void TBinaryReader::TakeWide() {
  const auto count = qsizetype(TakeNumber<quint32>());
  const char* bytes = Take(count * 2);
  FScratch.resize(count);
  qFromLittleEndian<char16_t>(bytes, count, FScratch.data());
}

void TBinaryReader::TakeUtf8() {
  const qint64 start = Position();
  const QByteArrayView bytes = TakeCounted();
  if (!DecodeEightBit(bytes, eeUtf8, FScratch)) FailReading(SInvalidUtf8, start + 4 + FindInvalidUtf8(bytes));
}

QStringView TBinaryReader::TakeString(TValueType type) {
  const qint64 start = Position();
  if (type == vaWString) {
    TakeWide();
    return FScratch;
  }
  if (type == vaUTF8String) {
    TakeUtf8();
    return FScratch;
  }
  if (type != vaString && type != vaLString) FailReading(SInvalidPropertyValue, start - 1);
  const auto count = qsizetype(type == vaString ? TakeNumber<quint8>() : TakeNumber<quint32>());
  const QByteArrayView bytes(Take(count), count);
  if (!DecodeEightBit(bytes, FEncoding, FScratch))
    FailReading(SInvalidUtf8, Position() - count + FindInvalidUtf8(bytes));
  return FScratch;
}

QByteArrayView TBinaryReader::TakeBinary() { return TakeCounted(); }

int TBinaryReader::ReadInteger() {
  const qint64 start = Position();
  const qint64 value = ReadInt64();
  if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
    FailReading(SInvalidPropertyValue, start);
  return int(value);
}

qint64 TBinaryReader::ReadInt64() { return TakeInteger(ReadValue()); }

Extended TBinaryReader::ReadFloat() { return TakeFloat(ReadValue()); }

bool TBinaryReader::ReadBoolean() {
  const TValueType type = ReadValue();
  if (type != vaTrue && type != vaFalse) FailReading(SInvalidPropertyValue, Position() - 1);
  return type == vaTrue;
}

qint64 TBinaryReader::ReadCurrency() {
  Check(vaCurrency);
  return TakeCurrency();
}

QString TBinaryReader::ReadString() { return TakeString(ReadValue()).toString(); }

QString TBinaryReader::ReadIdent() {
  switch (ReadValue()) {
    case vaIdent:
      return TakeName().toString();
    case vaNull:
      return FormConstantName(fcNull).toString();
    case vaNil:
      return FormConstantName(fcNil).toString();
    case vaFalse:
      return FormConstantName(fcFalse).toString();
    case vaTrue:
      return FormConstantName(fcTrue).toString();
    default:
      FailReading(SInvalidPropertyValue, Position() - 1);
  }
}

QByteArray TBinaryReader::ReadBinary() {
  Check(vaBinary);
  return TakeBinary().toByteArray();
}

void TBinaryReader::SkipBytes(qint64 count) {
  constexpr qint64 kStep = 4096;
  for (; count > 0; count -= kStep) Take(std::min(count, kStep));
}

void TBinaryReader::SkipValue() {
  TIdleFormSink nowhere;
  TBinaryFormParser(*this, nowhere).ParseValue();
}

}  // namespace kt
