#include "kt/rtl/streams/BinaryWriter.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"

#include <QtEndian>

#include <limits>

namespace kt {
namespace {

/// Moveable, discardable and pure: what resource compilers write for raw data.
constexpr quint16 kResourceFlags = 0x1030;
/// The mark of an ordinal and the number of the resource type "raw data".
constexpr QByteArrayView kResourceType{"\xFF\x0A\x00", 3};

bool IsAscii(QStringView text) {
  char16_t seen = 0;
  for (const QChar c : text) seen |= c.unicode();
  return seen < 0x80;
}

void Narrow(QStringView ascii, char* to) {
  const char16_t* from = ascii.utf16();
  for (qsizetype i = 0; i < ascii.size(); ++i) to[i] = char(from[i]);
}

/// Without a prefix its length byte would be taken for the end of a list, or for a prefix.
bool NeedsPrefix(QStringView className) {
  if (className.isEmpty()) return true;
  return className.size() * 3 >= kAmbiguousNameLength && className.toUtf8().size() >= kAmbiguousNameLength;
}

template <typename T>
bool Fits(qint64 value) {
  return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

}  // namespace

template <typename T>
inline void TBinaryWriter::Number(TValueType type, T value) {
  char* to = FSink.Reserve(1 + sizeof(T));
  to[0] = char(type);
  qToLittleEndian(value, to + 1);
  FSink.Commit(1 + sizeof(T));
}

void TBinaryWriter::Count(TValueType type, qsizetype count) {
  if (count > std::numeric_limits<qint32>::max())
    throw EWriteError(AtOffset(QString(SWriteError), Position(), FPath.ToString()));
  Number(type, quint32(count));
}

void TBinaryWriter::FailName(QLatin1StringView what, QStringView name) const {
  const QString message = MessageAbout(what, ShownName(name));
  const QString path = FPath.ToString();
  throw ENotStorable(message, path, AtOffset(message, Position(), path));
}

void TBinaryWriter::WriteResourceHeader(QStringView name, qint64 size) {
  FSink.Bytes(kResourceType);
  FSink.Bytes(name.toString().toUpper().toUtf8());
  FSink.Byte(0);
  char* to = FSink.Reserve(6);
  qToLittleEndian(kResourceFlags, to);
  qToLittleEndian(quint32(size), to + 2);
  FSink.Commit(6);
}

void TBinaryWriter::WritePrefix(TFilerFlags flags, int childPos) {
  if (!flags) return;
  FSink.Byte(char(kPrefixMark | flags.toInt()));
  if (flags.testFlag(ffChildPos)) WriteInteger(childPos);
}

void TBinaryWriter::WriteObjectHeader(const TFormObject& object) {
  if (!object.Flags && NeedsPrefix(object.ClassName)) FSink.Byte(char(kPrefixMark));
  WritePrefix(object.Flags, object.ChildPos);
  WriteShortString(object.ClassName);
  WriteShortString(object.Name);
}

void TBinaryWriter::WriteInteger(qint64 value) {
  if (Fits<qint8>(value)) return Number(vaInt8, qint8(value));
  if (Fits<qint16>(value)) return Number(vaInt16, qint16(value));
  if (Fits<qint32>(value)) return Number(vaInt32, qint32(value));
  Number(vaInt64, value);
}

void TBinaryWriter::WriteFloat(Extended value) {
  const TExtendedBytes bytes = EncodeExtended(value);
  WriteValue(vaExtended);
  FSink.Bytes(bytes);
}

void TBinaryWriter::WriteSingle(float value) { Number(vaSingle, value); }

void TBinaryWriter::WriteDate(double value) { Number(vaDate, value); }

void TBinaryWriter::WriteDouble(double value) { Number(vaDouble, value); }

void TBinaryWriter::WriteCurrency(qint64 tenThousandths) { Number(vaCurrency, tenThousandths); }

void TBinaryWriter::WriteString(QStringView value) {
  const qsizetype size = value.size();
  if (!IsAscii(value)) {
    Count(vaWString, size);
    qToLittleEndian<char16_t>(value.utf16(), size, FSink.Reserve(size * 2));
    return FSink.Commit(size * 2);
  }
  if (size <= kMaxShortString)
    Number(vaString, quint8(size));
  else
    Count(vaLString, size);
  Narrow(value, FSink.Reserve(size));
  FSink.Commit(size);
}

void TBinaryWriter::WriteConstant(TFormConstant value) {
  switch (value) {
    case fcNull:
      return WriteValue(vaNull);
    case fcNil:
      return WriteValue(vaNil);
    case fcFalse:
      return WriteValue(vaFalse);
    case fcTrue:
      return WriteValue(vaTrue);
  }
}

void TBinaryWriter::WriteIdent(QStringView name) {
  if (const auto constant = FindFormConstant(name)) return WriteConstant(*constant);
  WritePlainIdent(name);
}

void TBinaryWriter::WritePlainIdent(QStringView name) {
  WriteValue(vaIdent);
  WriteShortString(name);
}

void TBinaryWriter::WriteBinary(QByteArrayView data) {
  Count(vaBinary, data.size());
  FSink.Bytes(data);
}

void TBinaryWriter::WriteName(QStringView name) {
  if (name.isEmpty()) FailName(SNameNotStorable, name);
  WriteShortString(name);
}

void TBinaryWriter::WritePropertyName(QStringView name) {
  FPath.SetProperty(name);
  WriteName(name);
}

void TBinaryWriter::WriteShortString(QStringView name) {
  const qsizetype size = name.size();
  if (size <= kMaxShortString && IsAscii(name)) {
    char* to = FSink.Reserve(1 + size);
    to[0] = char(size);
    Narrow(name, to + 1);
    return FSink.Commit(1 + size);
  }
  if (!name.isValidUtf16()) FailName(SNameNotStorable, name);
  const QByteArray bytes = name.toUtf8();
  if (bytes.size() > kMaxShortString) FailName(SNameTooLong, name);
  FSink.Byte(char(bytes.size()));
  FSink.Bytes(bytes);
}

}  // namespace kt
