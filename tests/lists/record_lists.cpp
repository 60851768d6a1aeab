// The lists of plain records.

#include "lists/letter_list_of.h"

std::vector<ListKind> recordLists() {
  return {
      listKind<ZOL::ZOLPointNList>(),          listKind<ZOL::ZOLSizeNList>(),
      listKind<ZOL::GradientColorList>(),      listKind<ZOL::ZOLPointFList>(),
      listKind<ZOL::ZOLRectNList>(),           listKind<ZOL::ZOLRangeList>(),
      listKind<ZOL::BkMarkInOutSectionList>(), listKind<ZOL::ZOLRectFList>(),
      listKind<ZOL::RenderSegmentInfoList>(),  listKind<ZOL::ZOLPolygonFList>(),
      listKind<ZOL::PropertyList>(),           listKind<ZOL::KeyFrameValueList>(),
  };
}
