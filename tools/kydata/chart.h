#ifndef KYDATA_CHART_H_
#define KYDATA_CHART_H_

#include <array>
#include <string>
#include <vector>

namespace kydata {

enum class Paint {
  kGrey,
  kBlue,
  kOrange,
  kPurple,
  kTeal,
  kGreen,
  kYellow,
  kRed,
  kBrown,
  kPink,
  kIndigo,
};
constexpr int kPaintCount = 11;

/// A span of time as a box. One that ends before it starts is drawn from the earlier
/// to the later of the two, in dashes; one without length as a thin mark.
struct Bar {
  long long start;
  long long end;
  std::string label;    ///< inside the box, or beside it where it fits only there
  std::string tooltip;  ///< shown whole where the viewer can
  Paint paint;
};

/// A small picture, rows of red, green and blue from the top.
struct Thumbnail {
  unsigned int width = 0;
  unsigned int height = 0;
  std::vector<std::array<unsigned char, 3>> pixels;
};

/// Bars that belong together. Those that overlap are drawn below each other.
struct Lane {
  std::string title;
  std::vector<Bar> bars;
  Thumbnail thumbnail;  ///< beside the title, if it has pixels
};

/// Lanes under one heading. The heading takes the place of a single lane's title.
struct LaneGroup {
  std::string title;
  std::vector<Lane> lanes;
};

struct LegendEntry {
  Paint paint;
  std::string text;
};

/// Spans over a common time axis in milliseconds.
struct Chart {
  std::string title;
  std::string subtitle;
  double plotWidth = 1000;
  std::vector<LaneGroup> groups;
  std::vector<LegendEntry> legend;
};

/// The chart as an SVG text, readable in light and in dark surroundings.
std::string drawChart(const Chart& chart);

}  // namespace kydata

#endif  // KYDATA_CHART_H_
