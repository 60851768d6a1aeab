#include "cutscript/records.h"

#include "frame/handle.h"

namespace ZOL {
namespace {

// Nine texts for whoever knows what they are; nothing else in here touches them.
class ZolTargetScreenInfo final
    : public Counted<IZolTargetScreenInfo, IZolTargetScreenInfoInternal, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolTargetScreenInfo, IZolTargetScreenInfoInternal, IDmBaseObj>(this, name);
  }

  const char* screenText1() override { return screenText1_.get(); }
  int setScreenText1(const char* text) override { return screenText1_.set(text); }
  const char* screenText2() override { return screenText2_.get(); }
  int setScreenText2(const char* text) override { return screenText2_.set(text); }
  const char* screenText3() override { return screenText3_.get(); }
  int setScreenText3(const char* text) override { return screenText3_.set(text); }
  const char* screenText4() override { return screenText4_.get(); }
  int setScreenText4(const char* text) override { return screenText4_.set(text); }
  const char* screenText5() override { return screenText5_.get(); }
  int setScreenText5(const char* text) override { return screenText5_.set(text); }
  const char* screenText6() override { return screenText6_.get(); }
  int setScreenText6(const char* text) override { return screenText6_.set(text); }
  const char* screenText7() override { return screenText7_.get(); }
  int setScreenText7(const char* text) override { return screenText7_.set(text); }
  const char* screenText8() override { return screenText8_.get(); }
  int setScreenText8(const char* text) override { return screenText8_.set(text); }
  const char* screenText9() override { return screenText9_.get(); }
  int setScreenText9(const char* text) override { return screenText9_.set(text); }

 private:
  TextTakingNull screenText1_;
  TextTakingNull screenText2_;
  TextTakingNull screenText3_;
  TextTakingNull screenText4_;
  TextTakingNull screenText5_;
  TextTakingNull screenText6_;
  TextTakingNull screenText7_;
  TextTakingNull screenText8_;
  TextTakingNull screenText9_;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolStoryboardInfo* createStoryboardInfo() {
  return ZOL::makeObject<ZOL::ZolStoryboardInfo>();
}
ZOL::IZolSmartCutClipInfo* createSmartCutClipInfo() {
  return ZOL::makeObject<ZOL::ZolSmartCutClipInfo>();
}
ZOL::IZolTextInfo* createTextInfo() { return ZOL::makeObject<ZOL::ZolTextInfo>(); }
ZOL::IZolTargetScreenInfo* createTargetScreenInfo() {
  return ZOL::makeObject<ZOL::ZolTargetScreenInfo>();
}
ZOL::IZolHighlightInfo* createHighlightInfo() { return ZOL::makeObject<ZOL::ZolHighlightInfo>(); }
ZOL::IZolMusicInfo* createMusicInfo() { return ZOL::makeObject<ZOL::ZolMusicInfo>(); }
