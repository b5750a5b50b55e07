// Real forms of unknown classes, loaded into stand-ins and saved again: nothing may be lost.
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "support/Expect.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace kt {
namespace {

QByteArray Contents(const QString& fileName) {
  QFile file(fileName);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

QByteArray WithPropertiesKept(const QByteArray& binary) {
  TReader reader(binary);
  reader.UnknownClasses = upKeep;
  reader.UnknownProperties = upKeep;
  const std::unique_ptr<TComponent> root(reader.ReadRootComponent(nullptr));
  return WriteComponentToBinary(root.get());
}

TEST(RealFormsLoadTest, EveryFormComesBackAsItWas) {
  const QDir folder(QStringLiteral(KT_SOURCE_DIR "/../shared/forms"));
  if (!folder.exists()) GTEST_SKIP() << "no folder of real forms beside the source";
  for (const QString& name : folder.entryList({QStringLiteral("*.?fm")}, QDir::Files)) {
    SCOPED_TRACE(name.toStdString());
    QByteArray binary;
    ObjectTextToBinary(Contents(folder.filePath(name)), binary);
    EXPECT_EQ(binary, WithPropertiesKept(binary));
  }
}

}  // namespace
}  // namespace kt
