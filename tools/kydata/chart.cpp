#include "chart.h"

#include <algorithm>
#include <limits>

#include "lane_layout.h"
#include "svg.h"
#include "time_axis.h"
#include "utf8.h"

namespace kydata {

namespace {

constexpr double kMargin = 20;
constexpr double kGutter = 150;  // the lane titles
constexpr double kRightMargin = 40;
constexpr double kTop = 100;  // title, subtitle and the axis labels
constexpr double kHeadingHeight = 22;
constexpr double kBarHeight = 22;
constexpr double kBarPitch = 25;
constexpr double kLaneGap = 5;
constexpr double kGroupGap = 6;
constexpr double kFontSize = 12;
constexpr double kPadding = 5;
constexpr double kRoomyEnough = 80;
constexpr double kLegendPitch = 24;
constexpr double kPlotLeft = kMargin + kGutter;

const char* const kStyle =
    "text{font-family:Inter,system-ui,'Segoe UI','DejaVu Sans',sans-serif;font-size:12px;"
    "fill:#1b2733}\n"
    ".back{fill:#ffffff}.stripe{fill:#f3f5f8}.grid{stroke:#d5dbe2;stroke-width:1}\n"
    ".title{font-size:18px;font-weight:bold}.heading{font-weight:bold}\n"
    ".faint{fill:#566270}.tick{font-size:11px;fill:#566270;text-anchor:middle}\n"
    ".bar{stroke-width:1}.reverse{stroke-dasharray:4 3;fill-opacity:.35}\n"
    ".p0{fill:#dfe4ea;stroke:#5d6875}.p1{fill:#cfe3f7;stroke:#2f6fae}\n"
    ".p2{fill:#fbdcbf;stroke:#b8651b}.p3{fill:#e2d6f5;stroke:#6b4bb0}\n"
    ".p4{fill:#c3e9e7;stroke:#1d7f7c}.p5{fill:#cdebd0;stroke:#2f8049}\n"
    ".p6{fill:#f5e9b3;stroke:#8d7410}.p7{fill:#f8d0cd;stroke:#b23a34}\n"
    ".p8{fill:#e8d9cb;stroke:#7d5a3a}.p9{fill:#f9d5ea;stroke:#ad3c82}\n"
    ".p10{fill:#d6d9f8;stroke:#454fb5}\n"
    "@media (prefers-color-scheme:dark){\n"
    "text{fill:#e8edf2}.back{fill:#12181f}.stripe{fill:#1a222b}.grid{stroke:#33404d}\n"
    ".faint,.tick{fill:#a3afbc}\n"
    ".p0{fill:#3a444f;stroke:#aab4c0}.p1{fill:#1f4a73;stroke:#7db4e6}\n"
    ".p2{fill:#6b3d12;stroke:#f0a868}.p3{fill:#41306e;stroke:#b79df0}\n"
    ".p4{fill:#124e4c;stroke:#6fd0cb}.p5{fill:#1d5030;stroke:#7fcf96}\n"
    ".p6{fill:#57480c;stroke:#e3c84e}.p7{fill:#6e2420;stroke:#f0948e}\n"
    ".p8{fill:#4d3722;stroke:#cda885}.p9{fill:#652049;stroke:#ee97cb}\n"
    ".p10{fill:#2c337a;stroke:#a3abf3}\n"
    "}\n";

std::string paintClass(Paint paint) { return "p" + std::to_string(static_cast<int>(paint)); }

std::string rectangle(double x, double y, double width, double height, const std::string& rest) {
  return "<rect x=\"" + coordinate(x) + "\" y=\"" + coordinate(y) + "\" width=\"" +
         coordinate(width) + "\" height=\"" + coordinate(height) + "\" " + rest + "/>\n";
}

std::string textAt(double x, double y, const char* cssClass, const std::string& text) {
  return "<text x=\"" + coordinate(x) + "\" y=\"" + coordinate(y) + "\"" +
         (*cssClass ? " class=\"" + std::string(cssClass) + "\"" : "") + ">" + xmlText(text) +
         "</text>\n";
}

std::string grid(double x1, double y1, double x2, double y2) {
  return "<line x1=\"" + coordinate(x1) + "\" y1=\"" + coordinate(y1) + "\" x2=\"" +
         coordinate(x2) + "\" y2=\"" + coordinate(y2) + "\" class=\"grid\"/>\n";
}

bool isReverse(const Bar& bar) { return bar.end < bar.start; }

bool hasReverse(const Chart& chart) {
  for (const LaneGroup& group : chart.groups) {
    for (const Lane& lane : group.lanes) {
      if (std::any_of(lane.bars.begin(), lane.bars.end(), isReverse)) return true;
    }
  }
  return false;
}

TimeAxis axisOf(const Chart& chart) {
  long long low = std::numeric_limits<long long>::max();
  long long high = std::numeric_limits<long long>::min();
  for (const LaneGroup& group : chart.groups) {
    for (const Lane& lane : group.lanes) {
      for (const Bar& bar : lane.bars) {
        low = std::min({low, bar.start, bar.end});
        high = std::max({high, bar.start, bar.end});
      }
    }
  }
  if (low > high) low = high = 0;
  return TimeAxis(low, high, chart.plotWidth);
}

/// Text in a room of its own: a picture within the picture cuts off what a wider font
/// would let out of it.
std::string drawLabel(double x, double y, double width, const std::string& label) {
  if (label.empty()) return "";
  return "<svg x=\"" + coordinate(x) + "\" y=\"" + coordinate(y) + "\" width=\"" +
         coordinate(width) + "\" height=\"" + coordinate(kBarHeight) + "\">" +
         textAt(kPadding, kBarHeight / 2 + 4, "", label) + "</svg>";
}

/// A label that is too wide for its bar stands beside it, if it fits there whole or has
/// much more room.
std::string drawBar(const Bar& bar, const PlacedBar& place, double y) {
  const double x = kPlotLeft + place.left;
  const double width = place.width;
  const std::string label = printable(bar.label);
  const double wanted = widestWidth(label, kFontSize) + 2 * kPadding;
  const bool isBeside =
      wanted > width && (wanted <= place.free || place.free > std::max(width, kRoomyEnough));
  const double room = isBeside ? place.free : width - 1;
  return "<g><title>" + xmlText(printable(bar.tooltip)) + "</title>" +
         rectangle(x, y, width, kBarHeight,
                   "rx=\"2\" class=\"bar " + paintClass(bar.paint) +
                       (isReverse(bar) ? " reverse\"" : "\"")) +
         drawLabel(isBeside ? x + width : x, y, room,
                   fitted(label, room - 2 * kPadding, kFontSize)) +
         "</g>\n";
}

std::string drawThumbnail(const Thumbnail& picture, double x, double y) {
  if (picture.pixels.empty()) return "";
  // At most 24 samples a side, so that a large picture stays a small text.
  const std::size_t columns = std::min<std::size_t>(picture.width, 24);
  const std::size_t rows = std::min<std::size_t>(picture.height, 24);
  const double width = kBarHeight / static_cast<double>(columns);
  const double height = kBarHeight / static_cast<double>(rows);
  std::string svg = "<g shape-rendering=\"crispEdges\">";
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < columns; ++column) {
      const std::size_t from =
          row * picture.height / rows * picture.width + column * picture.width / columns;
      const auto& [red, green, blue] = picture.pixels[from];
      svg += rectangle(x + static_cast<double>(column) * width,
                       y + static_cast<double>(row) * height, width, height,
                       "fill=\"rgb(" + std::to_string(red) + "," + std::to_string(green) + "," +
                           std::to_string(blue) + ")\"");
    }
  }
  return svg + "</g>\n";
}

