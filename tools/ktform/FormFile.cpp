#include "ktform/FormFile.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <QFile>
#include <QSaveFile>

namespace ktform {
namespace {

template <typename TError>
[[noreturn]] void Fail(QLatin1StringView pattern, const QFileDevice& file) {
  QString text(pattern);
  // From the back: the name of a file may hold a placeholder of its own.
  text.replace(text.lastIndexOf(QLatin1String("%s")), 2, file.errorString());
  text.replace(text.indexOf(QLatin1String("%s")), 2, file.fileName());
  throw TError(text);
}

}  // namespace

QByteArray LoadFile(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) Fail<kt::EFOpenError>(kt::SFOpenError, file);
  const QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) Fail<kt::EFOpenError>(kt::SFOpenError, file);
  return content;
}

void SaveFile(const QString& fileName, const QByteArray& content) {
  QSaveFile file(fileName);
  const bool saved = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
  if (!saved) Fail<kt::EFCreateError>(kt::SFCreateError, file);
}

}  // namespace ktform
