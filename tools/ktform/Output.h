#pragma once

#include <QString>

namespace ktform {

/// One line on standard output.
void Print(const QString& line);
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
