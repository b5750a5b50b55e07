#include "uiview/UiFile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUiLoader>
#include <QXmlStreamReader>

#include <utility>

namespace uiview {

namespace {

/// What the loader warns of, which it does by Qt's messages alone; others go where they went before.
class TLoaderMessages {
 public:
  TLoaderMessages() : FBefore(qInstallMessageHandler(&Receive)) { Current() = this; }
  ~TLoaderMessages() {
    qInstallMessageHandler(FBefore);
    Current() = nullptr;
  }
  TLoaderMessages(const TLoaderMessages&) = delete;
  TLoaderMessages& operator=(const TLoaderMessages&) = delete;

  const QStringList& Lines() const { return FLines; }

 private:
  static TLoaderMessages*& Current() {
    static TLoaderMessages* current = nullptr;
    return current;
  }
  static void Receive(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    TLoaderMessages& self = *Current();
    if (type == QtWarningMsg) {
      self.FLines.append(message.simplified());
    } else if (self.FBefore) {
      self.FBefore(type, context, message);
    }
  }

  QtMessageHandler FBefore;
  QStringList FLines;
};

QByteArray ContentOf(const QString& fileName) {
  QFile file(fileName);
  if (QFileInfo(fileName).isDir()) throw EUiFile(QStringLiteral("%1 is a folder").arg(fileName));
  if (!file.open(QIODevice::ReadOnly)) {
    throw EUiFile(QStringLiteral("Cannot read %1: %2").arg(fileName, file.errorString()));
  }
  QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    throw EUiFile(QStringLiteral("Cannot read %1: %2").arg(fileName, file.errorString()));
  }
  return content;
}

/// The loader would tell neither what it expects nor where it does not find it.
void CheckContent(const QString& fileName, const QByteArray& content) {
  QXmlStreamReader reader(content);
  if (reader.readNextStartElement() && reader.name() != u"ui") {
    throw EUiFile(QStringLiteral("%1 is no Qt form: it holds <%2> instead of <ui>").arg(fileName, reader.name()));
  }
  while (!reader.atEnd()) reader.readNext();
  if (!reader.hasError()) return;
  throw EUiFile(QStringLiteral("%1 is no Qt form: line %2, column %3: %4")
                    .arg(fileName)
                    .arg(reader.lineNumber())
                    .arg(reader.columnNumber())
                    .arg(reader.errorString()));
}

}  // namespace

TUiForm LoadUi(const QString& fileName) {
  QByteArray content = ContentOf(fileName);
  CheckContent(fileName, content);
  QBuffer buffer(&content);
  buffer.open(QIODevice::ReadOnly);
  QUiLoader loader;
  loader.setWorkingDirectory(QFileInfo(fileName).dir());
  const TLoaderMessages messages;
  TUiForm form{std::unique_ptr<QWidget>(loader.load(&buffer)), {}};
  form.Remarks = messages.Lines();
  if (form.Widget) return form;
  const QStringList reasons = QStringList(loader.errorString()) + form.Remarks;
  throw EUiFile(QStringLiteral("Cannot open %1: %2").arg(fileName, reasons.join(u' ')));
}

}  // namespace uiview
