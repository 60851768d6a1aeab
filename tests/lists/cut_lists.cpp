// The lists of cut scripts, reports and search results.

#include "lists/letter_list_of.h"

std::vector<ListKind> cutLists() {
  return {
      listKind<ZOL::IZolSliceItemList>(),
      listKind<ZOL::IZolDemensionsItemList>(),
      listKind<ZOL::IZolKeyMatrixInfoList>(),
      listKind<ZOL::IZolTextInfoList>(),
      listKind<ZOL::IZolHighlightInfoList>(),
      listKind<ZOL::IZolSmartCutClipInfoList>(),
      listKind<ZOL::IZolMusicInfoList>(),
      listKind<ZOL::IZolStoryboardInfoList>(),
      listKind<ZOL::IZolSmartCutSearchResultList>(),
      listKind<ZOL::IZolSmartCutSearchDimensionsResultItemList>(),
      listKind<ZOL::IZolRoleSearchItemInfoList>(),
  };
}
