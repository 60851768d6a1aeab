// The order of virtual operations is binary contract: a caller's build has each one's
// place in its code. Here is that place, for every operation of every interface.
//
// A table of virtual operations is laid out as the C++ ABI of this platform says. With that
// of GNU compilers a pointer to a virtual member begins with the offset of its entry, which
// is marked as one, and an interface continues the table of its base, also where the base
// is virtual.

#include <KyDataStructure/KyDataStructure.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace {

// The mark is one more in the offset; on ARM, where code of one kind has odd addresses, it is
// in the other word.
#if defined(__arm__) || defined(__aarch64__)
constexpr std::ptrdiff_t kMark = 0;
#else
constexpr std::ptrdiff_t kMark = 1;
#endif

// The entry that a pointer to a virtual member denotes.
template <class Member>
long placeOf(Member member) {
  std::ptrdiff_t words[2];
  static_assert(sizeof words == sizeof member, "the entry, and what to add to the object");
  std::memcpy(words, &member, sizeof words);
  return static_cast<long>((words[0] - kMark) / static_cast<std::ptrdiff_t>(sizeof(void*)));
}

struct Operation {
  const char* name;
  long place;
};

struct Interface {
  const char* name;
  long first;  // the place of the first operation of its own
  std::vector<Operation> operations;
  long end;  // the place behind its last operation
  std::size_t size;
};

// Puts one operation behind those of an interface.
template <class Base>
class Longer : public Base {
 public:
  virtual void behind() = 0;

 protected:
  ~Longer() = default;
};

template <class I>
Interface interface(const char* name, long first, const std::vector<Operation>& operations) {
  static_assert(!std::is_destructible<I>::value, "`delete` must not compile: release() ends it");
  static_assert(!std::has_virtual_destructor<I>::value, "no place for a destructor");
  return {name, first, operations, placeOf(&Longer<I>::behind), sizeof(I)};
}

// Behind the six of IDmBaseObj.
constexpr long kBehindBase = 6;

template <class List>
Interface list() {
  return interface<List>(List::interfaceName, kBehindBase,
                         {
                             {"size", placeOf(&List::size)},
                             {"at", placeOf(&List::at)},
                             {"add", placeOf(&List::add)},
                             {"removeAt", placeOf(&List::removeAt)},
                             {"insertAt", placeOf(&List::insertAt)},
                             {"setAt", placeOf(&List::setAt)},
                             {"clear", placeOf(&List::clear)},
                             {"assign", placeOf(&List::assign)},
                             {"insertListAt", placeOf(&List::insertListAt)},
                             {"sort", placeOf(&List::sort)},
                             {"find", placeOf(&List::find)},
                         });
}

std::vector<Interface> frameInterfaces() {
  return {
      interface<ZOL::IReleaseHook>(
          "IReleaseHook", 0,
          {
              {"onLastRelease", placeOf(&ZOL::IReleaseHook::onLastRelease)},
          }),
      interface<ZOL::IDmBaseObj>("IDmBaseObj", 0,
                                 {
                                     {"addRef", placeOf(&ZOL::IDmBaseObj::addRef)},
                                     {"release", placeOf(&ZOL::IDmBaseObj::release)},
                                     {"refCount", placeOf(&ZOL::IDmBaseObj::refCount)},
                                     {"releaseHook", placeOf(&ZOL::IDmBaseObj::releaseHook)},
                                     {"setReleaseHook", placeOf(&ZOL::IDmBaseObj::setReleaseHook)},
                                     {"queryInterface", placeOf(&ZOL::IDmBaseObj::queryInterface)},
                                 }),
      interface<ZOL::IDmDeepClonableObj>(
          "IDmDeepClonableObj", kBehindBase,
          {
              {"deepClone", placeOf(&ZOL::IDmDeepClonableObj::deepClone)},
          }),
      interface<ZOL::IZolString>("IZolString", kBehindBase,
                                 {
                                     {"setText", placeOf(&ZOL::IZolString::setText)},
                                     {"text", placeOf(&ZOL::IZolString::text)},
                                     {"appendText", placeOf(&ZOL::IZolString::appendText)},
                                     {"equals", placeOf(&ZOL::IZolString::equals)},
                                     {"length", placeOf(&ZOL::IZolString::length)},
                                 }),
      interface<ZOL::IZolPChar>("IZolPChar", kBehindBase,
                                {
                                    {"setData", placeOf(&ZOL::IZolPChar::setData)},
                                    {"data", placeOf(&ZOL::IZolPChar::data)},
                                    {"size", placeOf(&ZOL::IZolPChar::size)},
                                }),
      interface<ZOL::IDataSizeBuffer>("IDataSizeBuffer", kBehindBase,
                                      {
                                          {"data", placeOf(&ZOL::IDataSizeBuffer::data)},
                                          {"size", placeOf(&ZOL::IDataSizeBuffer::size)},
                                          {"setData", placeOf(&ZOL::IDataSizeBuffer::setData)},
                                      }),
  };
}

