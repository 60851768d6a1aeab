// The lists that own what they hold: counted objects, texts and raw memory. One
// name and one factory each; the element interfaces come from the families'
// public headers.

#include <KyDataStructure/KyDataStructure.h>

#include "frame/handle.h"
#include "lists/list.h"
#include "lists/made_lists.h"
#include "lists/stores.h"

namespace ZOL {

template class List<IZolHighlightInfoList, ZOLObjectTemplateList<IZolHighlightInfo>>;
template class List<IZolMusicInfoList, ZOLObjectTemplateList<IZolMusicInfo>>;
template class List<IZolSliceItemList, ZOLObjectTemplateList<IZolSliceItem>>;
template class List<IZolSmartCutClipInfoList, ZOLObjectTemplateList<IZolSmartCutClipInfo>>;
template class List<IZolStoryboardInfoList, ZOLObjectTemplateList<IZolStoryboardInfo>>;
template class List<IZolTextInfoList, ZOLObjectTemplateList<IZolTextInfo>>;
template class List<ZOLPCharList, ZOLStringTemplateList<const char*>>;

namespace {

using _ZOLPCharList = TextList;
using _ZOLAutoVoidPtrList = List<ZOLAutoVoidPtrList, ZOLSharePtrTemplateList<void*>>;
using _ZOLBaseObjectList = ObjectList<ZOLBaseObjectList>;
using _IKyMaskInfoDataList = ObjectList<IKyMaskInfoDataList>;
using _IZolBGRDataList = ObjectList<IZolBGRDataList>;
using _IZolBGRADataList = ObjectList<IZolBGRADataList>;
using _IZoEffectInfoList = ObjectList<IZoEffectInfoList>;
using _IZolPluginInfoList = ObjectList<IZolPluginInfoList>;
using _IFaceClusterInfoList = ObjectList<IFaceClusterInfoList>;
using _IKyLoraTextToImageHistoryInfoList = ObjectList<IKyLoraTextToImageHistoryInfoList>;
using _IKyVoiceDataInfoList = ObjectList<IKyVoiceDataInfoList>;
using _IKyScriptSceneInfoList = ObjectList<IKyScriptSceneInfoList>;
using _IKyScriptCharacterInfoList = ObjectList<IKyScriptCharacterInfoList>;
using _IKyScriptEventSoundInfoList = ObjectList<IKyScriptEventSoundInfoList>;
using _IKyScriptCharactersIfInfoList = ObjectList<IKyScriptCharactersIfInfoList>;
using _IKyScriptClipInfoList = ObjectList<IKyScriptClipInfoList>;
using _IZolResSerializeInfoList = ObjectList<IZolResSerializeInfoList>;
using _IZolSliceItemList = ObjectList<IZolSliceItemList>;
using _IZolDemensionsItemList = ObjectList<IZolDemensionsItemList>;
using _IZolKeyMatrixInfoList = ObjectList<IZolKeyMatrixInfoList>;
using _IZolTextInfoList = ObjectList<IZolTextInfoList>;
using _IZolHighlightInfoList = ObjectList<IZolHighlightInfoList>;
using _IZolSmartCutClipInfoList = ObjectList<IZolSmartCutClipInfoList>;
using _IZolMusicInfoList = ObjectList<IZolMusicInfoList>;
using _IZolStoryboardInfoList = ObjectList<IZolStoryboardInfoList>;
using _IZolSmartCutSearchResultList = ObjectList<IZolSmartCutSearchResultList>;
using _IZolSmartCutSearchDimensionsResultItemList =
    ObjectList<IZolSmartCutSearchDimensionsResultItemList>;
using _IZolRoleSearchItemInfoList = ObjectList<IZolRoleSearchItemInfoList>;
using _IGpuInfoList = ObjectList<IGpuInfoList>;

}  // namespace
}  // namespace ZOL

