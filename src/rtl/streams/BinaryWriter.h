#pragma once

#include "kt/rtl/streams/BinaryFormat.h"
#include "kt/rtl/streams/ByteSink.h"
#include "kt/rtl/streams/FormPath.h"

#include <QString>

namespace kt {

/// Writes the primitives of the binary object format, each value in its smallest form.
///
/// Errors are EWriteError: a name that does not fit its length byte, a device that does not take the bytes. A byte
/// array as target gets its content whole with `Flush`.
class TBinaryWriter {
 public:
  explicit TBinaryWriter(QByteArray& target) : FSink(target) {}
  explicit TBinaryWriter(QIODevice& device) : FSink(device) {}

  void Flush() { FSink.Flush(); }
  qint64 Position() const { return FSink.Position(); }
  /// Where the caller is; only error messages use it.
  TFormPath& Path() { return FPath; }

  void WriteSignature() { FSink.Bytes(kFormSignature); }
  /// The 16-bit resource header that may stand before a form. `name` is stored in upper case; `size` is that of what
  /// follows, in bytes.
  void WriteResourceHeader(QStringView name, qint64 size);
  /// The prefix byte, left out where there is nothing to say.
  void WritePrefix(TFilerFlags flags, int childPos);
  /// Prefix, class name and name: the whole header. A prefix is also written where the class name alone could be taken
  /// for one or for the end of a list.
  void WriteObjectHeader(const TFormObject& object);

  void WriteValue(TValueType type) { FSink.Byte(char(type)); }
  void WriteListBegin() { WriteValue(vaList); }
  void WriteListEnd() { WriteValue(vaNull); }
  void WriteCollectionBegin() { WriteValue(vaCollection); }
  void WriteSetBegin() { WriteValue(vaSet); }
  void WriteSetElement(QStringView name) { WriteName(name); }
  void WriteSetEnd() { FSink.Byte(0); }

  /// In the smallest of 8, 16, 32 or 64 bits that holds it.
  void WriteInteger(qint64 value);
  void WriteBoolean(bool value) { WriteValue(value ? vaTrue : vaFalse); }
  /// An extended number.
  void WriteFloat(Extended value);
  void WriteSingle(float value);
  void WriteDate(double value);
  void WriteDouble(double value);
  /// Ten-thousandths.
  void WriteCurrency(qint64 tenThousandths);
  /// ASCII goes into the 8-bit kinds, anything else is stored as UTF-16, which holds every QString exactly.
  void WriteString(QStringView value);
  /// An identifier; `True`, `False`, `nil` and `Null` in any case are stored as the constants they are.
  void WriteIdent(QStringView name);
  void WriteConstant(TFormConstant value);
  /// A name with vaIdent before it whatever it spells.
  void WritePlainIdent(QStringView name);
  void WriteBinary(QByteArrayView data);
  /// The name of a property; it is also what the path shows from here on. Empty is an EWriteError: it would end the
  /// list.
  void WritePropertyName(QStringView name);
  /// A name with a length byte and no type byte, in UTF-8; at most 255 bytes, else EWriteError.
  void WriteShortString(QStringView name);
  /// Bytes as they are, for values that were stored elsewhere.
  void WriteRaw(QByteArrayView bytes) { FSink.Bytes(bytes); }

 private:
  template <typename T>
  void Number(TValueType type, T value);
  void Count(TValueType type, qsizetype count);
  void WriteName(QStringView name);
  [[noreturn]] void FailName(QLatin1StringView what, QStringView name) const;

  TByteSink FSink;
  TFormPath FPath;
};

}  // namespace kt
