// What threads do at the same time to one counter, one hook and one piece of memory, from
// inside. The counts in the end tell what got lost; that nothing was seen too early or
// freed too soon is told by a build that looks for races (scripts/check races).

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frame/batch.h"
#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"
#include "frame/ref_cnt.h"
#include "frame/shared_text.h"
#include "support/four_threads.h"

namespace {

using ZOL::Batch;
using ZOL::CounterWord;
using ZOL::Handle;
using ZOL::SharedText;

constexpr int kRounds = 400;

class ICue : public ZOL::IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "ICue";

 protected:
  ~ICue() = default;
};

// A plain number that everybody who holds the cue may write in a place of their own, and
// that is read when the cue ends.
class Cue final : public ZOL::Counted<ICue, ZOL::RefCnt<void>> {
 public:
  explicit Cue(ZOL::CounterBlock* block) : Counted(block) {}
  Cue() = default;
  ~Cue() override {
    for (const int mark : marks_) sum.fetch_add(mark, std::memory_order_relaxed);
    ended.fetch_add(1, std::memory_order_relaxed);
  }

  void* queryInterface(const char* name) override {
    return ZOL::answer<ICue, ZOL::IDmBaseObj>(this, name);
  }
  void mark(int place) { marks_[static_cast<std::size_t>(place)] = 1; }
  void setName(SharedText name) { name_.set(std::move(name)); }
  std::string name() const { return name_.get(); }

  inline static std::atomic<int> sum{0};
  inline static std::atomic<int> ended{0};
  static void startCounting() {
    sum = 0;
    ended = 0;
  }

 private:
  std::array<int, kThreads> marks_{};
  ZOL::TextTakingNull name_;
};

TEST(Contention, LosesNoStepOfACounterWord) {
  CounterWord word;
  word.incrementUnseen();
  constexpr int kSteps = 20000;
  inFourThreads([&word](int) {
    for (int i = 0; i < kSteps; ++i) {
      word.increment();
      word.increment();
      word.decrement();
    }
  });
  EXPECT_EQ(word.value(), 1 + kThreads * kSteps);
}

TEST(Contention, BringsACounterWordToZeroOnceAndKeepsItThere) {
  for (int round = 0; round < kRounds; ++round) {
    CounterWord word;
    word.incrementUnseen();
    for (int i = 1; i < kThreads; ++i) word.increment();
    std::atomic<int> zeros{0};
    std::atomic<int> revived{0};
    inFourThreads([&](int) {
      if (word.decrement() == 0) {
        zeros.fetch_add(1);
        if (word.increment() != 0) revived.fetch_add(1);
      }
    });
    ASSERT_EQ(zeros.load(), 1);
    ASSERT_EQ(revived.load(), 0);
    ASSERT_EQ(word.value(), 0);
  }
}

TEST(Contention, EndsAnObjectBehindAllThatItsHoldersDid) {
  Cue::startCounting();
  for (int round = 0; round < kRounds; ++round) {
    Cue* const cue = ZOL::makeObject<Cue>();
    for (int i = 1; i < kThreads; ++i) cue->addRef();
    inFourThreads([cue](int number) {
      cue->mark(number);
      cue->release();
    });
  }
  EXPECT_EQ(Cue::ended.load(), kRounds);
  EXPECT_EQ(Cue::sum.load(), kRounds * kThreads);
}

// Nothing but the hook itself says that what it points to is there.
TEST(Contention, HandsAHookOverWhole) {
  class Message final : public ZOL::IReleaseHook {
   public:
    explicit Message(int number) : number_(number) {}
    void onLastRelease() override {}
    int number() const { return number_; }

   private:
    int number_;
  };
  const Handle<Cue> cue = ZOL::makeHandle<Cue>();
  std::vector<std::unique_ptr<Message>> messages(kRounds);
  std::atomic<long long> seen{0};
  inFourThreads([&](int number) {
    if (number == 0) {
      for (int i = 0; i < kRounds; ++i) {
        messages[static_cast<std::size_t>(i)] = std::make_unique<Message>(i + 1);
        cue->setReleaseHook(messages[static_cast<std::size_t>(i)].get());
      }
      return;
    }
    for (int last = 0; last < kRounds;) {
      const auto* const message = static_cast<Message*>(cue->releaseHook());
      if (!message) continue;
      if (message->number() < last) seen.fetch_add(kRounds * kThreads);  // back in time
      last = message->number();
    }
    seen.fetch_add(1);
  });
  EXPECT_EQ(seen.load(), kThreads - 1);
  cue->setReleaseHook(nullptr);
}

TEST(Contention, FreesASharedTextBehindItsLastReader) {
  std::atomic<int> right{0};
  for (int round = 0; round < kRounds; ++round) {
    std::array<SharedText, kThreads> texts;
    texts[0] = SharedText("seen by all of them");
    for (std::size_t i = 1; i < texts.size(); ++i) texts[i] = texts[0];
    inFourThreads([&](int number) {
      SharedText own = std::move(texts[static_cast<std::size_t>(number)]);
      for (int i = 0; i < 5; ++i) const SharedText another = own;
      if (std::string(own.get()) == "seen by all of them") {
        right.fetch_add(1, std::memory_order_relaxed);
      }
    });
  }
  EXPECT_EQ(right.load(), kRounds * kThreads);
}

// An object, its text and one more text for each thread, all in one piece of memory.
TEST(Contention, FreesABatchBehindAllThatStoodInIt) {
  Cue::startCounting();
  std::atomic<int> right{0};
  for (int round = 0; round < kRounds; ++round) {
    std::array<Handle<Cue>, kThreads> cues;
    std::array<SharedText, kThreads> texts;
    {
      Batch batch(kThreads * Batch::room<Cue>() + SharedText::room("of the batch"));
      const SharedText common = batch.put("of the batch");
      for (std::size_t i = 0; i < kThreads; ++i) {
        cues[i] = batch.make<Cue>();
        cues[i]->setName(batch.again(common));
        texts[i] = batch.again(common);
      }
    }
    inFourThreads([&](int number) {
      const auto place = static_cast<std::size_t>(number);
      Handle<Cue> cue = std::move(cues[place]);
      const SharedText text = std::move(texts[place]);
      cue->mark(number);
      if (cue->name() == text.get()) right.fetch_add(1, std::memory_order_relaxed);
      cue = nullptr;
    });
  }
  EXPECT_EQ(right.load(), kRounds * kThreads);
  EXPECT_EQ(Cue::ended.load(), kRounds * kThreads);
  EXPECT_EQ(Cue::sum.load(), kRounds * kThreads);
}

}  // namespace
