// The records of a script: scenes with clips and sounds, and characters.

#include <KyDataStructure/media.h>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

class KyScriptCharactersIfInfo final : public Counted<IKyScriptCharactersIfInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyScriptCharactersIfInfo, IDmBaseObj>(this, name);
  }

  int charactersIfNumber() override { return charactersIfNumber_.get(); }
  int setCharactersIfNumber(int number) override { return charactersIfNumber_.set(number); }
  const char* charactersIfText() override { return charactersIfText_.get(); }
  int setCharactersIfText(const char* text) override { return charactersIfText_.set(text); }
  int copyFrom(IKyScriptCharactersIfInfo* other) override {
    if (!other) return kRefused;
    setCharactersIfNumber(other->charactersIfNumber());
    setCharactersIfText(other->charactersIfText());
    return kSuccess;
  }

 private:
  Plain<int> charactersIfNumber_;
  TextRefusingNull charactersIfText_;
};

class KyScriptClipInfo final : public Counted<IKyScriptClipInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyScriptClipInfo, IDmBaseObj>(this, name);
  }

  int getCharactersIfList(IKyScriptCharactersIfInfoList* out) override {
    return charactersIfList_.giveTo(out);
  }
  int setCharactersIfList(IKyScriptCharactersIfInfoList* in) override {
    return charactersIfList_.takeFrom(in);
  }
  const char* clipText() override { return clipText_.get(); }
  int setClipText(const char* text) override { return clipText_.set(text); }
  int copyFrom(IKyScriptClipInfo* other) override {
    if (!other) return kRefused;
    other->getCharactersIfList(charactersIfList_.get());
    setClipText(other->clipText());
    return kSuccess;
  }

 private:
  OwnedList<IKyScriptCharactersIfInfoList, createIKyScriptCharactersIfInfoList> charactersIfList_;
  TextRefusingNull clipText_;
};

class KyScriptEventSoundInfo final : public Counted<IKyScriptEventSoundInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyScriptEventSoundInfo, IDmBaseObj>(this, name);
  }

  int eventNumber1() override { return eventNumber1_.get(); }
  int setEventNumber1(int number) override { return eventNumber1_.set(number); }
  int eventNumber2() override { return eventNumber2_.get(); }
  int setEventNumber2(int number) override { return eventNumber2_.set(number); }
  const char* eventText1() override { return eventText1_.get(); }
  int setEventText1(const char* text) override { return eventText1_.set(text); }
  const char* eventText2() override { return eventText2_.get(); }
  int setEventText2(const char* text) override { return eventText2_.set(text); }
  int copyFrom(IKyScriptEventSoundInfo* other) override {
    if (!other) return kRefused;
    setEventNumber1(other->eventNumber1());
    setEventNumber2(other->eventNumber2());
    setEventText1(other->eventText1());
    setEventText2(other->eventText2());
    return kSuccess;
  }

 private:
  Plain<int> eventNumber1_;
  Plain<int> eventNumber2_;
  TextRefusingNull eventText1_;
  TextRefusingNull eventText2_;
};

class KyScriptCharacterInfo final : public Counted<IKyScriptCharacterInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyScriptCharacterInfo, IDmBaseObj>(this, name);
  }

  int characterNumber1() override { return characterNumber1_.get(); }
  int setCharacterNumber1(int number) override { return characterNumber1_.set(number); }
  const char* characterText1() override { return characterText1_.get(); }
  int setCharacterText1(const char* text) override { return characterText1_.set(text); }
  const char* characterText2() override { return characterText2_.get(); }
  int setCharacterText2(const char* text) override { return characterText2_.set(text); }
  const char* characterText3() override { return characterText3_.get(); }
  int setCharacterText3(const char* text) override { return characterText3_.set(text); }
  // On purpose not characterNumber2.
  int copyFrom(IKyScriptCharacterInfo* other) override {
    if (!other) return kRefused;
    setCharacterNumber1(other->characterNumber1());
    setCharacterText1(other->characterText1());
    setCharacterText2(other->characterText2());
    setCharacterText3(other->characterText3());
    return kSuccess;
  }
  void setCharacterNumber2(int number) override { characterNumber2_.set(number); }
  int characterNumber2() override { return characterNumber2_.get(); }

 private:
  Plain<int> characterNumber1_{-1};
  TextRefusingNull characterText1_;
  TextRefusingNull characterText2_;
  TextRefusingNull characterText3_;
  Plain<int> characterNumber2_;
};

