#include "frame/ref_cnt.h"

namespace ZOL {

void RefCnt<void>::end() {
  if (destroyed_.load(std::memory_order_relaxed) != 0) return;
  destroyed_.exchange(1);
  if (IReleaseHook* const hook = releaseHook_.load()) hook->onLastRelease();
  delete this;
}

RefCnt<void>::~RefCnt() {
  CounterBlock* const block = block_;
  block_ = nullptr;
  if (block->holds.value() <= 0) return;
  if (block->holds.takeOne() == 0 && block->strong.value() == 0) delete block;
}

}  // namespace ZOL
