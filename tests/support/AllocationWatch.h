#pragma once

#include <cstddef>

/// Watches how much memory is asked for, by whomever: `operator new`, Qt's containers, the C library. It stands before
/// the allocator of the whole program that it is linked into.
namespace kt::tests {

/// What has been asked for since it came to life, by all threads. One at a time.
class TAllocationWatch {
 public:
  TAllocationWatch();
  ~TAllocationWatch();
  TAllocationWatch(const TAllocationWatch&) = delete;
  TAllocationWatch& operator=(const TAllocationWatch&) = delete;

  /// The largest single request.
  std::size_t Largest() const;
  /// The most bytes that were in use at one time, beyond those that were in use before.
  std::size_t Peak() const;
  /// False where the C library offers no way to watch it.
  static bool IsPossible();
};

}  // namespace kt::tests
