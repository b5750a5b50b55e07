#include "kt/rtl/streams/FormConversion.h"
#include "ktform/Commands.h"
#include "ktform/EncodingOption.h"
#include "ktform/FormFile.h"

namespace ktform {

TExitStatus RunToBinary(const QStringList& arguments) {
  QStringList names = arguments;
  const kt::TEightBitEncoding encoding = TakeEncoding(names);
  const bool asResource = TakeOption(names, QStringLiteral("--resource"));
  if (!AreFileNames(names, 2)) return esWrongUsage;
  const QByteArray binary = BinaryOf(LoadFile(names[0]), encoding);
  SaveFile(names[1], asResource ? kt::WithResourceHeader(binary) : binary);
  return esDone;
}

}  // namespace ktform
