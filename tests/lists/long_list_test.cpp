// Lists of many elements. Nothing is timed here: an operation that moved all later
// elements for each one that it takes would not finish.

#include <KyDataStructure/lists.h>
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "support/held.h"
#include "support/show.h"

namespace {

constexpr int kMany = 100000;

Held<ZOL::ZOLIntList> manyNumbers(int first) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  for (int i = 0; i < kMany; ++i) list->add(first + i);
  return list;
}

// Where the list first differs from what a function of the index expects; -1 if
// nowhere.
template <class List, class Expected>
long long firstDifference(List& list, Expected expected) {
  for (long long i = 0; i < list.size(); ++i) {
    if (list.at(i) != expected(i)) return i;
  }
  return -1;
}

TEST(LongList, AssignsAHundredThousandNumbers) {
  const auto from = manyNumbers(5);
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  EXPECT_EQ(list->assign(from.get()), 0);
  EXPECT_EQ(list->size(), kMany);
  EXPECT_EQ(firstDifference(*list, [](long long i) { return 5 + i; }), -1);
}

TEST(LongList, InsertsAHundredThousandNumbersInTheMiddle) {
  const auto list = manyNumbers(0);
  const auto other = manyNumbers(kMany);
  EXPECT_EQ(list->insertListAt(10, other.get()), 0);
  EXPECT_EQ(list->size(), 2 * kMany);
  EXPECT_EQ(firstDifference(*list,
                            [](long long i) {
                              if (i < 10) return i;
                              return i < 10 + kMany ? kMany + i - 10 : i - kMany;
                            }),
            -1);
}

TEST(LongList, InsertsAHundredThousandNumbersBehindThemselves) {
  const auto list = manyNumbers(0);
  EXPECT_EQ(list->insertListAt(kMany, list.get()), 0);
  EXPECT_EQ(list->size(), 2 * kMany);
  EXPECT_EQ(firstDifference(*list, [](long long i) { return i % kMany; }), -1);
}

// The rule done literally, which a deque does fast at its front.
TEST(LongList, InsertsAHundredThousandNumbersBeforeThemselves) {
  const auto list = manyNumbers(0);
  std::deque<int> model;
  for (int i = 0; i < kMany; ++i) model.push_back(i);
  for (std::size_t position = kMany; position-- > 0;) {
    const int element = model[position];
    model.push_front(element);
  }
  EXPECT_EQ(list->insertListAt(0, list.get()), 0);
  ASSERT_EQ(list->size(), 2 * kMany);
  EXPECT_EQ(
      firstDifference(*list, [&model](long long i) { return model[static_cast<std::size_t>(i)]; }),
      -1);
}

TEST(LongList, InsertsIntoItselfAsTheModelDoes) {
  constexpr long long kSize = 2000;
  for (const long long index : {0LL, 1LL, 700LL, 1000LL, 1999LL, 2000LL}) {
    Held<ZOL::ZOLIntList> list(createZOLIntList());
    std::vector<int> model;
    for (int i = 0; i < kSize; ++i) {
      list->add(i);
      model.push_back(i);
    }
    for (long long position = kSize; position-- > 0;) {
      const int element = model[static_cast<std::size_t>(position)];
      model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), element);
    }
    EXPECT_EQ(list->insertListAt(index, list.get()), 0);
    ASSERT_EQ(list->size(), 2 * kSize);
    EXPECT_EQ(firstDifference(*list,
                              [&model](long long i) { return model[static_cast<std::size_t>(i)]; }),
              -1)
        << "at " << index;
  }
}

TEST(LongList, AssignsAndInsertsAHundredThousandTexts) {
  Held<ZOL::ZOLPCharList> from(createZOLPCharList());
  for (int i = 0; i < kMany; ++i) from->add(std::to_string(i).c_str());
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  EXPECT_EQ(list->assign(from.get()), 0);
  EXPECT_EQ(list->insertListAt(1, from.get()), 0);
  EXPECT_EQ(list->size(), 2 * kMany);
  EXPECT_EQ(firstDifference(*list,
                            [](long long i) {
                              if (i == 0) return std::string("0");
                              return std::to_string(i <= kMany ? i - 1 : i - kMany);
                            }),
            -1);
}

TEST(LongList, AssignsAndInsertsAHundredThousandObjects) {
  Held<ZOL::IZolString> text(createZolString());
  Held<ZOL::ZOLBaseObjectList> from(createZOLBaseObjectList());
  for (int i = 0; i < kMany; ++i) from->add(text.get());
  Held<ZOL::ZOLBaseObjectList> list(createZOLBaseObjectList());
  EXPECT_EQ(list->assign(from.get()), 0);
  EXPECT_EQ(list->insertListAt(0, from.get()), 0);
  EXPECT_EQ(list->insertListAt(7, list.get()), 0);
  EXPECT_EQ(text->refCount(), 1 + 5 * kMany);
  list.reset();
  from->clear();
  EXPECT_EQ(text->refCount(), 1);
}

TEST(LongList, SortsAHundredThousandNumbers) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  for (long long i = 0; i < kMany; ++i) list->add(static_cast<int>(i * 7919 % kMany));
  EXPECT_EQ(list->sort([](int a, int b) { return a < b; }), 0);
  EXPECT_EQ(firstDifference(*list, [](long long i) { return i; }), -1);
}

}  // namespace
