// Search results and the stage report.

#include <KyDataStructure/search.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "lists/foreign_list.h"
#include "support/callers_object.h"
#include "support/calling_hook.h"
#include "support/held.h"
#include "support/show.h"

namespace {

template <class Object>
Held<Object> hold(Object* object) {
  return Held<Object>(object);
}

std::string keysOf(ZOL::IZolSmartCutSearchResult& result) {
  const auto keys = hold(createZOLIntList());
  keys->add(77);
  EXPECT_EQ(result.getDimensionKeys(keys.get()), 0);
  return show(keys.get());
}

}  // namespace

TEST(SearchResult, ANewOneIsEmpty) {
  const auto result = hold(createSmartCutSearchResult());
  EXPECT_EQ(result->roleInfoList(), nullptr);
  EXPECT_STREQ(result->firstText(), "");
  EXPECT_STREQ(result->secondText(), "");
  EXPECT_STREQ(result->thirdText(), "");
  EXPECT_EQ(result->dimensionResult(0), nullptr);
  EXPECT_EQ(keysOf(*result), "[]");
}

TEST(SearchResult, KeepsItsTextsApartAndRefusesNull) {
  const auto result = hold(createSmartCutSearchResult());
  EXPECT_EQ(result->setFirstText("a"), 0);
  EXPECT_EQ(result->setSecondText("b"), 0);
  EXPECT_EQ(result->setThirdText("c"), 0);
  EXPECT_EQ(result->setFirstText(nullptr), 1001);
  EXPECT_EQ(result->setSecondText(nullptr), 1001);
  EXPECT_EQ(result->setThirdText(nullptr), 1001);
  EXPECT_EQ(std::string(result->firstText()) + result->secondText() + result->thirdText(), "abc");
}

TEST(SearchResult, GivesItsKeysAscendingInThePlaceOfWhatTheListHeld) {
  const auto result = hold(createSmartCutSearchResult());
  const auto dimension = hold(createSmartCutSearchDimensionsResult());
  for (int key : {3, 1, -5}) EXPECT_EQ(result->setDimensionResult(key, dimension.get()), 0);
  EXPECT_EQ(keysOf(*result), "[-5, 1, 3]");
  EXPECT_EQ(result->getDimensionKeys(nullptr), 1001);
}

TEST(SearchResult, AskingForAKeyMakesNoEntry) {
  const auto result = hold(createSmartCutSearchResult());
  EXPECT_EQ(result->dimensionResult(9), nullptr);
  EXPECT_EQ(keysOf(*result), "[]");
}

TEST(SearchResult, ReplacesAndRemovesResultsWithTheirReferences) {
  const auto result = hold(createSmartCutSearchResult());
  const auto first = hold(createSmartCutSearchDimensionsResult());
  const auto second = hold(createSmartCutSearchDimensionsResult());
  EXPECT_EQ(result->setDimensionResult(3, first.get()), 0);
  EXPECT_EQ(first->refCount(), 2);
  EXPECT_EQ(result->setDimensionResult(3, first.get()), 0);
  EXPECT_EQ(first->refCount(), 2);
  EXPECT_EQ(result->setDimensionResult(3, second.get()), 0);
  EXPECT_EQ(first->refCount(), 1);
  EXPECT_EQ(result->dimensionResult(3), second.get());
  EXPECT_EQ(second->refCount(), 2);
  EXPECT_EQ(result->setDimensionResult(3, nullptr), 1001);
  EXPECT_EQ(result->setDimensionResult(4, nullptr), 1001);
  EXPECT_EQ(keysOf(*result), "[3]");
  EXPECT_EQ(result->removeDimensionResult(9), 0);
  EXPECT_EQ(result->removeDimensionResult(3), 0);
  EXPECT_EQ(second->refCount(), 1);
  EXPECT_EQ(keysOf(*result), "[]");
}

