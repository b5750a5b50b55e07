#include "kt/rtl/streams/FileSaving.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/ReadAll.h"
#include "kt/rtl/streams/TextPlaces.h"
#include "kt/rtl/streams/Writer.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace kt {
namespace {

template <class E>
[[noreturn]] void RaiseFileError(QLatin1StringView message, const QFileDevice& file, const QString& reason) {
  throw E(Format(message, {QFileInfo(file.fileName()).absoluteFilePath(), reason}));
}

template <class E>
[[noreturn]] void RaiseFileError(QLatin1StringView message, const QFileDevice& file) {
  RaiseFileError<E>(message, file, file.errorString());
}

/// Brings the file to the disk; the system's error number, or 0. A file system that cannot do so is no error.
int ErrorOfSync([[maybe_unused]] const QFileDevice& file) {
#ifdef Q_OS_UNIX
  if (::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP) return 0;
  return errno;
#else
  return 0;
#endif
}

/// Some file systems tell only at closing that bytes are lost. Closes a second handle, as committing does not listen
/// when it closes the file's own; the system's error number, or 0.
int ErrorOfClose([[maybe_unused]] const QFileDevice& file) {
#ifdef Q_OS_UNIX
  const int second = ::dup(file.handle());
  return second >= 0 && ::close(second) == 0 ? 0 : errno;
#else
  return 0;
#endif
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

/// A terminal, a pipe, a null device: what stays what it is, and has no old content to lose.
bool IsDevice(const QString& fileName) {
  const QFileInfo target(fileName);
  return target.exists() && !target.isFile() && !target.isDir();
}

void WriteToDevice(const QString& fileName, QByteArrayView bytes) {
  QFile file(fileName);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) RaiseFileError<EFCreateError>(SFCreateError, file);
  if (!WriteAll(file, bytes)) RaiseFileError<EWriteError>(SFWriteError, file);
}

/// A reader of a form in any of the formats.
std::unique_ptr<TReader> ReaderOf(const QByteArray& form, const TLoadOptions& options) {
  const TStreamOriginalFormat format = TestStreamFormat(form);
  if (format == sofBinary || format == sofResource) {
    auto reader = std::make_unique<TReader>(form);
    reader->RefusesRest = true;
    return reader;
  }
  QByteArray binary;
  TFormOptions conversion;
  conversion.Encoding = options.Encoding;
  ObjectTextToBinary(form, binary, conversion);
  auto reader = std::make_unique<TReader>(binary);
  reader->SetPlaceWording(PlacesInText(form, options.Encoding));
  return reader;
}

QByteArray FormBytes(const QByteArray& binary, TStreamOriginalFormat format) {
  if (format == sofResource) return WithResourceHeader(binary);
  if (format != sofText) return binary;
  QByteArray text;
  ObjectBinaryToText(binary, text);
  return text;
}

/// Reads a file in any of the formats into `root`, or into a new one; errors begin with the file's name.
TComponent* ReadFile(const QString& fileName, TComponent* root, const TLoadOptions& options) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) RaiseFileError<EFOpenError>(SFOpenError, file);
  try {
    const std::unique_ptr<TReader> reader = ReaderOf(ReadAll(file), options);
    reader->UnknownClasses = options.UnknownClasses;
    reader->UnknownProperties = options.UnknownProperties;
    reader->SetEncoding(options.Encoding);
    return reader->ReadRootComponent(root);
  } catch (Exception& error) {
    error.SetMessage(QFileInfo(fileName).absoluteFilePath() + QStringLiteral(": ") + error.Message());
    throw;
  }
}

}  // namespace

void SaveBytesToFile(const QString& fileName, QByteArrayView bytes) {
  if (IsDevice(fileName)) return WriteToDevice(fileName, bytes);
  QSaveFile file(fileName);
  // Unbuffered: committing does not notice that its buffer could not be written in full.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) RaiseFileError<EFCreateError>(SFCreateError, file);
  if (!WriteAll(file, bytes)) RaiseFileError<EWriteError>(SFWriteError, file);
  // Committing does not notice these either.
  const int syncError = ErrorOfSync(file);
  const int error = syncError != 0 ? syncError : ErrorOfClose(file);
  if (error != 0) RaiseFileError<EWriteError>(SFWriteError, file, qt_error_string(error));
  if (!file.commit()) RaiseFileError<EWriteError>(SFWriteError, file);
}

void LoadComponentFromFile(const QString& fileName, TComponent* root, const TLoadOptions& options) {
  ReadFile(fileName, root, options);
}

std::unique_ptr<TComponent> LoadComponentFromFile(const QString& fileName, const TLoadOptions& options) {
  return std::unique_ptr<TComponent>(ReadFile(fileName, nullptr, options));
}

void SaveComponentToFile(const QString& fileName, TComponent* component, TStreamOriginalFormat format) {
  SaveBytesToFile(fileName, FormBytes(WriteComponentToBinary(component), format));
}

}  // namespace kt
