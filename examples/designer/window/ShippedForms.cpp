#include "designer/window/ShippedForms.h"

#include "designer/document/FormDocument.h"
#include "kt/rtl/objects/Exceptions.h"

#include <QCoreApplication>
#include <QDir>

namespace designer {

namespace {

bool IsForm(const QString& fileName) {
  try {
    return TFormDocument::OpenFile(fileName) != nullptr;
  } catch (const kt::Exception&) {
    return false;
  }
}

QStringList FormsIn(const QDir& folder) {
  QStringList files;
  const QStringList names =
      folder.entryList({QStringLiteral("*.dfm"), QStringLiteral("*.lfm")}, QDir::Files, QDir::Name);
  for (const QString& name : names) {
    if (IsForm(folder.absoluteFilePath(name))) files.append(folder.absoluteFilePath(name));
  }
  return files;
}

}  // namespace

QStringList ShippedForms() {
  const QString beside = QCoreApplication::applicationDirPath();
  for (const QString& folder :
       {beside + QStringLiteral("/forms"), beside + QStringLiteral("/../share/ktinspector/forms"),
        QStringLiteral(KT_EXAMPLE_FORMS)}) {
    QStringList files = FormsIn(QDir(QDir::cleanPath(folder)));
    if (!files.isEmpty()) return files;
  }
  return {};
}

QString FirstForm() {
  const QStringList files = ShippedForms();
  for (const QString& file : files) {
    if (file.endsWith(QStringLiteral("/preferences.dfm"))) return file;
  }
  return files.value(0);
}

}  // namespace designer
