// The lists that own what they hold: counted objects, texts and raw memory. One
// name and one factory each; the element interfaces come from the families'
// public headers.

#include <KyDataStructure/KyDataStructure.h>

#include "frame/ref.h"
#include "lists/list.h"
#include "lists/stores.h"

namespace ZOL {
namespace {

class _ZOLPCharList final : public List<ZOLPCharList, ZOLStringTemplateList<const char*>> {};
class _ZOLAutoVoidPtrList final : public List<ZOLAutoVoidPtrList, ZOLSharePtrTemplateList<void*>> {};
class _ZOLBaseObjectList final : public List<ZOLBaseObjectList, ZOLObjectTemplateList<IDmBaseObj>> {};
class _IKyMaskInfoDataList final : public List<IKyMaskInfoDataList, ZOLObjectTemplateList<IKyMaskInfoData>> {};
class _IZolBGRDataList final : public List<IZolBGRDataList, ZOLObjectTemplateList<IZolBGRData>> {};
class _IZolBGRADataList final : public List<IZolBGRADataList, ZOLObjectTemplateList<IZolBGRAData>> {};
class _IZoEffectInfoList final : public List<IZoEffectInfoList, ZOLObjectTemplateList<IZoEffectInfo>> {};
class _IZolPluginInfoList final : public List<IZolPluginInfoList, ZOLObjectTemplateList<IZolPluginInfo>> {};
class _IFaceClusterInfoList final : public List<IFaceClusterInfoList, ZOLObjectTemplateList<IFaceClusterInfo>> {};
class _IKyLoraTextToImageHistoryInfoList final : public List<IKyLoraTextToImageHistoryInfoList, ZOLObjectTemplateList<IKyLoraTextToImageHistoryInfo>> {};
class _IKyVoiceDataInfoList final : public List<IKyVoiceDataInfoList, ZOLObjectTemplateList<IKyVoiceDataInfo>> {};
class _IKyScriptSceneInfoList final : public List<IKyScriptSceneInfoList, ZOLObjectTemplateList<IKyScriptSceneInfo>> {};
class _IKyScriptCharacterInfoList final : public List<IKyScriptCharacterInfoList, ZOLObjectTemplateList<IKyScriptCharacterInfo>> {};
class _IKyScriptEventSoundInfoList final : public List<IKyScriptEventSoundInfoList, ZOLObjectTemplateList<IKyScriptEventSoundInfo>> {};
class _IKyScriptCharactersIfInfoList final : public List<IKyScriptCharactersIfInfoList, ZOLObjectTemplateList<IKyScriptCharactersIfInfo>> {};
class _IKyScriptClipInfoList final : public List<IKyScriptClipInfoList, ZOLObjectTemplateList<IKyScriptClipInfo>> {};
class _IZolResSerializeInfoList final : public List<IZolResSerializeInfoList, ZOLObjectTemplateList<IZolResSerializeInfo>> {};
class _IZolSliceItemList final : public List<IZolSliceItemList, ZOLObjectTemplateList<IZolSliceItem>> {};
class _IZolDemensionsItemList final : public List<IZolDemensionsItemList, ZOLObjectTemplateList<IZolDemensionsItem>> {};
class _IZolKeyMatrixInfoList final : public List<IZolKeyMatrixInfoList, ZOLObjectTemplateList<IZolKeyMatrixInfo>> {};
class _IZolTextInfoList final : public List<IZolTextInfoList, ZOLObjectTemplateList<IZolTextInfo>> {};
class _IZolHighlightInfoList final : public List<IZolHighlightInfoList, ZOLObjectTemplateList<IZolHighlightInfo>> {};
class _IZolSmartCutClipInfoList final : public List<IZolSmartCutClipInfoList, ZOLObjectTemplateList<IZolSmartCutClipInfo>> {};
class _IZolMusicInfoList final : public List<IZolMusicInfoList, ZOLObjectTemplateList<IZolMusicInfo>> {};
class _IZolStoryboardInfoList final : public List<IZolStoryboardInfoList, ZOLObjectTemplateList<IZolStoryboardInfo>> {};
class _IZolSmartCutSearchResultList final : public List<IZolSmartCutSearchResultList, ZOLObjectTemplateList<IZolSmartCutSearchResult>> {};
class _IZolSmartCutSearchDimensionsResultItemList final : public List<IZolSmartCutSearchDimensionsResultItemList, ZOLObjectTemplateList<IZolSmartCutSearchDimensionsResultItem>> {};
class _IZolRoleSearchItemInfoList final : public List<IZolRoleSearchItemInfoList, ZOLObjectTemplateList<IZolRoleSearchItemInfo>> {};
class _IGpuInfoList final : public List<IGpuInfoList, ZOLObjectTemplateList<IGpuInfo>> {};

}  // namespace
}  // namespace ZOL

