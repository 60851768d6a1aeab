#include "cutscript/analysis_items.h"

namespace ZOL {
namespace {

// A list with the elements of the caller's. Made apart from the field that is to hold it,
// which stays as it is when there is no memory for the whole.
template <class List>
Handle<List> copyOf(List* from, List* (*create)()) {
  auto copy = Handle<List>::adopt(create());
  copy->assign(from);
  return copy;
}

}  // namespace

int ZolSliceItem::getKeyValues(ZOLPCharList* keys, ZOLPCharList* values) {
  if (!keys || !values) return kRefused;
  keys->clear();
  values->clear();
  if (keys_ && keys_->size() == values_->size()) {
    keys->assign(keys_.get());
    values->assign(values_.get());
  }
  return kSuccess;
}

int ZolSliceItem::setKeyValues(ZOLPCharList* keys, ZOLPCharList* values) {
  if (!keys || !values || keys->size() != values->size()) return kRefused;
  auto ownKeys = copyOf(keys, createZOLPCharList);
  values_ = copyOf(values, createZOLPCharList);
  keys_ = std::move(ownKeys);
  return kSuccess;
}

int ZolDemensionsItem::getSliceItems(IZolSliceItemList* out) {
  if (!out) return kRefused;
  out->clear();
  if (sliceItems_) {
    out->assign(sliceItems_.get());
    return kSuccess;
  }
  for (const auto& [label, slices] : labelSliceItems_) out->insertListAt(out->size(), slices.get());
  return kSuccess;
}

int ZolDemensionsItem::setSliceItems(IZolSliceItemList* slices) {
  sliceItems_ = slices ? copyOf(slices, createIZolSliceItemList) : nullptr;
  return kSuccess;
}

int ZolDemensionsItem::getLabels(ZOLPCharList* out) {
  if (!out || !hasLabels()) return kRefused;
  out->clear();
  for (const auto& [label, slices] : labelSliceItems_) out->add(label.c_str());
  return kSuccess;
}

int ZolDemensionsItem::getLabelSliceItems(const char* label, IZolSliceItemList* out) {
  if (!label || !out || !hasLabels()) return kRefused;
  out->clear();
  const auto found = labelSliceItems_.find(label);
  if (found != labelSliceItems_.end()) out->assign(found->second.get());
  return kSuccess;
}

int ZolDemensionsItem::setLabelSliceItems(const char* label, IZolSliceItemList* slices) {
  if (!label || !slices) return kRefused;
  takeLabelSliceItems(label, copyOf(slices, createIZolSliceItemList));
  return kSuccess;
}

// On purpose true when the sizes differ, the reverse of what the name promises.
bool ZolDemensionsItem::hasScores() {
  return scoreTimes_ && scoreTimes_->size() != 0 && scoreTimes_->size() != scores_->size();
}

// On purpose hung on hasScores(), so samples that setScores() took are never given.
int ZolDemensionsItem::getScores(ZOLLonglongList* times, ZOLIntList* scores) {
  if (!times || !scores) return kRefused;
  times->clear();
  scores->clear();
  if (hasScores()) {
    times->assign(scoreTimes_.get());
    scores->assign(scores_.get());
  }
  return kSuccess;
}

int ZolDemensionsItem::setScores(ZOLLonglongList* times, ZOLIntList* scores) {
  if (!times || !scores || times->size() != scores->size()) return kRefused;
  auto ownTimes = copyOf(times, createZOLLonglongList);
  takeScores(std::move(ownTimes), copyOf(scores, createZOLIntList));
  return kSuccess;
}

// On purpose the check of the argument is the wrong way about: a list is refused, and
// without one there is nothing to fill.
int ZolKeyMatrixInfo::getDimensionTypes(ZOLIntList* /*out*/) { return kRefused; }

IZolDemensionsItem* ZolKeyMatrixInfo::dimensionItem(int type) {
  const auto found = dimensions_.find(type);
  return found != dimensions_.end() ? found->second.get() : nullptr;
}

int ZolKeyMatrixInfo::setDimensionItem(int type, IZolDemensionsItem* item) {
  if (!item) return kRefused;
  dimensions_[type] = Handle<IZolDemensionsItem>::share(item);
  return kSuccess;
}

int ZolKeyMatrixInfo::getKeywords(ZOLPCharList* out) {
  if (!out) return kRefused;
  out->clear();
  if (keywords_) out->assign(keywords_.get());
  return kSuccess;
}

int ZolKeyMatrixInfo::setKeywords(ZOLPCharList* keywords) {
  keywords_ = keywords ? copyOf(keywords, createZOLPCharList) : nullptr;
  return kSuccess;
}

}  // namespace ZOL

ZOL::IZolSliceItem* createSliceItem() { return ZOL::makeObject<ZOL::ZolSliceItem>(); }
ZOL::IZolDemensionsItem* createDemensionsItem() {
  return ZOL::makeObject<ZOL::ZolDemensionsItem>();
}
