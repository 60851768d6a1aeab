// The records of face clusters, voices and image history.

#include <KyDataStructure/media.h>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

class FaceClusterInfo final : public Counted<IFaceClusterInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IFaceClusterInfo, IDmBaseObj>(this, name);
  }

  long long clusterNumber1() override { return clusterNumber1_.get(); }
  int setClusterNumber1(long long number) override { return clusterNumber1_.set(number); }
  long long clusterNumber2() override { return clusterNumber2_.get(); }
  int setClusterNumber2(long long number) override { return clusterNumber2_.set(number); }
  _RectF clusterRect() override { return clusterRect_.get(); }
  int setClusterRect(_RectF rect) override { return clusterRect_.set(rect); }
  // The picture goes in and out as a copy of its bytes; an empty one is refused.
  int getClusterMedia(IZolMediaData* out) override {
    return out ? out->copyFrom(clusterMedia_.get()) : kRefused;
  }
  int setClusterMedia(IZolMediaData* in) override { return clusterMedia_->copyFrom(in); }
  // On purpose not the rectangle. A source without a picture leaves this one's.
  int copyFrom(IFaceClusterInfo* other) override {
    if (!other) return kRefused;
    setClusterNumber1(other->clusterNumber1());
    setClusterNumber2(other->clusterNumber2());
    other->getClusterMedia(clusterMedia_.get());
    return kSuccess;
  }

 private:
  Plain<long long> clusterNumber1_{-1};
  Plain<long long> clusterNumber2_{-1};
  Plain<_RectF> clusterRect_{_RectF{0.0, 0.0, 1.0, 1.0}};
  Handle<IZolMediaData> clusterMedia_ = Handle<IZolMediaData>::adopt(createEmptyMediaData());
};

class KyVoiceDataInfo final : public Counted<IKyVoiceDataInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyVoiceDataInfo, IDmBaseObj>(this, name);
  }

  int voiceNumber1() override { return voiceNumber1_.get(); }
  int setVoiceNumber1(int number) override { return voiceNumber1_.set(number); }
  const char* voiceText1() override { return voiceText1_.get(); }
  int setVoiceText1(const char* text) override { return voiceText1_.set(text); }
  const char* voiceText2() override { return voiceText2_.get(); }
  int setVoiceText2(const char* text) override { return voiceText2_.set(text); }
  int voiceNumber2() override { return voiceNumber2_.get(); }
  int setVoiceNumber2(int number) override { return voiceNumber2_.set(number); }
  const char* voiceText3() override { return voiceText3_.get(); }
  int setVoiceText3(const char* text) override { return voiceText3_.set(text); }
  const char* voiceText4() override { return voiceText4_.get(); }
  int setVoiceText4(const char* text) override { return voiceText4_.set(text); }
  const char* voiceText5() override { return voiceText5_.get(); }
  int setVoiceText5(const char* text) override { return voiceText5_.set(text); }
  const char* voiceText6() override { return voiceText6_.get(); }
  int setVoiceText6(const char* text) override { return voiceText6_.set(text); }
  int voiceNumber3() override { return voiceNumber3_.get(); }
  int setVoiceNumber3(int number) override { return voiceNumber3_.set(number); }
  const char* voiceText7() override { return voiceText7_.get(); }
  int setVoiceText7(const char* text) override { return voiceText7_.set(text); }
  int voiceNumber4() override { return voiceNumber4_.get(); }
  int setVoiceNumber4(int number) override { return voiceNumber4_.set(number); }
  int voiceNumber5() override { return voiceNumber5_.get(); }
  int setVoiceNumber5(int number) override { return voiceNumber5_.set(number); }
  int voiceNumber6() override { return voiceNumber6_.get(); }
  int setVoiceNumber6(int number) override { return voiceNumber6_.set(number); }
  int copyFrom(IKyVoiceDataInfo* other) override {
    if (!other) return kRefused;
    setVoiceNumber1(other->voiceNumber1());
    setVoiceText1(other->voiceText1());
    setVoiceText2(other->voiceText2());
    setVoiceNumber2(other->voiceNumber2());
    setVoiceText3(other->voiceText3());
    setVoiceText4(other->voiceText4());
    setVoiceText5(other->voiceText5());
    setVoiceText6(other->voiceText6());
    setVoiceNumber3(other->voiceNumber3());
    setVoiceText7(other->voiceText7());
    setVoiceNumber4(other->voiceNumber4());
    setVoiceNumber5(other->voiceNumber5());
    setVoiceNumber6(other->voiceNumber6());
    return kSuccess;
  }

 private:
  Plain<int> voiceNumber1_;
  TextRefusingNull voiceText1_;
  TextRefusingNull voiceText2_;
  Plain<int> voiceNumber2_;
  TextRefusingNull voiceText3_;
  TextRefusingNull voiceText4_;
  TextRefusingNull voiceText5_;
  TextRefusingNull voiceText6_;
  Plain<int> voiceNumber3_;
  TextRefusingNull voiceText7_;
  Plain<int> voiceNumber4_;
  Plain<int> voiceNumber5_;
  Plain<int> voiceNumber6_;
};

class KyLoraTextToImageHistoryInfo final
    : public Counted<IKyLoraTextToImageHistoryInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyLoraTextToImageHistoryInfo, IDmBaseObj>(this, name);
  }

  int historyNumber1() override { return historyNumber1_.get(); }
  int setHistoryNumber1(int number) override { return historyNumber1_.set(number); }
  long long historyNumber2() override { return historyNumber2_.get(); }
  int setHistoryNumber2(int number) override { return historyNumber2_.set(number); }
  const char* historyText1() override { return historyText1_.get(); }
  int setHistoryText1(const char* text) override { return historyText1_.set(text); }
  const char* historyText2() override { return historyText2_.get(); }
  int setHistoryText2(const char* text) override { return historyText2_.set(text); }
  int getHistoryTexts(ZOLPCharList* out) override { return historyTexts_.giveTo(out); }
  // On purpose cleared first: an `in` that the assignment refuses leaves no texts.
  int setHistoryTexts(ZOLPCharList* in) override {
    if (!in) return kRefused;
    historyTexts_->clear();
    return historyTexts_.takeFrom(in);
  }

 private:
  Plain<int> historyNumber1_{-1};
  Plain<int> historyNumber2_;
  TextRefusingNull historyText1_;
  TextRefusingNull historyText2_;
  OwnedList<ZOLPCharList, createZOLPCharList> historyTexts_;
};

}  // namespace
}  // namespace ZOL

ZOL::IFaceClusterInfo* createFaceClusterInfo() { return ZOL::makeObject<ZOL::FaceClusterInfo>(); }
ZOL::IKyVoiceDataInfo* createVoiceDataInfo() { return ZOL::makeObject<ZOL::KyVoiceDataInfo>(); }
ZOL::IKyLoraTextToImageHistoryInfo* createLoraTextToImageHistoryInfo() {
  return ZOL::makeObject<ZOL::KyLoraTextToImageHistoryInfo>();
}