// The one entry and one of several: neither is to be met again while it ends.
TEST(SearchResult, HasLetGoOfAResultBeforeTheResultEnds) {
  for (const bool alone : {true, false}) {
    const auto result = hold(createSmartCutSearchResult());
    const auto late = hold(createSmartCutSearchDimensionsResult());
    CallingHook hook([&] {
      EXPECT_EQ(result->dimensionResult(3), nullptr);
      EXPECT_EQ(keysOf(*result), alone ? "[]" : "[1]");
      EXPECT_EQ(result->removeDimensionResult(3), 0);
      EXPECT_EQ(result->setDimensionResult(5, late.get()), 0);
    });
    if (!alone) result->setDimensionResult(1, late.get());
    {
      const auto ending = hold(createSmartCutSearchDimensionsResult());
      ending->setReleaseHook(&hook);
      result->setDimensionResult(3, ending.get());
    }
    EXPECT_EQ(result->removeDimensionResult(3), 0);
    EXPECT_EQ(hook.calls, 1);
    EXPECT_EQ(keysOf(*result), alone ? "[5]" : "[1, 5]");
    EXPECT_EQ(result->dimensionResult(5), late.get());
  }
}

TEST(SearchResult, GivesItsKeysToAListThatChangesTheResults) {
  class Removing final : public ForeignList<ZOL::ZOLIntList> {
   public:
    explicit Removing(ZOL::IZolSmartCutSearchResult& result) : result_(result) {}
    int add(int key) override {
      result_.removeDimensionResult(key);
      return ForeignList::add(key);
    }

   private:
    ZOL::IZolSmartCutSearchResult& result_;
  };
  const auto result = hold(createSmartCutSearchResult());
  const auto dimension = hold(createSmartCutSearchDimensionsResult());
  for (int key : {1, 2, 3}) result->setDimensionResult(key, dimension.get());
  Removing keys(*result);
  EXPECT_EQ(result->getDimensionKeys(&keys), 0);
  EXPECT_EQ(show(&keys), "[1, 2, 3]");
  EXPECT_EQ(keysOf(*result), "[]");
}

TEST(SearchResult, KeepsAResultThatRemovesItWhileItIsKept) {
  class Removing final : public CallersObject<ZOL::IZolSmartCutSearchDimensionsResult> {
   public:
    explicit Removing(ZOL::IZolSmartCutSearchResult& result) : result_(result) {}
    int addRef() override {
      result_.removeDimensionResult(4);
      return CallersObject::addRef();
    }
    int dimensionValue() override { return 0; }
    int setDimensionValue(int) override { return 0; }
    ZOL::IZolSmartCutSearchDimensionsResultItemList* resultItemList() override { return nullptr; }

   private:
    ZOL::IZolSmartCutSearchResult& result_;
  };
  const auto result = hold(createSmartCutSearchResult());
  Removing removing(*result);
  EXPECT_EQ(result->setDimensionResult(4, &removing), 0);
  EXPECT_EQ(result->dimensionResult(4), &removing);
  EXPECT_EQ(result->removeDimensionResult(4), 0);
}

TEST(SearchResult, KeepsTheListOfRolesItself) {
  auto result = hold(createSmartCutSearchResult());
  const auto roles = hold(createIZolRoleSearchItemInfoList());
  EXPECT_EQ(result->setRoleInfoList(roles.get()), 0);
  EXPECT_EQ(result->setRoleInfoList(roles.get()), 0);
  EXPECT_EQ(roles->refCount(), 2);
  EXPECT_EQ(result->setRoleInfoList(nullptr), 1001);
  EXPECT_EQ(result->roleInfoList(), roles.get());
  result.reset();
  EXPECT_EQ(roles->refCount(), 1);
}

TEST(SearchResult, DropsItsResultsBeforeItsRolesWhenItEnds) {
  Diary diary;
  DiaryHook dimensionEnds("dimension", diary);
  DiaryHook rolesEnd("roles", diary);
  auto result = hold(createSmartCutSearchResult());
  {
    const auto roles = hold(createIZolRoleSearchItemInfoList());
    const auto dimension = hold(createSmartCutSearchDimensionsResult());
    roles->setReleaseHook(&rolesEnd);
    dimension->setReleaseHook(&dimensionEnds);
    result->setRoleInfoList(roles.get());
    result->setDimensionResult(1, dimension.get());
  }
  EXPECT_EQ(diary.read(), "");
  result.reset();
  EXPECT_EQ(diary.read(), "dimension! roles!");
}