ZOL::ZOLPCharList* createZOLPCharList() { return ZOL::makeObject<ZOL::_ZOLPCharList>(); }
ZOL::ZOLAutoVoidPtrList* createZOLAutoVoidPtrList() {
  return ZOL::makeObject<ZOL::_ZOLAutoVoidPtrList>();
}
ZOL::ZOLBaseObjectList* createZOLBaseObjectList() {
  return ZOL::makeObject<ZOL::_ZOLBaseObjectList>();
}
ZOL::IKyMaskInfoDataList* createIKyMaskInfoDataList() {
  return ZOL::makeObject<ZOL::_IKyMaskInfoDataList>();
}
ZOL::IZolBGRDataList* createIZolBGRDataList() { return ZOL::makeObject<ZOL::_IZolBGRDataList>(); }
ZOL::IZolBGRADataList* createIZolBGRADataList() {
  return ZOL::makeObject<ZOL::_IZolBGRADataList>();
}
ZOL::IZoEffectInfoList* createIZoEffectInfoList() {
  return ZOL::makeObject<ZOL::_IZoEffectInfoList>();
}
ZOL::IZolPluginInfoList* createIZolPluginInfoList() {
  return ZOL::makeObject<ZOL::_IZolPluginInfoList>();
}
ZOL::IFaceClusterInfoList* createIFaceClusterInfoList() {
  return ZOL::makeObject<ZOL::_IFaceClusterInfoList>();
}
ZOL::IKyLoraTextToImageHistoryInfoList* createIKyLoraTextToImageHistoryInfoList() {
  return ZOL::makeObject<ZOL::_IKyLoraTextToImageHistoryInfoList>();
}
ZOL::IKyVoiceDataInfoList* createIKyVoiceDataInfoList() {
  return ZOL::makeObject<ZOL::_IKyVoiceDataInfoList>();
}
ZOL::IKyScriptSceneInfoList* createIKyScriptSceneInfoList() {
  return ZOL::makeObject<ZOL::_IKyScriptSceneInfoList>();
}
ZOL::IKyScriptCharacterInfoList* createIKyScriptCharacterInfoList() {
  return ZOL::makeObject<ZOL::_IKyScriptCharacterInfoList>();
}
ZOL::IKyScriptEventSoundInfoList* createIKyScriptEventSoundInfoList() {
  return ZOL::makeObject<ZOL::_IKyScriptEventSoundInfoList>();
}
ZOL::IKyScriptCharactersIfInfoList* createIKyScriptCharactersIfInfoList() {
  return ZOL::makeObject<ZOL::_IKyScriptCharactersIfInfoList>();
}
ZOL::IKyScriptClipInfoList* createIKyScriptClipInfoList() {
  return ZOL::makeObject<ZOL::_IKyScriptClipInfoList>();
}
ZOL::IZolResSerializeInfoList* createIZolResSerializeInfoList() {
  return ZOL::makeObject<ZOL::_IZolResSerializeInfoList>();
}
ZOL::IZolSliceItemList* createIZolSliceItemList() {
  return ZOL::makeObject<ZOL::_IZolSliceItemList>();
}
ZOL::IZolDemensionsItemList* createIZolDemensionsItemList() {
  return ZOL::makeObject<ZOL::_IZolDemensionsItemList>();
}
ZOL::IZolKeyMatrixInfoList* createIZolKeyMatrixInfoList() {
  return ZOL::makeObject<ZOL::_IZolKeyMatrixInfoList>();
}
ZOL::IZolTextInfoList* createIZolTextInfoList() {
  return ZOL::makeObject<ZOL::_IZolTextInfoList>();
}
ZOL::IZolHighlightInfoList* createIZolHighlightInfoList() {
  return ZOL::makeObject<ZOL::_IZolHighlightInfoList>();
}
ZOL::IZolSmartCutClipInfoList* createIZolSmartCutClipInfoList() {
  return ZOL::makeObject<ZOL::_IZolSmartCutClipInfoList>();
}
ZOL::IZolMusicInfoList* createIZolMusicInfoList() {
  return ZOL::makeObject<ZOL::_IZolMusicInfoList>();
}
ZOL::IZolStoryboardInfoList* createIZolStoryboardInfoList() {
  return ZOL::makeObject<ZOL::_IZolStoryboardInfoList>();
}
ZOL::IZolSmartCutSearchResultList* createIZolSmartCutSearchResultList() {
  return ZOL::makeObject<ZOL::_IZolSmartCutSearchResultList>();
}
ZOL::IZolSmartCutSearchDimensionsResultItemList*
createIZolSmartCutSearchDimensionsResultItemList() {
  return ZOL::makeObject<ZOL::_IZolSmartCutSearchDimensionsResultItemList>();
}
ZOL::IZolRoleSearchItemInfoList* createIZolRoleSearchItemInfoList() {
  return ZOL::makeObject<ZOL::_IZolRoleSearchItemInfoList>();
}
ZOL::IGpuInfoList* createIGpuInfoList() { return ZOL::makeObject<ZOL::_IGpuInfoList>(); }
