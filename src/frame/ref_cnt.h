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

namespace ZOL {

// One word of a counter block. Every write is a read-modify-write of sequential
// consistency: the one that brings the count to 0 comes after all others, so the
// thread that makes it sees all that the others did to the object. The read ahead
// of each write only picks the rule, and a stale value is put right by the write
// itself; it needs no order.
class CounterWord {
 public:
  int value() const { return word_.load(std::memory_order_relaxed); }

  // The new value; 0, and nothing else, for a dead word.
  int increment() {
    const int seen = value();
    if (seen == kNever) {
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

 private:
  static constexpr int kNever = -1;
  std::atomic<int> word_{kNever};
};

struct CounterBlock {
  CounterWord strong;  // references held by users
  CounterWord holds;   // objects that point at this block: the one it was made for
};
static_assert(sizeof(CounterBlock) == 8, "two 32-bit words");

template <class T>
class RefCnt;

// The counting mixin of every concrete class. Inherited beside the interfaces,
// whose five counter operations Counted forwards to it.
template <>
class RefCnt<void> {
 public:
  RefCnt() : block_(new CounterBlock) { block_->holds.increment(); }
  RefCnt(const RefCnt&) = delete;
  RefCnt& operator=(const RefCnt&) = delete;

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

  virtual ~RefCnt();

 private:
  // Once and no more: the hook, while the object is whole, and then its destruction.
  void end();

  CounterBlock* block_;  // null only once destruction has begun
  std::atomic<unsigned char> destroyed_{0};
  std::atomic<IReleaseHook*> releaseHook_{nullptr};
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_REF_CNT_H_
