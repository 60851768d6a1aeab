// Lists of plain values, read in place.

#include <KyDataStructure/ref.h>
#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <utility>

#include "lists/foreign_list.h"
#include "ref/every_list.h"

namespace {

TEST(Values, ShowTheArrayOfEveryListOfPlainValues) {
  int lists = 0;
  forEveryList([&lists](auto tag) {
    using List = typename decltype(tag)::Type;
    if constexpr (ZOL::refDetail::holdsPlainValues<List>) {
      const Elements<List> elements;
      const auto list = listOf<List>(elements, "bdc");
      const auto view = ZOL::values(list);
      EXPECT_EQ(view.data(), list->queryInterface(ZOL::kListData));
      EXPECT_EQ(view.size(), 3U);
      EXPECT_FALSE(view.empty());
      EXPECT_EQ(Elements<List>::letter(view[1]), 'd');
      std::string letters;
      for (const auto& value : view) letters += Elements<List>::letter(value);
      EXPECT_EQ(letters, "bdc");
      ++lists;
    }
  });
  // Nine of numbers and of pointers that nobody owns, twelve of records.
  EXPECT_EQ(lists, 21);
}

TEST(Values, OfAListWithoutAnArrayAreEmpty) {
  const auto list = ZOL::make<ZOL::ZOLREALList>();
  ASSERT_EQ(list->queryInterface(ZOL::kListData), nullptr);
  const auto view = ZOL::values(list);
  EXPECT_TRUE(view.empty());
  EXPECT_EQ(view.size(), 0U);
  EXPECT_EQ(view.begin(), view.end());
  EXPECT_EQ(view.data(), nullptr);
}

TEST(Values, OfAListThatWasClearedAreEmpty) {
  const auto list = ZOL::make<ZOL::ZOLREALList>();
  list->add(2.5);
  list->clear();
  ASSERT_NE(list->queryInterface(ZOL::kListData), nullptr);
  EXPECT_TRUE(ZOL::values(list).empty());
}

TEST(Values, OfNoListAreEmpty) { EXPECT_TRUE(ZOL::values(ZOL::Ref<ZOL::ZOLIntList>()).empty()); }

// A list of a caller's own, which has elements and shows no array.
class ListWithoutArray final : public ForeignList<ZOL::ZOLIntList> {
 public:
  void* queryInterface(const char* /*name*/) override { return nullptr; }
};

TEST(Values, OfAListThatDoesNotAnswerItsArrayAreEmpty) {
  ListWithoutArray foreign;
  foreign.add(4);
  EXPECT_TRUE(ZOL::values(ZOL::Ref<ZOL::ZOLIntList>::share(&foreign)).empty());
}

TEST(Values, KeepTheirList) {
  auto list = ZOL::make<ZOL::ZOLIntList>();
  list->add(40);
  list->add(2);
  auto view = ZOL::values(std::move(list));
  EXPECT_EQ(std::accumulate(view.begin(), view.end(), 0), 42);
}

TEST(Values, AreWholeAfterAMove) {
  auto list = ZOL::make<ZOL::ZOLIntList>();
  list->add(7);
  auto view = ZOL::values(list);
  const auto moved = std::move(view);
  EXPECT_EQ(list->refCount(), 3);
  EXPECT_EQ(view[0] + moved[0], 14);  // NOLINT(bugprone-use-after-move): on purpose a copy
}

}  // namespace
