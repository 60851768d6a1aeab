#include "frame/ref_cnt.h"

namespace ZOL {

void RefCnt<void>::end() {
  if (destroyed_.load(std::memory_order_relaxed) != 0) return;
  destroyed_.exchange(1);
  if (IReleaseHook* const hook = releaseHook_.load()) hook->onLastRelease();
  if (stepsIntoBatch_ != 0) {
    void* const batch = reinterpret_cast<char*>(this) - stepsIntoBatch_ * kBatchStep;
    this->~RefCnt();
    static_cast<Shares*>(batch)->giveBack(1);
    return;
  }
  CounterBlock* const block = block_;
  delete this;
  // The object was its one holder, so nobody else can see the block any more.
  if (block->strong.value() == 0) delete block;
}

}  // namespace ZOL
