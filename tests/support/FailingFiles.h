#pragma once

/// Makes the file operations of the system fail on purpose, or end the program, for regular files. Linked only into a
/// test program of its own, because it replaces them in the whole program.
namespace kt::tests {

/// The steps of saving a file; the numbers are bits.
enum TFileStep { fsWrite = 1, fsSync = 2, fsClose = 4, fsRename = 8, fsAny = 15 };

/// What happens at the chosen step.
enum TFileFaultKind {
  ffFail,  ///< it does nothing and fails with the given error number
  ffHalf,  ///< it writes half of the bytes; other steps do as usual
  ffKill   ///< the process ends before it
};

/// While it lives, the step number `first`, from 0, of those of the given kind is a fault; those before and after it
/// work.
class TFileFault {
 public:
  TFileFault(TFileFaultKind kind, int steps, int first = 0, int error = 5);
  ~TFileFault();
  TFileFault(const TFileFault&) = delete;
  TFileFault& operator=(const TFileFault&) = delete;
  /// True when it has happened.
  static bool HasHappened();
};

}  // namespace kt::tests