TEST(SearchDimension, ANewOneIsZeroWithAListOfItsOwn) {
  const auto dimension = hold(createSmartCutSearchDimensionsResult());
  EXPECT_EQ(dimension->dimensionValue(), 0);
  EXPECT_EQ(dimension->setDimensionValue(-4), 0);
  EXPECT_EQ(dimension->dimensionValue(), -4);
  ASSERT_NE(dimension->resultItemList(), nullptr);
  EXPECT_EQ(dimension->resultItemList()->size(), 0);
  const auto item = hold(createSmartCutSearchDimensionsResultItem());
  dimension->resultItemList()->add(item.get());
  EXPECT_EQ(dimension->resultItemList()->at(0), item.get());
}

TEST(SearchItem, ANewOneHasAnEmptyListOfRanges) {
  const auto item = hold(createSmartCutSearchDimensionsResultItem());
  EXPECT_STREQ(item->itemText(), "");
  EXPECT_EQ(item->itemImage(), nullptr);
  ASSERT_NE(item->rangeList(), nullptr);
  EXPECT_EQ(item->rangeList()->size(), 0);
  EXPECT_EQ(show(item->rangeList()->at(0)), "-1..-1");
}

TEST(SearchItem, KeepsItsImageAndRefusesNull) {
  auto item = hold(createSmartCutSearchDimensionsResultItem());
  const auto image = hold(createEmptyMediaData());
  EXPECT_EQ(item->setItemText("t"), 0);
  EXPECT_EQ(item->setItemText(nullptr), 1001);
  EXPECT_STREQ(item->itemText(), "t");
  EXPECT_EQ(item->setItemImage(image.get()), 0);
  EXPECT_EQ(item->setItemImage(nullptr), 1001);
  EXPECT_EQ(item->itemImage(), image.get());
  EXPECT_EQ(image->refCount(), 2);
  item.reset();
  EXPECT_EQ(image->refCount(), 1);
}

TEST(SearchItem, DropsItsRangesBeforeItsImageWhenItEnds) {
  Diary diary;
  DiaryHook rangesEnd("ranges", diary);
  DiaryHook imageEnds("image", diary);
  auto item = hold(createSmartCutSearchDimensionsResultItem());
  {
    const auto image = hold(createEmptyMediaData());
    image->setReleaseHook(&imageEnds);
    item->setItemImage(image.get());
  }
  item->rangeList()->setReleaseHook(&rangesEnd);
  item.reset();
  EXPECT_EQ(diary.read(), "ranges! image!");
}

TEST(SearchRole, KeepsItsImageUntilItEnds) {
  auto role = hold(createRoleSearchItemInfo());
  const auto image = hold(createBGRAData(1, 1, nullptr, 4, 0));
  EXPECT_STREQ(role->roleText(), "");
  EXPECT_EQ(role->roleImage(), nullptr);
  EXPECT_EQ(role->setRoleText("skipper"), 0);
  EXPECT_EQ(role->setRoleText(nullptr), 1001);
  EXPECT_STREQ(role->roleText(), "skipper");
  EXPECT_EQ(role->setRoleImage(image.get()), 0);
  EXPECT_EQ(role->setRoleImage(nullptr), 1001);
  EXPECT_EQ(role->roleImage()->dataSize(), 4);
  EXPECT_EQ(image->refCount(), 2);
  role.reset();
  EXPECT_EQ(image->refCount(), 1);
}

TEST(StageReport, TakesNullTextsAsEmpty) {
  const auto report = hold(createStageReportData(1, nullptr, 2, 3, nullptr, nullptr));
  EXPECT_EQ(report->stageType(), 1);
  EXPECT_EQ(report->stageStatus(), 2);
  EXPECT_EQ(report->stageCode(), 3);
  EXPECT_STREQ(report->stageName(), "");
  EXPECT_STREQ(report->stageMessage(), "");
  EXPECT_STREQ(report->stageDetail(), "");
}

TEST(StageReport, CopiesItsTextsInTheirOrder) {
  char text[] = "name";
  const auto report = hold(createStageReportData(4, text, 5, 6, "message", "detail"));
  std::memset(text, 'x', sizeof(text) - 1);
  EXPECT_STREQ(report->stageName(), "name");
  EXPECT_STREQ(report->stageMessage(), "message");
  EXPECT_STREQ(report->stageDetail(), "detail");
}
