// One piece of memory for objects and texts that are made together and, as a rule, end
// together.
//
//   Batch batch(Batch::room<ZolTextInfo>() + SharedText::room(words));
//   Handle<ZolTextInfo> item = batch.make<ZolTextInfo>();
//   item->setText(batch.put(words));
//
//   shares | counter block, object | counter block, object | ... | text | text
//
// The memory goes with the last of them, so that whoever keeps one keeps them all; a
// batch therefore has a greatest size. What finds no room gets memory of its own.

#ifndef KYDATASTRUCTURE_FRAME_BATCH_H_
#define KYDATASTRUCTURE_FRAME_BATCH_H_

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <string_view>

#include "frame/handle.h"
#include "frame/ref_cnt.h"
#include "frame/shared_text.h"
#include "frame/shares.h"

namespace ZOL {

class Batch {
 public:
  static constexpr std::size_t kGreatest = 8192;

  // The bytes that an object takes.
  template <class Class>
  static constexpr std::size_t room() {
    static_assert(alignof(Class) <= kAlignment);
    return sizeof(CounterBlock) + rounded(sizeof(Class));
  }

  explicit Batch(std::size_t bytes) {
    const std::size_t size = sizeof(Shares) + rounded(std::min(bytes, kGreatest));
    void* const memory = ::operator new(size);
    shares_ = new (memory) Shares(kUndecided);
    objects_ = static_cast<char*>(memory) + sizeof(Shares);
    texts_ = static_cast<char*>(memory) + size;
  }
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;
  ~Batch() { shares_->giveBack(kUndecided - given_); }

  template <class Class>
  bool hasRoom() const {
    return left() >= room<Class>();
  }

  // A new object with its first reference.
  template <class Class>
  Handle<Class> make() {
    if (!hasRoom<Class>()) return makeHandle<Class>();
    auto* const block = new (objects_) CounterBlock;
    auto* const object = new (objects_ + sizeof(CounterBlock)) Class(block);
    object->beginAtOne();
    object->belongTo(*shares_);
    objects_ += room<Class>();
    ++given_;
    return Handle<Class>::adopt(object);
  }

  SharedText put(std::string_view text) {
    const std::size_t size = SharedText::room(text);
    if (size == 0 || left() < size) return SharedText(text);
    texts_ -= size;
    ++given_;
    return SharedText::placed(*shares_, texts_, text);
  }

  // A text that put() gave, once more.
  SharedText again(const SharedText& text) {
    if (!text.isIn(*shares_)) return text;
    ++given_;
    return text.sharedAlready();
  }

 private:
  // While the batch is being filled it has this many shares, so that they are given out
  // without a write. What is too many comes back at the end.
  static constexpr std::size_t kUndecided = std::numeric_limits<std::size_t>::max() / 2;
  static constexpr std::size_t kAlignment = 8;
  static_assert(kGreatest / RefCnt<void>::kBatchStep < RefCnt<void>::kMostBatchSteps);
  static_assert(alignof(Shares) == kAlignment && sizeof(CounterBlock) == kAlignment);

  static constexpr std::size_t rounded(std::size_t bytes) {
    return (bytes + kAlignment - 1) / kAlignment * kAlignment;
  }

  std::size_t left() const { return static_cast<std::size_t>(texts_ - objects_); }

  Shares* shares_;
  char* objects_;  // end of the objects, which come from the front
  char* texts_;    // beginning of the texts, which come from the back
  std::size_t given_ = 0;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_BATCH_H_
