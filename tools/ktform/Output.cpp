#include "ktform/Output.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace ktform {
namespace {

constexpr qsizetype kManyFiles = 20;

bool PrintTo(std::FILE* file, const QString& line) {
  const QByteArray bytes = line.toLocal8Bit() + '\n';
  return std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), file) == std::size_t(bytes.size());
}

/// Why standard output failed at first; 0 while all is well.
int& OutputError() {
  static int error = 0;
  return error;
}

void NoteOutput(bool isGood) {
  if (!isGood && OutputError() == 0) OutputError() = errno;
}

bool IsErrorTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

void GuardStandardFiles() {
#ifndef _WIN32
  // In rising order: a file gets the lowest number that is free.
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (fcntl(number, F_GETFD) < 0) static_cast<void>(open("/dev/null", O_RDONLY));
#endif
}

void Print(const QString& line) { NoteOutput(PrintTo(stdout, line)); }

QString FinishOutput() {
  NoteOutput(std::fflush(stdout) == 0);
  if (OutputError() == 0) return {};
  return QString::fromStdString(std::generic_category().message(OutputError()));
}

void PrintError(const QString& line) {
  NoteOutput(std::fflush(stdout) == 0);
  PrintTo(stderr, line);
}

TProgress::TProgress(qsizetype total) : FTotal(total), FEnabled(total >= kManyFiles && IsErrorTerminal()) {}

TProgress::~TProgress() { Hide(); }

void TProgress::Show(qsizetype done) {
  if (!FEnabled) return;
  NoteOutput(std::fflush(stdout) == 0);
  std::fprintf(stderr, "\r%lld of %lld files", static_cast<long long>(done), static_cast<long long>(FTotal));
  FVisible = true;
}

void TProgress::Hide() {
  if (FVisible) std::fputs("\r\033[K", stderr);
  FVisible = false;
}

}  // namespace ktform
