// The heap as a test sees it. A program that has heap_watch.cpp among its sources
// replaces operator new and operator delete, or where they have their memory from, for
// itself and for the library.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_HEAP_WATCH_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_HEAP_WATCH_H_

// The blocks that operator new has given and operator delete has not taken back.
long long liveBlocks();

// A block from operator new that counts how often it is given back. The memory
// itself stays until the watch ends, so that giving it back twice can be told from
// once and does no harm. For use by one thread.
class WatchedBlock {
 public:
  WatchedBlock();
  ~WatchedBlock();
  WatchedBlock(const WatchedBlock&) = delete;
  WatchedBlock& operator=(const WatchedBlock&) = delete;

  void* memory() const { return memory_; }
  int timesFreed() const { return timesFreed_; }

  // What operator delete asks first. True when the memory is a watched block's.
  static bool take(void* memory);

 private:
  void* const memory_;
  int timesFreed_ = 0;
  WatchedBlock* next_;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_HEAP_WATCH_H_
