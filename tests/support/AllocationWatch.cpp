#include "support/AllocationWatch.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KT_SANITIZED 1
#endif
#if __has_feature(thread_sanitizer)
#define KT_THREAD_SANITIZED 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define KT_SANITIZED 1
#endif
#if defined(__SANITIZE_THREAD__)
#define KT_THREAD_SANITIZED 1
#endif

namespace {

std::atomic<bool> IsWatching = false;
std::atomic<std::size_t> Largest = 0;
/// In use, without what was in use when the watch began; what goes of that makes it negative.
std::atomic<long long> LiveBytes = 0;
std::atomic<long long> Peak = 0;

template <class T>
void Raise(std::atomic<T>& highest, T value) {
  T known = highest.load();
  while (known < value && !highest.compare_exchange_weak(known, value)) {
  }
}

/// `size` was asked for and `taken` is in use for it.
[[maybe_unused]] void NoteTaken(std::size_t size, std::size_t taken) {
  if (!IsWatching) return;
  Raise(Largest, size);
  Raise(Peak, LiveBytes += static_cast<long long>(taken));
}

[[maybe_unused]] void NoteFreed(std::size_t taken) {
  if (IsWatching) LiveBytes -= static_cast<long long>(taken);
}

}  // namespace

#if defined(KT_SANITIZED)
// The sanitizer's allocator tells whoever asks.
extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                              void (*onFree)(const volatile void*));
std::size_t __sanitizer_get_allocated_size(const volatile void* block);
}
namespace {
const int IsInstalled =
    __sanitizer_install_malloc_and_free_hooks([](const volatile void*, std::size_t size) { NoteTaken(size, size); },
                                              [](const volatile void* block) {
                                                if (block && IsWatching)
                                                  NoteFreed(__sanitizer_get_allocated_size(block));
                                              });
}
#elif defined(__GLIBC__) && !defined(KT_THREAD_SANITIZED)
#include <malloc.h>

namespace {
const int IsInstalled = 1;

void* Noted(std::size_t size, void* block) {
  if (block) NoteTaken(size, malloc_usable_size(block));
  return block;
}
}  // namespace

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);

void* malloc(std::size_t size) noexcept { return Noted(size, __libc_malloc(size)); }
void* calloc(std::size_t count, std::size_t size) noexcept { return Noted(count * size, __libc_calloc(count, size)); }
void* realloc(void* block, std::size_t size) noexcept {
  const std::size_t old = malloc_usable_size(block);
  void* result = __libc_realloc(block, size);
  // No result for no bytes: the block is gone.
  if (result || size == 0) NoteFreed(old);
  return Noted(size, result);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  return Noted(size, __libc_memalign(alignment, size));
}
void* memalign(std::size_t alignment, std::size_t size) noexcept { return aligned_alloc(alignment, size); }
int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
  void* result = aligned_alloc(alignment, size);
  if (!result) return ENOMEM;
  *block = result;
  return 0;
}
void free(void* block) noexcept {
  if (block) NoteFreed(malloc_usable_size(block));
  __libc_free(block);
}
}
#else
// The thread sanitizer's allocator does not tell of `operator new`.
namespace {
const int IsInstalled = 0;
}
#endif

namespace kt::tests {

TAllocationWatch::TAllocationWatch() {
  ::Largest = 0;
  ::LiveBytes = 0;
  ::Peak = 0;
  IsWatching = true;
}

TAllocationWatch::~TAllocationWatch() { IsWatching = false; }

std::size_t TAllocationWatch::Largest() const { return ::Largest; }

std::size_t TAllocationWatch::Peak() const { return static_cast<std::size_t>(::Peak); }

bool TAllocationWatch::IsPossible() { return IsInstalled != 0; }

}  // namespace kt::tests
