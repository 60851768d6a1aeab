#include "support/heap_watch.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

#if defined(_WIN32)
#include "support/import_table.h"
#endif

namespace {

std::atomic<long long> live{0};
WatchedBlock* watched = nullptr;

void* allocate(std::size_t size) noexcept {
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory) live.fetch_add(1);
  return memory;
}

void giveBack(void* memory) noexcept {
  if (!memory || WatchedBlock::take(memory)) return;
  live.fetch_sub(1);
  std::free(memory);
}

}  // namespace

long long liveBlocks() { return live.load(); }

WatchedBlock::WatchedBlock() : memory_(::operator new(64)), next_(watched) { watched = this; }

WatchedBlock::~WatchedBlock() {
  WatchedBlock** link = &watched;
  while (*link != this) link = &(*link)->next_;
  *link = next_;
  ::operator delete(memory_);
}

bool WatchedBlock::take(void* memory) {
  for (WatchedBlock* block = watched; block; block = block->next_) {
    if (block->memory_ != memory) continue;
    ++block->timesFreed_;
    return true;
  }
  return false;
}

#if defined(_WIN32)

// A program cannot replace the operators of a DLL. But the program and the library have them
// from one DLL, which takes its memory from another.
namespace {

struct Watch {
  Watch() {
    const char* const operators = "libstdc++-6.dll";
    const bool isWatching = redirectImport(operators, "malloc", allocate) &&
                            redirectImport(operators, "free", giveBack);
    if (!isWatching) std::abort();
  }
} watch;

}  // namespace

#else

namespace {

void* allocateOrThrow(std::size_t size) {
  void* const memory = allocate(size);
  if (!memory) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return allocateOrThrow(size); }
void* operator new[](std::size_t size) { return allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void operator delete(void* memory) noexcept { giveBack(memory); }
void operator delete[](void* memory) noexcept { giveBack(memory); }
void operator delete(void* memory, std::size_t) noexcept { giveBack(memory); }
void operator delete[](void* memory, std::size_t) noexcept { giveBack(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { giveBack(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { giveBack(memory); }

#endif
