#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>

#include <stdexcept>

namespace kt::tests {

/// What breaks when each file of a fuzz target's corpus, which has at least `fewest`, goes through `check`; a broken
/// promise comes as its text.
template <typename TCheck>
QStringList BrokenInCorpus(const char* corpus, int fewest, TCheck check) {
  const QDir folder(QStringLiteral(KT_SOURCE_DIR "/fuzz/corpus/") + QLatin1StringView(corpus));
  const QStringList names = folder.entryList(QDir::Files);
  QStringList broken;
  if (names.size() < fewest) broken += QStringLiteral("files are missing");
  for (const QString& name : names) {
    QFile file(folder.filePath(name));
    try {
      if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot be opened");
      check(file.readAll());
    } catch (const std::exception& error) {
      broken += name + QStringLiteral(": ") + QString::fromUtf8(error.what());
    }
  }
  return broken;
}

}  // namespace kt::tests
