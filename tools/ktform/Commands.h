#pragma once

#include "kt/rtl/objects/Exceptions.h"

#include <QStringList>

#include <span>

namespace ktform {

/// What the program answers to the shell.
enum TExitStatus { esDone = 0, esFailed = 1, esWrongUsage = 2 };

/// The program was called in a manner that it does not know; the message says what is wrong.
class EUsageError : public kt::Exception {
  using Exception::Exception;
};

/// One command. A new one is a file with its function and a line in the table.
struct TCommand {
  const char* Name;
  const char* Arguments;  ///< As the help shows them.
  const char* Summary;    ///< One line.
  /// Does the work; `arguments` are those behind the command's name. May throw: the program reports it and fails.
  TExitStatus (*Run)(const QStringList& arguments);
};

/// All commands, in the order of the help.
std::span<const TCommand> Commands();

/// Null when there is no such command.
const TCommand* FindCommand(const QString& name);

/// Takes `option` out of `arguments`; true when it was there.
bool TakeOption(QStringList& arguments, const QString& option);
/// True when what is left are `count` file names and no option that nobody knows.
bool AreFileNames(const QStringList& arguments, qsizetype count);

TExitStatus RunToText(const QStringList& arguments);
TExitStatus RunToBinary(const QStringList& arguments);
TExitStatus RunSet(const QStringList& arguments);
TExitStatus RunCheck(const QStringList& arguments);

}  // namespace ktform
