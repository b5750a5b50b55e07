#pragma once

#include <cstddef>

/// Watches how much memory is asked for at once, by whomever: `operator new`, Qt's containers, the C library. Linked
/// only into a test program of its own, because it stands before the allocator of the whole program.
namespace kt::tests {

/// The largest single request since it came to life. One at a time, in one thread.
class TLargestAllocation {
 public:
  TLargestAllocation();
  ~TLargestAllocation();
  TLargestAllocation(const TLargestAllocation&) = delete;
  TLargestAllocation& operator=(const TLargestAllocation&) = delete;

  std::size_t Bytes() const;
  /// False where the C library offers no way to watch it.
  static bool IsPossible();
};

}  // namespace kt::tests
