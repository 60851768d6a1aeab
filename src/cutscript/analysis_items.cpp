#include "cutscript/analysis_items.h"

namespace ZOL {
namespace {

// A list that a field holds is the same one from when it is first set; each time it is
// cleared and then filled with the caller's elements. What may fail for want of memory
// comes first, so that nothing has changed then: as a rule
//
//   auto list = ready(field, from);
//   fill(*list.get(), from);
//   field = std::move(list);

// The field's list, or the one that it will hold, with room for what is to come.
template <class Own, class List>
Handle<Own> ready(const Handle<Own>& field, List* from) {
  Handle<Own> list = field ? field : makeHandle<Own>();
  list->makeRoomFor(from);
  return list;
}

// On purpose empty afterwards if the elements are not the library's to take, or its own.
template <class Own, class List>
void fill(Own& list, List* from) {
  list.clear();
  list.assign(from);
}

// Texts want memory themselves: they are copied apart, and exchanged. On purpose none of a
// list that would be cleared before it is read.
template <class... Fields>
Handle<TextList> copyUnlessOf(ZOLPCharList* from, const Fields&... fields) {
  auto copy = makeHandle<TextList>();
  if (((from != fields.get()) && ...)) copy->assign(from);
  return copy;
}

void exchange(Handle<TextList>& field, Handle<TextList> copy) {
  if (field) {
    field->elements().swap(copy->elements());
  } else {
    field = std::move(copy);
  }
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
  auto ownKeys = copyUnlessOf(keys, keys_, values_);
  exchange(values_, copyUnlessOf(values, keys_, values_));
  exchange(keys_, std::move(ownKeys));
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
  Handle<SliceList> list;
  if (slices) {
    list = ready(sliceItems_, slices);
    fill(*list.get(), slices);
  }
  sliceItems_ = std::move(list);
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
  const std::string wanted = label;  // which may end with a slice of `out`
  out->clear();
  const auto found = labelSliceItems_.find(wanted);
  if (found != labelSliceItems_.end()) out->assign(found->second.get());
  return kSuccess;
}

int ZolDemensionsItem::setLabelSliceItems(const char* label, IZolSliceItemList* slices) {
  if (!label || !slices) return kRefused;
  const auto found = labelSliceItems_.find(label);
  const bool isNew = found == labelSliceItems_.end();
  auto list = ready(isNew ? nullptr : found->second, slices);
  fill(*list.get(), slices);
  if (isNew) takeLabelSliceItems(label, std::move(list));
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
  auto ownTimes = ready(scoreTimes_, times);
  auto ownScores = ready(scores_, scores);
  fill(*ownTimes.get(), times);
  fill(*ownScores.get(), scores);
  takeScores(std::move(ownTimes), std::move(ownScores));
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
  if (keywords) {
    exchange(keywords_, copyUnlessOf(keywords, keywords_));
  } else {
    keywords_ = nullptr;
  }
  return kSuccess;
}

}  // namespace ZOL

ZOL::IZolSliceItem* createSliceItem() { return ZOL::makeObject<ZOL::ZolSliceItem>(); }
ZOL::IZolDemensionsItem* createDemensionsItem() {
  return ZOL::makeObject<ZOL::ZolDemensionsItem>();
}
