// Every record of the room, field by field, for the suite over all records.

#ifndef KYDATASTRUCTURE_TESTS_MEDIA_DESCRIBED_RECORDS_H_
#define KYDATASTRUCTURE_TESTS_MEDIA_DESCRIBED_RECORDS_H_

#include <KyDataStructure/media.h>

#include "support/record_suite.h"

template <>
struct Described<ZOL::IKyMaskInfoData> {
  using Mask = ZOL::IKyMaskInfoData;
  static Mask* create() { return createMaskInfoData(); }
  static RecordTable<Mask> table() {
    RecordTable<Mask> table;
    table.text("maskText", &Mask::maskText, &Mask::setMaskText)
        .number("maskNumber", &Mask::maskNumber, &Mask::setMaskNumber, 0);
    return table;
  }
};

template <>
struct Described<ZOL::IZoEffectInfo> {
  using Effect = ZOL::IZoEffectInfo;
  static Effect* create() { return createEffectInfo(); }
  static RecordTable<Effect> table() {
    RecordTable<Effect> table;
    table.text("effectText1", &Effect::effectText1, &Effect::setEffectText1)
        .text("effectText2", &Effect::effectText2, &Effect::setEffectText2)
        .text("effectText3", &Effect::effectText3, &Effect::setEffectText3)
        .text("effectText4", &Effect::effectText4, &Effect::setEffectText4);
    return table;
  }
};

template <>
struct Described<ZOL::IZolPluginInfo> {
  using Plugin = ZOL::IZolPluginInfo;
  using Effect = ZOL::IZoEffectInfo;
  static Plugin* create() { return createPluginInfo(); }
  static RecordTable<Plugin> table() {
    RecordTable<Plugin> table;
    table.text("pluginText1", &Plugin::pluginText1, &Plugin::setPluginText1)
        .text("pluginText2", &Plugin::pluginText2, &Plugin::setPluginText2)
        .text("pluginText3", &Plugin::pluginText3, &Plugin::setPluginText3)
        .number("pluginNumber", &Plugin::pluginNumber, &Plugin::setPluginNumber, 0)
        .objects("effects", &Plugin::getEffects, &Plugin::setEffects, &createIZoEffectInfoList,
                 &createEffectInfo, &Effect::effectText1, &Effect::setEffectText1,
                 InCopy::handedBack);
    return table;
  }
};

template <>
struct Described<ZOL::IZolPanZoomPair> {
  using Pair = ZOL::IZolPanZoomPair;
  static Pair* create() { return createPanZoomPair(); }
  static RecordTable<Pair> table() {
    RecordTable<Pair> table;
    table.rect("firstRect", &Pair::firstRect, &Pair::setFirstRect)
        .rect("secondRect", &Pair::secondRect, &Pair::setSecondRect)
        .number("firstNumber", &Pair::firstNumber, &Pair::setFirstNumber, 0)
        .number("secondNumber", &Pair::secondNumber, &Pair::setSecondNumber, 0);
    return table;
  }
};

template <>
struct Described<ZOL::IFaceClusterInfo> {
  using Cluster = ZOL::IFaceClusterInfo;
  static Cluster* create() { return createFaceClusterInfo(); }
  static RecordTable<Cluster> table() {
    RecordTable<Cluster> table;
    table.number("clusterNumber1", &Cluster::clusterNumber1, &Cluster::setClusterNumber1, -1)
        .number("clusterNumber2", &Cluster::clusterNumber2, &Cluster::setClusterNumber2, -1)
        .rect("clusterRect", &Cluster::clusterRect, &Cluster::setClusterRect, InCopy::left)
        .picture("clusterMedia", &Cluster::getClusterMedia, &Cluster::setClusterMedia);
    return table;
  }
};