std::vector<Interface> listInterfaces() {
  return {
      interface<ZOL::IGpuInfo>("IGpuInfo", kBehindBase, {}),
      list<ZOL::ZOLIntList>(),
      list<ZOL::ZOLBoolList>(),
      list<ZOL::ZOLFLOATList>(),
      list<ZOL::ZOLREALList>(),
      list<ZOL::ZOLLonglongList>(),
      list<ZOL::ZOLULonglongList>(),
      list<ZOL::ZOLIntPtrList>(),
      list<ZOL::ZOLVoidPtrList>(),
      list<ZOL::ZOLPByteList>(),
      list<ZOL::ZolValueList>(),
      list<ZOL::ZOLPointNList>(),
      list<ZOL::ZOLSizeNList>(),
      list<ZOL::GradientColorList>(),
      list<ZOL::ZOLPointFList>(),
      list<ZOL::ZOLRectNList>(),
      list<ZOL::ZOLRangeList>(),
      list<ZOL::BkMarkInOutSectionList>(),
      list<ZOL::ZOLRectFList>(),
      list<ZOL::RenderSegmentInfoList>(),
      list<ZOL::ZOLPolygonFList>(),
      list<ZOL::PropertyList>(),
      list<ZOL::KeyFrameValueList>(),
      list<ZOL::ZOLPCharList>(),
      list<ZOL::ZOLAutoVoidPtrList>(),
      list<ZOL::ZOLBaseObjectList>(),
      list<ZOL::IKyMaskInfoDataList>(),
      list<ZOL::IZolBGRDataList>(),
      list<ZOL::IZolBGRADataList>(),
      list<ZOL::IZoEffectInfoList>(),
      list<ZOL::IZolPluginInfoList>(),
      list<ZOL::IFaceClusterInfoList>(),
      list<ZOL::IKyLoraTextToImageHistoryInfoList>(),
      list<ZOL::IKyVoiceDataInfoList>(),
      list<ZOL::IKyScriptSceneInfoList>(),
      list<ZOL::IKyScriptCharacterInfoList>(),
      list<ZOL::IKyScriptEventSoundInfoList>(),
      list<ZOL::IKyScriptCharactersIfInfoList>(),
      list<ZOL::IKyScriptClipInfoList>(),
      list<ZOL::IZolResSerializeInfoList>(),
      list<ZOL::IZolSliceItemList>(),
      list<ZOL::IZolDemensionsItemList>(),
      list<ZOL::IZolKeyMatrixInfoList>(),
      list<ZOL::IZolTextInfoList>(),
      list<ZOL::IZolHighlightInfoList>(),
      list<ZOL::IZolSmartCutClipInfoList>(),
      list<ZOL::IZolMusicInfoList>(),
      list<ZOL::IZolStoryboardInfoList>(),
      list<ZOL::IZolSmartCutSearchResultList>(),
      list<ZOL::IZolSmartCutSearchDimensionsResultItemList>(),
      list<ZOL::IZolRoleSearchItemInfoList>(),
      list<ZOL::IGpuInfoList>(),
  };
}

std::vector<Interface> paramInterfaces() {
  return {
      interface<ZOL::IZolParam>("IZolParam", kBehindBase,
                                {
                                    {"setProperty", placeOf(&ZOL::IZolParam::setProperty)},
                                    {"getProperty", placeOf(&ZOL::IZolParam::getProperty)},
                                    {"getKeys", placeOf(&ZOL::IZolParam::getKeys)},
                                }),
      interface<ZOL::IZolParamInternal>(
          "IZolParamInternal", 0,
          {
              {"setParamName", placeOf(&ZOL::IZolParamInternal::setParamName)},
              {"paramName", placeOf(&ZOL::IZolParamInternal::paramName)},
              {"internalOperation3", placeOf(&ZOL::IZolParamInternal::internalOperation3)},
              {"internalOperation4", placeOf(&ZOL::IZolParamInternal::internalOperation4)},
          }),
      interface<ZOL::IParamObjectData>(
          "IParamObjectData", kBehindBase,
          {
              {"deepClone", placeOf(&ZOL::IParamObjectData::deepClone)},
              {"param", placeOf(&ZOL::IParamObjectData::param)},
              {"setParam", placeOf(&ZOL::IParamObjectData::setParam)},
              {"copyFrom", placeOf(&ZOL::IParamObjectData::copyFrom)},
              {"clearParams", placeOf(&ZOL::IParamObjectData::clearParams)},
          }),
      interface<ZOL::IRelinkEffectData>("IRelinkEffectData", 11, {}),
      interface<ZOL::IResourceMediaData>("IResourceMediaData", 11, {}),
      interface<ZOL::IAiPortraitV2Data>("IAiPortraitV2Data", 11, {}),
      interface<ZOL::IRemoveBackgroundData>("IRemoveBackgroundData", 11, {}),
      interface<ZOL::IAITemplateGenerateData>("IAITemplateGenerateData", 11, {}),
      interface<ZOL::IImageStylizesData>(
          "IImageStylizesData", 11,
          {
              {"resourceType", placeOf(&ZOL::IImageStylizesData::resourceType)},
              {"writeDataMap", placeOf(&ZOL::IImageStylizesData::writeDataMap)},
              {"readDataMap", placeOf(&ZOL::IImageStylizesData::readDataMap)},
          }),
  };
}

