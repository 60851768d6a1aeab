// What does it cost to read an analysis report, next to a bare parse of the same
// bytes?

#include <KyDataStructure/cutscript.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

#include "inputs/analysis_report.h"
#include "support/bare_json.h"
#include "support/building.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

using Json = rapidjson::Value;

struct Dimension {
  int type;
  const char* member;
  bool byLabel;
  bool labelIsScore;
};

constexpr Dimension kDimensions[] = {
    {2, "total", false, true},           {3, "scene", true, false},
    {4, "object", true, false},          {5, "camera", true, false},
    {6, "camera_quality", false, false}, {7, "brightness_change", false, true},
    {8, "scene_text", true, false},      {9, "emotion", true, false},
    {11, "action", true, false},         {12, "shot_size", true, false},
};

// "0:1:4Z-0:1:9Z", in milliseconds.
bool hasSpan(ZOL::IZolSliceItem* slice, const Json& json) {
  int from[3];
  int to[3];
  if (std::sscanf(json.GetString(), "%d:%d:%dZ-%d:%d:%dZ", from, from + 1, from + 2, to, to + 1,
                  to + 2) != 6) {
    return false;
  }
  return slice->startTime() == ((from[0] * 60 + from[1]) * 60 + from[2]) * 1000 &&
         slice->endTime() == ((to[0] * 60 + to[1]) * 60 + to[2]) * 1000;
}

void proveSlices(ZOL::IZolSliceItemList* slices, const std::string& label, int score,
                 const Json& json) {
  bench::require(slices->size() == json.Size(), "a label has its slices");
  for (rapidjson::SizeType i = 0; i < json.Size(); ++i) {
    auto* const slice = slices->at(i);
    bench::require(slice->label() == label && slice->score() == score && hasSpan(slice, json[i]),
                   "a slice has its label, score and span");
  }
}

void proveDimension(ZOL::IZolKeyMatrixInfo* report, const Dimension& dimension, const Json& json) {
  auto* const item = report->dimensionItem(dimension.type);
  bench::require(
      item && item->dimensionType() == dimension.type && item->hasLabels() == dimension.byLabel,
      "each dimension is there");
  const Json& labels = json["labels"];
  const auto slices = bench::owned(createIZolSliceItemList());
  if (!dimension.byLabel) {
    // On purpose the library keeps the last label alone.
    const auto last = labels.MemberEnd() - 1;
    const std::string label = last->name.GetString();
    item->getSliceItems(slices.get());
    proveSlices(slices.get(), label, dimension.labelIsScore ? std::stoi(label) : 100, last->value);
    return;
  }
  for (const auto& label : labels.GetObject()) {
    item->getLabelSliceItems(label.name.GetString(), slices.get());
    proveSlices(slices.get(), label.name.GetString(), 100, label.value);
  }
}

void proveFaces(ZOL::IZolKeyMatrixInfo* report, const Json& json) {
  // On purpose the library keeps the last face alone.
  const auto last = json["face_cluster"].MemberEnd() - 1;
  const auto slices = bench::owned(createIZolSliceItemList());
  report->dimensionItem(10)->getSliceItems(slices.get());
  proveSlices(slices.get(), last->name.GetString(), 100, last->value);
  const Json& image = json["face_image_map"][last->name];
  auto* const face = slices->at(0)->faceImage();
  bench::require(face && static_cast<int>(face->width()) == image["width"].GetInt() &&
                     static_cast<int>(face->height()) == image["height"].GetInt(),
                 "a face has its image");
  const auto bytes = bench::imageBytes(image["base64"].GetStringLength() / 4 * 3);
  bench::require(face->dataSize() == static_cast<int>(bytes.size()) &&
                     std::memcmp(face->data(), bytes.data(), bytes.size()) == 0,
                 "the image has its bytes");
}

void prove(ZOL::IZolKeyMatrixInfo* report, const std::string& text) {
  rapidjson::Document json;
  bench::bareParse(json, text);
  bench::require(report != nullptr, "a report is read");
  for (const Dimension& dimension : kDimensions) {
    proveDimension(report, dimension, json[dimension.member]);
  }
  proveFaces(report, json);

  const auto sentences = bench::owned(createIZolSliceItemList());
  report->dimensionItem(1)->getSliceItems(sentences.get());
  const Json& speech = json["stt"];
  bench::require(sentences->size() == speech.Size(), "each sentence is there");
  for (rapidjson::SizeType i = 0; i < speech.Size(); ++i) {
    auto* const sentence = sentences->at(i);
    bench::require(std::strcmp(sentence->label(), speech[i]["text"].GetString()) == 0 &&
                       sentence->startTime() == speech[i]["begin_time"].GetInt() &&
                       sentence->endTime() == speech[i]["end_time"].GetInt(),
                   "a sentence has its text and times");
  }
  const auto keywords = bench::owned(createZOLPCharList());
  report->getKeywords(keywords.get());
  bench::require(keywords->size() == json["keywords"].Size(), "each keyword is there");
}

}  // namespace

int main(int argc, char** argv) {
  const std::string text = bench::analysisReport();
  prove(bench::owned(createKeyMatrixInfo(text.c_str())).get(), text);

  bench::RatioTable table(bench::Heap::kept);
  const auto report = [&text] { return bench::owned(createKeyMatrixInfo(text.c_str())); };
  const auto document = [&text] { return bench::bareDocument(text); };
  table.measure("report/library alone", bench::buildAlone(report));
  table.measure("report/parse alone", bench::buildAlone(document));
  table.measure("report/library", bench::buildAndEnd(report));
  table.measure("report/parse", bench::buildAndEnd(document));
  table.compare({"createKeyMatrixInfo of 10 MB, up to the complete report", "bare parse",
                 "report/library alone", "report/parse alone", bench::atMost(0.75)});
  table.compare({"the same with the end of the report", "bare parse with that of the document",
                 "report/library", "report/parse", bench::noAim()});
  return table.run(argc, argv);
}
