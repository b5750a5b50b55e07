#include "kt/rtl/objects/Exceptions.h"
#include "ktform/Commands.h"
#include "ktform/EncodingOption.h"
#include "ktform/FormClasses.h"
#include "ktform/Output.h"

#include <QCoreApplication>

#include <exception>

namespace ktform {
namespace {

QString Usage() {
  QString text = QStringLiteral(
      "Usage: ktform COMMAND ARGUMENTS...\n\nConverts and checks form files, text or binary.\n\nCommands:\n");
  for (const TCommand& command : Commands()) {
    const QString call = QString::fromLatin1(command.Name) + u' ' + QString::fromLatin1(command.Arguments);
    text += QStringLiteral("  %1\n      %2\n").arg(call, QString::fromLatin1(command.Summary));
  }
  return text +
         QStringLiteral(
             "\nIN may be text, binary or a resource; OUT may be IN, and is replaced as a whole or not at all.\n"
             "--crlf ends lines with CR LF, --utf8 keeps characters beyond ASCII readable, --resource writes the\n"
             "resource header before the form. set leaves a text file as it is but for the lines that change.\n"
             "\n--encoding says what bytes beyond ASCII mean in text that has no byte-order mark and is no valid "
             "UTF-8,\n"
             "and in the 8-bit strings of binary forms; it takes\n%1.\n"
             "The first of them is taken when nothing is said; with utf-8 such bytes are an error. Code pages with\n"
             "several bytes a character (Chinese, Japanese, Korean) are not known: turn such text into UTF-8 first.\n"
             "\n--help shows this, --version the version. Exit status: 0 done, 1 failed, 2 wrong usage.")
             .arg(EncodingNames(7));
}

TExitStatus WrongUsage(const QString& what) {
  PrintError(QStringLiteral("ktform: ") + what + QStringLiteral("\nTry 'ktform --help'."));
  return esWrongUsage;
}

/// What an error is about.
QString FirstFileName(const QStringList& arguments) {
  for (const QString& argument : arguments)
    if (!argument.startsWith(QStringLiteral("--"))) return argument;
  return {};
}

TExitStatus RunCommand(const TCommand& command, const QStringList& arguments) {
  try {
    RegisterFormClasses();
    const TExitStatus status = command.Run(arguments);
    if (status == esWrongUsage)
      return WrongUsage(QStringLiteral("usage: ktform %1 %2")
                            .arg(QString::fromLatin1(command.Name), QString::fromLatin1(command.Arguments)));
    return status;
  } catch (const EUsageError& error) {
    return WrongUsage(error.Message());
  } catch (const kt::Exception& error) {
    PrintError(FirstFileName(arguments) + QStringLiteral(": error: ") + error.Message());
  } catch (const std::exception& error) {
    PrintError(QStringLiteral("ktform: ") + QString::fromLocal8Bit(error.what()));
  }
  return esFailed;
}

TExitStatus Run(const QStringList& arguments) {
  if (arguments.isEmpty()) return WrongUsage(QStringLiteral("a command is missing"));
  if (arguments.contains(QStringLiteral("--help")) || arguments.first() == QStringLiteral("-h")) {
    Print(Usage());
    return esDone;
  }
  if (arguments.first() == QStringLiteral("--version")) {
    Print(QStringLiteral("ktform " KT_VERSION));
    return esDone;
  }
  const TCommand* command = FindCommand(arguments.first());
  if (command == nullptr) return WrongUsage(QStringLiteral("there is no command '%1'").arg(arguments.first()));
  return RunCommand(*command, arguments.mid(1));
}

/// A run whose output got lost is not done.
TExitStatus Finish(TExitStatus status) {
  const QString error = FinishOutput();
  if (error.isEmpty()) return status;
  PrintError(QStringLiteral("ktform: cannot write to standard output: ") + error);
  return esFailed;
}

}  // namespace
}  // namespace ktform

int main(int argc, char** argv) {
  ktform::GuardStandardFiles();
  const QCoreApplication application(argc, argv);
  return ktform::Finish(ktform::Run(QCoreApplication::arguments().mid(1)));
}
