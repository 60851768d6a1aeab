// The reader of an analysis service's report:
//
//   {"camera": {"labels": {"pan": ["0:0:1Z-0:0:4Z"]}, "scores": [80, 75]},
//    "total": {"labels": {"90": ["0:0:1Z-0:0:2Z"]}},
//    "face_image_map": {"1": {"width": 8, "height": 8, "base64": "..."}},
//    "face_cluster": {"1": ["0:0:1Z-0:0:4Z"]},
//    "stt": [{"begin_time": 0, "end_time": 900, "text": "..."}],
//    "keywords": ["..."]}
//
// What is missing or of another type is passed over.

#include "cutscript/analysis_items.h"
#include "cutscript/base64.h"
#include "cutscript/time_text.h"
#include "frame/number_text.h"
#include "json/document.h"

namespace ZOL {
namespace {

using json::Member;
using json::Value;

enum : int { kSpeech = 1, kFaceCluster = 10 };

struct LabelledDimension {
  int type;
  const char* member;
  bool byLabel;       // the slices are kept by label, not as one flat list
  bool labelIsScore;  // the label is a number, the score of its slices
};

constexpr LabelledDimension kLabelledDimensions[] = {
    {2, "total", false, true},           {3, "scene", true, false},
    {4, "object", true, false},          {5, "camera", true, false},
    {6, "camera_quality", false, false}, {7, "brightness_change", false, true},
    {8, "scene_text", true, false},      {9, "emotion", true, false},
    {11, "action", true, false},         {12, "shot_size", true, false},
};

Ref<IZolSliceItemList> newSliceList() {
  return Ref<IZolSliceItemList>::adopt(createIZolSliceItemList());
}

// A slice of a span text, or none.
Ref<ZolSliceItem> readSlice(const char* label, Value element) {
  const char* const text = element.text();
  const auto span = text ? spanOf(text) : std::nullopt;
  if (!span) return nullptr;
  Ref<ZolSliceItem> slice = makeRef<ZolSliceItem>();
  slice->setLabel(label);
  slice->setStartTime(span->start);
  slice->setEndTime(span->end);
  return slice;
}

// [80, 75]: samples a second apart. What is no number is no sample and takes no time.
void readScores(Value samples, ZolDemensionsItem& item) {
  if (!samples.isArray()) return;
  const auto times = Ref<ZOLLonglongList>::adopt(createZOLLonglongList());
  const auto scores = Ref<ZOLIntList>::adopt(createZOLIntList());
  long long time = 0;
  for (const Value sample : samples.elements()) {
    const auto score = sample.integer32();
    if (!score) continue;
    times->add(time);
    scores->add(*score);
    time += 1000;
  }
  item.setScores(times.get(), scores.get());
}

// {"pan": ["0:0:1Z-0:0:4Z"], "tilt": [...]}; a label whose value is no array is passed
// over.
void readLabels(Value labels, const LabelledDimension& dimension, ZolDemensionsItem& item) {
  for (const Member member : labels.members()) {
    if (!member.value.isArray()) continue;
    const char* const label = member.key->text;
    Ref<IZolSliceItemList> slices = newSliceList();
    for (const Value element : member.value.elements()) {
      const Ref<ZolSliceItem> slice = readSlice(label, element);
      if (!slice) continue;
      if (dimension.labelIsScore) slice->setScore(textToInt(label));
      slices->add(slice.get());
    }
    if (dimension.byLabel) {
      item.takeLabelSliceItems(label, std::move(slices));
    } else {
      // On purpose each label takes the place of the one before: of a flat dimension
      // the slices of the last label alone remain.
      item.takeSliceItems(std::move(slices));
    }
  }
}

// {"labels": {...}, "scores": [...]}. On purpose nothing comes of a member
// "dimensions", which a service may send as well.
void readLabelledDimension(Value object, const LabelledDimension& dimension,
                           ZolKeyMatrixInfo& report) {
  if (!object.isObject()) return;
  const Ref<ZolDemensionsItem> item = makeRef<ZolDemensionsItem>();
  item->setDimensionType(dimension.type);
  readScores(object.member("scores"), *item.get());
  readLabels(object.member("labels"), dimension, *item.get());
  report.setDimensionItem(dimension.type, item.get());
}

// {"width": 8, "height": 8, "base64": "..."}
bool isFaceImage(Value image) {
  return image.member("width").integer32() && image.member("height").integer32() &&
         image.member("base64").isString();
}

// The image of a face; of several under one name the last counts. Null if none.
Ref<IZolBGRData> readFaceImage(Value imageMap, const char* name) {
  Value image;
  for (const Member member : imageMap.members()) {
    if (sameText(member.key->text, name) && isFaceImage(member.value)) image = member.value;
  }
  if (!image) return nullptr;
  const DecodedBytes decoded = decodeBase64(image.member("base64").bytes());
  return Ref<IZolBGRData>::adopt(
      createBGRData(static_cast<unsigned int>(*image.member("width").integer32()),
                    static_cast<unsigned int>(*image.member("height").integer32()),
                    decoded.bytes.get(), static_cast<int>(decoded.size), 0));
}

// {"1": ["0:0:1Z-0:0:4Z"], "2": [...]}. On purpose each cluster takes the place of the
// one before, so the last is the only one that needs to be read.
void readFaceClusters(Value clusters, Value imageMap, ZolKeyMatrixInfo& report) {
  Value last;
  const char* name = nullptr;
  for (const Member member : clusters.members()) {
    if (!member.value.isArray()) continue;
    last = member.value;
    name = member.key->text;
  }
  if (!last) return;
  const Ref<IZolBGRData> image = readFaceImage(imageMap, name);
  Ref<IZolSliceItemList> slices = newSliceList();
  for (const Value element : last.elements()) {
    const Ref<ZolSliceItem> slice = readSlice(name, element);
    if (!slice) continue;
    slice->setFaceImage(image.get());
    slices->add(slice.get());
  }
  const Ref<ZolDemensionsItem> item = makeRef<ZolDemensionsItem>();
  item->setDimensionType(kFaceCluster);
  item->takeSliceItems(std::move(slices));
  report.setDimensionItem(kFaceCluster, item.get());
}

// [{"begin_time": 0, "end_time": 900, "text": "..."}], the times in milliseconds.
void readSpeech(Value sentences, ZolKeyMatrixInfo& report) {
  enum : std::size_t { kBeginTime, kEndTime, kText };
  static constexpr auto kMembers = json::namesOf("begin_time", "end_time", "text");

  if (!sentences.isArray()) return;
  Ref<IZolSliceItemList> slices = newSliceList();
  for (const Value sentence : sentences.elements()) {
    const auto in = json::sortIn(kMembers, sentence);
    const auto begin = in[kBeginTime].integer32();
    const auto end = in[kEndTime].integer32();
    const char* const text = in[kText].text();
    if (!begin || !end || !text) continue;
    const Ref<ZolSliceItem> slice = makeRef<ZolSliceItem>();
    slice->setStartTime(*begin);
    slice->setEndTime(*end);
    slice->setLabel(text);
    slices->add(slice.get());
  }
  const Ref<ZolDemensionsItem> item = makeRef<ZolDemensionsItem>();
  item->setDimensionType(kSpeech);
  item->takeSliceItems(std::move(slices));
  report.setDimensionItem(kSpeech, item.get());
}

void readKeywords(Value words, ZolKeyMatrixInfo& report) {
  if (!words.isArray()) return;
  const auto keywords = Ref<ZOLPCharList>::adopt(createZOLPCharList());
  for (const Value word : words.elements()) {
    if (const char* const text = word.text()) keywords->add(text);
  }
  report.setKeywords(keywords.get());
}

}  // namespace
}  // namespace ZOL

ZOL::IZolKeyMatrixInfo* createKeyMatrixInfo(const char* text) {
  if (!text) return nullptr;
  const ZOL::json::Document document(text);
  const ZOL::json::Value root = document.root();
  if (!root.isObject()) return nullptr;
  auto report = ZOL::makeRef<ZOL::ZolKeyMatrixInfo>();
  for (const auto& dimension : ZOL::kLabelledDimensions) {
    ZOL::readLabelledDimension(root.member(dimension.member), dimension, *report.get());
  }
  ZOL::readFaceClusters(root.member("face_cluster"), root.member("face_image_map"), *report.get());
  ZOL::readSpeech(root.member("stt"), *report.get());
  ZOL::readKeywords(root.member("keywords"), *report.get());
  return report.give();
}
