// A heap that fails on demand. A program that has failing_heap.cpp among its sources
// replaces malloc and its family, and so all that new takes, for itself and for the
// library. For programs of one thread.

#ifndef KYDATASTRUCTURE_TESTS_OOM_FAILING_HEAP_H_
#define KYDATASTRUCTURE_TESTS_OOM_FAILING_HEAP_H_

#include <cstddef>
#include <functional>
#include <vector>

namespace failing_heap {

enum class Fails {
  once,         // that allocation alone
  fromThereOn,  // and all behind it
};

// The allocations that `work` makes inside the library, as they count among all that
// it makes: the first is 1.
std::vector<std::size_t> allocationsOf(const std::function<void()>& work);

// Runs `work` on a heap that fails at that allocation. Whether it came to that.
bool runFailingAt(std::size_t allocation, Fails fails, const std::function<void()>& work);

struct Block {
  const void* memory;
  std::size_t size;  // as it was asked for
};

// The blocks that are allocated while it lives.
class Watch {
 public:
  Watch();
  ~Watch();
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  // Those of them that still stand. Ends the watch.
  std::vector<Block> left();
};

}  // namespace failing_heap

#endif  // KYDATASTRUCTURE_TESTS_OOM_FAILING_HEAP_H_
