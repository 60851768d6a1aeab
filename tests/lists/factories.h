// The factories by type: create<ZOLIntList>() is createZOLIntList(), and
// createElement<IKyMaskInfoData>() an object to put into a list of such.

#ifndef KYDATASTRUCTURE_TESTS_LISTS_FACTORIES_H_
#define KYDATASTRUCTURE_TESTS_LISTS_FACTORIES_H_

#include <KyDataStructure/KyDataStructure.h>

#include "support/counted_note.h"

template <class List>
List* create();

template <>
inline ZOL::ZOLIntList* create<ZOL::ZOLIntList>() {
  return createZOLIntList();
}
template <>
inline ZOL::ZOLBoolList* create<ZOL::ZOLBoolList>() {
  return createZOLBoolList();
}
template <>
inline ZOL::ZOLFLOATList* create<ZOL::ZOLFLOATList>() {
  return createZOLFLOATList();
}
template <>
inline ZOL::ZOLREALList* create<ZOL::ZOLREALList>() {
  return createZOLREALList();
}
template <>
inline ZOL::ZOLLonglongList* create<ZOL::ZOLLonglongList>() {
  return createZOLLonglongList();
}
template <>
inline ZOL::ZOLULonglongList* create<ZOL::ZOLULonglongList>() {
  return createZOLULonglongList();
}
template <>
inline ZOL::ZOLIntPtrList* create<ZOL::ZOLIntPtrList>() {
  return createZOLIntPtrList();
}
template <>
inline ZOL::ZOLVoidPtrList* create<ZOL::ZOLVoidPtrList>() {
  return createZOLVoidPtrList();
}
template <>
inline ZOL::ZOLPByteList* create<ZOL::ZOLPByteList>() {
  return createZOLPByteList();
}
template <>
inline ZOL::ZolValueList* create<ZOL::ZolValueList>() {
  return createZolValueList();
}
template <>
inline ZOL::ZOLPointNList* create<ZOL::ZOLPointNList>() {
  return createZOLPointNList();
}
template <>
inline ZOL::ZOLSizeNList* create<ZOL::ZOLSizeNList>() {
  return createZOLSizeNList();
}
template <>
inline ZOL::GradientColorList* create<ZOL::GradientColorList>() {
  return createGradientColorList();
}
template <>
inline ZOL::ZOLPointFList* create<ZOL::ZOLPointFList>() {
  return createZOLPointFList();
}
template <>
inline ZOL::ZOLRectNList* create<ZOL::ZOLRectNList>() {
  return createZOLRectNList();
}
template <>
inline ZOL::ZOLRangeList* create<ZOL::ZOLRangeList>() {
  return createZOLRangeList();
}
template <>
inline ZOL::BkMarkInOutSectionList* create<ZOL::BkMarkInOutSectionList>() {
  return createBkMarkInOutSectionList();
}
template <>
inline ZOL::ZOLRectFList* create<ZOL::ZOLRectFList>() {
  return createZOLRectFList();
}
template <>
inline ZOL::RenderSegmentInfoList* create<ZOL::RenderSegmentInfoList>() {
  return createRenderSegmentInfoList();
}
template <>
inline ZOL::ZOLPolygonFList* create<ZOL::ZOLPolygonFList>() {
  return createZOLPolygonFList();
}
template <>
inline ZOL::PropertyList* create<ZOL::PropertyList>() {
  return createPropertyList();
}
template <>
inline ZOL::KeyFrameValueList* create<ZOL::KeyFrameValueList>() {
  return createKeyFrameValueList();
}
template <>
inline ZOL::ZOLPCharList* create<ZOL::ZOLPCharList>() {
  return createZOLPCharList();
}
template <>
inline ZOL::ZOLAutoVoidPtrList* create<ZOL::ZOLAutoVoidPtrList>() {
  return createZOLAutoVoidPtrList();
}
template <>
inline ZOL::ZOLBaseObjectList* create<ZOL::ZOLBaseObjectList>() {
  return createZOLBaseObjectList();
}
template <>
inline ZOL::IKyMaskInfoDataList* create<ZOL::IKyMaskInfoDataList>() {
  return createIKyMaskInfoDataList();
}
template <>
inline ZOL::IZolBGRDataList* create<ZOL::IZolBGRDataList>() {
  return createIZolBGRDataList();
}
template <>
inline ZOL::IZolBGRADataList* create<ZOL::IZolBGRADataList>() {
  return createIZolBGRADataList();
}
template <>
inline ZOL::IZoEffectInfoList* create<ZOL::IZoEffectInfoList>() {
  return createIZoEffectInfoList();
}
template <>
inline ZOL::IZolPluginInfoList* create<ZOL::IZolPluginInfoList>() {
  return createIZolPluginInfoList();
}
template <>
inline ZOL::IFaceClusterInfoList* create<ZOL::IFaceClusterInfoList>() {
  return createIFaceClusterInfoList();
}
template <>
inline ZOL::IKyLoraTextToImageHistoryInfoList* create<ZOL::IKyLoraTextToImageHistoryInfoList>() {
  return createIKyLoraTextToImageHistoryInfoList();
}
template <>
inline ZOL::IKyVoiceDataInfoList* create<ZOL::IKyVoiceDataInfoList>() {
  return createIKyVoiceDataInfoList();
}
template <>
inline ZOL::IKyScriptSceneInfoList* create<ZOL::IKyScriptSceneInfoList>() {
  return createIKyScriptSceneInfoList();
}
template <>
inline ZOL::IKyScriptCharacterInfoList* create<ZOL::IKyScriptCharacterInfoList>() {
  return createIKyScriptCharacterInfoList();
}
template <>
inline ZOL::IKyScriptEventSoundInfoList* create<ZOL::IKyScriptEventSoundInfoList>() {
  return createIKyScriptEventSoundInfoList();
}
template <>
inline ZOL::IKyScriptCharactersIfInfoList* create<ZOL::IKyScriptCharactersIfInfoList>() {
  return createIKyScriptCharactersIfInfoList();
}
template <>
inline ZOL::IKyScriptClipInfoList* create<ZOL::IKyScriptClipInfoList>() {
  return createIKyScriptClipInfoList();
}
template <>
inline ZOL::IZolResSerializeInfoList* create<ZOL::IZolResSerializeInfoList>() {
  return createIZolResSerializeInfoList();
}
template <>
inline ZOL::IZolSliceItemList* create<ZOL::IZolSliceItemList>() {
  return createIZolSliceItemList();
}
template <>
inline ZOL::IZolDemensionsItemList* create<ZOL::IZolDemensionsItemList>() {
  return createIZolDemensionsItemList();
}
template <>
inline ZOL::IZolKeyMatrixInfoList* create<ZOL::IZolKeyMatrixInfoList>() {
  return createIZolKeyMatrixInfoList();
}
template <>
inline ZOL::IZolTextInfoList* create<ZOL::IZolTextInfoList>() {
  return createIZolTextInfoList();
}
template <>
inline ZOL::IZolHighlightInfoList* create<ZOL::IZolHighlightInfoList>() {
  return createIZolHighlightInfoList();
}
template <>
inline ZOL::IZolSmartCutClipInfoList* create<ZOL::IZolSmartCutClipInfoList>() {
  return createIZolSmartCutClipInfoList();
}
template <>
inline ZOL::IZolMusicInfoList* create<ZOL::IZolMusicInfoList>() {
  return createIZolMusicInfoList();
}
template <>
inline ZOL::IZolStoryboardInfoList* create<ZOL::IZolStoryboardInfoList>() {
  return createIZolStoryboardInfoList();
}
template <>
inline ZOL::IZolSmartCutSearchResultList* create<ZOL::IZolSmartCutSearchResultList>() {
  return createIZolSmartCutSearchResultList();
}
template <>
inline ZOL::IZolSmartCutSearchDimensionsResultItemList*
create<ZOL::IZolSmartCutSearchDimensionsResultItemList>() {
  return createIZolSmartCutSearchDimensionsResultItemList();
}
template <>
inline ZOL::IZolRoleSearchItemInfoList* create<ZOL::IZolRoleSearchItemInfoList>() {
  return createIZolRoleSearchItemInfoList();
}
template <>
inline ZOL::IGpuInfoList* create<ZOL::IGpuInfoList>() {
  return createIGpuInfoList();
}

