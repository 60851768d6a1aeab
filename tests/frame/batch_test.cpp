// Objects and texts in one piece of memory, from inside.

#include "frame/batch.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "frame/counted.h"
#include "frame/fields.h"
#include "support/heap_watch.h"

namespace {

using ZOL::Batch;
using ZOL::Handle;
using ZOL::SharedText;

class ICue : public ZOL::IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "ICue";

 protected:
  ~ICue() = default;
};

// Counts the cues that are there.
class Cue final : public ZOL::Counted<ICue, ZOL::RefCnt<void>> {
 public:
  explicit Cue(ZOL::CounterBlock* block) : Counted(block) { ++alive; }
  Cue() { ++alive; }
  ~Cue() override { --alive; }

  void* queryInterface(const char* name) override {
    return ZOL::answer<ICue, ZOL::IDmBaseObj>(this, name);
  }
  void setName(SharedText name) { name_.set(std::move(name)); }
  const char* name() const { return name_.get(); }

  static int alive;

 private:
  ZOL::TextTakingNull name_;
};

int Cue::alive = 0;

class CountingHook final : public ZOL::IReleaseHook {
 public:
  void onLastRelease() override { ++calls; }
  int calls = 0;
};

TEST(Batch, HoldsObjectsAndTextsInOneBlock) {
  const long long before = liveBlocks();
  {
    Batch batch(2 * Batch::room<Cue>() + SharedText::room("harbour"));
    const Handle<Cue> first = batch.make<Cue>();
    const Handle<Cue> second = batch.make<Cue>();
    first->setName(batch.put("harbour"));
    EXPECT_EQ(liveBlocks(), before + 1);
    EXPECT_STREQ(first->name(), "harbour");
    EXPECT_EQ(Cue::alive, 2);
    EXPECT_EQ(first->refCount(), 1);
  }
  EXPECT_EQ(Cue::alive, 0);
  EXPECT_EQ(liveBlocks(), before);
}

TEST(Batch, LivesAsLongAsAnyOfItsObjects) {
  const long long before = liveBlocks();
  Handle<Cue> kept;
  {
    Batch batch(8 * Batch::room<Cue>());
    for (int i = 0; i < 4; ++i) batch.make<Cue>();
    kept = batch.make<Cue>();
    for (int i = 0; i < 3; ++i) batch.make<Cue>();
  }
  EXPECT_EQ(Cue::alive, 1);
  EXPECT_EQ(liveBlocks(), before + 1);
  EXPECT_EQ(kept->addRef(), 2);
  EXPECT_EQ(kept->release(), 1);
  kept = nullptr;
  EXPECT_EQ(Cue::alive, 0);
  EXPECT_EQ(liveBlocks(), before);
}

TEST(Batch, LivesAsLongAsAnyOfItsTexts) {
  const long long before = liveBlocks();
  SharedText kept;
  {
    Batch batch(Batch::room<Cue>() + SharedText::room("harbour"));
    batch.make<Cue>();
    kept = batch.put("harbour");
  }
  EXPECT_EQ(Cue::alive, 0);
  EXPECT_EQ(liveBlocks(), before + 1);
  EXPECT_STREQ(kept.get(), "harbour");
  kept = SharedText();
  EXPECT_EQ(liveBlocks(), before);
}

TEST(Batch, RunsTheHookOfItsObjectsOnce) {
  CountingHook hook;
  Batch batch(Batch::room<Cue>());
  const Handle<Cue> cue = batch.make<Cue>();
  cue->setReleaseHook(&hook);
  cue->addRef();
  cue->release();
  EXPECT_EQ(hook.calls, 0);
  Handle<Cue> last = cue;
  last = nullptr;
  EXPECT_EQ(hook.calls, 0);
  const_cast<Handle<Cue>&>(cue) = nullptr;
  EXPECT_EQ(hook.calls, 1);
}

TEST(Batch, GivesWhatFindsNoRoomMemoryOfItsOwn) {
  const long long before = liveBlocks();
  {
    Batch batch(Batch::room<Cue>());
    const Handle<Cue> inside = batch.make<Cue>();
    const long long held = liveBlocks();
    const Handle<Cue> outside = batch.make<Cue>();
    EXPECT_EQ(liveBlocks(), held + 2) << "an object and its counter block";
    const SharedText text = batch.put("harbour");
    EXPECT_EQ(liveBlocks(), held + 3);
    EXPECT_STREQ(text.get(), "harbour");
    EXPECT_EQ(outside->refCount(), 1);
  }
  EXPECT_EQ(Cue::alive, 0);
  EXPECT_EQ(liveBlocks(), before);
}

TEST(Batch, HasAGreatestSize) {
  const std::string longText(2 * Batch::kGreatest, 'x');
  Batch batch(100 * longText.size());
  const long long held = liveBlocks();
  const SharedText text = batch.put(longText);
  EXPECT_EQ(liveBlocks(), held + 1);
  EXPECT_EQ(text.get(), longText);
  std::vector<Handle<Cue>> cues;
  for (std::size_t i = 0; i < 2 * Batch::kGreatest / Batch::room<Cue>(); ++i) {
    cues.push_back(batch.make<Cue>());
  }
  EXPECT_EQ(Cue::alive, static_cast<int>(cues.size()));
  cues.clear();
  EXPECT_EQ(Cue::alive, 0);
}

TEST(Batch, GivesATextOnceMore) {
  const long long before = liveBlocks();
  {
    SharedText again;
    {
      Batch batch(SharedText::room("harbour"));
      const SharedText text = batch.put("harbour");
      again = batch.again(text);
      EXPECT_EQ(again.get(), text.get());
      const SharedText elsewhere("quay");
      EXPECT_STREQ(batch.again(elsewhere).get(), "quay");
      EXPECT_STREQ(batch.again(SharedText()).get(), "");
    }
    EXPECT_STREQ(again.get(), "harbour");
  }
  EXPECT_EQ(liveBlocks(), before);
}

TEST(Batch, TakesNoMemoryForTheEmptyText) {
  Batch batch(0);
  const long long held = liveBlocks();
  const SharedText text = batch.put("");
  EXPECT_EQ(liveBlocks(), held);
  EXPECT_STREQ(text.get(), "");
}

}  // namespace
