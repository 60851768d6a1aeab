// Text that stands in several places at once, from inside.

#include "frame/shared_text.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/heap_watch.h"

namespace {

using ZOL::SharedText;

TEST(SharedText, IsACopyThatEndsInAZero) {
  std::string source = "Weekend";
  const SharedText text{std::string_view(source).substr(0, 4)};
  source = "changed";
  EXPECT_STREQ(text.get(), "Week");
  EXPECT_FALSE(text.isEmpty());
}

TEST(SharedText, TakesNoMemoryIfEmpty) {
  const long long before = liveBlocks();
  const SharedText none;
  const SharedText empty{std::string_view()};
  const SharedText copy = empty;
  EXPECT_EQ(liveBlocks(), before);
  EXPECT_STREQ(none.get(), "");
  EXPECT_STREQ(copy.get(), "");
  EXPECT_TRUE(none.isEmpty() && empty.isEmpty() && copy.isEmpty());
}

TEST(SharedText, IsEmptyIfItBeginsWithAZero) {
  const SharedText text{std::string_view("\0hidden", 7)};
  EXPECT_TRUE(text.isEmpty());
}

TEST(SharedText, IsOneBlockHoweverOftenItIsCopied) {
  const long long before = liveBlocks();
  {
    SharedText text("beach.mp4");
    const char* const words = text.get();
    const SharedText copy = text;
    SharedText assigned;
    assigned = copy;
    EXPECT_EQ(liveBlocks(), before + 1);
    EXPECT_EQ(copy.get(), words);
    EXPECT_EQ(assigned.get(), words);
    text = SharedText();
    EXPECT_STREQ(copy.get(), "beach.mp4") << "the copies hold the block";
  }
  EXPECT_EQ(liveBlocks(), before);
}

TEST(SharedText, IsMovedWithoutACopy) {
  const long long before = liveBlocks();
  SharedText text("beach.mp4");
  const char* const words = text.get();
  const SharedText moved = std::move(text);
  EXPECT_EQ(moved.get(), words);
  EXPECT_EQ(liveBlocks(), before + 1);
}

TEST(SharedText, MayBeAssignedToItself) {
  SharedText text("beach.mp4");
  const SharedText& same = text;
  text = same;
  EXPECT_STREQ(text.get(), "beach.mp4");
}

TEST(SharedText, EndsInAnyThread) {
  const long long before = liveBlocks();
  {
    const SharedText text("beach.mp4");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
      threads.emplace_back([copy = text] {
        for (int j = 0; j < 2000; ++j) const SharedText another = copy;
      });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_STREQ(text.get(), "beach.mp4");
  }
  EXPECT_EQ(liveBlocks(), before);
}

}  // namespace
