#include "kt/rtl/streams/FormConversion.h"
#include "ktform/Commands.h"
#include "ktform/EncodingOption.h"
#include "ktform/FormFile.h"

namespace ktform {

TExitStatus RunToText(const QStringList& arguments) {
  QStringList names = arguments;
  kt::TFormOptions options;
  options.Encoding = TakeEncoding(names);
  if (TakeOption(names, QStringLiteral("--crlf"))) options.Text.LineEnd = kt::leCrLf;
  options.Text.RawUtf8 = TakeOption(names, QStringLiteral("--utf8"));
  if (!AreFileNames(names, 2)) return esWrongUsage;

  QByteArray text;
  kt::TByteSink sink(text);
  kt::TTextWriter writer(sink, options.Text);
  kt::ReadForm(LoadFile(names[0]), writer, options);
  sink.Flush();
  SaveFile(names[1], text);
  return esDone;
}

}  // namespace ktform
