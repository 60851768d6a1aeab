#include "report_picture.h"

#include <algorithm>

#include "chart.h"

namespace kydata {

namespace {

Paint paintOf(const Dimension& dimension) {
  return static_cast<Paint>(dimension.type % kPaintCount);
}

/// A picture's bytes are blue, green and red of each pixel, if they are that many.
Thumbnail thumbnailOf(ZOL::IZolBGRData* face) {
  Thumbnail picture;
  if (!face || !face->data() || face->dataSize() <= 0) return picture;
  const std::size_t pixels = std::size_t{face->width()} * face->height();
  if (pixels == 0 || static_cast<std::size_t>(face->dataSize()) / 3 < pixels) return picture;
  picture.width = face->width();
  picture.height = face->height();
  for (std::size_t i = 0; i < pixels; ++i) {
    const unsigned char* pixel = face->data() + 3 * i;
    picture.pixels.push_back({pixel[2], pixel[1], pixel[0]});
  }
  return picture;
}

Lane laneOf(const Dimension& dimension, const SliceGroup& group) {
  Lane lane{group.label, {}, {}};
  for (const Slice& slice : group.slices) {
    lane.bars.push_back({slice.time.start, slice.time.end, slice.label,
                         std::string(dimension.name) + ": " + slice.label + ", " +
                             spanText(slice.time) + ", score " + std::to_string(slice.score),
                         paintOf(dimension)});
    if (slice.face && lane.thumbnail.pixels.empty()) lane.thumbnail = thumbnailOf(slice.face);
  }
  return lane;
}

std::string keywordText(const std::vector<std::string>& keywords) {
  std::string text;
  for (const std::string& keyword : keywords) {
    text += (text.empty() ? "Keywords: " : ", ") + keyword;
  }
  return text;
}

}  // namespace

std::string drawReport(const Report& report) {
  Chart chart;
  chart.title = "Analysis report";
  chart.subtitle = keywordText(report.keywords);
  for (const Dimension& dimension : report.dimensions) {
    LaneGroup group{dimension.name, {}};
    for (const SliceGroup& slices : dimension.groups) {
      group.lanes.push_back(laneOf(dimension, slices));
    }
    chart.groups.push_back(std::move(group));
  }
  return drawChart(chart);
}

}  // namespace kydata
