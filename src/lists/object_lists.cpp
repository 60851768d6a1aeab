// The lists that own what they hold: counted objects, texts and raw memory. One
// name and one factory each; the element interfaces come from the families'
// public headers.

#include <KyDataStructure/KyDataStructure.h>

#include "frame/ref.h"
#include "lists/list.h"
#include "lists/stores.h"

namespace ZOL {
namespace {

using _ZOLPCharList = List<ZOLPCharList, ZOLStringTemplateList<const char*>>;
using _ZOLAutoVoidPtrList = List<ZOLAutoVoidPtrList, ZOLSharePtrTemplateList<void*>>;
using _ZOLBaseObjectList = List<ZOLBaseObjectList, ZOLObjectTemplateList<IDmBaseObj>>;
using _IKyMaskInfoDataList = List<IKyMaskInfoDataList, ZOLObjectTemplateList<IKyMaskInfoData>>;
using _IZolBGRDataList = List<IZolBGRDataList, ZOLObjectTemplateList<IZolBGRData>>;
using _IZolBGRADataList = List<IZolBGRADataList, ZOLObjectTemplateList<IZolBGRAData>>;
using _IZoEffectInfoList = List<IZoEffectInfoList, ZOLObjectTemplateList<IZoEffectInfo>>;
using _IZolPluginInfoList = List<IZolPluginInfoList, ZOLObjectTemplateList<IZolPluginInfo>>;
using _IFaceClusterInfoList = List<IFaceClusterInfoList, ZOLObjectTemplateList<IFaceClusterInfo>>;
using _IKyLoraTextToImageHistoryInfoList =
    List<IKyLoraTextToImageHistoryInfoList, ZOLObjectTemplateList<IKyLoraTextToImageHistoryInfo>>;
using _IKyVoiceDataInfoList = List<IKyVoiceDataInfoList, ZOLObjectTemplateList<IKyVoiceDataInfo>>;
using _IKyScriptSceneInfoList =
    List<IKyScriptSceneInfoList, ZOLObjectTemplateList<IKyScriptSceneInfo>>;
using _IKyScriptCharacterInfoList =
    List<IKyScriptCharacterInfoList, ZOLObjectTemplateList<IKyScriptCharacterInfo>>;
using _IKyScriptEventSoundInfoList =
    List<IKyScriptEventSoundInfoList, ZOLObjectTemplateList<IKyScriptEventSoundInfo>>;
using _IKyScriptCharactersIfInfoList =
    List<IKyScriptCharactersIfInfoList, ZOLObjectTemplateList<IKyScriptCharactersIfInfo>>;
using _IKyScriptClipInfoList =
    List<IKyScriptClipInfoList, ZOLObjectTemplateList<IKyScriptClipInfo>>;
using _IZolResSerializeInfoList =
    List<IZolResSerializeInfoList, ZOLObjectTemplateList<IZolResSerializeInfo>>;
using _IZolSliceItemList = List<IZolSliceItemList, ZOLObjectTemplateList<IZolSliceItem>>;
using _IZolDemensionsItemList =
    List<IZolDemensionsItemList, ZOLObjectTemplateList<IZolDemensionsItem>>;
using _IZolKeyMatrixInfoList =
    List<IZolKeyMatrixInfoList, ZOLObjectTemplateList<IZolKeyMatrixInfo>>;
using _IZolTextInfoList = List<IZolTextInfoList, ZOLObjectTemplateList<IZolTextInfo>>;
using _IZolHighlightInfoList =
    List<IZolHighlightInfoList, ZOLObjectTemplateList<IZolHighlightInfo>>;
using _IZolSmartCutClipInfoList =
    List<IZolSmartCutClipInfoList, ZOLObjectTemplateList<IZolSmartCutClipInfo>>;
using _IZolMusicInfoList = List<IZolMusicInfoList, ZOLObjectTemplateList<IZolMusicInfo>>;
using _IZolStoryboardInfoList =
    List<IZolStoryboardInfoList, ZOLObjectTemplateList<IZolStoryboardInfo>>;
using _IZolSmartCutSearchResultList =
    List<IZolSmartCutSearchResultList, ZOLObjectTemplateList<IZolSmartCutSearchResult>>;
using _IZolSmartCutSearchDimensionsResultItemList =
    List<IZolSmartCutSearchDimensionsResultItemList,
         ZOLObjectTemplateList<IZolSmartCutSearchDimensionsResultItem>>;
using _IZolRoleSearchItemInfoList =
    List<IZolRoleSearchItemInfoList, ZOLObjectTemplateList<IZolRoleSearchItemInfo>>;
using _IGpuInfoList = List<IGpuInfoList, ZOLObjectTemplateList<IGpuInfo>>;

}  // namespace
}  // namespace ZOL

