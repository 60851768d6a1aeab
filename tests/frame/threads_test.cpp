// What may be done to one object from any thread: addRef, release, setReleaseHook.

#include <KyDataStructure/lists.h>
#include <gtest/gtest.h>

#include <atomic>

#include "support/four_threads.h"
#include "support/held.h"

namespace {

class AtomicHook final : public ZOL::IReleaseHook {
 public:
  void onLastRelease() override { calls.fetch_add(1); }
  std::atomic<int> calls{0};
};

TEST(Threads, CountReferencesTogether) {
  Held<ZOL::IZolString> text(createZolString());
  inFourThreads([&text](int) {
    for (int i = 0; i < 50000; ++i) {
      text->addRef();
      text->addRef();
      text->release();
    }
  });
  EXPECT_EQ(text->refCount(), 1 + kThreads * 50000);
  inFourThreads([&text](int) {
    for (int i = 0; i < 50000; ++i) text->release();
  });
  EXPECT_EQ(text->refCount(), 1);
}

TEST(Threads, CountReferencesOfAListTogether) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  inFourThreads([&list](int) {
    for (int i = 0; i < 50000; ++i) {
      list->addRef();
      list->release();
    }
  });
  EXPECT_EQ(list->refCount(), 1);
}

TEST(Threads, EndAnObjectOnce) {
  for (int round = 0; round < 300; ++round) {
    AtomicHook hook;
    ZOL::IZolString* const text = createZolString();
    text->setReleaseHook(&hook);
    text->setText("a text that is too long for any place but the heap", -1);
    for (int i = 1; i < kThreads; ++i) text->addRef();
    std::atomic<int> zeros{0};
    inFourThreads([text, &zeros](int) {
      if (text->release() == 0) zeros.fetch_add(1);
    });
    ASSERT_EQ(hook.calls.load(), 1);
    ASSERT_EQ(zeros.load(), 1) << "one of them was the last, and knows it";
  }
}

// Each thread reads the text for as long as it holds a reference; the one that ends
// the object comes after all of them.
TEST(Threads, EndAnObjectAfterAllThatTheOthersDidToIt) {
  for (int round = 0; round < 300; ++round) {
    ZOL::IZolString* const text = createZolString();
    text->setText("seen by all", -1);
    for (int i = 1; i < kThreads; ++i) text->addRef();
    std::atomic<int> seen{0};
    inFourThreads([text, &seen](int) {
      if (text->equals("seen by all")) seen.fetch_add(1);
      text->release();
    });
    ASSERT_EQ(seen.load(), kThreads);
  }
}

TEST(Threads, PutHooksInEachOthersPlace) {
  AtomicHook hooks[kThreads];
  ZOL::IZolString* const text = createZolString();
  inFourThreads([text, &hooks](int number) {
    for (int i = 0; i < 20000; ++i) {
      text->setReleaseHook(&hooks[number]);
      text->setReleaseHook(nullptr);
      text->releaseHook();
    }
    text->setReleaseHook(&hooks[number]);
  });
  ZOL::IReleaseHook* const left = text->releaseHook();
  text->release();
  int calls = 0;
  for (AtomicHook& hook : hooks) {
    EXPECT_EQ(hook.calls.load(), &hook == left ? 1 : 0);
    calls += hook.calls.load();
  }
  EXPECT_EQ(calls, 1);
}

TEST(Threads, HoldOneObjectInListsOfTheirOwn) {
  Held<ZOL::IZolString> text(createZolString());
  inFourThreads([&text](int) {
    for (int i = 0; i < 100; ++i) {
      Held<ZOL::ZOLBaseObjectList> list(createZOLBaseObjectList());
      for (int j = 0; j < 20; ++j) list->add(text.get());
      list->removeAt(0);
      list->insertListAt(3, list.get());
      list->clear();
    }
  });
  EXPECT_EQ(text->refCount(), 1);
}

TEST(Threads, MayEachHaveObjectsOfTheirOwn) {
  std::atomic<int> right{0};
  inFourThreads([&right](int number) {
    for (int i = 0; i < 500; ++i) {
      Held<ZOL::IZolString> text(createZolString());
      ZOL::ZolValue value("");
      value.setValue(number * 1000 + i);
      ZOLValueToString(&value, text.get());
      ZOL::ZolValue back(0);
      ZOLStringToZolValue(text->text(), &back);
      if (back.intValue() == number * 1000 + i) right.fetch_add(1);
    }
  });
  EXPECT_EQ(right.load(), kThreads * 500);
}

}  // namespace
