#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/FormConversion.h"
#include "ktform/Commands.h"
#include "ktform/FormFile.h"

namespace ktform {
namespace {

/// Takes text and binary alike, so a binary form can get a header or lose it.
QByteArray MakeBinary(const QByteArray& form) {
  QByteArray binary;
  kt::TBinaryWriter writer(binary);
  kt::TBinaryFormWriter sink(writer);
  kt::ReadForm(form, sink);
  writer.Flush();
  return binary;
}

}  // namespace

TExitStatus RunToBinary(const QStringList& arguments) {
  QStringList names = arguments;
  const bool asResource = TakeOption(names, QStringLiteral("--resource"));
  if (!AreFileNames(names, 2)) return esWrongUsage;
  const QByteArray binary = MakeBinary(LoadFile(names[0]));
  SaveFile(names[1], asResource ? kt::WithResourceHeader(binary) : binary);
  return esDone;
}

}  // namespace ktform