template <>
struct Described<ZOL::IKyVoiceDataInfo> {
  using Voice = ZOL::IKyVoiceDataInfo;
  static Voice* create() { return createVoiceDataInfo(); }
  static RecordTable<Voice> table() {
    RecordTable<Voice> table;
    table.number("voiceNumber1", &Voice::voiceNumber1, &Voice::setVoiceNumber1, 0)
        .text("voiceText1", &Voice::voiceText1, &Voice::setVoiceText1)
        .text("voiceText2", &Voice::voiceText2, &Voice::setVoiceText2)
        .number("voiceNumber2", &Voice::voiceNumber2, &Voice::setVoiceNumber2, 0)
        .text("voiceText3", &Voice::voiceText3, &Voice::setVoiceText3)
        .text("voiceText4", &Voice::voiceText4, &Voice::setVoiceText4)
        .text("voiceText5", &Voice::voiceText5, &Voice::setVoiceText5)
        .text("voiceText6", &Voice::voiceText6, &Voice::setVoiceText6)
        .number("voiceNumber3", &Voice::voiceNumber3, &Voice::setVoiceNumber3, 0)
        .text("voiceText7", &Voice::voiceText7, &Voice::setVoiceText7)
        .number("voiceNumber4", &Voice::voiceNumber4, &Voice::setVoiceNumber4, 0)
        .number("voiceNumber5", &Voice::voiceNumber5, &Voice::setVoiceNumber5, 0)
        .number("voiceNumber6", &Voice::voiceNumber6, &Voice::setVoiceNumber6, 0);
    return table;
  }
};

template <>
struct Described<ZOL::IKyLoraTextToImageHistoryInfo> {
  using History = ZOL::IKyLoraTextToImageHistoryInfo;
  static History* create() { return createLoraTextToImageHistoryInfo(); }
  static RecordTable<History> table() {
    RecordTable<History> table;
    table.number("historyNumber1", &History::historyNumber1, &History::setHistoryNumber1, -1)
        .number("historyNumber2", &History::historyNumber2, &History::setHistoryNumber2, 0)
        .text("historyText1", &History::historyText1, &History::setHistoryText1)
        .text("historyText2", &History::historyText2, &History::setHistoryText2)
        .texts("historyTexts", &History::getHistoryTexts, &History::setHistoryTexts);
    return table;
  }
};

template <>
struct Described<ZOL::IKyScriptCharactersIfInfo> {
  using CharactersIf = ZOL::IKyScriptCharactersIfInfo;
  static CharactersIf* create() { return createScriptCharactersIfInfo(); }
  static RecordTable<CharactersIf> table() {
    RecordTable<CharactersIf> table;
    table
        .number("charactersIfNumber", &CharactersIf::charactersIfNumber,
                &CharactersIf::setCharactersIfNumber, table.kUnsettled)
        .text("charactersIfText", &CharactersIf::charactersIfText,
              &CharactersIf::setCharactersIfText);
    return table;
  }
};

template <>
struct Described<ZOL::IKyScriptClipInfo> {
  using Clip = ZOL::IKyScriptClipInfo;
  using CharactersIf = ZOL::IKyScriptCharactersIfInfo;
  static Clip* create() { return createScriptClipInfo(); }
  static RecordTable<Clip> table() {
    RecordTable<Clip> table;
    table
        .objects("charactersIfList", &Clip::getCharactersIfList, &Clip::setCharactersIfList,
                 &createIKyScriptCharactersIfInfoList, &createScriptCharactersIfInfo,
                 &CharactersIf::charactersIfText, &CharactersIf::setCharactersIfText)
        .text("clipText", &Clip::clipText, &Clip::setClipText);
    return table;
  }
};

template <>
struct Described<ZOL::IKyScriptEventSoundInfo> {
  using Sound = ZOL::IKyScriptEventSoundInfo;
  static Sound* create() { return createScriptEventSoundInfo(); }
  static RecordTable<Sound> table() {
    RecordTable<Sound> table;
    table.number("eventNumber1", &Sound::eventNumber1, &Sound::setEventNumber1, 0)
        .number("eventNumber2", &Sound::eventNumber2, &Sound::setEventNumber2, table.kUnsettled)
        .text("eventText1", &Sound::eventText1, &Sound::setEventText1)
        .text("eventText2", &Sound::eventText2, &Sound::setEventText2);
    return table;
  }
};

template <>
struct Described<ZOL::IKyScriptCharacterInfo> {
  using Character = ZOL::IKyScriptCharacterInfo;
  static Character* create() { return createScriptCharacterInfo(); }
  static RecordTable<Character> table() {
    RecordTable<Character> table;
    table
        .number("characterNumber1", &Character::characterNumber1, &Character::setCharacterNumber1,
                -1)
        .text("characterText1", &Character::characterText1, &Character::setCharacterText1)
        .text("characterText2", &Character::characterText2, &Character::setCharacterText2)
        .text("characterText3", &Character::characterText3, &Character::setCharacterText3)
        .number("characterNumber2", &Character::characterNumber2, &Character::setCharacterNumber2,
                0, InCopy::left);
    return table;
  }
};

