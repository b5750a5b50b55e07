#include "support/FailingFiles.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace kt::tests;

struct TPlan {
  TFileFaultKind Kind = ffFail;
  int Steps = 0;
  std::atomic<int> Countdown = -1;
  int Error = 0;
};

TPlan Plan;

bool IsRegular(int file) {
  struct stat status = {};
  return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

/// True when it is the turn of this step.
bool IsTurn(TFileStep step) {
  if (Plan.Countdown < 0 || !(Plan.Steps & step) || Plan.Countdown-- > 0) return false;
  if (Plan.Kind == ffKill) syscall(SYS_exit_group, 9);
  return true;
}

/// The answer of a step that fails.
int FailedStep() {
  errno = Plan.Error;
  return -1;
}

}  // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
  if (!IsRegular(file) || !IsTurn(fsWrite)) return syscall(SYS_write, file, bytes, count);
  return Plan.Kind == ffHalf ? syscall(SYS_write, file, bytes, count / 2) : FailedStep();
}

int fsync(int file) {
  if (!IsRegular(file) || !IsTurn(fsSync)) return static_cast<int>(syscall(SYS_fsync, file));
  return FailedStep();
}

int fdatasync(int file) {
  if (!IsRegular(file) || !IsTurn(fsSync)) return static_cast<int>(syscall(SYS_fdatasync, file));
  return FailedStep();
}

int close(int file) {
  const bool fails = IsRegular(file) && IsTurn(fsClose);
  const auto result = static_cast<int>(syscall(SYS_close, file));
  return fails ? FailedStep() : result;
}

int rename(const char* from, const char* to) noexcept {
  if (!IsTurn(fsRename)) return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
  return FailedStep();
}

}  // extern "C"

namespace kt::tests {

TFileFault::TFileFault(TFileFaultKind kind, int steps, int first, int error) {
  Plan.Kind = kind;
  Plan.Steps = steps;
  Plan.Error = error;
  Plan.Countdown = first;
}

TFileFault::~TFileFault() { Plan.Countdown = -1; }

bool TFileFault::HasHappened() { return Plan.Countdown < 0; }

}  // namespace kt::tests
