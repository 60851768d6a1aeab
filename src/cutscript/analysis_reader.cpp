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

#include <array>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "cutscript/analysis_items.h"
#include "cutscript/base64.h"
#include "cutscript/time_text.h"
#include "frame/batch.h"
#include "frame/number_text.h"
#include "json/document.h"
#include "lists/made_lists.h"

namespace ZOL {
namespace {

using json::Member;
using json::Value;

enum : int { kSpeech = 1, kFaceCluster = 10 };
constexpr int kUnscored = 100;

struct LabelledDimension {
  int type;
  const char* member;
  bool byLabel;       // the slices are kept by label, not as one flat list
  bool labelIsScore;  // the label is a number, the score of its slices
};

// By type, but for "total": of several labels that are no score, one of "total" is the
// last to fail.
constexpr LabelledDimension kLabelledDimensions[] = {
    {3, "scene", true, false},
    {4, "object", true, false},
    {5, "camera", true, false},
    {6, "camera_quality", false, false},
    {7, "brightness_change", false, true},
    {8, "scene_text", true, false},
    {9, "emotion", true, false},
    {11, "action", true, false},
    {12, "shot_size", true, false},
    {2, "total", false, true},
};

bool readSpan(Value element, Span& span) {
  return element.isString() && ZOL::readSpan(element.text(), span);
}

// Makes the slices of a list, many in one piece of memory. They have a label in common,
// or each its own.
class SliceMaker {
 public:
  explicit SliceMaker(std::size_t most) : left_(most) { list_->elements().reserve(most); }

  ZolSliceItem& addWithLabel(std::string_view label) {
    ZolSliceItem& slice = add(label);
    slice.setLabel(batch_->put(label));
    return slice;
  }
  // A short label stands in each piece of memory, a long one only once for all slices.
  ZolSliceItem& addWithCommonLabel(std::string_view label) {
    const bool isShort = label.size() <= kLongestInEachBatch;
    ZolSliceItem& slice = add(isShort ? label : std::string_view());
    if (isFirstOfBatch_ && isShort) commonLabel_ = batch_->put(label);
    if (!isShort && commonLabel_.isEmpty()) commonLabel_ = SharedText(label);
    slice.setLabel(batch_->again(commonLabel_));
    return slice;
  }

  Handle<SliceList> giveList() { return std::move(list_); }

 private:
  static constexpr std::size_t kLongestInEachBatch = 256;

  // The label is what room is left for.
  ZolSliceItem& add(std::string_view label) {
    isFirstOfBatch_ = !batch_ || !batch_->hasRoom<ZolSliceItem>();
    if (isFirstOfBatch_) {
      batch_.emplace(left_ * (Batch::room<ZolSliceItem>() + SharedText::room(label)));
    }
    --left_;
    Handle<ZolSliceItem> slice = batch_->make<ZolSliceItem>();
    ZolSliceItem& added = *slice.get();
    list_->elements().push_back(std::move(slice));
    return added;
  }

