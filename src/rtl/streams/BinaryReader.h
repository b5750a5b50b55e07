#pragma once

#include "kt/rtl/conversions/EightBit.h"
#include "kt/rtl/streams/BinaryFormat.h"
#include "kt/rtl/streams/ByteSource.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/FormPath.h"

#include <QString>

namespace kt {

/// Reads the primitives of the binary object format.
///
/// Every error is an EReadError, or EInvalidImage where a header is wrong. Its message says what is wrong, the byte
/// offset, and, as far as the caller kept `Path()` up to date, in which object and property: "Stream read error at
/// offset 123 (Form1.Panel1.Caption)". Nothing is known about the position after an error.
class TBinaryReader {
 public:
  explicit TBinaryReader(QByteArray data) : FSource(std::move(data)) {}
  /// Reads ahead; on destruction a random-access device is set to the first byte not read.
  explicit TBinaryReader(QIODevice& device) : FSource(device) {}

  /// What 8-bit strings are decoded with; Windows-1252 unless set.
  void SetEncoding(TEightBitEncoding encoding) { FEncoding = encoding; }
  /// How errors tell their place; by offset and path unless set.
  void SetPlaceWording(TPlaceWording wording) { FWording = std::move(wording); }
  /// `what` with `offset` and path, in that wording.
  QString AtPlace(const QString& what, qint64 offset) const;
  /// Offset of the next byte from where reading began.
  qint64 Position() const { return FSource.Position(); }
  /// Goes on at another offset of what Position() answered before. Only for a reader of a byte array.
  void Seek(qint64 position) { FSource.Seek(position); }
  bool IsAtEnd() { return FSource.Peek() < 0; }
  /// Memory held for reading ahead, in bytes.
  qsizetype BufferSize() const { return FSource.BufferSize(); }
  /// Where the caller is; only error messages use it.
  TFormPath& Path() { return FPath; }

  /// The four bytes that begin a form. Throws EInvalidImage.
  void ReadSignature();
  /// True, and nothing read, when a 16-bit resource header comes next.
  bool IsAtResourceHeader() { return FSource.Peek() == 0xFF; }
  /// Skips the resource header and answers the size in bytes that it states. Throws EInvalidImage.
  qint64 ReadResourceHeader();
  /// The optional prefix byte of an object, with the child position when there is one. Throws EInvalidImage for unknown
  /// flags.
  void ReadPrefix(TFilerFlags& flags, int& childPos);

  /// The type of the next value, not read yet. Throws EReadError for a byte that is no type.
  TValueType NextValue();
  /// Takes the type of the next value.
  TValueType ReadValue();
  /// True when a zero byte (end of properties, objects, list, collection) is next; it is not read.
  bool EndOfList();
  void ReadListBegin() { Check(vaList); }
  void ReadListEnd() { Check(vaNull); }
  void ReadCollectionBegin() { Check(vaCollection); }

  /// An integer of any stored width that fits; EReadError "Invalid property value" when it does not or is something
  /// else.
  int ReadInteger();
  qint64 ReadInt64();
  bool ReadBoolean();
  /// Any floating-point number, a currency or an integer.
  Extended ReadFloat();
  /// Ten-thousandths.
  qint64 ReadCurrency();
  /// A string of any kind.
  QString ReadString();
  /// An identifier; the constants (`nil`, `False` ...) count as their names.
  QString ReadIdent();
  QByteArray ReadBinary();
  /// Takes the type byte of a set; then `ReadSetElement` until it answers an empty text.
  void ReadSetBegin() { Check(vaSet); }
  /// A name with a length byte and no type byte: class, object, property, set element.
  QString ReadShortString() { return TakeName().toString(); }
  QString ReadSetElement() { return ReadShortString(); }

  /// Skips one value of any kind, however deep.
  void SkipValue();

  /// Skips bytes that mean nothing here.
  void SkipBytes(qint64 count);

  /// The bodies of values whose type byte was read already. Views are good until the next read.
  qint64 TakeInteger(TValueType type);
  Extended TakeFloat(TValueType type);
  qint64 TakeCurrency();
  QStringView TakeString(TValueType type);
  QStringView TakeName();
  QByteArrayView TakeBinary();

  /// Throws EReadError for `what` at `offset`, by default the present position.
  [[noreturn]] void FailReading(QLatin1StringView what, qint64 offset = -1);
  /// Throws EInvalidImage "Invalid stream format" at the present position.
  [[noreturn]] void FailImage();

 private:
  const char* Take(qsizetype count);
  QByteArrayView TakeCounted();
  template <typename T>
  T TakeNumber();
  void TakeWide();
  void TakeUtf8();
  void Check(TValueType type);

  TByteSource FSource;
  TFormPath FPath;
  TPlaceWording FWording;
  TEightBitEncoding FEncoding = eeWindows1252;
  QString FScratch;
};

}  // namespace kt
