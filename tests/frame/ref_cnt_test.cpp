// The counter of every object, from inside.

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "frame/counted.h"
#include "frame/handle.h"
#include "frame/ref_cnt.h"
#include "support/counted_note.h"
#include "support/heap_watch.h"
#include "support/leak_on_purpose.h"

namespace {

class IThing : public ZOL::IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IThing";

  virtual std::string name() = 0;

 protected:
  ~IThing() = default;
};

// Writes "gone" into a diary when it is destroyed.
class Thing : public ZOL::Counted<IThing, ZOL::RefCnt<void>> {
 public:
  explicit Thing(std::string* diary) : diary_(diary) {}
  ~Thing() override { *diary_ += "gone "; }

  void* queryInterface(const char* name) override {
    return ZOL::answer<IThing, ZOL::IDmBaseObj>(this, name);
  }
  std::string name() override { return name_; }

 private:
  std::string* const diary_;
  const std::string name_ = "a thing with a name that is still there";
};

// Writes down what it sees of the object when the object is about to end.
class Witness final : public ZOL::IReleaseHook {
 public:
  Witness(IThing* thing, std::string* diary) : thing_(thing), diary_(diary) {}

  void onLastRelease() override {
    *diary_ += "hook(" + std::to_string(thing_->refCount()) + ", " + thing_->name() + ") ";
  }

 private:
  IThing* const thing_;
  std::string* const diary_;
};

class RefCnt : public testing::Test {
 protected:
  std::string diary;
};

TEST_F(RefCnt, OfANewObjectStandsAtMinusOne) {
  auto* const thing = new Thing(&diary);
  EXPECT_EQ(thing->refCount(), -1);
  EXPECT_EQ(static_cast<unsigned int>(thing->refCount()), 4294967295U);
  EXPECT_EQ(thing->addRef(), 1) << "and not 0";
  EXPECT_EQ(thing->refCount(), 1);
  EXPECT_EQ(thing->addRef(), 2);
  EXPECT_EQ(thing->release(), 1);
  EXPECT_EQ(diary, "");
  EXPECT_EQ(thing->release(), 0);
  EXPECT_EQ(diary, "gone ");
}

TEST_F(RefCnt, MadeByAFactoryStandsAtOne) {
  Thing* const thing = ZOL::makeObject<Thing>(&diary);
  EXPECT_EQ(thing->refCount(), 1);
  EXPECT_EQ(thing->release(), 0);
}

TEST_F(RefCnt, ReleaseOfAnObjectThatNeverHadAReferenceEndsIt) {
  const LeakOnPurpose block;
  auto* const thing = new Thing(&diary);
  EXPECT_EQ(thing->release(), 0);
  EXPECT_EQ(diary, "gone ");
}

TEST_F(RefCnt, TheHookOfAnObjectThatNeverHadAReferenceRunsToo) {
  const LeakOnPurpose block;
  auto* const thing = new Thing(&diary);
  Witness witness(thing, &diary);
  thing->setReleaseHook(&witness);
  EXPECT_EQ(thing->release(), 0);
  EXPECT_EQ(diary, "hook(-1, a thing with a name that is still there) gone ");
}

TEST_F(RefCnt, TheHookRunsOnceWhileTheObjectIsWhole) {
  Thing* const thing = ZOL::makeObject<Thing>(&diary);
  Witness witness(thing, &diary);
  thing->setReleaseHook(&witness);
  thing->addRef();
  thing->release();
  EXPECT_EQ(diary, "");
  EXPECT_EQ(thing->release(), 0);
  EXPECT_EQ(diary, "hook(0, a thing with a name that is still there) gone ");
}

TEST_F(RefCnt, OfADeadObjectCannotBeRaisedNorLowered) {
  class Reviver final : public ZOL::IReleaseHook {
   public:
    explicit Reviver(IThing* thing) : thing_(thing) {}
    void onLastRelease() override {
      EXPECT_EQ(thing_->refCount(), 0);
      EXPECT_EQ(thing_->addRef(), 0);
      EXPECT_EQ(thing_->addRef(), 0);
      EXPECT_EQ(thing_->refCount(), 0) << "dead stays dead";
      EXPECT_EQ(thing_->release(), 0) << "and is not ended twice";
      EXPECT_EQ(thing_->refCount(), 0);
      ++calls;
    }
    int calls = 0;

   private:
    IThing* const thing_;
  };
  Thing* const thing = ZOL::makeObject<Thing>(&diary);
  Reviver reviver(thing);
  thing->setReleaseHook(&reviver);
  EXPECT_EQ(thing->release(), 0);
  EXPECT_EQ(reviver.calls, 1);
  EXPECT_EQ(diary, "gone ");
}

