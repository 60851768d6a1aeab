// Carriers of search results: results by dimension, their items, and roles. Fields are
// declared so that they end in the right order, last one first.

#include <KyDataStructure/search.h>

#include <map>
#include <utility>
#include <vector>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

class ZolRoleSearchItemInfo final
    : public Counted<Virtually<IZolRoleSearchItemInfo>, Virtually<RefCnt<void>>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolRoleSearchItemInfo, IDmBaseObj>(this, name);
  }

  const char* roleText() override { return roleText_.get(); }
  int setRoleText(const char* text) override { return roleText_.set(text); }
  IZolMediaData* roleImage() override { return roleImage_.get(); }
  int setRoleImage(IZolMediaData* image) override { return roleImage_.setUnlessNull(image); }

 private:
  TextRefusingNull roleText_;
  Kept<IZolMediaData> roleImage_;
};

class ZolSmartCutSearchDimensionsResultItem final
    : public Counted<Virtually<IZolSmartCutSearchDimensionsResultItem>, Virtually<RefCnt<void>>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolSmartCutSearchDimensionsResultItem, IDmBaseObj>(this, name);
  }

  const char* itemText() override { return itemText_.get(); }
  int setItemText(const char* text) override { return itemText_.set(text); }
  IZolMediaData* itemImage() override { return itemImage_.get(); }
  int setItemImage(IZolMediaData* image) override { return itemImage_.setUnlessNull(image); }
  ZOLRangeList* rangeList() override { return rangeList_.get(); }

 private:
  TextRefusingNull itemText_;
  Kept<IZolMediaData> itemImage_;
  OwnedList<ZOLRangeList, createZOLRangeList> rangeList_;
};

class ZolSmartCutSearchDimensionsResult final
    : public Counted<Virtually<IZolSmartCutSearchDimensionsResult>, Virtually<RefCnt<void>>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolSmartCutSearchDimensionsResult, IDmBaseObj>(this, name);
  }

  int dimensionValue() override { return dimensionValue_.get(); }
  int setDimensionValue(int value) override { return dimensionValue_.set(value); }
  IZolSmartCutSearchDimensionsResultItemList* resultItemList() override {
    return resultItemList_.get();
  }

 private:
  Plain<int> dimensionValue_;
  OwnedList<IZolSmartCutSearchDimensionsResultItemList,
            createIZolSmartCutSearchDimensionsResultItemList>
      resultItemList_;
};

class ZolSmartCutSearchResult final
    : public Counted<RefCnt<void>, Virtually<IZolSmartCutSearchResult>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolSmartCutSearchResult, IDmBaseObj>(this, name);
  }

  IZolRoleSearchItemInfoList* roleInfoList() override { return roleInfoList_.get(); }
  int setRoleInfoList(IZolRoleSearchItemInfoList* list) override {
    return roleInfoList_.setUnlessNull(list);
  }
  const char* firstText() override { return firstText_.get(); }
  int setFirstText(const char* text) override { return firstText_.set(text); }
  const char* secondText() override { return secondText_.get(); }
  int setSecondText(const char* text) override { return secondText_.set(text); }
  const char* thirdText() override { return thirdText_.get(); }
  int setThirdText(const char* text) override { return thirdText_.set(text); }

  int getDimensionKeys(ZOLIntList* keys) override {
    if (!keys) return kRefused;
    keys->clear();
    // Apart, as a caller's own list may change the results while it is filled.
    std::vector<int> held;
    held.reserve(dimensionResults_.size());
    for (const auto& [key, result] : dimensionResults_) held.push_back(key);
    for (const int key : held) keys->add(key);
    return kSuccess;
  }

  int setDimensionResult(int key, IZolSmartCutSearchDimensionsResult* result) override {
    if (!result) return kRefused;
    // Shared ahead of the look-up: a caller's own object may change the results meanwhile.
    auto kept = Handle<IZolSmartCutSearchDimensionsResult>::share(result);
    dimensionResults_[key].set(std::move(kept));
    return kSuccess;
  }

  int removeDimensionResult(int key) override {
    // Out of the map before it goes: what it gives back may call back.
    const auto gone = dimensionResults_.extract(key);
    return kSuccess;
  }

  IZolSmartCutSearchDimensionsResult* dimensionResult(int key) override {
    const auto found = dimensionResults_.find(key);
    return found != dimensionResults_.end() ? found->second.get() : nullptr;
  }

 private:
  Kept<IZolRoleSearchItemInfoList> roleInfoList_;
  TextRefusingNull firstText_;
  TextRefusingNull secondText_;
  TextRefusingNull thirdText_;
  std::map<int, Kept<IZolSmartCutSearchDimensionsResult>> dimensionResults_;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolRoleSearchItemInfo* createRoleSearchItemInfo() {
  return ZOL::makeObject<ZOL::ZolRoleSearchItemInfo>();
}
ZOL::IZolSmartCutSearchDimensionsResultItem* createSmartCutSearchDimensionsResultItem() {
  return ZOL::makeObject<ZOL::ZolSmartCutSearchDimensionsResultItem>();
}
ZOL::IZolSmartCutSearchDimensionsResult* createSmartCutSearchDimensionsResult() {
  return ZOL::makeObject<ZOL::ZolSmartCutSearchDimensionsResult>();
}
ZOL::IZolSmartCutSearchResult* createSmartCutSearchResult() {
  return ZOL::makeObject<ZOL::ZolSmartCutSearchResult>();
}
