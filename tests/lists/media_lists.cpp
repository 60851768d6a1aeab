// The lists of media, effects, voices, scripts and resources.

#include "lists/letter_list_of.h"

std::vector<ListKind> mediaLists() {
  return {
      listKind<ZOL::IKyMaskInfoDataList>(),
      listKind<ZOL::IZolBGRDataList>(),
      listKind<ZOL::IZolBGRADataList>(),
      listKind<ZOL::IZoEffectInfoList>(),
      listKind<ZOL::IZolPluginInfoList>(),
      listKind<ZOL::IFaceClusterInfoList>(),
      listKind<ZOL::IKyLoraTextToImageHistoryInfoList>(),
      listKind<ZOL::IKyVoiceDataInfoList>(),
      listKind<ZOL::IKyScriptSceneInfoList>(),
      listKind<ZOL::IKyScriptCharacterInfoList>(),
      listKind<ZOL::IKyScriptEventSoundInfoList>(),
      listKind<ZOL::IKyScriptCharactersIfInfoList>(),
      listKind<ZOL::IKyScriptClipInfoList>(),
      listKind<ZOL::IZolResSerializeInfoList>(),
  };
}
