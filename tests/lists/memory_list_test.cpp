// What the list of owned memory does with its blocks.

#include <KyDataStructure/lists.h>
#include <gtest/gtest.h>

#include "support/heap_watch.h"
#include "support/held.h"

namespace {

class AutoVoidPtrList : public testing::Test {
 protected:
  WatchedBlock a;  // the blocks outlive the list
  WatchedBlock b;
  WatchedBlock c;
  Held<ZOL::ZOLAutoVoidPtrList> list{createZOLAutoVoidPtrList()};
};

TEST_F(AutoVoidPtrList, LendsTheBarePointer) {
  EXPECT_EQ(list->add(a.memory()), 0);
  EXPECT_EQ(list->at(0), a.memory());
  EXPECT_EQ(list->at(1), nullptr);
  EXPECT_EQ(a.timesFreed(), 0);
}

TEST_F(AutoVoidPtrList, RemoveAtFreesTheMemoryOnce) {
  list->add(a.memory());
  list->add(b.memory());
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(a.timesFreed(), 1);
  EXPECT_EQ(b.timesFreed(), 0);
  list.reset();
  EXPECT_EQ(a.timesFreed(), 1);
  EXPECT_EQ(b.timesFreed(), 1);
}

TEST_F(AutoVoidPtrList, ClearFreesEachBlockOnce) {
  list->add(a.memory());
  list->insertAt(0, b.memory());
  EXPECT_EQ(list->clear(), 0);
  EXPECT_EQ(a.timesFreed(), 1);
  EXPECT_EQ(b.timesFreed(), 1);
}

TEST_F(AutoVoidPtrList, SetAtFreesTheOldBlock) {
  list->add(a.memory());
  EXPECT_EQ(list->setAt(0, b.memory()), 0);
  EXPECT_EQ(a.timesFreed(), 1);
  EXPECT_EQ(b.timesFreed(), 0);
  EXPECT_EQ(list->at(0), b.memory());
}

TEST_F(AutoVoidPtrList, SetAtBehindTheLastOwnsTheBlockUntilTheNextChange) {
  list->add(a.memory());
  EXPECT_EQ(list->setAt(1, b.memory()), 0);
  EXPECT_EQ(b.timesFreed(), 0);
  EXPECT_EQ(list->setAt(1, c.memory()), 0);
  EXPECT_EQ(b.timesFreed(), 1);
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(a.timesFreed(), 1);
  EXPECT_EQ(c.timesFreed(), 1);
}

TEST_F(AutoVoidPtrList, FreesTheBlockBehindTheLastWhenItEnds) {
  list->setAt(0, a.memory());
  list.reset();
  EXPECT_EQ(a.timesFreed(), 1);
}

TEST_F(AutoVoidPtrList, TakesNull) {
  EXPECT_EQ(list->add(nullptr), 0);
  EXPECT_EQ(list->size(), 1);
  EXPECT_EQ(list->at(0), nullptr);
  EXPECT_EQ(list->removeAt(0), 0);
}

TEST_F(AutoVoidPtrList, MovesItsOwnersWhenItSortsAndGrows) {
  for (const WatchedBlock* block : {&c, &a, &b}) list->add(block->memory());
  for (int i = 0; i < 100; ++i) list->add(nullptr);
  EXPECT_EQ(list->sort([](void* x, void* y) { return x < y; }), 0);
  EXPECT_EQ(list->find(c.memory(), [](void* x, void* y) { return x == y; }) >= 100, true);
  EXPECT_EQ(a.timesFreed() + b.timesFreed() + c.timesFreed(), 0);
  list.reset();
  EXPECT_EQ(a.timesFreed(), 1);
  EXPECT_EQ(b.timesFreed(), 1);
  EXPECT_EQ(c.timesFreed(), 1);
}

// Each list is an owner that knows of no other. The blocks here bear being given
// back twice; a caller's do not.
TEST_F(AutoVoidPtrList, AssignMakesASecondOwnerWithNoCountBetweenThem) {
  Held<ZOL::ZOLAutoVoidPtrList> other(createZOLAutoVoidPtrList());
  list->add(a.memory());
  EXPECT_EQ(other->assign(list.get()), 0);
  EXPECT_EQ(a.timesFreed(), 0);
  other.reset();
  EXPECT_EQ(a.timesFreed(), 1);
  list.reset();
  EXPECT_EQ(a.timesFreed(), 2);
}

TEST_F(AutoVoidPtrList, InsertListAtMakesASecondOwnerWithNoCountBetweenThem) {
  Held<ZOL::ZOLAutoVoidPtrList> other(createZOLAutoVoidPtrList());
  list->add(a.memory());
  list->add(b.memory());
  EXPECT_EQ(other->insertListAt(0, list.get()), 0);
  list.reset();
  EXPECT_EQ(a.timesFreed(), 1);
  EXPECT_EQ(b.timesFreed(), 1);
  other.reset();
  EXPECT_EQ(a.timesFreed(), 2);
  EXPECT_EQ(b.timesFreed(), 2);
}

TEST_F(AutoVoidPtrList, AssignToItselfFreesOnceAndEmpties) {
  list->add(a.memory());
  EXPECT_EQ(list->assign(list.get()), 0);
  EXPECT_EQ(list->size(), 0);
  list.reset();
  EXPECT_EQ(a.timesFreed(), 1);
}

TEST_F(AutoVoidPtrList, RefusalsTakeNothingOver) {
  EXPECT_EQ(list->insertAt(1, a.memory()), 1001);
  EXPECT_EQ(list->setAt(1, a.memory()), 1001);
  EXPECT_EQ(list->insertAt(-1, a.memory()), 1001);
  list.reset();
  EXPECT_EQ(a.timesFreed(), 0);
}

}  // namespace