ZOL::ZOLPCharList* createZOLPCharList() { return ZOL::make<ZOL::_ZOLPCharList>(); }
ZOL::ZOLAutoVoidPtrList* createZOLAutoVoidPtrList() { return ZOL::make<ZOL::_ZOLAutoVoidPtrList>(); }
ZOL::ZOLBaseObjectList* createZOLBaseObjectList() { return ZOL::make<ZOL::_ZOLBaseObjectList>(); }
ZOL::IKyMaskInfoDataList* createIKyMaskInfoDataList() { return ZOL::make<ZOL::_IKyMaskInfoDataList>(); }
ZOL::IZolBGRDataList* createIZolBGRDataList() { return ZOL::make<ZOL::_IZolBGRDataList>(); }
ZOL::IZolBGRADataList* createIZolBGRADataList() { return ZOL::make<ZOL::_IZolBGRADataList>(); }
ZOL::IZoEffectInfoList* createIZoEffectInfoList() { return ZOL::make<ZOL::_IZoEffectInfoList>(); }
ZOL::IZolPluginInfoList* createIZolPluginInfoList() { return ZOL::make<ZOL::_IZolPluginInfoList>(); }
ZOL::IFaceClusterInfoList* createIFaceClusterInfoList() { return ZOL::make<ZOL::_IFaceClusterInfoList>(); }
ZOL::IKyLoraTextToImageHistoryInfoList* createIKyLoraTextToImageHistoryInfoList() { return ZOL::make<ZOL::_IKyLoraTextToImageHistoryInfoList>(); }
ZOL::IKyVoiceDataInfoList* createIKyVoiceDataInfoList() { return ZOL::make<ZOL::_IKyVoiceDataInfoList>(); }
ZOL::IKyScriptSceneInfoList* createIKyScriptSceneInfoList() { return ZOL::make<ZOL::_IKyScriptSceneInfoList>(); }
ZOL::IKyScriptCharacterInfoList* createIKyScriptCharacterInfoList() { return ZOL::make<ZOL::_IKyScriptCharacterInfoList>(); }
ZOL::IKyScriptEventSoundInfoList* createIKyScriptEventSoundInfoList() { return ZOL::make<ZOL::_IKyScriptEventSoundInfoList>(); }
ZOL::IKyScriptCharactersIfInfoList* createIKyScriptCharactersIfInfoList() { return ZOL::make<ZOL::_IKyScriptCharactersIfInfoList>(); }
ZOL::IKyScriptClipInfoList* createIKyScriptClipInfoList() { return ZOL::make<ZOL::_IKyScriptClipInfoList>(); }
ZOL::IZolResSerializeInfoList* createIZolResSerializeInfoList() { return ZOL::make<ZOL::_IZolResSerializeInfoList>(); }
ZOL::IZolSliceItemList* createIZolSliceItemList() { return ZOL::make<ZOL::_IZolSliceItemList>(); }
ZOL::IZolDemensionsItemList* createIZolDemensionsItemList() { return ZOL::make<ZOL::_IZolDemensionsItemList>(); }
ZOL::IZolKeyMatrixInfoList* createIZolKeyMatrixInfoList() { return ZOL::make<ZOL::_IZolKeyMatrixInfoList>(); }
ZOL::IZolTextInfoList* createIZolTextInfoList() { return ZOL::make<ZOL::_IZolTextInfoList>(); }
ZOL::IZolHighlightInfoList* createIZolHighlightInfoList() { return ZOL::make<ZOL::_IZolHighlightInfoList>(); }
ZOL::IZolSmartCutClipInfoList* createIZolSmartCutClipInfoList() { return ZOL::make<ZOL::_IZolSmartCutClipInfoList>(); }
ZOL::IZolMusicInfoList* createIZolMusicInfoList() { return ZOL::make<ZOL::_IZolMusicInfoList>(); }
ZOL::IZolStoryboardInfoList* createIZolStoryboardInfoList() { return ZOL::make<ZOL::_IZolStoryboardInfoList>(); }
ZOL::IZolSmartCutSearchResultList* createIZolSmartCutSearchResultList() { return ZOL::make<ZOL::_IZolSmartCutSearchResultList>(); }
ZOL::IZolSmartCutSearchDimensionsResultItemList* createIZolSmartCutSearchDimensionsResultItemList() { return ZOL::make<ZOL::_IZolSmartCutSearchDimensionsResultItemList>(); }
ZOL::IZolRoleSearchItemInfoList* createIZolRoleSearchItemInfoList() { return ZOL::make<ZOL::_IZolRoleSearchItemInfoList>(); }
ZOL::IGpuInfoList* createIGpuInfoList() { return ZOL::make<ZOL::_IGpuInfoList>(); }
