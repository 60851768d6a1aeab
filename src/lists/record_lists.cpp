// The lists of plain records, one name and one factory each.

#include <KyDataStructure/lists.h>

#include "frame/handle.h"
#include "lists/list.h"
#include "lists/stores.h"

namespace ZOL {
namespace {

using _ZOLPointNList = List<ZOLPointNList, ZOLTemplateList<_PointN>>;
using _ZOLSizeNList = List<ZOLSizeNList, ZOLTemplateList<_SizeN>>;
using _GradientColorList = List<GradientColorList, ZOLTemplateList<_GradientColorComponent>>;
using _ZOLPointFList = List<ZOLPointFList, ZOLTemplateList<_PointF>>;
using _ZOLRectNList = List<ZOLRectNList, ZOLTemplateList<_RectN>>;
using _ZOLRangeList = List<ZOLRangeList, ZOLTemplateList<_Range>>;
using _BkMarkInOutSectionList = List<BkMarkInOutSectionList, ZOLTemplateList<_BkMarkInOutSection>>;
using _ZOLRectFList = List<ZOLRectFList, ZOLTemplateList<_RectF>>;
using _RenderSegmentInfoList = List<RenderSegmentInfoList, ZOLTemplateList<_RenderSegmentInfo>>;
using _ZOLPolygonFList = List<ZOLPolygonFList, ZOLTemplateList<_PolygonF>>;
using _PropertyList = List<PropertyList, ZOLTemplateList<_Property>>;
using _KeyFrameValueList = List<KeyFrameValueList, ZOLTemplateList<KeyFrameValue>>;

}  // namespace
}  // namespace ZOL

ZOL::ZOLPointNList* createZOLPointNList() { return ZOL::makeObject<ZOL::_ZOLPointNList>(); }
ZOL::ZOLSizeNList* createZOLSizeNList() { return ZOL::makeObject<ZOL::_ZOLSizeNList>(); }
ZOL::GradientColorList* createGradientColorList() {
  return ZOL::makeObject<ZOL::_GradientColorList>();
}
ZOL::ZOLPointFList* createZOLPointFList() { return ZOL::makeObject<ZOL::_ZOLPointFList>(); }
ZOL::ZOLRectNList* createZOLRectNList() { return ZOL::makeObject<ZOL::_ZOLRectNList>(); }
ZOL::ZOLRangeList* createZOLRangeList() { return ZOL::makeObject<ZOL::_ZOLRangeList>(); }
ZOL::BkMarkInOutSectionList* createBkMarkInOutSectionList() {
  return ZOL::makeObject<ZOL::_BkMarkInOutSectionList>();
}
ZOL::ZOLRectFList* createZOLRectFList() { return ZOL::makeObject<ZOL::_ZOLRectFList>(); }
ZOL::RenderSegmentInfoList* createRenderSegmentInfoList() {
  return ZOL::makeObject<ZOL::_RenderSegmentInfoList>();
}
ZOL::ZOLPolygonFList* createZOLPolygonFList() { return ZOL::makeObject<ZOL::_ZOLPolygonFList>(); }
ZOL::PropertyList* createPropertyList() { return ZOL::makeObject<ZOL::_PropertyList>(); }
ZOL::KeyFrameValueList* createKeyFrameValueList() {
  return ZOL::makeObject<ZOL::_KeyFrameValueList>();
}