std::vector<Interface> mediaInterfaces() {
  return {
      interface<ZOL::IZolMediaData>(
          "IZolMediaData", kBehindBase,
          {
              {"tag", placeOf(&ZOL::IZolMediaData::tag)},
              {"setTag", placeOf(&ZOL::IZolMediaData::setTag)},
              {"width", placeOf(&ZOL::IZolMediaData::width)},
              {"height", placeOf(&ZOL::IZolMediaData::height)},
              {"setDimensions", placeOf(&ZOL::IZolMediaData::setDimensions)},
              {"dataSize", placeOf(&ZOL::IZolMediaData::dataSize)},
              {"data", placeOf(&ZOL::IZolMediaData::data)},
              {"setData", placeOf(&ZOL::IZolMediaData::setData)},
              {"copyFrom", placeOf(&ZOL::IZolMediaData::copyFrom)},
          }),
      interface<ZOL::IZolBGRData>("IZolBGRData", 15, {}),
      interface<ZOL::IZolBGRAData>("IZolBGRAData", 15, {}),
      interface<ZOL::IKyMaskInfoData>(
          "IKyMaskInfoData", kBehindBase,
          {
              {"maskText", placeOf(&ZOL::IKyMaskInfoData::maskText)},
              {"setMaskText", placeOf(&ZOL::IKyMaskInfoData::setMaskText)},
              {"maskNumber", placeOf(&ZOL::IKyMaskInfoData::maskNumber)},
              {"setMaskNumber", placeOf(&ZOL::IKyMaskInfoData::setMaskNumber)},
          }),
      interface<ZOL::IZoEffectInfo>(
          "IZoEffectInfo", kBehindBase,
          {
              {"effectText1", placeOf(&ZOL::IZoEffectInfo::effectText1)},
              {"setEffectText1", placeOf(&ZOL::IZoEffectInfo::setEffectText1)},
              {"effectText2", placeOf(&ZOL::IZoEffectInfo::effectText2)},
              {"setEffectText2", placeOf(&ZOL::IZoEffectInfo::setEffectText2)},
              {"effectText3", placeOf(&ZOL::IZoEffectInfo::effectText3)},
              {"setEffectText3", placeOf(&ZOL::IZoEffectInfo::setEffectText3)},
              {"effectText4", placeOf(&ZOL::IZoEffectInfo::effectText4)},
              {"setEffectText4", placeOf(&ZOL::IZoEffectInfo::setEffectText4)},
              {"copyFrom", placeOf(&ZOL::IZoEffectInfo::copyFrom)},
          }),
      interface<ZOL::IZolPluginInfo>(
          "IZolPluginInfo", kBehindBase,
          {
              {"pluginText1", placeOf(&ZOL::IZolPluginInfo::pluginText1)},
              {"setPluginText1", placeOf(&ZOL::IZolPluginInfo::setPluginText1)},
              {"pluginText2", placeOf(&ZOL::IZolPluginInfo::pluginText2)},
              {"setPluginText2", placeOf(&ZOL::IZolPluginInfo::setPluginText2)},
              {"pluginText3", placeOf(&ZOL::IZolPluginInfo::pluginText3)},
              {"setPluginText3", placeOf(&ZOL::IZolPluginInfo::setPluginText3)},
              {"pluginNumber", placeOf(&ZOL::IZolPluginInfo::pluginNumber)},
              {"setPluginNumber", placeOf(&ZOL::IZolPluginInfo::setPluginNumber)},
              {"getEffects", placeOf(&ZOL::IZolPluginInfo::getEffects)},
              {"setEffects", placeOf(&ZOL::IZolPluginInfo::setEffects)},
              {"addEffect", placeOf(&ZOL::IZolPluginInfo::addEffect)},
              {"copyFrom", placeOf(&ZOL::IZolPluginInfo::copyFrom)},
          }),
      interface<ZOL::IZolPanZoomPair>(
          "IZolPanZoomPair", kBehindBase,
          {
              {"firstRect", placeOf(&ZOL::IZolPanZoomPair::firstRect)},
              {"setFirstRect", placeOf(&ZOL::IZolPanZoomPair::setFirstRect)},
              {"secondRect", placeOf(&ZOL::IZolPanZoomPair::secondRect)},
              {"setSecondRect", placeOf(&ZOL::IZolPanZoomPair::setSecondRect)},
              {"firstNumber", placeOf(&ZOL::IZolPanZoomPair::firstNumber)},
              {"setFirstNumber", placeOf(&ZOL::IZolPanZoomPair::setFirstNumber)},
              {"secondNumber", placeOf(&ZOL::IZolPanZoomPair::secondNumber)},
              {"setSecondNumber", placeOf(&ZOL::IZolPanZoomPair::setSecondNumber)},
              {"copyFrom", placeOf(&ZOL::IZolPanZoomPair::copyFrom)},
          }),
      interface<ZOL::IFaceClusterInfo>(
          "IFaceClusterInfo", kBehindBase,
          {
              {"clusterNumber1", placeOf(&ZOL::IFaceClusterInfo::clusterNumber1)},
              {"setClusterNumber1", placeOf(&ZOL::IFaceClusterInfo::setClusterNumber1)},
              {"clusterNumber2", placeOf(&ZOL::IFaceClusterInfo::clusterNumber2)},
              {"setClusterNumber2", placeOf(&ZOL::IFaceClusterInfo::setClusterNumber2)},
              {"clusterRect", placeOf(&ZOL::IFaceClusterInfo::clusterRect)},
              {"setClusterRect", placeOf(&ZOL::IFaceClusterInfo::setClusterRect)},
              {"getClusterMedia", placeOf(&ZOL::IFaceClusterInfo::getClusterMedia)},
              {"setClusterMedia", placeOf(&ZOL::IFaceClusterInfo::setClusterMedia)},
              {"copyFrom", placeOf(&ZOL::IFaceClusterInfo::copyFrom)},
          }),
      interface<ZOL::IKyVoiceDataInfo>(
          "IKyVoiceDataInfo", kBehindBase,
          {
              {"voiceNumber1", placeOf(&ZOL::IKyVoiceDataInfo::voiceNumber1)},
              {"setVoiceNumber1", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceNumber1)},
              {"voiceText1", placeOf(&ZOL::IKyVoiceDataInfo::voiceText1)},
              {"setVoiceText1", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceText1)},
              {"voiceText2", placeOf(&ZOL::IKyVoiceDataInfo::voiceText2)},
              {"setVoiceText2", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceText2)},
              {"voiceNumber2", placeOf(&ZOL::IKyVoiceDataInfo::voiceNumber2)},
              {"setVoiceNumber2", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceNumber2)},
              {"voiceText3", placeOf(&ZOL::IKyVoiceDataInfo::voiceText3)},
              {"setVoiceText3", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceText3)},
              {"voiceText4", placeOf(&ZOL::IKyVoiceDataInfo::voiceText4)},
              {"setVoiceText4", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceText4)},
              {"voiceText5", placeOf(&ZOL::IKyVoiceDataInfo::voiceText5)},
              {"setVoiceText5", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceText5)},
              {"voiceText6", placeOf(&ZOL::IKyVoiceDataInfo::voiceText6)},
              {"setVoiceText6", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceText6)},
              {"voiceNumber3", placeOf(&ZOL::IKyVoiceDataInfo::voiceNumber3)},
              {"setVoiceNumber3", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceNumber3)},
              {"voiceText7", placeOf(&ZOL::IKyVoiceDataInfo::voiceText7)},
              {"setVoiceText7", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceText7)},
              {"voiceNumber4", placeOf(&ZOL::IKyVoiceDataInfo::voiceNumber4)},
              {"setVoiceNumber4", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceNumber4)},
              {"voiceNumber5", placeOf(&ZOL::IKyVoiceDataInfo::voiceNumber5)},
              {"setVoiceNumber5", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceNumber5)},
              {"voiceNumber6", placeOf(&ZOL::IKyVoiceDataInfo::voiceNumber6)},
              {"setVoiceNumber6", placeOf(&ZOL::IKyVoiceDataInfo::setVoiceNumber6)},
              {"copyFrom", placeOf(&ZOL::IKyVoiceDataInfo::copyFrom)},
          }),
      interface<ZOL::IKyLoraTextToImageHistoryInfo>(
          "IKyLoraTextToImageHistoryInfo", kBehindBase,
          {
              {"historyNumber1", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::historyNumber1)},
              {"setHistoryNumber1",
               placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::setHistoryNumber1)},
              {"historyNumber2", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::historyNumber2)},
              {"setHistoryNumber2",
               placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::setHistoryNumber2)},
              {"historyText1", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::historyText1)},
              {"setHistoryText1", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::setHistoryText1)},
              {"historyText2", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::historyText2)},
              {"setHistoryText2", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::setHistoryText2)},
              {"getHistoryTexts", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::getHistoryTexts)},
              {"setHistoryTexts", placeOf(&ZOL::IKyLoraTextToImageHistoryInfo::setHistoryTexts)},
          }),
      interface<ZOL::IKyScriptCharactersIfInfo>(
          "IKyScriptCharactersIfInfo", kBehindBase,
          {
              {"charactersIfNumber", placeOf(&ZOL::IKyScriptCharactersIfInfo::charactersIfNumber)},
              {"setCharactersIfNumber",
               placeOf(&ZOL::IKyScriptCharactersIfInfo::setCharactersIfNumber)},
              {"charactersIfText", placeOf(&ZOL::IKyScriptCharactersIfInfo::charactersIfText)},
              {"setCharactersIfText",
               placeOf(&ZOL::IKyScriptCharactersIfInfo::setCharactersIfText)},
              {"copyFrom", placeOf(&ZOL::IKyScriptCharactersIfInfo::copyFrom)},
          }),
      interface<ZOL::IKyScriptClipInfo>(
          "IKyScriptClipInfo", kBehindBase,
          {
              {"getCharactersIfList", placeOf(&ZOL::IKyScriptClipInfo::getCharactersIfList)},
              {"setCharactersIfList", placeOf(&ZOL::IKyScriptClipInfo::setCharactersIfList)},
              {"clipText", placeOf(&ZOL::IKyScriptClipInfo::clipText)},
              {"setClipText", placeOf(&ZOL::IKyScriptClipInfo::setClipText)},
              {"copyFrom", placeOf(&ZOL::IKyScriptClipInfo::copyFrom)},
          }),
      interface<ZOL::IKyScriptEventSoundInfo>(
          "IKyScriptEventSoundInfo", kBehindBase,
          {
              {"eventNumber1", placeOf(&ZOL::IKyScriptEventSoundInfo::eventNumber1)},
              {"setEventNumber1", placeOf(&ZOL::IKyScriptEventSoundInfo::setEventNumber1)},
              {"eventNumber2", placeOf(&ZOL::IKyScriptEventSoundInfo::eventNumber2)},
              {"setEventNumber2", placeOf(&ZOL::IKyScriptEventSoundInfo::setEventNumber2)},
              {"eventText1", placeOf(&ZOL::IKyScriptEventSoundInfo::eventText1)},
              {"setEventText1", placeOf(&ZOL::IKyScriptEventSoundInfo::setEventText1)},
              {"eventText2", placeOf(&ZOL::IKyScriptEventSoundInfo::eventText2)},
              {"setEventText2", placeOf(&ZOL::IKyScriptEventSoundInfo::setEventText2)},
              {"copyFrom", placeOf(&ZOL::IKyScriptEventSoundInfo::copyFrom)},
          }),
      interface<ZOL::IKyScriptCharacterInfo>(
          "IKyScriptCharacterInfo", kBehindBase,
          {
              {"characterNumber1", placeOf(&ZOL::IKyScriptCharacterInfo::characterNumber1)},
              {"setCharacterNumber1", placeOf(&ZOL::IKyScriptCharacterInfo::setCharacterNumber1)},
              {"characterText1", placeOf(&ZOL::IKyScriptCharacterInfo::characterText1)},
              {"setCharacterText1", placeOf(&ZOL::IKyScriptCharacterInfo::setCharacterText1)},
              {"characterText2", placeOf(&ZOL::IKyScriptCharacterInfo::characterText2)},
              {"setCharacterText2", placeOf(&ZOL::IKyScriptCharacterInfo::setCharacterText2)},
              {"characterText3", placeOf(&ZOL::IKyScriptCharacterInfo::characterText3)},
              {"setCharacterText3", placeOf(&ZOL::IKyScriptCharacterInfo::setCharacterText3)},
              {"copyFrom", placeOf(&ZOL::IKyScriptCharacterInfo::copyFrom)},
              {"setCharacterNumber2", placeOf(&ZOL::IKyScriptCharacterInfo::setCharacterNumber2)},
              {"characterNumber2", placeOf(&ZOL::IKyScriptCharacterInfo::characterNumber2)},
          }),
      interface<ZOL::IKyScriptSceneInfo>(
          "IKyScriptSceneInfo", kBehindBase,
          {
              {"sceneNumber1", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber1)},
              {"setSceneNumber1", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber1)},
              {"sceneNumber2", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber2)},
              {"setSceneNumber2", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber2)},
              {"sceneText1", placeOf(&ZOL::IKyScriptSceneInfo::sceneText1)},
              {"setSceneText1", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText1)},
              {"sceneNumber3", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber3)},
              {"setSceneNumber3", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber3)},
              {"sceneNumber4", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber4)},
              {"setSceneNumber4", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber4)},
              {"sceneNumber5", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber5)},
              {"setSceneNumber5", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber5)},
              {"sceneNumber6", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber6)},
              {"setSceneNumber6", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber6)},
              {"sceneText2", placeOf(&ZOL::IKyScriptSceneInfo::sceneText2)},
              {"setSceneText2", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText2)},
              {"sceneText3", placeOf(&ZOL::IKyScriptSceneInfo::sceneText3)},
              {"setSceneText3", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText3)},
              {"getSceneTexts1", placeOf(&ZOL::IKyScriptSceneInfo::getSceneTexts1)},
              {"setSceneTexts1", placeOf(&ZOL::IKyScriptSceneInfo::setSceneTexts1)},
              {"getSceneTexts2", placeOf(&ZOL::IKyScriptSceneInfo::getSceneTexts2)},
              {"setSceneTexts2", placeOf(&ZOL::IKyScriptSceneInfo::setSceneTexts2)},
              {"sceneText4", placeOf(&ZOL::IKyScriptSceneInfo::sceneText4)},
              {"setSceneText4", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText4)},
              {"sceneText5", placeOf(&ZOL::IKyScriptSceneInfo::sceneText5)},
              {"setSceneText5", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText5)},
              {"getHistoryList", placeOf(&ZOL::IKyScriptSceneInfo::getHistoryList)},
              {"setHistoryList", placeOf(&ZOL::IKyScriptSceneInfo::setHistoryList)},
              {"getClipList", placeOf(&ZOL::IKyScriptSceneInfo::getClipList)},
              {"setClipList", placeOf(&ZOL::IKyScriptSceneInfo::setClipList)},
              {"sceneText6", placeOf(&ZOL::IKyScriptSceneInfo::sceneText6)},
              {"setSceneText6", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText6)},
              {"sceneText7", placeOf(&ZOL::IKyScriptSceneInfo::sceneText7)},
              {"setSceneText7", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText7)},
              {"getSceneTexts3", placeOf(&ZOL::IKyScriptSceneInfo::getSceneTexts3)},
              {"setSceneTexts3", placeOf(&ZOL::IKyScriptSceneInfo::setSceneTexts3)},
              {"getEventSoundList", placeOf(&ZOL::IKyScriptSceneInfo::getEventSoundList)},
              {"setEventSoundList", placeOf(&ZOL::IKyScriptSceneInfo::setEventSoundList)},
              {"sceneText8", placeOf(&ZOL::IKyScriptSceneInfo::sceneText8)},
              {"setSceneText8", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText8)},
              {"sceneText9", placeOf(&ZOL::IKyScriptSceneInfo::sceneText9)},
              {"setSceneText9", placeOf(&ZOL::IKyScriptSceneInfo::setSceneText9)},
              {"sceneNumber7", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber7)},
              {"setSceneNumber7", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber7)},
              {"getSceneTexts4", placeOf(&ZOL::IKyScriptSceneInfo::getSceneTexts4)},
              {"setSceneTexts4", placeOf(&ZOL::IKyScriptSceneInfo::setSceneTexts4)},
              {"copyFrom", placeOf(&ZOL::IKyScriptSceneInfo::copyFrom)},
              {"setSceneNumber8", placeOf(&ZOL::IKyScriptSceneInfo::setSceneNumber8)},
              {"sceneNumber8", placeOf(&ZOL::IKyScriptSceneInfo::sceneNumber8)},
              {"resetScene", placeOf(&ZOL::IKyScriptSceneInfo::resetScene)},
          }),
  };
}

