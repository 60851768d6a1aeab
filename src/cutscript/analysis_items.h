// The analysis report: spans of time with labels, by dimension.

#ifndef KYDATASTRUCTURE_CUTSCRIPT_ANALYSIS_ITEMS_H_
#define KYDATASTRUCTURE_CUTSCRIPT_ANALYSIS_ITEMS_H_

#include <KyDataStructure/cutscript.h>

#include <map>
#include <string>
#include <utility>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"
#include "frame/shared_text.h"
#include "lists/made_lists.h"

namespace ZOL {

class ZolSliceItem final : public Counted<IZolSliceItem, IZolSliceItemInternal, RefCnt<void>> {
 public:
  using Counted::Counted;

  void* queryInterface(const char* name) override {
    return answer<IZolSliceItem, IZolSliceItemInternal, IDmBaseObj>(this, name);
  }

  const char* label() override { return label_.get(); }
  int setLabel(const char* text) override { return label_.set(text); }
  long long startTime() override { return startTime_.get(); }
  int setStartTime(long long time) override { return startTime_.set(time); }
  long long endTime() override { return endTime_.get(); }
  int setEndTime(long long time) override { return endTime_.set(time); }
  int score() override { return score_.get(); }
  int setScore(int score) override { return score_.set(score); }
  int getKeyValues(ZOLPCharList* keys, ZOLPCharList* values) override;
  int setKeyValues(ZOLPCharList* keys, ZOLPCharList* values) override;
  IZolBGRData* faceImage() override { return faceImage_.get(); }
  int setFaceImage(IZolBGRData* image) override { return faceImage_.set(image); }

  // The same text, shared.
  void setLabel(SharedText text) { label_.set(std::move(text)); }

 private:
  TextTakingNull label_;
  Plain<long long> startTime_;
  Plain<long long> endTime_;
  Plain<int> score_{100};
  Handle<TextList> keys_;    // null until first set, as every list below
  Handle<TextList> values_;  // there when the keys are
  Kept<IZolBGRData> faceImage_;
};

using SliceList = ObjectList<IZolSliceItemList>;
using TimeList = ValueList<ZOLLonglongList>;
using ScoreList = ValueList<ZOLIntList>;

class ZolDemensionsItem final
    : public Counted<IZolDemensionsItem, IZolDemensionsItemInternal, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolDemensionsItem, IZolDemensionsItemInternal, IDmBaseObj>(this, name);
  }

  int dimensionType() override { return dimensionType_.get(); }
  int setDimensionType(int type) override { return dimensionType_.set(type); }
  int getSliceItems(IZolSliceItemList* out) override;
  int setSliceItems(IZolSliceItemList* slices) override;
  bool hasLabels() override { return !labelSliceItems_.empty(); }
  int getLabels(ZOLPCharList* out) override;
  int getLabelSliceItems(const char* label, IZolSliceItemList* out) override;
  int setLabelSliceItems(const char* label, IZolSliceItemList* slices) override;
  bool hasScores() override;
  int getScores(ZOLLonglongList* times, ZOLIntList* scores) override;
  int setScores(ZOLLonglongList* times, ZOLIntList* scores) override;

  // For the reader, whose lists nobody else has: taken as they are.
  void takeSliceItems(Handle<SliceList> slices) { sliceItems_ = std::move(slices); }
  void takeLabelSliceItems(const char* label, Handle<SliceList> slices) {
    labelSliceItems_[label] = std::move(slices);
  }
  void takeScores(Handle<TimeList> times, Handle<ScoreList> scores) {
    scoreTimes_ = std::move(times);
    scores_ = std::move(scores);
  }

 private:
  Plain<int> dimensionType_;
  Handle<SliceList> sliceItems_;
  std::map<std::string, Handle<SliceList>> labelSliceItems_;
  Handle<TimeList> scoreTimes_;
  Handle<ScoreList> scores_;  // there when the times are
};

class ZolKeyMatrixInfo final
    : public Counted<IZolKeyMatrixInfo, IZolKeyMatrixInfoInternal, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolKeyMatrixInfo, IZolKeyMatrixInfoInternal, IDmBaseObj>(this, name);
  }

  const char* matrixName() override { return matrixName_.get(); }
  int setMatrixName(const char* text) override { return matrixName_.set(text); }
  int getDimensionTypes(ZOLIntList* out) override;
  IZolDemensionsItem* dimensionItem(int type) override;
  int setDimensionItem(int type, IZolDemensionsItem* item) override;
  int getKeywords(ZOLPCharList* out) override;
  int setKeywords(ZOLPCharList* keywords) override;

 private:
  TextTakingNull matrixName_;
  std::map<int, Handle<IZolDemensionsItem>> dimensions_;
  Handle<TextList> keywords_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_CUTSCRIPT_ANALYSIS_ITEMS_H_
