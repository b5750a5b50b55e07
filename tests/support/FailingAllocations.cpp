#include "support/FailingAllocations.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace {

// Programs of these tests have one thread.
long Live = 0;
long Countdown = -1;
bool FailLater = false;
bool Failed = false;

bool MustFail() {
  if (Countdown < 0) return false;
  if (Countdown > 0) {
    --Countdown;
    return false;
  }
  Failed = true;
  if (!FailLater) Countdown = -1;
  return true;
}

void* Allocate(std::size_t size, std::size_t alignment) {
  if (MustFail()) return nullptr;
  const std::size_t rounded = (size + alignment) / alignment * alignment;
  void* block = std::aligned_alloc(alignment, rounded);
  if (block) ++Live;
  return block;
}

void* AllocateOrThrow(std::size_t size, std::size_t alignment) {
  void* block = Allocate(size, alignment);
  if (!block) throw std::bad_alloc();
  return block;
}

void Release(void* block) {
  if (block) --Live;
  std::free(block);
}

}  // namespace

// Every form that code uses here. Those of the standard library end in the first, but those of a sanitizer do not.
void* operator new(std::size_t size) { return AllocateOrThrow(size, alignof(std::max_align_t)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return AllocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size, alignof(std::max_align_t));
}
void* operator new[](std::size_t size) { return AllocateOrThrow(size, alignof(std::max_align_t)); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size, alignof(std::max_align_t));
}
void operator delete(void* block) noexcept { Release(block); }
void operator delete(void* block, std::size_t) noexcept { Release(block); }
void operator delete(void* block, std::align_val_t) noexcept { Release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { Release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Release(block); }
void operator delete[](void* block) noexcept { Release(block); }
void operator delete[](void* block, std::size_t) noexcept { Release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Release(block); }

namespace kt::tests {

long LiveBlocks() { return Live; }

TAllocationFailure::TAllocationFailure(long first, TFailingAllocations kind) {
  Failed = false;
  FailLater = kind == faAllLater;
  Countdown = first;
}

TAllocationFailure::~TAllocationFailure() { Countdown = -1; }

bool TAllocationFailure::HasHappened() { return Failed; }

/// False when no allocation was left to fail.
static bool FailOne(long number, TFailingAllocations kind, const std::function<void()>& scenario) {
  const TAllocationFailure failure(number, kind);
  try {
    scenario();
  } catch (const std::bad_alloc&) {
    return true;
  }
  return TAllocationFailure::HasHappened();
}

int FailEachAllocation(TFailingAllocations kind, const std::function<void()>& scenario,
                       const std::function<void()>& check) {
  // What is made once and kept, class descriptions for example, is made here.
  scenario();
  for (int number = 0;; ++number) {
    const long before = Live;
    if (!FailOne(number, kind, scenario)) return number;
    EXPECT_EQ(before, Live) << "blocks left over when allocation " << number << " fails";
    if (check) check();
    if (::testing::Test::HasFailure()) return number;
  }
}

}  // namespace kt::tests