template <class Interface>
Interface* createElement();

template <>
inline ZOL::IKyMaskInfoData* createElement<ZOL::IKyMaskInfoData>() {
  return createMaskInfoData();
}
template <>
inline ZOL::IZolBGRData* createElement<ZOL::IZolBGRData>() {
  return createBGRData(1, 1, nullptr, 1, 0);
}
template <>
inline ZOL::IZolBGRAData* createElement<ZOL::IZolBGRAData>() {
  return createBGRAData(1, 1, nullptr, 1, 0);
}
template <>
inline ZOL::IZoEffectInfo* createElement<ZOL::IZoEffectInfo>() {
  return createEffectInfo();
}
template <>
inline ZOL::IZolPluginInfo* createElement<ZOL::IZolPluginInfo>() {
  return createPluginInfo();
}
template <>
inline ZOL::IFaceClusterInfo* createElement<ZOL::IFaceClusterInfo>() {
  return createFaceClusterInfo();
}
template <>
inline ZOL::IKyLoraTextToImageHistoryInfo* createElement<ZOL::IKyLoraTextToImageHistoryInfo>() {
  return createLoraTextToImageHistoryInfo();
}
template <>
inline ZOL::IKyVoiceDataInfo* createElement<ZOL::IKyVoiceDataInfo>() {
  return createVoiceDataInfo();
}
template <>
inline ZOL::IKyScriptSceneInfo* createElement<ZOL::IKyScriptSceneInfo>() {
  return createScriptSceneInfo();
}
template <>
inline ZOL::IKyScriptCharacterInfo* createElement<ZOL::IKyScriptCharacterInfo>() {
  return createScriptCharacterInfo();
}
template <>
inline ZOL::IKyScriptEventSoundInfo* createElement<ZOL::IKyScriptEventSoundInfo>() {
  return createScriptEventSoundInfo();
}
template <>
inline ZOL::IKyScriptCharactersIfInfo* createElement<ZOL::IKyScriptCharactersIfInfo>() {
  return createScriptCharactersIfInfo();
}
template <>
inline ZOL::IKyScriptClipInfo* createElement<ZOL::IKyScriptClipInfo>() {
  return createScriptClipInfo();
}
template <>
inline ZOL::IZolResSerializeInfo* createElement<ZOL::IZolResSerializeInfo>() {
  return createZolResSerializeInfo();
}
template <>
inline ZOL::IZolSliceItem* createElement<ZOL::IZolSliceItem>() {
  return createSliceItem();
}
template <>
inline ZOL::IZolDemensionsItem* createElement<ZOL::IZolDemensionsItem>() {
  return createDemensionsItem();
}
template <>
inline ZOL::IZolKeyMatrixInfo* createElement<ZOL::IZolKeyMatrixInfo>() {
  return createKeyMatrixInfo("{}");
}
template <>
inline ZOL::IZolTextInfo* createElement<ZOL::IZolTextInfo>() {
  return createTextInfo();
}
template <>
inline ZOL::IZolHighlightInfo* createElement<ZOL::IZolHighlightInfo>() {
  return createHighlightInfo();
}
template <>
inline ZOL::IZolSmartCutClipInfo* createElement<ZOL::IZolSmartCutClipInfo>() {
  return createSmartCutClipInfo();
}
template <>
inline ZOL::IZolMusicInfo* createElement<ZOL::IZolMusicInfo>() {
  return createMusicInfo();
}
template <>
inline ZOL::IZolStoryboardInfo* createElement<ZOL::IZolStoryboardInfo>() {
  return createStoryboardInfo();
}
template <>
inline ZOL::IZolSmartCutSearchResult* createElement<ZOL::IZolSmartCutSearchResult>() {
  return createSmartCutSearchResult();
}
template <>
inline ZOL::IZolSmartCutSearchDimensionsResultItem*
createElement<ZOL::IZolSmartCutSearchDimensionsResultItem>() {
  return createSmartCutSearchDimensionsResultItem();
}
template <>
inline ZOL::IZolRoleSearchItemInfo* createElement<ZOL::IZolRoleSearchItemInfo>() {
  return createRoleSearchItemInfo();
}

// No class of the library's is a graphics processor, and any object is an element
// of ZOLBaseObjectList.
template <>
inline ZOL::IGpuInfo* createElement<ZOL::IGpuInfo>() {
  return new GpuNote("gpu", nullptr);
}
template <>
inline ZOL::IDmBaseObj* createElement<ZOL::IDmBaseObj>() {
  return createZolString();
}

#endif  // KYDATASTRUCTURE_TESTS_LISTS_FACTORIES_H_
