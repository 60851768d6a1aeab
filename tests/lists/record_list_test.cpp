// What lists of plain records do beyond the common contract.

#include <KyDataStructure/lists.h>
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

#include "support/held.h"
#include "support/show.h"

namespace {

ZOL::_Property textProperty(const char* text) {
  ZOL::_Property property{};
  property.present = 1;
  property.type = ZOL::kPropertyText;
  std::strncpy(property.value, text, sizeof property.value - 1);
  return property;
}

TEST(Records, HaveTheSizesThatCallersAreBuiltWith) {
  EXPECT_EQ(sizeof(ZOL::_PointN), 8U);
  EXPECT_EQ(sizeof(ZOL::_SizeN), 8U);
  EXPECT_EQ(sizeof(ZOL::_GradientColorComponent), 8U);
  EXPECT_EQ(sizeof(ZOL::_PointF), 16U);
  EXPECT_EQ(sizeof(ZOL::_RectN), 16U);
  EXPECT_EQ(sizeof(ZOL::_Range), 16U);
  EXPECT_EQ(sizeof(ZOL::_BkMarkInOutSection), 16U);
  EXPECT_EQ(sizeof(ZOL::_RectF), 32U);
  EXPECT_EQ(sizeof(ZOL::_RenderSegmentInfo), 32U);
  EXPECT_EQ(sizeof(ZOL::_PolygonF), 64U);
  EXPECT_EQ(sizeof(ZOL::_Property), 1032U);
  EXPECT_EQ(sizeof(ZOL::KeyFrameValue), 1072U);
}

TEST(Records, OfAPropertyStandInTheirOrder) {
  EXPECT_EQ(offsetof(ZOL::_Property, present), 0U);
  EXPECT_EQ(offsetof(ZOL::_Property, type), 4U);
  EXPECT_EQ(offsetof(ZOL::_Property, value), 8U);
  EXPECT_EQ(ZOL::kPropertyInteger, 4);
  EXPECT_EQ(ZOL::kPropertyText, 7) << "not the number that ZolValue has for a text";
}

TEST(RangeList, AnswersNoRangeOutsideTheRange) {
  Held<ZOL::ZOLRangeList> list(createZOLRangeList());
  EXPECT_EQ(show(list->at(0)), "-1..-1");
  EXPECT_EQ(show(list->at(-1)), "-1..-1");
  list->add(ZOL::_Range{});
  ZOL::_Range range;
  range.start = 5;
  range.end = 7;
  list->add(range);
  EXPECT_EQ(show(list), "[-1..-1, 5..7]");
}

TEST(PropertyList, AnswersZeroBytesOutsideTheRange) {
  Held<ZOL::PropertyList> list(createPropertyList());
  const ZOL::_Property property = list->at(-1);
  const std::array<unsigned char, 1032> zeros{};
  EXPECT_EQ(std::memcmp(&property, zeros.data(), zeros.size()), 0);
}

TEST(PropertyList, SortsByTheCallersOrderAlone) {
  Held<ZOL::PropertyList> list(createPropertyList());
  for (const char* text : {"pear", "apple", "fig"}) list->add(textProperty(text));
  EXPECT_EQ(list->sort(nullptr), 1001);
  EXPECT_EQ(show(list), "[text \"pear\", text \"apple\", text \"fig\"]");
  EXPECT_EQ(list->sort([](ZOL::_Property a, ZOL::_Property b) {
    return std::strlen(a.value) < std::strlen(b.value);
  }),
            0);
  EXPECT_EQ(show(list), "[text \"fig\", text \"pear\", text \"apple\"]");
}

TEST(PropertyList, KeepsEveryByteOfARecord) {
  Held<ZOL::PropertyList> list(createPropertyList());
  ZOL::_Property property;
  std::memset(&property, 0xA5, sizeof property);
  property.value[1023] = 'z';
  list->add(property);
  list->insertAt(0, ZOL::_Property{});
  const ZOL::_Property out = list->at(1);
  EXPECT_EQ(std::memcmp(&out, &property, sizeof out), 0);
}

TEST(KeyFrameValueList, FindsByWhateverTheCallerCompares) {
  Held<ZOL::KeyFrameValueList> list(createKeyFrameValueList());
  for (const long long time : {10, 20, 30}) {
    ZOL::KeyFrameValue frame{};
    frame.time = time;
    frame.property = textProperty("x");
    list->add(frame);
  }
  ZOL::KeyFrameValue key{};
  key.time = 20;
  EXPECT_EQ(
      list->find(key, [](ZOL::KeyFrameValue a, ZOL::KeyFrameValue b) { return a.time == b.time; }),
      1);
}

TEST(GeometryLists, HoldRecordsByValue) {
  Held<ZOL::ZOLPointNList> points(createZOLPointNList());
  ZOL::_PointN point{3, 4};
  points->add(point);
  point.x = 9;
  points->add(point);
  EXPECT_EQ(show(points), "[(3, 4), (9, 4)]");
  Held<ZOL::ZOLRectFList> rects(createZOLRectFList());
  rects->add(ZOL::_RectF{0, 0, 1, 0.5});
  EXPECT_EQ(show(rects), "[(0, 0, 1, 0.5)]");
  EXPECT_EQ(rects->setAt(1, ZOL::_RectF{}), 0);
  EXPECT_EQ(rects->setAt(2, ZOL::_RectF{}), 1001);
  EXPECT_EQ(show(rects), "[(0, 0, 1, 0.5)]");
}

}  // namespace
