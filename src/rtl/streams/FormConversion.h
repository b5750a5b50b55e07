#pragma once

#include "kt/rtl/conversions/EightBit.h"
#include "kt/rtl/streams/BinaryFormat.h"
#include "kt/rtl/streams/FormEvents.h"
#include "kt/rtl/streams/TextWriter.h"

#include <QByteArray>

class QIODevice;

namespace kt {

class TBinaryReader;

/// What a stored form looks like.
enum TStreamOriginalFormat : quint8 {
  sofUnknown,
  sofBinary,    ///< Begins with the signature.
  sofText,      ///< A byte-order mark, or one of the words that begin an object.
  sofResource,  ///< Binary behind a 16-bit resource header.
};

/// How forms are read and written by the conversions.
struct TFormOptions {
  TEightBitEncoding Encoding = eeWindows1252;  ///< Of 8-bit strings in binary, and of text that is not Unicode.
  int NestingLimit = kDefaultNestingLimit;
  TTextWriterOptions Text;
};

/// Looks at the first bytes only; a device keeps its position.
TStreamOriginalFormat TestStreamFormat(QByteArrayView data);
TStreamOriginalFormat TestStreamFormat(QIODevice& device);

// The conversions. They throw EParserError for bad text, EReadError or EInvalidImage for bad binary data, each with the
// place, and EWriteError for what the target cannot hold. The output gets nothing until all went well; only a device
// that fails while it is written to may hold a part. From a device binary input is read up to the end of the form, or
// of the resource, and text up to the end of the device. A byte array must hold nothing behind the form but zero bytes.

void ObjectTextToBinary(const QByteArray& text, QByteArray& binary, const TFormOptions& options = {});
void ObjectTextToBinary(QIODevice& text, QIODevice& binary, const TFormOptions& options = {});
void ObjectBinaryToText(const QByteArray& binary, QByteArray& text, const TFormOptions& options = {});
void ObjectBinaryToText(QIODevice& binary, QIODevice& text, const TFormOptions& options = {});
/// The resource takes its name from the class of the root object.
void ObjectTextToResource(const QByteArray& text, QByteArray& resource, const TFormOptions& options = {});
void ObjectTextToResource(QIODevice& text, QIODevice& resource, const TFormOptions& options = {});
void ObjectResourceToText(const QByteArray& resource, QByteArray& text, const TFormOptions& options = {});
void ObjectResourceToText(QIODevice& resource, QIODevice& text, const TFormOptions& options = {});

/// A binary form with a resource header before it, named after the class of the root object.
QByteArray WithResourceHeader(const QByteArray& binary);

/// Skips the rest of the resource that ends at `end`. Raises EInvalidImage when the reader is beyond that, and
/// EReadError when the input ends before.
void PassResourceEnd(TBinaryReader& reader, qint64 end);
/// Raises EInvalidImage "Data after the form" with the offset when anything but zero bytes, which are padding, follows.
void CheckNothingBehind(const QByteArray& data, qint64 from);

/// Sends the events of a form in whatever format it is; what is neither binary nor a resource is read as text.
void ReadForm(const QByteArray& form, IFormSink& sink, const TFormOptions& options = {});
/// Such a form in the binary format, without a resource header.
QByteArray FormToBinary(const QByteArray& form, const TFormOptions& options = {});

}  // namespace kt
