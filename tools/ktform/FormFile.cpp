#include "ktform/FormFile.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FileSaving.h"
#include "kt/rtl/streams/FormConversion.h"

#include <QFile>
#include <QFileInfo>

namespace ktform {
namespace {

[[noreturn]] void FailToOpen(const QString& fileName, const QString& reason) {
  throw kt::EFOpenError(kt::Format(kt::SFOpenError, {fileName, reason}));
}

}  // namespace

QByteArray LoadFile(const QString& fileName) {
  if (fileName.isEmpty()) FailToOpen(fileName, QStringLiteral("The name is empty"));
  if (QFileInfo(fileName).isDir()) FailToOpen(fileName, QStringLiteral("It is a folder; name the files in it"));
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) FailToOpen(fileName, file.errorString());
  QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) FailToOpen(fileName, file.errorString());
  return content;
}

QByteArray BinaryOf(const QByteArray& form, kt::TEightBitEncoding encoding) {
  kt::TFormOptions options;
  options.Encoding = encoding;
  return kt::FormToBinary(form, options);
}

void SaveFile(const QString& fileName, const QByteArray& content) { kt::SaveBytesToFile(fileName, content); }

}  // namespace ktform