/// Draws from the top to the bottom and remembers how far it has come.
class Drawing {
 public:
  explicit Drawing(const Chart& chart) : chart_(chart), axis_(axisOf(chart)) {}

  std::string text() {
    for (const LaneGroup& group : chart_.groups) drawGroup(group);
    const double lanesEnd = y_;
    drawLegend();
    const double width = kPlotLeft + chart_.plotWidth + kRightMargin;
    const std::string size =
        "width=\"" + coordinate(width) + "\" height=\"" + coordinate(y_ + kMargin) + "\"";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + size + " viewBox=\"0 0 " +
           coordinate(width) + " " + coordinate(y_ + kMargin) + "\" role=\"img\">\n<title>" +
           xmlText(printable(chart_.title)) + "</title>\n<style>\n" + kStyle + "</style>\n<rect " +
           size + " class=\"back\"/>\n" + head(width) + stripes_ + axis(lanesEnd) + lanes_ +
           "</svg>\n";
  }

 private:
  std::string head(double width) const {
    const double room = width - 2 * kMargin;
    // Bold letters are wider than plain ones.
    return textAt(kMargin, 34, "title", fitted(printable(chart_.title), room / 1.15, 18)) +
           textAt(kMargin, 56, "faint", fitted(printable(chart_.subtitle), room, kFontSize));
  }

