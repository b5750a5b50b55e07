#include "support/LargestAllocation.h"

#include <algorithm>
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

bool IsWatching = false;
std::size_t Largest = 0;

[[maybe_unused]] void Note(std::size_t size) {
  if (IsWatching) Largest = std::max(Largest, size);
}

}  // namespace

#if defined(KT_SANITIZED)
// The sanitizer's allocator tells whoever asks.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));
namespace {
const int IsInstalled = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void*, std::size_t size) { Note(size); }, [](const volatile void*) {});
}
#elif defined(__GLIBC__) && !defined(KT_THREAD_SANITIZED)
namespace {
const int IsInstalled = 1;
}
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);

void* malloc(std::size_t size) noexcept {
  Note(size);
  return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  Note(count * size);
  return __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) noexcept {
  Note(size);
  return __libc_realloc(block, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  Note(size);
  return __libc_memalign(alignment, size);
}
}
#else
// The thread sanitizer's allocator does not tell of `operator new`.
namespace {
const int IsInstalled = 0;
}
#endif

namespace kt::tests {

TLargestAllocation::TLargestAllocation() {
  Largest = 0;
  IsWatching = true;
}

TLargestAllocation::~TLargestAllocation() { IsWatching = false; }

std::size_t TLargestAllocation::Bytes() const { return Largest; }

bool TLargestAllocation::IsPossible() { return IsInstalled != 0; }

}  // namespace kt::tests
