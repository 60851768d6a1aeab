// Every factory that takes no text of a form: an object, or nothing.

#include <KyDataStructure/KyDataStructure.h>

#include "lists/letter_list.h"
#include "oom/sweep.h"
#include "support/held.h"

namespace oom {
namespace {

constexpr const char* kLong = "a text that is too long for any place but the heap";
constexpr unsigned char kBytes[] = {1, 2, 3};

struct Factory {
  const char* name;
  ZOL::IDmBaseObj* (*create)();
  Block block = Block::goes;
};

// Those whose objects make lists or texts of their own in their constructors leave a
// block.
const Factory kFactories[] = {
    {"createZolString", []() -> ZOL::IDmBaseObj* { return createZolString(); }},
    {"createZolPChar", []() -> ZOL::IDmBaseObj* { return createZolPChar(); }},
    {"createDataSizeBuffer", []() -> ZOL::IDmBaseObj* { return createDataSizeBuffer(); }},
    {"createZolParam", []() -> ZOL::IDmBaseObj* { return createZolParam(); }},
    {"createRelinkEffectData", []() -> ZOL::IDmBaseObj* { return createRelinkEffectData(); }},
    {"createResourceMediaData", []() -> ZOL::IDmBaseObj* { return createResourceMediaData(); }},
    {"createIAiPortraitV2Data", []() -> ZOL::IDmBaseObj* { return createIAiPortraitV2Data(); }},
    {"createRemoveBackgroundData",
     []() -> ZOL::IDmBaseObj* { return createRemoveBackgroundData(); }},
    {"createAITemplateGenerateData",
     []() -> ZOL::IDmBaseObj* { return createAITemplateGenerateData(); }},
    {"createImageStylizesData", []() -> ZOL::IDmBaseObj* { return createImageStylizesData(); }},
    {"createEmptyMediaData", []() -> ZOL::IDmBaseObj* { return createEmptyMediaData(); }},
    {"createMediaData",
     []() -> ZOL::IDmBaseObj* { return createMediaData(4, 2, kBytes, sizeof kBytes, 7); }},
    {"createBGRData",
     []() -> ZOL::IDmBaseObj* { return createBGRData(4, 2, kBytes, sizeof kBytes, 7); }},
    {"createBGRAData",
     []() -> ZOL::IDmBaseObj* { return createBGRAData(4, 2, kBytes, sizeof kBytes, 7); }},
    {"createMaskInfoData", []() -> ZOL::IDmBaseObj* { return createMaskInfoData(); }},
    {"createEffectInfo", []() -> ZOL::IDmBaseObj* { return createEffectInfo(); }},
    {"createPluginInfo", []() -> ZOL::IDmBaseObj* { return createPluginInfo(); }, Block::stays},
    {"createPanZoomPair", []() -> ZOL::IDmBaseObj* { return createPanZoomPair(); }},
    {"createFaceClusterInfo", []() -> ZOL::IDmBaseObj* { return createFaceClusterInfo(); },
     Block::stays},
    {"createVoiceDataInfo", []() -> ZOL::IDmBaseObj* { return createVoiceDataInfo(); }},
    {"createLoraTextToImageHistoryInfo",
     []() -> ZOL::IDmBaseObj* { return createLoraTextToImageHistoryInfo(); }, Block::stays},
    {"createScriptSceneInfo", []() -> ZOL::IDmBaseObj* { return createScriptSceneInfo(); },
     Block::stays},
    {"createScriptClipInfo", []() -> ZOL::IDmBaseObj* { return createScriptClipInfo(); },
     Block::stays},
    {"createScriptEventSoundInfo",
     []() -> ZOL::IDmBaseObj* { return createScriptEventSoundInfo(); }},
    {"createScriptCharactersIfInfo",
     []() -> ZOL::IDmBaseObj* { return createScriptCharactersIfInfo(); }},
    {"createScriptCharacterInfo", []() -> ZOL::IDmBaseObj* { return createScriptCharacterInfo(); }},
    {"createZolResSerializeInfo", []() -> ZOL::IDmBaseObj* { return createZolResSerializeInfo(); }},
    {"createStoryboardInfo", []() -> ZOL::IDmBaseObj* { return createStoryboardInfo(); }},
    {"createSmartCutClipInfo", []() -> ZOL::IDmBaseObj* { return createSmartCutClipInfo(); }},
    {"createTextInfo", []() -> ZOL::IDmBaseObj* { return createTextInfo(); }},
    {"createTargetScreenInfo", []() -> ZOL::IDmBaseObj* { return createTargetScreenInfo(); }},
    {"createHighlightInfo", []() -> ZOL::IDmBaseObj* { return createHighlightInfo(); }},
    {"createMusicInfo", []() -> ZOL::IDmBaseObj* { return createMusicInfo(); }},
    {"createSliceItem", []() -> ZOL::IDmBaseObj* { return createSliceItem(); }},
    {"createDemensionsItem", []() -> ZOL::IDmBaseObj* { return createDemensionsItem(); }},
    {"createSmartCutSearchResult",
     []() -> ZOL::IDmBaseObj* { return createSmartCutSearchResult(); }},
    {"createSmartCutSearchDimensionsResult",
     []() -> ZOL::IDmBaseObj* { return createSmartCutSearchDimensionsResult(); }, Block::stays},
    {"createSmartCutSearchDimensionsResultItem",
     []() -> ZOL::IDmBaseObj* { return createSmartCutSearchDimensionsResultItem(); }, Block::stays},
    {"createRoleSearchItemInfo", []() -> ZOL::IDmBaseObj* { return createRoleSearchItemInfo(); }},
    {"createStageReportData",
     []() -> ZOL::IDmBaseObj* { return createStageReportData(1, kLong, 2, 3, kLong, kLong); },
     Block::stays},
};

Case caseOf(const std::string& name, ZOL::IDmBaseObj* (*create)(), Block block) {
  Case made = onStage(
      name, [] { return Held<ZOL::IDmBaseObj>(nullptr); },
      [create](Held<ZOL::IDmBaseObj>& object) { object = Held<ZOL::IDmBaseObj>(create()); },
      [](const Held<ZOL::IDmBaseObj>& object) {
        return object.get() ? "made, count " + std::to_string(object->refCount()) : "none";
      });
  made.block = block;
  return made;
}

}  // namespace

std::vector<Case> factoryCases() {
  std::vector<Case> cases;
  for (const Factory& factory : kFactories) {
    cases.push_back(caseOf(factory.name, factory.create, factory.block));
  }
  for (auto* const table : {&valueLists, &recordLists, &mediaLists, &cutLists}) {
    for (const ListKind& kind : table()) {
      cases.push_back(caseOf("create" + kind.name, kind.createObject, Block::goes));
    }
  }
  return cases;
}

}  // namespace oom