std::vector<Interface> resourceInterfaces() {
  return {
      interface<ZOL::IZolResSerializeInfo>(
          "IZolResSerializeInfo", kBehindBase,
          {
              {"setFromCompletResInfo", placeOf(&ZOL::IZolResSerializeInfo::setFromCompletResInfo)},
              {"isValid", placeOf(&ZOL::IZolResSerializeInfo::isValid)},
              {"setFromBuffer", placeOf(&ZOL::IZolResSerializeInfo::setFromBuffer)},
              {"toBuffer", placeOf(&ZOL::IZolResSerializeInfo::toBuffer)},
              {"getProperty", placeOf(&ZOL::IZolResSerializeInfo::getProperty)},
              {"setProperty", placeOf(&ZOL::IZolResSerializeInfo::setProperty)},
              {"copyFrom", placeOf(&ZOL::IZolResSerializeInfo::copyFrom)},
              {"uniqueKey", placeOf(&ZOL::IZolResSerializeInfo::uniqueKey)},
              {"userString", placeOf(&ZOL::IZolResSerializeInfo::userString)},
              {"setUserString", placeOf(&ZOL::IZolResSerializeInfo::setUserString)},
              {"isEmpty", placeOf(&ZOL::IZolResSerializeInfo::isEmpty)},
          }),
      interface<ZOL::IZolResSerializeInfoInternal>(
          "IZolResSerializeInfoInternal", 0,
          {
              {"intValue", placeOf(&ZOL::IZolResSerializeInfoInternal::intValue)},
              {"setIntValue", placeOf(&ZOL::IZolResSerializeInfoInternal::setIntValue)},
              {"stringValue", placeOf(&ZOL::IZolResSerializeInfoInternal::stringValue)},
              {"setStringValue", placeOf(&ZOL::IZolResSerializeInfoInternal::setStringValue)},
              {"hostData", placeOf(&ZOL::IZolResSerializeInfoInternal::hostData)},
              {"setHostData", placeOf(&ZOL::IZolResSerializeInfoInternal::setHostData)},
              {"addRelatedRes", placeOf(&ZOL::IZolResSerializeInfoInternal::addRelatedRes)},
              {"removeRelatedRes", placeOf(&ZOL::IZolResSerializeInfoInternal::removeRelatedRes)},
              {"relatedResList", placeOf(&ZOL::IZolResSerializeInfoInternal::relatedResList)},
              {"userString", placeOf(&ZOL::IZolResSerializeInfoInternal::userString)},
              {"setUserString", placeOf(&ZOL::IZolResSerializeInfoInternal::setUserString)},
          }),
  };
}

