#include "report_model.h"

#include <array>
#include <stdexcept>

#include "input.h"
#include "refused_text.h"

namespace kydata {

namespace {

constexpr std::array<const char*, 12> kDimensionNames = {
    "speech",
    "total",
    "scene",
    "object",
    "camera",
    "camera quality",
    "brightness change",
    "scene text",
    "emotion",
    "face cluster",
    "action",
    "shot size",
};

Owned<ZOL::IZolKeyMatrixInfo> readInfo(const std::string& text) {
  try {
    return Owned<ZOL::IZolKeyMatrixInfo>(createKeyMatrixInfo(text.c_str()));
  } catch (const std::invalid_argument&) {
    throw Fault("has a label in \"total\" or \"brightness_change\" that begins with no number");
  } catch (const std::out_of_range&) {
    throw Fault("has a label in \"total\" or \"brightness_change\" that is beyond 32 bits");
  }
}

std::vector<std::string> copied(ZOL::ZOLPCharList* list) {
  std::vector<std::string> texts;
  for (long long i = 0; i < list->size(); ++i) texts.emplace_back(list->at(i));
  return texts;
}

Slice copied(ZOL::IZolSliceItem* item) {
  Slice slice{
      item->label(), {item->startTime(), item->endTime()}, item->score(), {}, item->faceImage()};
  Owned<ZOL::ZOLPCharList> keys(createZOLPCharList());
  Owned<ZOL::ZOLPCharList> values(createZOLPCharList());
  item->getKeyValues(keys.get(), values.get());
  for (long long i = 0; i < keys->size(); ++i) {
    slice.keyValues.emplace_back(keys->at(i), values->at(i));
  }
  return slice;
}

std::vector<Slice> copied(ZOL::IZolSliceItemList* list) {
  std::vector<Slice> slices;
  for (long long i = 0; i < list->size(); ++i) slices.push_back(copied(list->at(i)));
  return slices;
}

Dimension copied(int type, ZOL::IZolDemensionsItem* item) {
  Dimension dimension{
      type, kDimensionNames.at(static_cast<std::size_t>(type - 1)), item->hasLabels(), {}};
  Owned<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
  if (!dimension.hasLabels) {
    item->getSliceItems(slices.get());
    dimension.groups.push_back({"", copied(slices.get())});
    return dimension;
  }
  Owned<ZOL::ZOLPCharList> labels(createZOLPCharList());
  item->getLabels(labels.get());
  for (const std::string& label : copied(labels.get())) {
    item->getLabelSliceItems(label.c_str(), slices.get());
    dimension.groups.push_back({label, copied(slices.get())});
  }
  return dimension;
}

}  // namespace

Report readReport(const std::string& text) {
  Report report{readInfo(text), {}, {}};
  if (!report.info) throw Fault(whyNoJson(text, '{'));
  for (int type = 1; type <= static_cast<int>(kDimensionNames.size()); ++type) {
    if (auto* item = report.info->dimensionItem(type)) {
      report.dimensions.push_back(copied(type, item));
    }
  }
  Owned<ZOL::ZOLPCharList> keywords(createZOLPCharList());
  report.info->getKeywords(keywords.get());
  report.keywords = copied(keywords.get());
  return report;
}

bool isReport(const std::string& text) {
  if (!isJsonObject(text)) return false;
  try {
    const Report report = readReport(text);
    return !report.dimensions.empty() || !report.keywords.empty();
  } catch (const Fault&) {
    return true;  // no other text has labels to stumble over
  }
}

}  // namespace kydata
