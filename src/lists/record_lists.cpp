// The lists of plain records, one name and one factory each.

#include <KyDataStructure/lists.h>

#include "frame/ref.h"
#include "lists/list.h"
#include "lists/stores.h"

namespace ZOL {
namespace {

class _ZOLPointNList final : public List<ZOLPointNList, ZOLTemplateList<_PointN>> {};
class _ZOLSizeNList final : public List<ZOLSizeNList, ZOLTemplateList<_SizeN>> {};
class _GradientColorList final : public List<GradientColorList, ZOLTemplateList<_GradientColorComponent>> {};
class _ZOLPointFList final : public List<ZOLPointFList, ZOLTemplateList<_PointF>> {};
class _ZOLRectNList final : public List<ZOLRectNList, ZOLTemplateList<_RectN>> {};
class _ZOLRangeList final : public List<ZOLRangeList, ZOLTemplateList<_Range>> {};
class _BkMarkInOutSectionList final : public List<BkMarkInOutSectionList, ZOLTemplateList<_BkMarkInOutSection>> {};
class _ZOLRectFList final : public List<ZOLRectFList, ZOLTemplateList<_RectF>> {};
class _RenderSegmentInfoList final : public List<RenderSegmentInfoList, ZOLTemplateList<_RenderSegmentInfo>> {};
class _ZOLPolygonFList final : public List<ZOLPolygonFList, ZOLTemplateList<_PolygonF>> {};
class _PropertyList final : public List<PropertyList, ZOLTemplateList<_Property>> {};
class _KeyFrameValueList final : public List<KeyFrameValueList, ZOLTemplateList<KeyFrameValue>> {};

}  // namespace
}  // namespace ZOL

ZOL::ZOLPointNList* createZOLPointNList() { return ZOL::make<ZOL::_ZOLPointNList>(); }
ZOL::ZOLSizeNList* createZOLSizeNList() { return ZOL::make<ZOL::_ZOLSizeNList>(); }
ZOL::GradientColorList* createGradientColorList() { return ZOL::make<ZOL::_GradientColorList>(); }
ZOL::ZOLPointFList* createZOLPointFList() { return ZOL::make<ZOL::_ZOLPointFList>(); }
ZOL::ZOLRectNList* createZOLRectNList() { return ZOL::make<ZOL::_ZOLRectNList>(); }
ZOL::ZOLRangeList* createZOLRangeList() { return ZOL::make<ZOL::_ZOLRangeList>(); }
ZOL::BkMarkInOutSectionList* createBkMarkInOutSectionList() { return ZOL::make<ZOL::_BkMarkInOutSectionList>(); }
ZOL::ZOLRectFList* createZOLRectFList() { return ZOL::make<ZOL::_ZOLRectFList>(); }
ZOL::RenderSegmentInfoList* createRenderSegmentInfoList() { return ZOL::make<ZOL::_RenderSegmentInfoList>(); }
ZOL::ZOLPolygonFList* createZOLPolygonFList() { return ZOL::make<ZOL::_ZOLPolygonFList>(); }
ZOL::PropertyList* createPropertyList() { return ZOL::make<ZOL::_PropertyList>(); }
ZOL::KeyFrameValueList* createKeyFrameValueList() { return ZOL::make<ZOL::_KeyFrameValueList>(); }
