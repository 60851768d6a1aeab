// Lists that a caller has made: they may be handed in wherever a list is asked for,
// and the library takes nothing from them.

#include <gtest/gtest.h>

#include <string>

#include "lists/foreign_list.h"
#include "lists/list_without_type_information.h"
#include "support/counted_note.h"
#include "support/held.h"
#include "support/show.h"

namespace {

TEST(ForeignList, KeepsTheContractByItself) {
  ForeignList<ZOL::ZOLIntList> foreign;
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  list->add(1);
  list->add(2);
  foreign.add(8);
  EXPECT_EQ(foreign.insertListAt(1, list.get()), 0);
  EXPECT_EQ(show(&foreign), "[8, 1, 2]") << "it takes what the library refuses";
}

TEST(ForeignList, IsRefused) {
  ForeignList<ZOL::ZOLIntList> foreign;
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  foreign.add(8);
  list->add(1);
  EXPECT_EQ(list->assign(&foreign), 1001);
  EXPECT_EQ(list->insertListAt(0, &foreign), 1001);
  EXPECT_EQ(list->insertListAt(1, &foreign), 1001);
  EXPECT_EQ(show(list), "[1]");
}

TEST(ForeignList, IsRefusedWhenItForwardsToARealOne) {
  Held<ZOL::ZOLIntList> real(createZOLIntList());
  real->add(8);
  ForwardingList<ZOL::ZOLIntList> foreign(real.get());
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  list->add(1);
  ASSERT_EQ(ZOL::query<ZOL::ZOLIntList>(&foreign), real.get());
  EXPECT_EQ(list->assign(&foreign), 1001);
  EXPECT_EQ(list->insertListAt(0, &foreign), 1001);
  EXPECT_EQ(show(list), "[1]");
}

TEST(ForeignList, IsRefusedWhenItForwardsToTheVeryListThatAsks) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  list->add(1);
  ForwardingList<ZOL::ZOLIntList> foreign(list.get());
  EXPECT_EQ(list->assign(&foreign), 1001);
  EXPECT_EQ(list->insertListAt(0, &foreign), 1001);
  EXPECT_EQ(show(list), "[1]");
}

TEST(ForeignList, IsRefusedWithoutTypeInformation) {
  ZOL::ZOLIntList* const foreign = listWithoutTypeInformation();
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  list->add(1);
  ASSERT_EQ(show(foreign), "[8, 9]");
  EXPECT_EQ(list->assign(foreign), 1001);
  EXPECT_EQ(list->insertListAt(0, foreign), 1001);
  EXPECT_EQ(show(list), "[1]");
}

TEST(ForeignList, OfObjectsIsRefusedWithoutTypeInformation) {
  std::string diary;
  Held<GpuNote> gpu(new GpuNote("gpu", &diary));
  ZOL::IGpuInfoList* const foreign = gpuListWithoutTypeInformation();
  foreign->add(gpu.get());
  Held<ZOL::IGpuInfoList> list(createIGpuInfoList());
  list->add(gpu.get());
  EXPECT_EQ(list->assign(foreign), 1001);
  EXPECT_EQ(list->insertListAt(1, foreign), 1001);
  EXPECT_EQ(list->size(), 1);
  EXPECT_EQ(gpu->refCount(), 2);
  foreign->clear();
}

}  // namespace
