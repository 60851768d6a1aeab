#include "oom/failing_heap.h"

#include <execinfo.h>
#include <link.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include "support/heap_watch.h"

// The system's own, by the names that stay when the plain ones are replaced.
extern "C" {
void* __libc_malloc(std::size_t size);                     // NOLINT(bugprone-reserved-identifier)
void* __libc_calloc(std::size_t count, std::size_t size);  // NOLINT(bugprone-reserved-identifier)
void* __libc_realloc(void* memory, std::size_t size);      // NOLINT(bugprone-reserved-identifier)
void __libc_free(void* memory);                            // NOLINT(bugprone-reserved-identifier)
}

namespace failing_heap {
namespace {

// Blocks by address, without an allocation of its own: a table of places, each block at
// the first free one from where its address points to.
class Ledger {
 public:
  void add(const void* memory, std::size_t size) {
    if (count_ == kMost) std::abort();
    std::size_t place = home(memory);
    while (blocks_[place].memory) place = next(place);
    blocks_[place] = {memory, size};
    ++count_;
  }

  void remove(const void* memory) {
    if (count_ == 0) return;
    std::size_t place = home(memory);
    while (blocks_[place].memory != memory) {
      if (!blocks_[place].memory) return;
      place = next(place);
    }
    // Those behind it move up, so that no search ends too early.
    for (std::size_t other = next(place); blocks_[other].memory; other = next(other)) {
      const std::size_t from = home(blocks_[other].memory);
      const bool staysReachable =
          place < other ? place < from && from <= other : place < from || from <= other;
      if (staysReachable) continue;
      blocks_[place] = blocks_[other];
      place = other;
    }
    blocks_[place] = {};
    --count_;
  }

  std::size_t count() const { return count_; }

  template <class Take>
  void takeAll(Take take) {
    for (std::size_t place = 0; count_ > 0 && place < kPlaces; ++place) {
      if (!blocks_[place].memory) continue;
      take(blocks_[place]);
      blocks_[place] = {};
      --count_;
    }
  }

 private:
  static constexpr std::size_t kPlaces = std::size_t{1} << 17;
  static constexpr std::size_t kMost = kPlaces / 2;

  static std::size_t home(const void* memory) {
    const std::uint64_t address = reinterpret_cast<std::uintptr_t>(memory);
    return static_cast<std::size_t>((address * 0x9E3779B97F4A7C15U) >> 47) % kPlaces;
  }
  static std::size_t next(std::size_t place) { return (place + 1) % kPlaces; }

  std::array<Block, kPlaces> blocks_{};
  std::size_t count_ = 0;
};

Ledger ledger;
bool watching = false;

enum class State { calm, recording, failing };
State state = State::calm;
std::size_t allocations = 0;  // since the state changed
std::size_t failsAt = 0;
Fails failsHow = Fails::once;
bool hasFailed = false;

constexpr std::size_t kMostRecorded = std::size_t{1} << 20;
std::array<std::uint32_t, kMostRecorded> recorded;
std::size_t recordedCount = 0;

// The code of a part of the program.
struct Code {
  std::uintptr_t begin = 0;
  std::uintptr_t end = 0;

