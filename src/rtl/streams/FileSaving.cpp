#include "kt/rtl/streams/FileSaving.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Writer.h"

#include <QFileInfo>
#include <QSaveFile>

namespace kt {
namespace {

template <class E>
[[noreturn]] void RaiseFileError(QLatin1StringView message, const QFileDevice& file) {
  throw E(Format(message, {QFileInfo(file.fileName()).absoluteFilePath(), file.errorString()}));
}

/// A disk that fills up takes a part first; only the attempt to write the rest tells the reason.
bool WriteAll(QFileDevice& file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const qint64 written = file.write(bytes.data(), bytes.size());
    if (written <= 0) return false;
    bytes = bytes.sliced(written);
  }
  return true;
}

QByteArray FormBytes(const QByteArray& binary, TStreamOriginalFormat format) {
  if (format == sofResource) return WithResourceHeader(binary);
  if (format != sofText) return binary;
  QByteArray text;
  ObjectBinaryToText(binary, text);
  return text;
}

}  // namespace

void SaveBytesToFile(const QString& fileName, QByteArrayView bytes) {
  QSaveFile file(fileName);
  // Unbuffered: committing does not notice that its buffer could not be written in full.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) RaiseFileError<EFCreateError>(SFCreateError, file);
  if (!WriteAll(file, bytes) || !file.commit()) RaiseFileError<EWriteError>(SFWriteError, file);
}

void SaveComponentToFile(const QString& fileName, TComponent* component, TStreamOriginalFormat format) {
  SaveBytesToFile(fileName, FormBytes(WriteComponentToBinary(component), format));
}

}  // namespace kt
