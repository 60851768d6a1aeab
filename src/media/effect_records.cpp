// The records of effects, plug-ins and pan-zoom moves.

#include <KyDataStructure/media.h>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

class ZoEffectInfo final : public Counted<IZoEffectInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZoEffectInfo, IDmBaseObj>(this, name);
  }

  const char* effectText1() override { return effectText1_.get(); }
  int setEffectText1(const char* text) override { return effectText1_.set(text); }
  const char* effectText2() override { return effectText2_.get(); }
  int setEffectText2(const char* text) override { return effectText2_.set(text); }
  const char* effectText3() override { return effectText3_.get(); }
  int setEffectText3(const char* text) override { return effectText3_.set(text); }
  const char* effectText4() override { return effectText4_.get(); }
  int setEffectText4(const char* text) override { return effectText4_.set(text); }
  int copyFrom(IZoEffectInfo* other) override {
    if (!other) return kRefused;
    setEffectText1(other->effectText1());
    setEffectText2(other->effectText2());
    setEffectText3(other->effectText3());
    setEffectText4(other->effectText4());
    return kSuccess;
  }

 private:
  TextRefusingNull effectText1_;
  TextRefusingNull effectText2_;
  TextRefusingNull effectText3_;
  TextRefusingNull effectText4_;
};

class ZolPluginInfo final : public Counted<IZolPluginInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolPluginInfo, IDmBaseObj>(this, name);
  }

  const char* pluginText1() override { return pluginText1_.get(); }
  int setPluginText1(const char* text) override { return pluginText1_.set(text); }
  const char* pluginText2() override { return pluginText2_.get(); }
  int setPluginText2(const char* text) override { return pluginText2_.set(text); }
  const char* pluginText3() override { return pluginText3_.get(); }
  int setPluginText3(const char* text) override { return pluginText3_.set(text); }
  int pluginNumber() override { return pluginNumber_.get(); }
  int setPluginNumber(int number) override { return pluginNumber_.set(number); }
  int getEffects(IZoEffectInfoList* out) override { return effects_.giveTo(out); }
  int setEffects(IZoEffectInfoList* in) override { return effects_.takeFrom(in); }
  int addEffect(IZoEffectInfo* effect) override {
    if (!effect) return kRefused;
    effects_->add(effect);
    return kSuccess;
  }
  // On purpose the effects go the other way: the source is given this record's, and its
  // own are gone.
  int copyFrom(IZolPluginInfo* other) override {
    if (!other) return kRefused;
    setPluginText1(other->pluginText1());
    setPluginText2(other->pluginText2());
    setPluginText3(other->pluginText3());
    setPluginNumber(other->pluginNumber());
    other->setEffects(effects_.get());
    return kSuccess;
  }

 private:
  TextRefusingNull pluginText1_;
  TextRefusingNull pluginText2_;
  TextRefusingNull pluginText3_;
  Plain<int> pluginNumber_;
  OwnedList<IZoEffectInfoList, createIZoEffectInfoList> effects_;
};

// The whole unit square.
constexpr _RectF kWhole = {0.0, 0.0, 1.0, 1.0};

class ZolPanZoomPair final : public Counted<IZolPanZoomPair, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolPanZoomPair, IDmBaseObj>(this, name);
  }

  _RectF firstRect() override { return firstRect_.get(); }
  int setFirstRect(_RectF rect) override { return firstRect_.set(rect); }
  _RectF secondRect() override { return secondRect_.get(); }
  int setSecondRect(_RectF rect) override { return secondRect_.set(rect); }
  long long firstNumber() override { return firstNumber_.get(); }
  int setFirstNumber(long long number) override { return firstNumber_.set(number); }
  long long secondNumber() override { return secondNumber_.get(); }
  int setSecondNumber(long long number) override { return secondNumber_.set(number); }
  int copyFrom(IZolPanZoomPair* other) override {
    if (!other) return kRefused;
    setFirstNumber(other->firstNumber());
    setSecondNumber(other->secondNumber());
    setFirstRect(other->firstRect());
    setSecondRect(other->secondRect());
    return kSuccess;
  }

 private:
  Plain<_RectF> firstRect_{kWhole};
  Plain<_RectF> secondRect_{kWhole};
  Plain<long long> firstNumber_;
  Plain<long long> secondNumber_;
};

}  // namespace
}  // namespace ZOL

ZOL::IZoEffectInfo* createEffectInfo() { return ZOL::makeObject<ZOL::ZoEffectInfo>(); }
ZOL::IZolPluginInfo* createPluginInfo() { return ZOL::makeObject<ZOL::ZolPluginInfo>(); }
ZOL::IZolPanZoomPair* createPanZoomPair() { return ZOL::makeObject<ZOL::ZolPanZoomPair>(); }
