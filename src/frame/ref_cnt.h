// The counter of every object, and the only file that touches a counter word.
//
// The life of an object, as the two words of its counter block see it:
//
//   auto* cue = new Cue;      strong -1   never referenced; holds 1: the object
//   cue->addRef();            strong  1   the marker -1 is left for 1, not for 0
//   cue->addRef();            strong  2
//   cue->release();           strong  1
//   cue->release();           strong  0   hook, destructor, block and object freed
//
// An object that is released while strong still stands at -1 is destroyed as well,
// but, on purpose, its block stays allocated: the block goes only with a count
// that has fallen to 0.

#ifndef KYDATASTRUCTURE_FRAME_REF_CNT_H_
#define KYDATASTRUCTURE_FRAME_REF_CNT_H_

#include <KyDataStructure/frame.h>

#include <atomic>
#include <cstddef>
#include <cstdint>

#include "frame/shares.h"

namespace ZOL {

constexpr int kNeverReferenced = -1;

// One word of a counter block. Every write is a read-modify-write of sequential
// consistency: the one that brings the count to 0 comes after all others, so the
// thread that makes it sees all that the others did to the object. The read ahead
// of each write only picks the rule, and a stale value is put right by the write
// itself; it needs no order.
class CounterWord {
 public:
  explicit constexpr CounterWord(int value = kNeverReferenced) : word_(value) {}

  int value() const { return word_.load(std::memory_order_relaxed); }

  // The new value; 0, and nothing else, for a dead word.
  int increment() {
    const int seen = value();
    if (seen == kNeverReferenced) {
      word_.exchange(1);
      return 1;
    }
    if (seen == 0) return 0;
    const int before = word_.fetch_add(1);
    if (before != 0) return before + 1;
    word_.exchange(0);  // the last release() ran in between: dead stays dead
    return 0;
  }

  // The new value, clamped at 0. The marker counts as less than 1.
  int decrement() {
    if (value() <= 0) return 0;
    return takeOne();
  }

  // decrement() without the look ahead.
  int takeOne() {
    const int before = word_.fetch_sub(1);
    if (before > 0) return before - 1;
    word_.exchange(0);
    return 0;
  }

  // increment() from the marker, for a word that no other thread can see yet.
  void incrementUnseen() { word_.store(1, std::memory_order_relaxed); }

 private:
  std::atomic<int> word_;
};

struct CounterBlock {
  CounterWord strong{kNeverReferenced};  // references held by users
  CounterWord holds{1};                  // objects that point here: the one it was made for
};
static_assert(sizeof(CounterBlock) == 8, "two 32-bit words");

template <class T>
class RefCnt;

// The counting mixin of every concrete class. Inherited beside the interfaces,
// whose five counter operations Counted forwards to it. Counts from the moment when
// Counted gives it its block.
template <>
class RefCnt<void> {
 public:
  RefCnt() = default;
  RefCnt(const RefCnt&) = delete;
  RefCnt& operator=(const RefCnt&) = delete;

  // The first addRef(), for a factory: nobody else can see the object yet.
  void beginAtOne() { block_->strong.incrementUnseen(); }

  // For an object that stands, with its block, in memory that it shares (batch.h).
  static constexpr std::size_t kBatchStep = alignof(void*);
  static constexpr std::size_t kMostBatchSteps = 65535;
  void belongTo(Shares& shares) {
    const auto distance = reinterpret_cast<char*>(this) - reinterpret_cast<char*>(&shares);
    stepsIntoBatch_ = static_cast<std::uint16_t>(static_cast<std::size_t>(distance) / kBatchStep);
  }

  virtual int addRef() { return block_ ? block_->strong.increment() : 0; }

  virtual int release() {
    if (!block_) return 0;
    const int left = block_->strong.decrement();
    if (left == 0) end();
    return left;
  }

  virtual int refCount() { return block_ ? block_->strong.value() : 0; }
  virtual IReleaseHook* releaseHook() { return releaseHook_.load(); }
  virtual void setReleaseHook(IReleaseHook* hook) { releaseHook_.exchange(hook); }

  virtual ~RefCnt() { block_ = nullptr; }

 protected:
  void countIn(CounterBlock* block) { block_ = block; }

 private:
  // Once and no more: the hook, while the object is whole, then its destruction, then
  // the block. On purpose not the destructor frees the block: so it is plain, and the
  // compiler needs no table of any base that an object passes through when it ends.
  void end();

  CounterBlock* block_ = nullptr;  // null again once destruction has begun
  std::atomic<unsigned char> destroyed_{0};
  std::uint16_t stepsIntoBatch_ = 0;  // 0 for an object with memory of its own
  std::atomic<IReleaseHook*> releaseHook_{nullptr};
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_REF_CNT_H_