std::vector<Interface> cutInterfaces() {
  return {
      interface<ZOL::IZolCutScripts>(
          "IZolCutScripts", kBehindBase,
          {
              {"scriptCount", placeOf(&ZOL::IZolCutScripts::scriptCount)},
              {"scriptTitle", placeOf(&ZOL::IZolCutScripts::scriptTitle)},
              {"storyboardInfoList", placeOf(&ZOL::IZolCutScripts::storyboardInfoList)},
              {"smartCutClipInfoList", placeOf(&ZOL::IZolCutScripts::smartCutClipInfoList)},
              {"scriptDuration", placeOf(&ZOL::IZolCutScripts::scriptDuration)},
              {"getMusicInfoList", placeOf(&ZOL::IZolCutScripts::getMusicInfoList)},
          }),
      interface<ZOL::IZolStoryboardInfo>(
          "IZolStoryboardInfo", kBehindBase,
          {
              {"scriptClass", placeOf(&ZOL::IZolStoryboardInfo::scriptClass)},
              {"title", placeOf(&ZOL::IZolStoryboardInfo::title)},
              {"subtitle", placeOf(&ZOL::IZolStoryboardInfo::subtitle)},
              {"description", placeOf(&ZOL::IZolStoryboardInfo::description)},
              {"start", placeOf(&ZOL::IZolStoryboardInfo::start)},
              {"end", placeOf(&ZOL::IZolStoryboardInfo::end)},
          }),
      interface<ZOL::IZolStoryboardInfoInternal>(
          "IZolStoryboardInfoInternal", kBehindBase,
          {
              {"setScriptClass", placeOf(&ZOL::IZolStoryboardInfoInternal::setScriptClass)},
              {"setTitle", placeOf(&ZOL::IZolStoryboardInfoInternal::setTitle)},
              {"setSubtitle", placeOf(&ZOL::IZolStoryboardInfoInternal::setSubtitle)},
              {"setDescription", placeOf(&ZOL::IZolStoryboardInfoInternal::setDescription)},
              {"setStart", placeOf(&ZOL::IZolStoryboardInfoInternal::setStart)},
              {"setEnd", placeOf(&ZOL::IZolStoryboardInfoInternal::setEnd)},
          }),
      interface<ZOL::IZolSmartCutClipInfo>(
          "IZolSmartCutClipInfo", kBehindBase,
          {
              {"scriptClass", placeOf(&ZOL::IZolSmartCutClipInfo::scriptClass)},
              {"fileName", placeOf(&ZOL::IZolSmartCutClipInfo::fileName)},
              {"title", placeOf(&ZOL::IZolSmartCutClipInfo::title)},
              {"subtitle", placeOf(&ZOL::IZolSmartCutClipInfo::subtitle)},
              {"start", placeOf(&ZOL::IZolSmartCutClipInfo::start)},
              {"end", placeOf(&ZOL::IZolSmartCutClipInfo::end)},
              {"textInfoList", placeOf(&ZOL::IZolSmartCutClipInfo::textInfoList)},
              {"highlightInfoList", placeOf(&ZOL::IZolSmartCutClipInfo::highlightInfoList)},
          }),
      interface<ZOL::IZolSmartCutClipInfoInternal>(
          "IZolSmartCutClipInfoInternal", 0,
          {
              {"setScriptClass", placeOf(&ZOL::IZolSmartCutClipInfoInternal::setScriptClass)},
              {"setTitle", placeOf(&ZOL::IZolSmartCutClipInfoInternal::setTitle)},
              {"setSubtitle", placeOf(&ZOL::IZolSmartCutClipInfoInternal::setSubtitle)},
              {"setFileName", placeOf(&ZOL::IZolSmartCutClipInfoInternal::setFileName)},
              {"setStart", placeOf(&ZOL::IZolSmartCutClipInfoInternal::setStart)},
              {"setEnd", placeOf(&ZOL::IZolSmartCutClipInfoInternal::setEnd)},
              {"setTextInfoList", placeOf(&ZOL::IZolSmartCutClipInfoInternal::setTextInfoList)},
              {"setHighlightInfoList",
               placeOf(&ZOL::IZolSmartCutClipInfoInternal::setHighlightInfoList)},
          }),
      interface<ZOL::IZolTextInfo>(
          "IZolTextInfo", kBehindBase,
          {
              {"start", placeOf(&ZOL::IZolTextInfo::start)},
              {"end", placeOf(&ZOL::IZolTextInfo::end)},
              {"text", placeOf(&ZOL::IZolTextInfo::text)},
              {"hasBroll", placeOf(&ZOL::IZolTextInfo::hasBroll)},
              {"brollFileName", placeOf(&ZOL::IZolTextInfo::brollFileName)},
              {"brollStart", placeOf(&ZOL::IZolTextInfo::brollStart)},
              {"brollEnd", placeOf(&ZOL::IZolTextInfo::brollEnd)},
          }),
      interface<ZOL::IZolTextInfoInternal>(
          "IZolTextInfoInternal", 0,
          {
              {"setStart", placeOf(&ZOL::IZolTextInfoInternal::setStart)},
              {"setEnd", placeOf(&ZOL::IZolTextInfoInternal::setEnd)},
              {"setText", placeOf(&ZOL::IZolTextInfoInternal::setText)},
              {"setBrollFileName", placeOf(&ZOL::IZolTextInfoInternal::setBrollFileName)},
              {"setBrollStart", placeOf(&ZOL::IZolTextInfoInternal::setBrollStart)},
              {"setBrollEnd", placeOf(&ZOL::IZolTextInfoInternal::setBrollEnd)},
          }),
      interface<ZOL::IZolTargetScreenInfo>(
          "IZolTargetScreenInfo", kBehindBase,
          {
              {"screenText1", placeOf(&ZOL::IZolTargetScreenInfo::screenText1)},
              {"screenText2", placeOf(&ZOL::IZolTargetScreenInfo::screenText2)},
              {"screenText3", placeOf(&ZOL::IZolTargetScreenInfo::screenText3)},
              {"screenText4", placeOf(&ZOL::IZolTargetScreenInfo::screenText4)},
              {"screenText5", placeOf(&ZOL::IZolTargetScreenInfo::screenText5)},
              {"screenText6", placeOf(&ZOL::IZolTargetScreenInfo::screenText6)},
              {"screenText7", placeOf(&ZOL::IZolTargetScreenInfo::screenText7)},
              {"screenText8", placeOf(&ZOL::IZolTargetScreenInfo::screenText8)},
              {"screenText9", placeOf(&ZOL::IZolTargetScreenInfo::screenText9)},
          }),
      interface<ZOL::IZolTargetScreenInfoInternal>(
          "IZolTargetScreenInfoInternal", 0,
          {
              {"setScreenText1", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText1)},
              {"setScreenText2", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText2)},
              {"setScreenText3", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText3)},
              {"setScreenText4", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText4)},
              {"setScreenText5", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText5)},
              {"setScreenText6", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText6)},
              {"setScreenText7", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText7)},
              {"setScreenText8", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText8)},
              {"setScreenText9", placeOf(&ZOL::IZolTargetScreenInfoInternal::setScreenText9)},
          }),
      interface<ZOL::IZolSliceItem>(
          "IZolSliceItem", kBehindBase,
          {
              {"label", placeOf(&ZOL::IZolSliceItem::label)},
              {"startTime", placeOf(&ZOL::IZolSliceItem::startTime)},
              {"endTime", placeOf(&ZOL::IZolSliceItem::endTime)},
              {"score", placeOf(&ZOL::IZolSliceItem::score)},
              {"getKeyValues", placeOf(&ZOL::IZolSliceItem::getKeyValues)},
              {"faceImage", placeOf(&ZOL::IZolSliceItem::faceImage)},
          }),
      interface<ZOL::IZolSliceItemInternal>(
          "IZolSliceItemInternal", 0,
          {
              {"setLabel", placeOf(&ZOL::IZolSliceItemInternal::setLabel)},
              {"setStartTime", placeOf(&ZOL::IZolSliceItemInternal::setStartTime)},
              {"setEndTime", placeOf(&ZOL::IZolSliceItemInternal::setEndTime)},
              {"setScore", placeOf(&ZOL::IZolSliceItemInternal::setScore)},
              {"setKeyValues", placeOf(&ZOL::IZolSliceItemInternal::setKeyValues)},
              {"setFaceImage", placeOf(&ZOL::IZolSliceItemInternal::setFaceImage)},
          }),
      interface<ZOL::IZolDemensionsItem>(
          "IZolDemensionsItem", kBehindBase,
          {
              {"dimensionType", placeOf(&ZOL::IZolDemensionsItem::dimensionType)},
              {"getSliceItems", placeOf(&ZOL::IZolDemensionsItem::getSliceItems)},
              {"hasLabels", placeOf(&ZOL::IZolDemensionsItem::hasLabels)},
              {"getLabels", placeOf(&ZOL::IZolDemensionsItem::getLabels)},
              {"getLabelSliceItems", placeOf(&ZOL::IZolDemensionsItem::getLabelSliceItems)},
              {"hasScores", placeOf(&ZOL::IZolDemensionsItem::hasScores)},
              {"getScores", placeOf(&ZOL::IZolDemensionsItem::getScores)},
          }),
      interface<ZOL::IZolDemensionsItemInternal>(
          "IZolDemensionsItemInternal", 0,
          {
              {"setDimensionType", placeOf(&ZOL::IZolDemensionsItemInternal::setDimensionType)},
              {"setSliceItems", placeOf(&ZOL::IZolDemensionsItemInternal::setSliceItems)},
              {"setLabelSliceItems", placeOf(&ZOL::IZolDemensionsItemInternal::setLabelSliceItems)},
              {"setScores", placeOf(&ZOL::IZolDemensionsItemInternal::setScores)},
          }),
      interface<ZOL::IZolKeyMatrixInfo>(
          "IZolKeyMatrixInfo", kBehindBase,
          {
              {"matrixName", placeOf(&ZOL::IZolKeyMatrixInfo::matrixName)},
              {"getDimensionTypes", placeOf(&ZOL::IZolKeyMatrixInfo::getDimensionTypes)},
              {"dimensionItem", placeOf(&ZOL::IZolKeyMatrixInfo::dimensionItem)},
              {"getKeywords", placeOf(&ZOL::IZolKeyMatrixInfo::getKeywords)},
          }),
      interface<ZOL::IZolKeyMatrixInfoInternal>(
          "IZolKeyMatrixInfoInternal", 0,
          {
              {"setMatrixName", placeOf(&ZOL::IZolKeyMatrixInfoInternal::setMatrixName)},
              {"setDimensionItem", placeOf(&ZOL::IZolKeyMatrixInfoInternal::setDimensionItem)},
              {"setKeywords", placeOf(&ZOL::IZolKeyMatrixInfoInternal::setKeywords)},
          }),
      interface<ZOL::IZolHighlightInfo>(
          "IZolHighlightInfo", kBehindBase,
          {
              {"setHLType", placeOf(&ZOL::IZolHighlightInfo::setHLType)},
              {"hlType", placeOf(&ZOL::IZolHighlightInfo::hlType)},
              {"trimIn", placeOf(&ZOL::IZolHighlightInfo::trimIn)},
              {"setTrimIn", placeOf(&ZOL::IZolHighlightInfo::setTrimIn)},
              {"trimOut", placeOf(&ZOL::IZolHighlightInfo::trimOut)},
              {"setTrimOut", placeOf(&ZOL::IZolHighlightInfo::setTrimOut)},
              {"toJson", placeOf(&ZOL::IZolHighlightInfo::toJson)},
              {"fromJson", placeOf(&ZOL::IZolHighlightInfo::fromJson)},
          }),
      interface<ZOL::IZolHighlightInfoInternal>(
          "IZolHighlightInfoInternal", 0,
          {
              {"setHLType", placeOf(&ZOL::IZolHighlightInfoInternal::setHLType)},
              {"setTrimIn", placeOf(&ZOL::IZolHighlightInfoInternal::setTrimIn)},
              {"setTrimOut", placeOf(&ZOL::IZolHighlightInfoInternal::setTrimOut)},
          }),
      interface<ZOL::IZolMusicInfo>("IZolMusicInfo", kBehindBase,
                                    {
                                        {"musicType", placeOf(&ZOL::IZolMusicInfo::musicType)},
                                        {"start", placeOf(&ZOL::IZolMusicInfo::start)},
                                        {"end", placeOf(&ZOL::IZolMusicInfo::end)},
                                        {"description", placeOf(&ZOL::IZolMusicInfo::description)},
                                        {"note", placeOf(&ZOL::IZolMusicInfo::note)},
                                    }),
      interface<ZOL::IZolMusicInfoInternal>(
          "IZolMusicInfoInternal", kBehindBase,
          {
              {"setMusicType", placeOf(&ZOL::IZolMusicInfoInternal::setMusicType)},
              {"setStart", placeOf(&ZOL::IZolMusicInfoInternal::setStart)},
              {"setEnd", placeOf(&ZOL::IZolMusicInfoInternal::setEnd)},
              {"setDescription", placeOf(&ZOL::IZolMusicInfoInternal::setDescription)},
              {"setNote", placeOf(&ZOL::IZolMusicInfoInternal::setNote)},
          }),
  };
}

