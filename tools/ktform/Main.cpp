#include "kt/rtl/objects/Exceptions.h"
#include "ktform/Commands.h"
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
    text += QStringLiteral("  %1  %2\n").arg(call, -36).arg(QString::fromLatin1(command.Summary));
  }
  return text +
         QStringLiteral(
             "\nIN may be text, binary or a resource; OUT may be IN, and is replaced as a whole or not at all.\n"
             "--crlf ends lines with CR LF, --utf8 keeps characters beyond ASCII readable, --resource writes the\n"
             "resource header before the form. set leaves a text file as it is but for the lines that change.\n"
             "Exit status: 0 done, 1 failed, 2 wrong usage.");
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
    const TExitStatus status = command.Run(arguments);
    if (status == esWrongUsage)
      return WrongUsage(QStringLiteral("usage: ktform %1 %2")
                            .arg(QString::fromLatin1(command.Name), QString::fromLatin1(command.Arguments)));
    return status;
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
  const TCommand* command = FindCommand(arguments.first());
  if (command == nullptr) return WrongUsage(QStringLiteral("there is no command '%1'").arg(arguments.first()));
  return RunCommand(*command, arguments.mid(1));
}

}  // namespace
}  // namespace ktform

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return ktform::Run(QCoreApplication::arguments().mid(1));
}