  std::string axis(double end) const {
    std::string svg;
    for (const TimeAxis::Tick& tick : axis_.ticks()) {
      const double x = kPlotLeft + tick.x;
      svg += grid(x, kTop - 8, x, end) + textAt(x, kTop - 14, "tick", tick.label);
    }
    return svg;
  }

  void drawGroup(const LaneGroup& group) {
    const bool isOneLane = group.lanes.size() == 1 && group.lanes[0].title.empty();
    y_ += kGroupGap;
    if (!isOneLane) {
      lanes_ += textAt(kMargin, y_ + 15, "heading",
                       fitted(printable(group.title), kGutter / 1.15, kFontSize));
      y_ += kHeadingHeight;
    }
    for (const Lane& lane : group.lanes) {
      drawLane(lane, isOneLane ? group.title : lane.title, isOneLane);
    }
  }

  void drawLane(const Lane& lane, const std::string& title, bool isHeading) {
    const LaneLayout layout = layOut(lane.bars, axis_, chart_.plotWidth);
    const double height = kBarHeight + kBarPitch * static_cast<double>(layout.rows - 1);
    stripes_ += rectangle(kPlotLeft, y_, chart_.plotWidth, height, "class=\"stripe\"");
    drawLaneTitle(lane, title, isHeading);
    for (std::size_t i = 0; i < lane.bars.size(); ++i) {
      const PlacedBar& place = layout.bars[i];
      lanes_ += drawBar(lane.bars[i], place, y_ + kBarPitch * static_cast<double>(place.row));
    }
    y_ += height + kLaneGap;
  }

  void drawLaneTitle(const Lane& lane, const std::string& title, bool isHeading) {
    const double indent = isHeading ? 0 : 12;
    const double picture = lane.thumbnail.pixels.empty() ? 0 : kBarHeight + kPadding;
    const double room = (kGutter - indent - picture - kPadding) / (isHeading ? 1.15 : 1);
    lanes_ += textAt(kMargin + indent, y_ + kBarHeight / 2 + 4, isHeading ? "heading" : "",
                     fitted(printable(title), room, kFontSize));
    lanes_ += drawThumbnail(lane.thumbnail, kPlotLeft - picture, y_);
  }

  void drawLegend() {
    if (chart_.legend.empty() && !hasReverse(chart_)) return;
    y_ += 14;
    double x = kPlotLeft;
    for (const LegendEntry& entry : chart_.legend) {
      drawLegendEntry(x, "bar " + paintClass(entry.paint), entry.text);
    }
    if (hasReverse(chart_)) {
      drawLegendEntry(x, "bar p0 reverse", "in dashes: ends before it starts");
    }
    y_ += kLegendPitch;
  }

  void drawLegendEntry(double& x, const std::string& cssClass, const std::string& text) {
    const double width = 20 + widestWidth(text, kFontSize) + 16;
    if (x > kPlotLeft && x + width > kPlotLeft + chart_.plotWidth) {
      x = kPlotLeft;
      y_ += kLegendPitch;
    }
    lanes_ += rectangle(x, y_, 14, 14, "rx=\"2\" class=\"" + cssClass + "\"");
    lanes_ += textAt(x + 20, y_ + 11, "", text);
    x += width;
  }

  const Chart& chart_;
  TimeAxis axis_;
  double y_ = kTop;
  std::string stripes_;
  std::string lanes_;
};

}  // namespace

std::string drawChart(const Chart& chart) { return Drawing(chart).text(); }

}  // namespace kydata