template <>
struct Described<ZOL::IKyScriptSceneInfo> {
  using Scene = ZOL::IKyScriptSceneInfo;
  using History = ZOL::IKyLoraTextToImageHistoryInfo;
  using Clip = ZOL::IKyScriptClipInfo;
  using Sound = ZOL::IKyScriptEventSoundInfo;
  static Scene* create() { return createScriptSceneInfo(); }
  static RecordTable<Scene> table() {
    RecordTable<Scene> table;
    table.number("sceneNumber1", &Scene::sceneNumber1, &Scene::setSceneNumber1, -1)
        .number("sceneNumber2", &Scene::sceneNumber2, &Scene::setSceneNumber2, -1)
        .text("sceneText1", &Scene::sceneText1, &Scene::setSceneText1)
        .number("sceneNumber3", &Scene::sceneNumber3, &Scene::setSceneNumber3, 0)
        .number("sceneNumber4", &Scene::sceneNumber4, &Scene::setSceneNumber4, 0)
        .number("sceneNumber5", &Scene::sceneNumber5, &Scene::setSceneNumber5, 0)
        .number("sceneNumber6", &Scene::sceneNumber6, &Scene::setSceneNumber6, 0)
        .text("sceneText2", &Scene::sceneText2, &Scene::setSceneText2)
        .text("sceneText3", &Scene::sceneText3, &Scene::setSceneText3, InCopy::left)
        .texts("sceneTexts1", &Scene::getSceneTexts1, &Scene::setSceneTexts1)
        .texts("sceneTexts2", &Scene::getSceneTexts2, &Scene::setSceneTexts2, InCopy::left)
        .text("sceneText4", &Scene::sceneText4, &Scene::setSceneText4)
        .text("sceneText5", &Scene::sceneText5, &Scene::setSceneText5)
        .objects("historyList", &Scene::getHistoryList, &Scene::setHistoryList,
                 &createIKyLoraTextToImageHistoryInfoList, &createLoraTextToImageHistoryInfo,
                 &History::historyText1, &History::setHistoryText1)
        .objects("clipList", &Scene::getClipList, &Scene::setClipList, &createIKyScriptClipInfoList,
                 &createScriptClipInfo, &Clip::clipText, &Clip::setClipText)
        .text("sceneText6", &Scene::sceneText6, &Scene::setSceneText6)
        .text("sceneText7", &Scene::sceneText7, &Scene::setSceneText7)
        .texts("sceneTexts3", &Scene::getSceneTexts3, &Scene::setSceneTexts3)
        .objects("eventSoundList", &Scene::getEventSoundList, &Scene::setEventSoundList,
                 &createIKyScriptEventSoundInfoList, &createScriptEventSoundInfo,
                 &Sound::eventText1, &Sound::setEventText1)
        .text("sceneText8", &Scene::sceneText8, &Scene::setSceneText8)
        .text("sceneText9", &Scene::sceneText9, &Scene::setSceneText9)
        .number("sceneNumber7", &Scene::sceneNumber7, &Scene::setSceneNumber7, 0)
        .texts("sceneTexts4", &Scene::getSceneTexts4, &Scene::setSceneTexts4, InCopy::left)
        .number("sceneNumber8", &Scene::sceneNumber8, &Scene::setSceneNumber8, 0, InCopy::left);
    return table;
  }
};

using MediaRecords =
    testing::Types<ZOL::IKyMaskInfoData, ZOL::IZoEffectInfo, ZOL::IZolPluginInfo,
                   ZOL::IZolPanZoomPair, ZOL::IFaceClusterInfo, ZOL::IKyVoiceDataInfo,
                   ZOL::IKyLoraTextToImageHistoryInfo, ZOL::IKyScriptCharactersIfInfo,
                   ZOL::IKyScriptClipInfo, ZOL::IKyScriptEventSoundInfo,
                   ZOL::IKyScriptCharacterInfo, ZOL::IKyScriptSceneInfo>;

// All but the two that have no copy operation.
using CopiedMediaRecords =
    testing::Types<ZOL::IZoEffectInfo, ZOL::IZolPluginInfo, ZOL::IZolPanZoomPair,
                   ZOL::IFaceClusterInfo, ZOL::IKyVoiceDataInfo, ZOL::IKyScriptCharactersIfInfo,
                   ZOL::IKyScriptClipInfo, ZOL::IKyScriptEventSoundInfo,
                   ZOL::IKyScriptCharacterInfo, ZOL::IKyScriptSceneInfo>;

#endif  // KYDATASTRUCTURE_TESTS_MEDIA_DESCRIBED_RECORDS_H_