// A destructor that gives a reference to itself up again does not destroy twice.
TEST_F(RefCnt, ReleaseFromTheDestructorDoesNothing) {
  class Restless final : public Thing {
   public:
    explicit Restless(std::string* diary) : Thing(diary) {}
    ~Restless() override {
      EXPECT_EQ(addRef(), 0);
      EXPECT_EQ(release(), 0);
    }
  };
  EXPECT_EQ(ZOL::makeObject<Restless>(&diary)->release(), 0);
  EXPECT_EQ(diary, "gone ");
}

// As it is met by whatever is built or destroyed around it.
TEST_F(RefCnt, WithoutItsBlockCountsNothing) {
  ZOL::RefCnt<void> mixin;
  EXPECT_EQ(mixin.addRef(), 0);
  EXPECT_EQ(mixin.refCount(), 0);
  EXPECT_EQ(mixin.release(), 0);
}

TEST_F(RefCnt, ForgetsTheHookThatItReplaces) {
  Thing* const thing = ZOL::makeObject<Thing>(&diary);
  CountingHook old;
  CountingHook last;
  EXPECT_EQ(thing->releaseHook(), nullptr);
  thing->setReleaseHook(&old);
  EXPECT_EQ(thing->releaseHook(), &old);
  thing->setReleaseHook(&last);
  EXPECT_EQ(thing->releaseHook(), &last);
  thing->release();
  EXPECT_EQ(old.calls, 0);
  EXPECT_EQ(last.calls, 1);
}

TEST_F(RefCnt, NullClearsTheHook) {
  Thing* const thing = ZOL::makeObject<Thing>(&diary);
  CountingHook hook;
  thing->setReleaseHook(&hook);
  thing->setReleaseHook(nullptr);
  EXPECT_EQ(thing->releaseHook(), nullptr);
  thing->release();
  EXPECT_EQ(hook.calls, 0);
}

// The counter block is one allocation of its own, and only the constructor makes it.

TEST_F(RefCnt, TheBlockGoesWithACountThatHasFallenToZero) {
  const long long before = liveBlocks();
  Thing* thing = ZOL::makeObject<Thing>(&diary);
  const long long held = liveBlocks();
  thing->addRef();
  thing->release();
  EXPECT_EQ(liveBlocks(), held) << "counting allocates nothing";
  thing->release();
  EXPECT_EQ(liveBlocks(), before);
}

TEST_F(RefCnt, TheBlockStaysWhenAnObjectEndsThatNeverHadAReference) {
  const LeakOnPurpose block;
  const long long before = liveBlocks();
  auto* const thing = new Thing(&diary);
  thing->release();
  EXPECT_EQ(liveBlocks(), before + 1);
}

TEST_F(RefCnt, TheBlockStaysWhenAnObjectEndsOnTheStack) {
  const LeakOnPurpose block;
  const long long before = liveBlocks();
  { Thing thing(&diary); }
  EXPECT_EQ(liveBlocks(), before + 1);
}

TEST_F(RefCnt, TheBlockStaysWhenAnObjectEndsWithReferences) {
  const LeakOnPurpose block;
  const long long before = liveBlocks();
  {
    Thing thing(&diary);
    thing.addRef();
    thing.addRef();
  }
  EXPECT_EQ(liveBlocks(), before + 1);
}

TEST_F(RefCnt, TheBlockStaysWhenAConstructorFails) {
  class Failing final : public Thing {
   public:
    explicit Failing(std::string* diary) : Thing(diary) { throw std::runtime_error("on purpose"); }
  };
  const LeakOnPurpose block;
  const long long before = liveBlocks();
  bool failed = false;
  try {
    ZOL::makeObject<Failing>(&diary);
  } catch (const std::runtime_error&) {
    failed = true;
  }
  EXPECT_TRUE(failed);
  EXPECT_EQ(liveBlocks(), before + 1);
}

