// What the list of copied texts does beyond the common contract.

#include <KyDataStructure/lists.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/held.h"
#include "support/show.h"

namespace {

TEST(PCharList, CopiesATextInAndLendsItsOwn) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  char text[] = "door";
  EXPECT_EQ(list->add(text), 0);
  EXPECT_NE(list->at(0), text);
  EXPECT_STREQ(list->at(0), "door");
  text[0] = 'p';
  EXPECT_EQ(show(list), "[\"door\"]");
  EXPECT_EQ(list->at(0), list->at(0)) << "lent, and not copied again";
}

TEST(PCharList, AnswersNullOutsideTheRange) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  EXPECT_EQ(list->at(0), nullptr);
  list->add("");
  EXPECT_STREQ(list->at(0), "");
  EXPECT_EQ(list->at(1), nullptr);
  EXPECT_EQ(list->at(-1), nullptr);
}

TEST(PCharList, TakesATextUpToItsFirstZero) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  list->add("one\0two");
  EXPECT_EQ(show(list), "[\"one\"]");
}

TEST(PCharList, TakesANullTextAsTheEmptyText) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  EXPECT_EQ(list->add(nullptr), 0);
  EXPECT_EQ(list->insertAt(0, nullptr), 0);
  EXPECT_EQ(list->add("x"), 0);
  EXPECT_EQ(list->setAt(2, nullptr), 0);
  EXPECT_EQ(show(list), "[\"\", \"\", \"\"]");
}

TEST(PCharList, AssignedListsAreIndependent) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  Held<ZOL::ZOLPCharList> other(createZOLPCharList());
  list->add("a");
  list->add("b");
  EXPECT_EQ(other->assign(list.get()), 0);
  list->setAt(0, "changed");
  EXPECT_EQ(show(other), "[\"a\", \"b\"]");
  EXPECT_EQ(other->insertListAt(1, list.get()), 0);
  list->clear();
  EXPECT_EQ(show(other), "[\"a\", \"changed\", \"b\", \"b\"]");
}

TEST(PCharList, SortShowsTheTextsToTheCallersFunction) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  for (const char* text : {"pear", "fig", "a text that is longer than most", "apple"}) {
    list->add(text);
  }
  EXPECT_EQ(list->sort([](const char* a, const char* b) { return std::strcmp(a, b) < 0; }), 0);
  EXPECT_EQ(show(list), "[\"a text that is longer than most\", \"apple\", \"fig\", \"pear\"]");
}

TEST(PCharList, FindHandsTheKeyThroughAsItIs) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  list->add("one");
  list->add("two");
  EXPECT_EQ(list->find("two", [](const char* a, const char* b) { return std::strcmp(a, b) == 0; }),
            1);
  EXPECT_EQ(list->find(nullptr, [](const char*, const char* key) { return key == nullptr; }), 0);
}

TEST(PCharList, MayAddATextOfItsOwn) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  list->add("a text that is too long to stand in the element itself");
  for (int i = 0; i < 20; ++i) list->add(list->at(0));
  list->insertAt(0, list->at(20));
  EXPECT_STREQ(list->at(0), "a text that is too long to stand in the element itself");
  EXPECT_STREQ(list->at(21), "a text that is too long to stand in the element itself");
}

}  // namespace
