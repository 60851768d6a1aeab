#include "cutscript/report_state.h"

#include "support/show.h"
#include "support/zol_text.h"

namespace {

std::string quote(const char* text) { return "\"" + escaped(text) + "\""; }

std::string show(ZOL::IZolBGRData& image) {
  const std::string bytes(reinterpret_cast<const char*>(image.data()),
                          static_cast<std::size_t>(image.dataSize()));
  return std::to_string(image.width()) + "x" + std::to_string(image.height()) + " \"" +
         escaped(bytes) + "\"";
}

}  // namespace

std::string show(ZOL::IZolSliceItem& slice) {
  std::string text = quote(slice.label()) + " " + std::to_string(slice.startTime()) + ".." +
                     std::to_string(slice.endTime());
  if (slice.score() != 100) text += " score " + std::to_string(slice.score());
  if (slice.faceImage()) text += " face " + show(*slice.faceImage());
  return text;
}

std::string show(ZOL::IZolSliceItemList& slices) {
  return showBy(slices, [](ZOL::IZolSliceItem* slice) { return slice ? show(*slice) : "null"; });
}

std::string show(ZOL::ZOLPCharList& texts) { return showBy(texts, quote); }

std::string show(ZOL::IZolDemensionsItem& item) {
  const Held<ZOL::IZolSliceItemList> all(createIZolSliceItemList());
  item.getSliceItems(all.get());
  if (!item.hasLabels()) return "slices " + show(*all);

  const Held<ZOL::ZOLPCharList> labels(createZOLPCharList());
  const Held<ZOL::IZolSliceItemList> joined(createIZolSliceItemList());
  const Held<ZOL::IZolSliceItemList> one(createIZolSliceItemList());
  item.getLabels(labels.get());
  for (long long i = 0; i < labels->size(); ++i) {
    item.getLabelSliceItems(labels->at(i), one.get());
    joined->insertListAt(joined->size(), one.get());
  }
  std::string text = "labels " + show(*labels) + ", slices " + show(*all);
  if (show(*joined) != show(*all)) text += ", by label " + show(*joined);
  return text;
}

std::string show(ZOL::IZolKeyMatrixInfo& report) {
  std::string text;
  for (int type = -1; type <= 14; ++type) {
    ZOL::IZolDemensionsItem* const item = report.dimensionItem(type);
    if (!item) continue;
    text += std::to_string(type);
    if (item->dimensionType() != type) text += ", says " + std::to_string(item->dimensionType());
    if (item->hasScores()) text += ", scores";
    text += ": " + show(*item) + "\n";
  }
  const Held<ZOL::ZOLPCharList> keywords(createZOLPCharList());
  report.getKeywords(keywords.get());
  if (keywords->size() > 0) text += "keywords " + show(*keywords) + "\n";
  return text;
}

Held<ZOL::ZOLPCharList> textList(std::initializer_list<const char*> texts) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  for (const char* const text : texts) list->add(text);
  return list;
}

std::string showReport(const std::string& text) {
  const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(text.c_str()));
  return report.get() ? show(*report) : "null";
}
