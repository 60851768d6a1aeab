// How many own a piece of memory together. Stands at its beginning, and the memory,
// which came from operator new, goes with the last of them. They may be in different
// threads.

#ifndef KYDATASTRUCTURE_FRAME_SHARES_H_
#define KYDATASTRUCTURE_FRAME_SHARES_H_

#include <atomic>
#include <cstddef>
#include <new>

namespace ZOL {

// As wide as what may stand behind it needs, also where a pointer is narrower.
class alignas(8) Shares {
 public:
  explicit Shares(std::size_t count) : count_(count) {}

  void add() { count_.fetch_add(1, std::memory_order_relaxed); }

  // Whoever holds all that is left needs no write to know it.
  void giveBack(std::size_t count) {
    if (count_.load(std::memory_order_acquire) == count ||
        count_.fetch_sub(count, std::memory_order_acq_rel) == count) {
      ::operator delete(this);
    }
  }

 private:
  std::atomic<std::size_t> count_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_SHARES_H_
