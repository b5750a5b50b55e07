#include "ktform/Output.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace ktform {
namespace {

constexpr qsizetype kManyFiles = 20;

void PrintTo(std::FILE* file, const QString& line) {
  const QByteArray bytes = line.toLocal8Bit() + '\n';
  std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), file);
}

bool IsErrorTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

void Print(const QString& line) { PrintTo(stdout, line); }

void PrintError(const QString& line) {
  std::fflush(stdout);
  PrintTo(stderr, line);
}

TProgress::TProgress(qsizetype total) : FTotal(total), FEnabled(total >= kManyFiles && IsErrorTerminal()) {}

TProgress::~TProgress() { Hide(); }

void TProgress::Show(qsizetype done) {
  if (!FEnabled) return;
  std::fflush(stdout);
  std::fprintf(stderr, "\r%lld of %lld files", static_cast<long long>(done), static_cast<long long>(FTotal));
  FVisible = true;
}

void TProgress::Hide() {
  if (FVisible) std::fputs("\r\033[K", stderr);
  FVisible = false;
}

}  // namespace ktform
