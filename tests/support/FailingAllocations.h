#pragma once

#include <functional>

/// Makes `operator new` fail on purpose. Linked only into a test program of its own, because it replaces the operator
/// of the whole program. Memory that Qt takes from malloc(), as texts do, never fails.
namespace kt::tests {

enum TFailingAllocations {
  faOne,      ///< the n-th allocation fails, later ones work again
  faAllLater  ///< the n-th allocation fails and every one after it
};

/// Blocks from `operator new` that have not been deleted.
long LiveBlocks();

/// While it lives, the allocation number `first`, from 0, fails.
class TAllocationFailure {
 public:
  TAllocationFailure(long first, TFailingAllocations kind);
  ~TAllocationFailure();
  TAllocationFailure(const TAllocationFailure&) = delete;
  TAllocationFailure& operator=(const TAllocationFailure&) = delete;
  /// True when an allocation has failed.
  static bool HasHappened();
};

/// Runs `scenario` with its allocation 0 failing, then 1, then 2, until none fails any more. `check` runs after each
/// failure, with allocations working. Answers how many runs failed; fails the test when a run leaves blocks behind.
int FailEachAllocation(TFailingAllocations kind, const std::function<void()>& scenario,
                       const std::function<void()>& check = {});

}  // namespace kt::tests
