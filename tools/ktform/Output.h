#pragma once

#include <QString>

namespace ktform {

/// Opens the null device in place of standard input, output or error where the caller closed it, so that no form is
/// opened under its number and written over by a message. Writing to a standard output that was closed still fails.
void GuardStandardFiles();

/// One line on standard output. What cannot be written is told by FinishOutput().
void Print(const QString& line);
/// Writes out what is left of standard output. The reason, when not all of it could be written; else nothing.
QString FinishOutput();
/// One line on standard error.
void PrintError(const QString& line);

/// Shows how far a long run over files has come, on standard error, when that is a terminal and there are many files.
class TProgress {
 public:
  explicit TProgress(qsizetype total);
  /// Takes the line away.
  ~TProgress();
  TProgress(const TProgress&) = delete;
  TProgress& operator=(const TProgress&) = delete;

  void Show(qsizetype done);
  /// Takes the line away so that something else can be printed.
  void Hide();

 private:
  qsizetype FTotal;
  bool FVisible = false;
  bool FEnabled;
};

}  // namespace ktform