  bool has(const void* place) const {
    const auto address = reinterpret_cast<std::uintptr_t>(place);
    return begin <= address && address < end;
  }
};

// That of the shared object whose path ends so; the program itself has no path.
Code codeOf(const char* file) {
  struct Search {
    const char* file;
    Code found;
  } search{file, {}};
  dl_iterate_phdr(
      [](dl_phdr_info* object, std::size_t, void* wanted) {
        auto& [path, found] = *static_cast<Search*>(wanted);
        const bool isIt =
            *path ? std::strstr(object->dlpi_name, path) != nullptr : *object->dlpi_name == 0;
        if (!isIt) return 0;
        for (int i = 0; i < object->dlpi_phnum; ++i) {
          const ElfW(Phdr)& part = object->dlpi_phdr[i];
          if (part.p_type != PT_LOAD || (part.p_flags & PF_X) == 0) continue;
          const std::uintptr_t begin = object->dlpi_addr + part.p_vaddr;
          found = {begin, begin + part.p_memsz};
        }
        return 1;
      },
      &search);
  if (search.found.begin == 0) std::abort();
  return search.found;
}

// Whether it is the library that wants memory, by itself or through the standard
// library, and not the program, which the library may have called.
bool calledByLibrary() {
  static const Code library = codeOf("/libKyDataStructure.so");
  static const Code program = codeOf("");
  std::array<void*, 32> callers{};
  const int count = backtrace(callers.data(), static_cast<int>(callers.size()));
  int at = 0;
  while (at < count && program.has(callers[static_cast<std::size_t>(at)])) ++at;  // this file
  for (; at < count; ++at) {
    const void* const caller = callers[static_cast<std::size_t>(at)];
    if (program.has(caller)) return false;
    if (library.has(caller)) return true;
  }
  return false;
}

// Whether the allocation that is asked for now is to fail.
bool fails() {
  if (state == State::calm) return false;
  ++allocations;
  if (state == State::recording) {
    state = State::calm;  // asking for the callers may allocate
    if (calledByLibrary()) {
      if (recordedCount == kMostRecorded) std::abort();
      recorded[recordedCount++] = static_cast<std::uint32_t>(allocations);
    }
    state = State::recording;
    return false;
  }
  if (allocations != failsAt && !(failsHow == Fails::fromThereOn && allocations > failsAt)) {
    return false;
  }
  hasFailed = true;
  errno = ENOMEM;
  return true;
}

void* watched(void* memory, std::size_t size) {
  if (watching && memory) ledger.add(memory, size);
  return memory;
}

// Makes the state that of the heap while `work` runs, also when it ends by an exception.
void runIn(State wanted, const std::function<void()>& work) {
  struct Calm {
    ~Calm() { state = State::calm; }
  } calm;
  allocations = 0;
  state = wanted;
  work();
}

}  // namespace

std::vector<std::size_t> allocationsOf(const std::function<void()>& work) {
  recordedCount = 0;
  runIn(State::recording, work);
  return {recorded.begin(), recorded.begin() + static_cast<std::ptrdiff_t>(recordedCount)};
}

bool runFailingAt(std::size_t allocation, Fails how, const std::function<void()>& work) {
  failsAt = allocation;
  failsHow = how;
  hasFailed = false;
  runIn(State::failing, work);
  return hasFailed;
}

Watch::Watch() { watching = true; }

Watch::~Watch() {
  watching = false;
  ledger.takeAll([](const Block&) {});
}

std::vector<Block> Watch::left() {
  watching = false;
  std::vector<Block> blocks;
  if (ledger.count() == 0) return blocks;
  blocks.reserve(ledger.count());
  ledger.takeAll([&blocks](const Block& block) { blocks.push_back(block); });
  return blocks;
}

}  // namespace failing_heap

// The blocks of heap_watch.h on this heap.

namespace {
WatchedBlock* watchedBlocks = nullptr;
}

WatchedBlock::WatchedBlock() : memory_(::operator new(64)), next_(watchedBlocks) {
  watchedBlocks = this;
}

WatchedBlock::~WatchedBlock() {
  WatchedBlock** link = &watchedBlocks;
  while (*link != this) link = &(*link)->next_;
  *link = next_;
  ::operator delete(memory_);
}

bool WatchedBlock::take(void* memory) {
  for (WatchedBlock* block = watchedBlocks; block; block = block->next_) {
    if (block->memory_ != memory) continue;
    ++block->timesFreed_;
    return true;
  }
  return false;
}

extern "C" {

void* malloc(std::size_t size) {
  if (failing_heap::fails()) return nullptr;
  return failing_heap::watched(__libc_malloc(size), size);
}

void* calloc(std::size_t count, std::size_t size) {
  if (failing_heap::fails()) return nullptr;
  return failing_heap::watched(__libc_calloc(count, size), count * size);
}

void* realloc(void* memory, std::size_t size) {
  if (failing_heap::fails()) return nullptr;
  if (memory) failing_heap::ledger.remove(memory);
  return failing_heap::watched(__libc_realloc(memory, size), size);
}

void free(void* memory) {
  if (WatchedBlock::take(memory)) return;
  if (memory) failing_heap::ledger.remove(memory);
  __libc_free(memory);
}

}  // extern "C"