std::vector<Interface> searchInterfaces() {
  return {
      interface<ZOL::IZolSmartCutSearchResult>(
          "IZolSmartCutSearchResult", kBehindBase,
          {
              {"roleInfoList", placeOf(&ZOL::IZolSmartCutSearchResult::roleInfoList)},
              {"setRoleInfoList", placeOf(&ZOL::IZolSmartCutSearchResult::setRoleInfoList)},
              {"firstText", placeOf(&ZOL::IZolSmartCutSearchResult::firstText)},
              {"setFirstText", placeOf(&ZOL::IZolSmartCutSearchResult::setFirstText)},
              {"secondText", placeOf(&ZOL::IZolSmartCutSearchResult::secondText)},
              {"setSecondText", placeOf(&ZOL::IZolSmartCutSearchResult::setSecondText)},
              {"thirdText", placeOf(&ZOL::IZolSmartCutSearchResult::thirdText)},
              {"setThirdText", placeOf(&ZOL::IZolSmartCutSearchResult::setThirdText)},
              {"getDimensionKeys", placeOf(&ZOL::IZolSmartCutSearchResult::getDimensionKeys)},
              {"setDimensionResult", placeOf(&ZOL::IZolSmartCutSearchResult::setDimensionResult)},
              {"removeDimensionResult",
               placeOf(&ZOL::IZolSmartCutSearchResult::removeDimensionResult)},
              {"dimensionResult", placeOf(&ZOL::IZolSmartCutSearchResult::dimensionResult)},
          }),
      interface<ZOL::IZolSmartCutSearchDimensionsResult>(
          "IZolSmartCutSearchDimensionsResult", kBehindBase,
          {
              {"dimensionValue", placeOf(&ZOL::IZolSmartCutSearchDimensionsResult::dimensionValue)},
              {"setDimensionValue",
               placeOf(&ZOL::IZolSmartCutSearchDimensionsResult::setDimensionValue)},
              {"resultItemList", placeOf(&ZOL::IZolSmartCutSearchDimensionsResult::resultItemList)},
          }),
      interface<ZOL::IZolSmartCutSearchDimensionsResultItem>(
          "IZolSmartCutSearchDimensionsResultItem", kBehindBase,
          {
              {"itemText", placeOf(&ZOL::IZolSmartCutSearchDimensionsResultItem::itemText)},
              {"setItemText", placeOf(&ZOL::IZolSmartCutSearchDimensionsResultItem::setItemText)},
              {"itemImage", placeOf(&ZOL::IZolSmartCutSearchDimensionsResultItem::itemImage)},
              {"setItemImage", placeOf(&ZOL::IZolSmartCutSearchDimensionsResultItem::setItemImage)},
              {"rangeList", placeOf(&ZOL::IZolSmartCutSearchDimensionsResultItem::rangeList)},
          }),
      interface<ZOL::IZolRoleSearchItemInfo>(
          "IZolRoleSearchItemInfo", kBehindBase,
          {
              {"roleText", placeOf(&ZOL::IZolRoleSearchItemInfo::roleText)},
              {"setRoleText", placeOf(&ZOL::IZolRoleSearchItemInfo::setRoleText)},
              {"roleImage", placeOf(&ZOL::IZolRoleSearchItemInfo::roleImage)},
              {"setRoleImage", placeOf(&ZOL::IZolRoleSearchItemInfo::setRoleImage)},
          }),
      interface<ZOL::IZolStageReportData>(
          "IZolStageReportData", kBehindBase,
          {
              {"stageType", placeOf(&ZOL::IZolStageReportData::stageType)},
              {"stageName", placeOf(&ZOL::IZolStageReportData::stageName)},
              {"stageStatus", placeOf(&ZOL::IZolStageReportData::stageStatus)},
              {"stageCode", placeOf(&ZOL::IZolStageReportData::stageCode)},
              {"stageMessage", placeOf(&ZOL::IZolStageReportData::stageMessage)},
              {"stageDetail", placeOf(&ZOL::IZolStageReportData::stageDetail)},
          }),
  };
}