ZOL::ZOLPCharList* createZOLPCharList() { return ZOL::make<ZOL::_ZOLPCharList>(); }
ZOL::ZOLAutoVoidPtrList* createZOLAutoVoidPtrList() {
  return ZOL::make<ZOL::_ZOLAutoVoidPtrList>();
}
ZOL::ZOLBaseObjectList* createZOLBaseObjectList() { return ZOL::make<ZOL::_ZOLBaseObjectList>(); }
ZOL::IKyMaskInfoDataList* createIKyMaskInfoDataList() {
  return ZOL::make<ZOL::_IKyMaskInfoDataList>();
}
ZOL::IZolBGRDataList* createIZolBGRDataList() { return ZOL::make<ZOL::_IZolBGRDataList>(); }
ZOL::IZolBGRADataList* createIZolBGRADataList() { return ZOL::make<ZOL::_IZolBGRADataList>(); }
ZOL::IZoEffectInfoList* createIZoEffectInfoList() { return ZOL::make<ZOL::_IZoEffectInfoList>(); }
ZOL::IZolPluginInfoList* createIZolPluginInfoList() {
  return ZOL::make<ZOL::_IZolPluginInfoList>();
}
ZOL::IFaceClusterInfoList* createIFaceClusterInfoList() {
  return ZOL::make<ZOL::_IFaceClusterInfoList>();
}
ZOL::IKyLoraTextToImageHistoryInfoList* createIKyLoraTextToImageHistoryInfoList() {
  return ZOL::make<ZOL::_IKyLoraTextToImageHistoryInfoList>();
}
ZOL::IKyVoiceDataInfoList* createIKyVoiceDataInfoList() {
  return ZOL::make<ZOL::_IKyVoiceDataInfoList>();
}
ZOL::IKyScriptSceneInfoList* createIKyScriptSceneInfoList() {
  return ZOL::make<ZOL::_IKyScriptSceneInfoList>();
}
ZOL::IKyScriptCharacterInfoList* createIKyScriptCharacterInfoList() {
  return ZOL::make<ZOL::_IKyScriptCharacterInfoList>();
}
ZOL::IKyScriptEventSoundInfoList* createIKyScriptEventSoundInfoList() {
  return ZOL::make<ZOL::_IKyScriptEventSoundInfoList>();
}
ZOL::IKyScriptCharactersIfInfoList* createIKyScriptCharactersIfInfoList() {
  return ZOL::make<ZOL::_IKyScriptCharactersIfInfoList>();
}
ZOL::IKyScriptClipInfoList* createIKyScriptClipInfoList() {
  return ZOL::make<ZOL::_IKyScriptClipInfoList>();
}
ZOL::IZolResSerializeInfoList* createIZolResSerializeInfoList() {
  return ZOL::make<ZOL::_IZolResSerializeInfoList>();
}
ZOL::IZolSliceItemList* createIZolSliceItemList() { return ZOL::make<ZOL::_IZolSliceItemList>(); }
ZOL::IZolDemensionsItemList* createIZolDemensionsItemList() {
  return ZOL::make<ZOL::_IZolDemensionsItemList>();
}
ZOL::IZolKeyMatrixInfoList* createIZolKeyMatrixInfoList() {
  return ZOL::make<ZOL::_IZolKeyMatrixInfoList>();
}
ZOL::IZolTextInfoList* createIZolTextInfoList() { return ZOL::make<ZOL::_IZolTextInfoList>(); }
ZOL::IZolHighlightInfoList* createIZolHighlightInfoList() {
  return ZOL::make<ZOL::_IZolHighlightInfoList>();
}
ZOL::IZolSmartCutClipInfoList* createIZolSmartCutClipInfoList() {
  return ZOL::make<ZOL::_IZolSmartCutClipInfoList>();
}
ZOL::IZolMusicInfoList* createIZolMusicInfoList() { return ZOL::make<ZOL::_IZolMusicInfoList>(); }
ZOL::IZolStoryboardInfoList* createIZolStoryboardInfoList() {
  return ZOL::make<ZOL::_IZolStoryboardInfoList>();
}
ZOL::IZolSmartCutSearchResultList* createIZolSmartCutSearchResultList() {
  return ZOL::make<ZOL::_IZolSmartCutSearchResultList>();
}
ZOL::IZolSmartCutSearchDimensionsResultItemList*
createIZolSmartCutSearchDimensionsResultItemList() {
  return ZOL::make<ZOL::_IZolSmartCutSearchDimensionsResultItemList>();
}
ZOL::IZolRoleSearchItemInfoList* createIZolRoleSearchItemInfoList() {
  return ZOL::make<ZOL::_IZolRoleSearchItemInfoList>();
}
ZOL::IGpuInfoList* createIGpuInfoList() { return ZOL::make<ZOL::_IGpuInfoList>(); }