class KyScriptSceneInfo final : public Counted<IKyScriptSceneInfo, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyScriptSceneInfo, IDmBaseObj>(this, name);
  }

  int sceneNumber1() override { return sceneNumber1_.get(); }
  int setSceneNumber1(int number) override { return sceneNumber1_.set(number); }
  long long sceneNumber2() override { return sceneNumber2_.get(); }
  int setSceneNumber2(int number) override { return sceneNumber2_.set(number); }
  const char* sceneText1() override { return sceneText1_.get(); }
  int setSceneText1(const char* text) override { return sceneText1_.set(text); }
  int sceneNumber3() override { return sceneNumber3_.get(); }
  int setSceneNumber3(int number) override { return sceneNumber3_.set(number); }
  int sceneNumber4() override { return sceneNumber4_.get(); }
  int setSceneNumber4(int number) override { return sceneNumber4_.set(number); }
  int sceneNumber5() override { return sceneNumber5_.get(); }
  int setSceneNumber5(int number) override { return sceneNumber5_.set(number); }
  int sceneNumber6() override { return sceneNumber6_.get(); }
  int setSceneNumber6(int number) override { return sceneNumber6_.set(number); }
  const char* sceneText2() override { return sceneText2_.get(); }
  int setSceneText2(const char* text) override { return sceneText2_.set(text); }
  const char* sceneText3() override { return sceneText3_.get(); }
  int setSceneText3(const char* text) override { return sceneText3_.set(text); }
  int getSceneTexts1(ZOLPCharList* out) override { return sceneTexts1_.giveTo(out); }
  int setSceneTexts1(ZOLPCharList* in) override { return sceneTexts1_.takeFrom(in); }
  int getSceneTexts2(ZOLPCharList* out) override { return sceneTexts2_.giveTo(out); }
  int setSceneTexts2(ZOLPCharList* in) override { return sceneTexts2_.takeFrom(in); }
  const char* sceneText4() override { return sceneText4_.get(); }
  int setSceneText4(const char* text) override { return sceneText4_.set(text); }
  const char* sceneText5() override { return sceneText5_.get(); }
  int setSceneText5(const char* text) override { return sceneText5_.set(text); }
  int getHistoryList(IKyLoraTextToImageHistoryInfoList* out) override {
    return historyList_.giveTo(out);
  }
  int setHistoryList(IKyLoraTextToImageHistoryInfoList* in) override {
    return historyList_.takeFrom(in);
  }
  int getClipList(IKyScriptClipInfoList* out) override { return clipList_.giveTo(out); }
  int setClipList(IKyScriptClipInfoList* in) override { return clipList_.takeFrom(in); }
  const char* sceneText6() override { return sceneText6_.get(); }
  int setSceneText6(const char* text) override { return sceneText6_.set(text); }
  const char* sceneText7() override { return sceneText7_.get(); }
  int setSceneText7(const char* text) override { return sceneText7_.set(text); }
  int getSceneTexts3(ZOLPCharList* out) override { return sceneTexts3_.giveTo(out); }
  int setSceneTexts3(ZOLPCharList* in) override { return sceneTexts3_.takeFrom(in); }
  int getEventSoundList(IKyScriptEventSoundInfoList* out) override {
    return eventSoundList_.giveTo(out);
  }
  int setEventSoundList(IKyScriptEventSoundInfoList* in) override {
    return eventSoundList_.takeFrom(in);
  }
  const char* sceneText8() override { return sceneText8_.get(); }
  int setSceneText8(const char* text) override { return sceneText8_.set(text); }
  const char* sceneText9() override { return sceneText9_.get(); }
  int setSceneText9(const char* text) override { return sceneText9_.set(text); }
  int sceneNumber7() override { return sceneNumber7_.get(); }
  int setSceneNumber7(int number) override { return sceneNumber7_.set(number); }
  int getSceneTexts4(ZOLPCharList* out) override { return sceneTexts4_.giveTo(out); }
  int setSceneTexts4(ZOLPCharList* in) override { return sceneTexts4_.takeFrom(in); }
  // On purpose not sceneText3, sceneTexts2, sceneTexts4 and sceneNumber8. A list of a
  // scene copied onto itself is assigned to itself, and so emptied.
  int copyFrom(IKyScriptSceneInfo* other) override {
    if (!other) return kRefused;
    setSceneNumber1(other->sceneNumber1());
    setSceneNumber2(static_cast<int>(other->sceneNumber2()));
    setSceneText1(other->sceneText1());
    setSceneNumber3(other->sceneNumber3());
    setSceneNumber4(other->sceneNumber4());
    setSceneNumber5(other->sceneNumber5());
    setSceneNumber6(other->sceneNumber6());
    setSceneText2(other->sceneText2());
    other->getSceneTexts1(sceneTexts1_.get());
    setSceneText4(other->sceneText4());
    setSceneText5(other->sceneText5());
    other->getHistoryList(historyList_.get());
    other->getClipList(clipList_.get());
    setSceneText6(other->sceneText6());
    setSceneText7(other->sceneText7());
    other->getSceneTexts3(sceneTexts3_.get());
    other->getEventSoundList(eventSoundList_.get());
    setSceneText8(other->sceneText8());
    setSceneText9(other->sceneText9());
    setSceneNumber7(other->sceneNumber7());
    return kSuccess;
  }
  void setSceneNumber8(int number) override { sceneNumber8_.set(number); }
  int sceneNumber8() override { return sceneNumber8_.get(); }

  // On purpose these fields alone, and sceneNumber6 to another value than its first.
  void resetScene() override {
    setSceneText2("");
    setSceneText5("");
    setSceneText7("");
    setSceneText9("");
    setSceneNumber7(0);
    setSceneNumber6(1);
    sceneTexts1_.renew();
    sceneTexts2_.renew();
    sceneTexts3_.renew();
    eventSoundList_.renew();
    sceneTexts4_.renew();
  }

 private:
  Plain<int> sceneNumber1_{-1};
  Plain<int> sceneNumber2_{-1};
  TextRefusingNull sceneText1_;
  Plain<int> sceneNumber3_;
  Plain<int> sceneNumber4_;
  Plain<int> sceneNumber5_;
  Plain<int> sceneNumber6_;
  TextRefusingNull sceneText2_;
  TextRefusingNull sceneText3_;
  OwnedList<ZOLPCharList, createZOLPCharList> sceneTexts1_;
  OwnedList<ZOLPCharList, createZOLPCharList> sceneTexts2_;
  TextRefusingNull sceneText4_;
  TextRefusingNull sceneText5_;
  OwnedList<IKyLoraTextToImageHistoryInfoList, createIKyLoraTextToImageHistoryInfoList>
      historyList_;
  OwnedList<IKyScriptClipInfoList, createIKyScriptClipInfoList> clipList_;
  TextRefusingNull sceneText6_;
  TextRefusingNull sceneText7_;
  OwnedList<ZOLPCharList, createZOLPCharList> sceneTexts3_;
  OwnedList<IKyScriptEventSoundInfoList, createIKyScriptEventSoundInfoList> eventSoundList_;
  TextRefusingNull sceneText8_;
  TextRefusingNull sceneText9_;
  Plain<int> sceneNumber7_;
  OwnedList<ZOLPCharList, createZOLPCharList> sceneTexts4_;
  Plain<int> sceneNumber8_;
};

}  // namespace
}  // namespace ZOL

ZOL::IKyScriptSceneInfo* createScriptSceneInfo() {
  return ZOL::makeObject<ZOL::KyScriptSceneInfo>();
}
ZOL::IKyScriptClipInfo* createScriptClipInfo() { return ZOL::makeObject<ZOL::KyScriptClipInfo>(); }
ZOL::IKyScriptEventSoundInfo* createScriptEventSoundInfo() {
  return ZOL::makeObject<ZOL::KyScriptEventSoundInfo>();
}
ZOL::IKyScriptCharactersIfInfo* createScriptCharactersIfInfo() {
  return ZOL::makeObject<ZOL::KyScriptCharactersIfInfo>();
}
ZOL::IKyScriptCharacterInfo* createScriptCharacterInfo() {
  return ZOL::makeObject<ZOL::KyScriptCharacterInfo>();
}
