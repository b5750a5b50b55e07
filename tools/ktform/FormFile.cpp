#include "ktform/FormFile.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FileSaving.h"

#include <QFile>

namespace ktform {
namespace {

template <typename TError>
[[noreturn]] void Fail(QLatin1StringView pattern, const QFileDevice& file) {
  throw TError(kt::Format(pattern, {file.fileName(), file.errorString()}));
}

}  // namespace

QByteArray LoadFile(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) Fail<kt::EFOpenError>(kt::SFOpenError, file);
  QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) Fail<kt::EFOpenError>(kt::SFOpenError, file);
  return content;
}

void SaveFile(const QString& fileName, const QByteArray& content) { kt::SaveBytesToFile(fileName, content); }

}  // namespace ktform