  Handle<SliceList> list_ = makeHandle<SliceList>();
  std::optional<Batch> batch_;
  bool isFirstOfBatch_ = true;
  SharedText commonLabel_;
  std::size_t left_;
};

// ["0:0:1Z-0:0:4Z", ...]; what is no span of time is passed over.
Handle<SliceList> readSlices(Value spans, const char* label, int score, IZolBGRData* face) {
  SliceMaker slices(spans.size());
  Span span{};
  for (const Value element : spans.elements()) {
    if (!readSpan(element, span)) continue;
    ZolSliceItem& slice = slices.addWithCommonLabel(label);
    slice.setStartTime(span.start);
    slice.setEndTime(span.end);
    slice.setScore(score);
    if (face) slice.setFaceImage(face);
  }
  return slices.giveList();
}

// [80, 75]: samples a second apart. What is no number is no sample and takes no time.
void readScores(Value samples, ZolDemensionsItem& item) {
  if (!samples.isArray()) return;
  auto times = makeHandle<TimeList>();
  auto scores = makeHandle<ScoreList>();
  std::vector<int>& scored = scores->elements();
  scored.reserve(samples.size());
  int score = 0;
  for (const Value sample : samples.elements()) {
    if (sample.read(score)) scored.push_back(score);
  }
  std::vector<long long>& timed = times->elements();
  timed.resize(scored.size());
  for (std::size_t i = 0; i < timed.size(); ++i) timed[i] = static_cast<long long>(i) * 1000;
  item.takeScores(std::move(times), std::move(scores));
}

bool hasSpan(Value spans) {
  Span span{};
  for (const Value element : spans.elements()) {
    if (readSpan(element, span)) return true;
  }
  return false;
}

// {"pan": ["0:0:1Z-0:0:4Z"], "tilt": [...]}; a label whose value is no array is passed
// over. A label that is a score must be a number as soon as it has a span.
void readLabels(Value labels, const LabelledDimension& dimension, ZolDemensionsItem& item) {
  const char* label = nullptr;
  Value spans;
  int score = kUnscored;
  for (const Member member : labels.members()) {
    if (!member.value.isArray()) continue;
    label = member.key->text;
    spans = member.value;
    if (dimension.labelIsScore && hasSpan(spans)) score = textToInt(label);
    if (dimension.byLabel) {
      item.takeLabelSliceItems(label, readSlices(spans, label, kUnscored, nullptr));
    }
  }
  // On purpose each label of a flat dimension takes the place of the one before, so the
  // last is the only one whose slices need to be read.
  if (spans && !dimension.byLabel) item.takeSliceItems(readSlices(spans, label, score, nullptr));
}

// {"labels": {...}, "scores": [...]}. On purpose nothing comes of a member
// "dimensions", which a service may send as well.
void readLabelledDimension(Value object, const LabelledDimension& dimension,
                           ZolKeyMatrixInfo& report) {
  if (!object.isObject()) return;
  const Handle<ZolDemensionsItem> item = makeHandle<ZolDemensionsItem>();
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
Handle<IZolBGRData> readFaceImage(Value imageMap, const char* name) {
  Value image;
  for (const Member member : imageMap.members()) {
    if (sameText(member.key->text, name) && isFaceImage(member.value)) image = member.value;
  }
  if (!image) return nullptr;
  const DecodedBytes decoded = decodeBase64(image.member("base64").bytes());
  return Handle<IZolBGRData>::adopt(
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
  const Handle<IZolBGRData> image = readFaceImage(imageMap, name);
  const Handle<ZolDemensionsItem> item = makeHandle<ZolDemensionsItem>();
  item->setDimensionType(kFaceCluster);
  item->takeSliceItems(readSlices(last, name, kUnscored, image.get()));
  report.setDimensionItem(kFaceCluster, item.get());
}

// [{"begin_time": 0, "end_time": 900, "text": "..."}], the times in milliseconds.
void readSpeech(Value sentences, ZolKeyMatrixInfo& report) {
  enum : std::size_t { kBeginTime, kEndTime, kText };
  static constexpr auto kMembers = json::namesOf("begin_time", "end_time", "text");

  if (!sentences.isArray()) return;
  SliceMaker slices(sentences.size());
  for (const Value sentence : sentences.elements()) {
    const auto in = json::sortIn(kMembers, sentence);
    const auto begin = in[kBeginTime].integer32();
    const auto end = in[kEndTime].integer32();
    if (!begin || !end || !in[kText].isString()) continue;
    ZolSliceItem& slice = slices.addWithLabel(in[kText].bytes());
    slice.setStartTime(*begin);
    slice.setEndTime(*end);
  }
  const Handle<ZolDemensionsItem> item = makeHandle<ZolDemensionsItem>();
  item->setDimensionType(kSpeech);
  item->takeSliceItems(slices.giveList());
  report.setDimensionItem(kSpeech, item.get());
}

void readKeywords(Value words, ZolKeyMatrixInfo& report) {
  if (!words.isArray()) return;
  const auto keywords = Handle<ZOLPCharList>::adopt(createZOLPCharList());
  for (const Value word : words.elements()) {
    if (const char* const text = word.text()) keywords->add(text);
  }
  report.setKeywords(keywords.get());
}

// Reads most members as soon as they are parsed; of several with one name the first. What
// may fail with an exception waits for the end, where the text is known to be a report,
// and so do the faces, whose images may stand behind them.
class ReportReader final : public json::RootWatcher {
 public:
  void begin() override {
    report_ = makeHandle<ZolKeyMatrixInfo>();
    seen_ = {};
    seenSpeech_ = false;
    seenKeywords_ = false;
  }
  bool takes(const json::Node* key, Value value) override {
    if (!key) return true;
    const std::string_view name = Member{key, value}.name();
    for (std::size_t i = 0; i < std::size(kLabelledDimensions); ++i) {
      const LabelledDimension& dimension = kLabelledDimensions[i];
      if (name != dimension.member) continue;
      if (dimension.labelIsScore) return false;
      if (!std::exchange(seen_[i], true)) readLabelledDimension(value, dimension, *report_.get());
      return true;
    }
    if (name == kSpeechMember && !std::exchange(seenSpeech_, true))
      readSpeech(value, *report_.get());
    if (name == kKeywordsMember && !std::exchange(seenKeywords_, true)) {
      readKeywords(value, *report_.get());
    }
    return name != kClustersMember && name != kImagesMember;
  }

  IZolKeyMatrixInfo* readRest(Value root) {
    for (const LabelledDimension& dimension : kLabelledDimensions) {
      if (dimension.labelIsScore) {
        readLabelledDimension(root.member(dimension.member), dimension, *report_.get());
      }
    }
    readFaceClusters(root.member(kClustersMember), root.member(kImagesMember), *report_.get());
    return report_.give();
  }

 private:
  static constexpr const char* kSpeechMember = "stt";
  static constexpr const char* kKeywordsMember = "keywords";
  static constexpr const char* kClustersMember = "face_cluster";
  static constexpr const char* kImagesMember = "face_image_map";

  Handle<ZolKeyMatrixInfo> report_;
  std::array<bool, std::size(kLabelledDimensions)> seen_{};
  bool seenSpeech_ = false;
  bool seenKeywords_ = false;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolKeyMatrixInfo* createKeyMatrixInfo(const char* text) {
  if (!text) return nullptr;
  ZOL::ReportReader reader;
  const ZOL::json::Document document(text, reader);
  return document.root().isObject() ? reader.readRest(document.root()) : nullptr;
}
