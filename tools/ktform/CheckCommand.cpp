#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormEventLog.h"
#include "ktform/Commands.h"
#include "ktform/EncodingOption.h"
#include "ktform/FormFile.h"
#include "ktform/Output.h"

#include <algorithm>

namespace ktform {
namespace {

kt::TFormEventLog LogOf(const QByteArray& form, const kt::TFormOptions& options = {}) {
  kt::TFormEventLog log;
  kt::ReadForm(form, log, options);
  return log;
}

/// The binary form without its resource header, if it had one.
QByteArray Converted(const QByteArray& form, const kt::TFormOptions& options = {}) {
  QByteArray result;
  switch (kt::TestStreamFormat(form)) {
    case kt::sofBinary:
      kt::ObjectBinaryToText(form, result, options);
      break;
    case kt::sofResource:
      kt::ObjectResourceToText(form, result, options);
      break;
    default:
      kt::ObjectTextToBinary(form, result, options);
      break;
  }
  return result;
}

/// The first line that only one of the two has, for the message.
QString FirstDifference(const QString& before, const QString& after) {
  const auto [end, other] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  Q_UNUSED(other);
  const qsizetype at = end - before.begin();
  const qsizetype start = at == 0 ? 0 : before.lastIndexOf(u'\n', at - 1) + 1;
  return before.mid(start, before.indexOf(u'\n', at) - start).left(80);
}

void Compare(const kt::TFormEventLog& before, const QByteArray& after, const QString& step) {
  const kt::TFormEventLog log = LogOf(after);
  if (log.Text() == before.Text()) return;
  throw kt::EInvalidOperation(
      QStringLiteral("not the same after the way %1: %2").arg(step, FirstDifference(before.Text(), log.Text())));
}

QString Counted(qint64 count, const char* one, const char* many) {
  return QString::number(count) + u' ' + QLatin1StringView(count == 1 ? one : many);
}

QString CheckedCounts(const QString& fileName, const kt::TFormOptions& options) {
  const QByteArray form = LoadFile(fileName);
  const kt::TFormEventLog log = LogOf(form, options);
  const QByteArray other = Converted(form, options);
  Compare(log, other, QStringLiteral("there"));
  Compare(log, Converted(other), QStringLiteral("back"));
  return u'(' + Counted(log.ObjectCount(), "object", "objects") + QStringLiteral(", ") +
         Counted(log.PropertyCount(), "property", "properties") + u')';
}

bool Check(const QString& fileName, const kt::TFormOptions& options, TProgress& progress) {
  try {
    const QString counts = CheckedCounts(fileName, options);
    progress.Hide();
    Print(fileName + QStringLiteral(": ok ") + counts);
    return true;
  } catch (const kt::Exception& error) {
    progress.Hide();
    PrintError(fileName + QStringLiteral(": error: ") + error.Message());
    return false;
  }
}

}  // namespace

TExitStatus RunCheck(const QStringList& arguments) {
  QStringList names = arguments;
  kt::TFormOptions options;
  options.Encoding = TakeEncoding(names);
  if (names.isEmpty() || !AreFileNames(names, names.size())) return esWrongUsage;
  TProgress progress(names.size());
  bool good = true;
  for (qsizetype i = 0; i < names.size(); ++i) {
    progress.Show(i);
    good = Check(names[i], options, progress) && good;
  }
  return good ? esDone : esFailed;
}

}  // namespace ktform