std::vector<Interface> everyInterface() {
  std::vector<Interface> all;
  for (const Interface& each : frameInterfaces()) all.push_back(each);
  for (const Interface& each : listInterfaces()) all.push_back(each);
  for (const Interface& each : paramInterfaces()) all.push_back(each);
  for (const Interface& each : mediaInterfaces()) all.push_back(each);
  for (const Interface& each : resourceInterfaces()) all.push_back(each);
  for (const Interface& each : cutInterfaces()) all.push_back(each);
  for (const Interface& each : searchInterfaces()) all.push_back(each);
  return all;
}

class OperationOrder : public testing::Test {
 protected:
  void SetUp() override {
#if !defined(__GNUC__)
    GTEST_SKIP() << "a pointer to a virtual member looks different here";
#endif
  }
};

TEST_F(OperationOrder, HasEachOperationInItsPlace) {
  for (const Interface& each : everyInterface()) {
    long place = each.first;
    for (const Operation& operation : each.operations) {
      EXPECT_EQ(operation.place, place) << each.name << "::" << operation.name;
      ++place;
    }
  }
}

TEST_F(OperationOrder, HasNoOperationThatIsNotInTheTable) {
  for (const Interface& each : everyInterface()) {
    EXPECT_EQ(each.end, each.first + static_cast<long>(each.operations.size())) << each.name;
  }
}

