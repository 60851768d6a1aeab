// Walks over lists: what they lend, what they keep, and where they end.

#include <KyDataStructure/ref.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "ref/every_list.h"
#include "support/counted_note.h"

namespace {

// What a walk lends, as the list's own operations take it.
template <class T>
T element(const T& lent) {
  return lent;
}
template <class Object>
Object* element(const ZOL::Ref<Object>& lent) {
  return lent.get();
}
const char* element(const std::string& lent) { return lent.c_str(); }

ZOL::Ref<ZOL::ZOLIntList> ints(std::initializer_list<int> numbers) {
  auto list = ZOL::make<ZOL::ZOLIntList>();
  for (const int number : numbers) list->add(number);
  return list;
}

TEST(Each, LendsAllElementsOfEveryListInOrder) {
  const int lists = forEveryList([](auto tag) {
    using List = typename decltype(tag)::Type;
    const Elements<List> elements;
    const auto list = listOf<List>(elements, "cabi");
    std::string letters;
    for (const auto& lent : ZOL::each(list)) letters += Elements<List>::letter(element(lent));
    EXPECT_EQ(letters, "cabi");
    EXPECT_EQ(list->refCount(), 1);
    if constexpr (std::is_same_v<List, ZOL::ZOLAutoVoidPtrList>) list->clear();
  });
  EXPECT_EQ(lists, 51);
}

TEST(Each, KeepsTheElementsOfObjectListsWhileTheyAreLent) {
  const int lists = forEveryList([](auto tag) {
    using List = typename decltype(tag)::Type;
    if constexpr (std::is_pointer_v<typename List::Element>) {
      using Object = std::remove_pointer_t<typename List::Element>;
      if constexpr (std::is_base_of_v<ZOL::IDmBaseObj, Object>) {
        const Elements<List> elements;
        const auto list = listOf<List>(elements, "ab");
        for (const ZOL::Ref<Object>& lent : ZOL::each(list)) {
          const char letter = Elements<List>::letter(lent.get());
          EXPECT_EQ(elements.references(letter), 2) << "the list's and the walk's";
          list->setAt(0, nullptr);
          list->setAt(1, nullptr);
          EXPECT_EQ(elements.references(letter), 1) << "the walk's";
          break;
        }
        EXPECT_EQ(elements.references('a') + elements.references('b'), 0);
      }
    }
  });
  EXPECT_EQ(lists, 51);
}

TEST(Each, LendsNothingOfNewListsAndOfNoList) {
  forEveryList([](auto tag) {
    using List = typename decltype(tag)::Type;
    for (const auto& lent : ZOL::each(ZOL::make<List>())) ADD_FAILURE() << sizeof lent;
    for (const auto& lent : ZOL::each(ZOL::Ref<List>())) ADD_FAILURE() << sizeof lent;
  });
}

TEST(Each, LendsANullElementAsAnEmptyRef) {
  const auto list = ZOL::make<ZOL::ZOLBaseObjectList>();
  const auto text = ZOL::make<ZOL::IZolString>();
  list->add(nullptr);
  list->add(text.get());
  list->add(nullptr);
  const auto walk = ZOL::each(list);
  const std::vector<ZOL::Ref<ZOL::IDmBaseObj>> lent(walk.begin(), walk.end());
  ASSERT_EQ(lent.size(), 3U);
  EXPECT_FALSE(lent[0]);
  EXPECT_EQ(lent[1], text);
  EXPECT_FALSE(lent[2]);
  EXPECT_EQ(text->refCount(), 3);
}

TEST(Each, LendsTextsAndValuesThatOutliveTheList) {
  auto texts = ZOL::make<ZOL::ZOLPCharList>();
  texts->add("a text that is longer than a string object");
  auto valueList = ZOL::make<ZOL::ZolValueList>();
  valueList->add(ZOL::ZolValue("another text, which is as long as that"));
  std::string text;
  ZOL::ZolValue value;
  for (const auto& lent : ZOL::each(std::move(texts))) text = lent;
  for (const auto& lent : ZOL::each(std::move(valueList))) value = lent;
  EXPECT_EQ(text, "a text that is longer than a string object");
  EXPECT_STREQ(value.charValue(), "another text, which is as long as that");
}

TEST(Each, KeepsAListThatNobodyElseHolds) {
  std::string numbers;
  for (const int number : ZOL::each(ints({1, 2, 3}))) numbers += std::to_string(number);
  EXPECT_EQ(numbers, "123");
}

TEST(Each, KeepsALentListWhoseHolderEndsMeanwhile) {
  auto clip = ZOL::make<ZOL::IZolSmartCutClipInfo>();
  {
    const auto list = ZOL::make<ZOL::IZolTextInfoList>();
    list->add(ZOL::make<ZOL::IZolTextInfo>().get());
    list->add(ZOL::make<ZOL::IZolTextInfo>().get());
    clip.as<ZOL::IZolSmartCutClipInfoInternal>()->setTextInfoList(list.get());
  }
  int rows = 0;
  for (const auto& row : ZOL::each(ZOL::share(clip->textInfoList()))) {
    clip.reset();
    EXPECT_STREQ(row->text(), "");
    ++rows;
  }
  EXPECT_EQ(rows, 2);
}

TEST(Each, DoesNotWalkWhatIsAppendedMeanwhile) {
  const auto list = ints({1, 2, 3});
  std::string numbers;
  for (const int number : ZOL::each(list)) {
    numbers += std::to_string(number);
    list->add(number + 3);
  }
  EXPECT_EQ(numbers, "123");
  EXPECT_EQ(list->size(), 6);
}

TEST(Each, EndsWhereAListEndsThatShrinksMeanwhile) {
  const auto list = ints({1, 2, 3, 4});
  std::string numbers;
  for (const int number : ZOL::each(list)) {
    numbers += std::to_string(number);
    list->removeAt(0);
  }
  EXPECT_EQ(numbers, "13") << "step i takes what stands at i by then";

  numbers.clear();
  for (const int number : ZOL::each(list)) {
    numbers += std::to_string(number);
    list->clear();
  }
  EXPECT_EQ(numbers, "3");
}

TEST(Each, KeepsALentObjectThatIsRemovedMeanwhile) {
  std::string diary;
  const auto list = ZOL::make<ZOL::ZOLBaseObjectList>();
  list->add(ZOL::adopt(new Note("a", &diary)).get());
  diary.clear();
  for (const auto& lent : ZOL::each(list)) {
    list->clear();
    EXPECT_EQ(diary, "a+ a-");
    EXPECT_EQ(lent->refCount(), 1);
  }
  EXPECT_EQ(diary, "a+ a- a- a!");
}

TEST(Each, GivesEverythingUpWhenAnExceptionPasses) {
  const auto text = ZOL::make<ZOL::IZolString>();
  const auto list = ZOL::make<ZOL::ZOLBaseObjectList>();
  list->add(text.get());
  try {
    for (const auto& lent : ZOL::each(list)) throw std::runtime_error(lent ? "some" : "none");
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "some");
  }
  EXPECT_EQ(text->refCount(), 2);
  EXPECT_EQ(list->refCount(), 1);
}

TEST(Each, ServesTheStandardAlgorithms) {
  const auto walk = ZOL::each(ints({5, 6, 7}));
  EXPECT_EQ(std::accumulate(walk.begin(), walk.end(), 0), 18);
  EXPECT_EQ(std::distance(walk.begin(), walk.end()), 3);
  EXPECT_EQ(*std::find(walk.begin(), walk.end(), 6), 6);
  EXPECT_EQ(std::find(walk.begin(), walk.end(), 8), walk.end());
  auto place = walk.begin();
  EXPECT_EQ(*place++, 5);
  EXPECT_NE(place, walk.begin());
  EXPECT_EQ(place, ++walk.begin());
}

}  // namespace
