#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FileSaving.h"
#include "kt/rtl/streams/ReadAll.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/strings/TextEncoding.h"

#include <QFile>
#include <QFileInfo>

namespace kt {

namespace {

template <class E>
[[noreturn]] void RaiseFileError(QLatin1StringView message, const QFileDevice& file) {
  throw E(Format(message, {QFileInfo(file.fileName()).absoluteFilePath(), file.errorString()}));
}

}  // namespace

void TStrings::LoadFromFile(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) RaiseFileError<EFOpenError>(SFOpenError, file);
  LoadFromStream(file);
}

void TStrings::LoadFromStream(QIODevice& stream) { SetTextStr(DecodeText(ReadAll(stream))); }

void TStrings::SaveToFile(const QString& fileName) { SaveBytesToFile(fileName, EncodeText(GetTextStr())); }

void TStrings::SaveToStream(QIODevice& stream) {
  const QByteArray bytes = EncodeText(GetTextStr());
  if (stream.write(bytes) != bytes.size()) throw EWriteError(SWriteError.toString());
}

}  // namespace kt