// One word, by itself.

TEST(CounterWord, LeavesItsMarkerForOne) {
  ZOL::CounterWord word;
  EXPECT_EQ(word.value(), -1);
  EXPECT_EQ(word.increment(), 1);
  EXPECT_EQ(word.increment(), 2);
  EXPECT_EQ(word.value(), 2);
}

TEST(CounterWord, IsClampedAtZero) {
  ZOL::CounterWord word;
  word.increment();
  EXPECT_EQ(word.decrement(), 0);
  EXPECT_EQ(word.decrement(), 0);
  EXPECT_EQ(word.value(), 0);
}

TEST(CounterWord, IsNotLoweredFromItsMarker) {
  ZOL::CounterWord word;
  EXPECT_EQ(word.decrement(), 0);
  EXPECT_EQ(word.value(), -1);
}

TEST(CounterWord, StaysDead) {
  ZOL::CounterWord word;
  word.increment();
  word.decrement();
  EXPECT_EQ(word.increment(), 0);
  EXPECT_EQ(word.increment(), 0);
  EXPECT_EQ(word.value(), 0);
}

TEST(CounterWord, LoweredWithoutALookIsPutRight) {
  ZOL::CounterWord word;
  word.increment();
  EXPECT_EQ(word.takeOne(), 0);
  EXPECT_EQ(word.takeOne(), 0);
  EXPECT_EQ(word.value(), 0);
}

// The last release and an addRef at the same time, word after word: either the
// reference came first and counts, or the word is dead and says so.
TEST(CounterWord, IsEitherRaisedInTimeOrDead) {
  constexpr std::size_t kWords = 20000;
  std::vector<ZOL::CounterWord> words(kWords);
  for (ZOL::CounterWord& word : words) word.increment();
  std::vector<int> raised(kWords);
  std::vector<int> lowered(kWords);
  std::atomic<int> ready{0};
  const auto meet = [&ready] {
    ready.fetch_add(1);
    while (ready.load() < 2) std::this_thread::yield();
  };
  std::thread other([&] {
    meet();
    for (std::size_t i = 0; i < kWords; ++i) raised[i] = words[i].increment();
  });
  meet();
  for (std::size_t i = 0; i < kWords; ++i) lowered[i] = words[i].decrement();
  other.join();
  for (std::size_t i = 0; i < kWords; ++i) {
    ASSERT_TRUE(raised[i] == 2 || raised[i] == 0) << raised[i];
    const int left = raised[i] == 2 ? 1 : 0;
    ASSERT_EQ(lowered[i], left) << i;
    ASSERT_EQ(words[i].value(), left) << i;
  }
}

// The counted pointer of the library's own code.

TEST(Handle, AdoptsOrShares) {
  std::string diary;
  auto* const note = new Note("a", &diary);
  {
    const auto shared = ZOL::Handle<Note>::share(note);
    EXPECT_EQ(shared.get(), note);
    const auto adopted = ZOL::Handle<Note>::adopt(note);
    EXPECT_TRUE(adopted);
  }
  EXPECT_EQ(diary, "a+ a- a- a!");
}

TEST(Handle, HasTheNewObjectInPlaceBeforeItReleasesTheOld) {
  std::string diary;
  auto held = ZOL::Handle<Note>::adopt(new Note("a", &diary));
  auto* const b = new Note("b", &diary);
  held = ZOL::Handle<Note>::share(b);
  EXPECT_EQ(diary, "b+ a- a!");
  held = nullptr;
  b->release();
  EXPECT_EQ(diary, "b+ a- a! b- b- b!");
}

TEST(Handle, GivesItsReferenceAway) {
  std::string diary;
  auto held = ZOL::Handle<Note>::adopt(new Note("a", &diary));
  ZOL::Handle<Note> moved = std::move(held);
  Note* const given = moved.give();
  EXPECT_FALSE(moved);
  EXPECT_EQ(diary, "");
  given->release();
  EXPECT_EQ(diary, "a- a!");
}

TEST(Handle, AssignedToItselfKeepsItsObject) {
  auto held = ZOL::Handle<ZOL::IZolString>::adopt(createZolString());
  const ZOL::Handle<ZOL::IZolString>& same = held;
  held = same;
  EXPECT_EQ(held->refCount(), 1);
}

}  // namespace
