#include "ktform/EncodingOption.h"

#include "ktform/Commands.h"

#include <algorithm>
#include <array>

namespace ktform {
namespace {

struct TNamedEncoding {
  const char* Name;
  kt::TEightBitEncoding Encoding;
};

constexpr std::array<TNamedEncoding, 12> kEncodings{{
    {"windows-1252", kt::eeWindows1252},
    {"windows-1250", kt::eeWindows1250},
    {"windows-1251", kt::eeWindows1251},
    {"windows-1253", kt::eeWindows1253},
    {"windows-1254", kt::eeWindows1254},
    {"windows-1255", kt::eeWindows1255},
    {"windows-1256", kt::eeWindows1256},
    {"windows-1257", kt::eeWindows1257},
    {"windows-1258", kt::eeWindows1258},
    {"windows-874", kt::eeWindows874},
    {"latin1", kt::eeLatin1},
    {"utf-8", kt::eeUtf8},
}};

kt::TEightBitEncoding EncodingOfName(const QString& name) {
  const auto found = std::find_if(kEncodings.begin(), kEncodings.end(), [&](const TNamedEncoding& encoding) {
    return name.compare(QLatin1String(encoding.Name), Qt::CaseInsensitive) == 0;
  });
  if (found == kEncodings.end())
    throw EUsageError(QStringLiteral("there is no encoding '%1', only %2").arg(name, EncodingNames()));
  return found->Encoding;
}

/// The name behind the option at `index`, which is taken with it.
QString TakeName(QStringList& arguments, qsizetype index) {
  const QString option = arguments.takeAt(index);
  const qsizetype equals = option.indexOf(u'=');
  if (equals >= 0) return option.mid(equals + 1);
  if (index == arguments.size()) throw EUsageError(QStringLiteral("--encoding needs one of %1").arg(EncodingNames()));
  return arguments.takeAt(index);
}

}  // namespace

kt::TEightBitEncoding TakeEncoding(QStringList& arguments) {
  kt::TEightBitEncoding encoding = kt::eeWindows1252;
  const auto isOption = [](const QString& argument) {
    return argument == u"--encoding" || argument.startsWith(u"--encoding=");
  };
  for (auto at = std::find_if(arguments.begin(), arguments.end(), isOption); at != arguments.end();
       at = std::find_if(arguments.begin(), arguments.end(), isOption))
    encoding = EncodingOfName(TakeName(arguments, at - arguments.begin()));
  return encoding;
}

QString EncodingNames(qsizetype perLine) {
  QString names;
  qsizetype count = 0;
  for (const TNamedEncoding& encoding : kEncodings) {
    if (count > 0) names += perLine > 0 && count % perLine == 0 ? QStringLiteral(",\n") : QStringLiteral(", ");
    names += QLatin1String(encoding.Name);
    ++count;
  }
  return names;
}

}  // namespace ktform