// Nothing but the pointer to the table: no data, and one table for all bases.
TEST_F(OperationOrder, IsAllThatAnInterfaceConsistsOf) {
  for (const Interface& each : everyInterface()) EXPECT_EQ(each.size, sizeof(void*)) << each.name;
}

// Where the base is no virtual one, its operations can be called with the interface's
// own address.
TEST_F(OperationOrder, BeginsWithTheSixOfTheRoot) {
  int (ZOL::IZolString::*addRef)() = &ZOL::IDmBaseObj::addRef;
  int (ZOL::ZOLIntList::*release)() = &ZOL::IDmBaseObj::release;
  int (ZOL::IZolSliceItem::*refCount)() = &ZOL::IDmBaseObj::refCount;
  void* (ZOL::IZolParam::*queryInterface)(const char*) = &ZOL::IDmBaseObj::queryInterface;
  EXPECT_EQ(placeOf(addRef), 0);
  EXPECT_EQ(placeOf(release), 1);
  EXPECT_EQ(placeOf(refCount), 2);
  EXPECT_EQ(placeOf(queryInterface), 5);
}

// The table above misses no interface of the public headers.
TEST(Interfaces, AreAllInTheTable) {
  std::set<std::string> inHeaders;
  for (const char* header :
       {"frame", "lists", "params", "media", "resource", "cutscript", "search"}) {
    std::ifstream file(std::string(KYDATASTRUCTURE_TESTS_HEADERS "/") + header + ".h");
    ASSERT_TRUE(file) << header;
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    for (std::size_t at = text.find("interfaceName"); at != std::string::npos;
         at = text.find("interfaceName", at + 1)) {
      // Followed by the name between quotes where it is given, and not in the template
      // that reads it.
      const std::size_t begin = text.find_first_not_of(" =\n", at + sizeof "interfaceName" - 1);
      if (begin == std::string::npos || text[begin] != '"') continue;
      const std::string name = text.substr(begin + 1, text.find('"', begin + 1) - begin - 1);
      EXPECT_TRUE(inHeaders.insert(name).second) << name << " is there twice";
    }
  }
  std::set<std::string> inTable;
  for (const Interface& each : everyInterface()) inTable.insert(each.name);
  inTable.erase("IReleaseHook");  // a caller's object, which is not asked for by name
  for (const std::string& name : inHeaders) {
    EXPECT_EQ(inTable.erase(name), 1U) << name << " is not in the table";
  }
  for (const std::string& name : inTable) ADD_FAILURE() << name << " is in no header";
}

}  // namespace
