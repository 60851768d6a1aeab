#include "lane_layout.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace kydata {

namespace {

constexpr double kThinnest = 3;
/// Bars that only meet at their edges, but for rounding, don't touch.
constexpr double kNothing = 0.01;

/// A row of bars that don't touch: the left edge of each with its right edge.
using Row = std::map<double, double>;

bool isFree(const Row& row, double left, double right) {
  const auto next = row.upper_bound(left);
  if (next != row.end() && next->first < right - kNothing) return false;
  return next == row.begin() || std::prev(next)->second <= left + kNothing;
}

}  // namespace

LaneLayout layOut(const std::vector<Bar>& bars, const TimeAxis& axis, double plotWidth) {
  LaneLayout layout;
  std::vector<Row> rows;
  for (const Bar& bar : bars) {
    const auto [low, high] = std::minmax(bar.start, bar.end);
    const double width = std::max(axis.x(high) - axis.x(low), kThinnest);
    const double left = std::min(axis.x(low), plotWidth - width);
    const auto row = std::find_if(rows.begin(), rows.end(), [left, width](const Row& other) {
      return isFree(other, left, left + width);
    });
    layout.bars.push_back({left, width, static_cast<std::size_t>(row - rows.begin()), 0});
    if (row == rows.end()) rows.emplace_back();
    rows[layout.bars.back().row].emplace(left, left + width);
  }
  for (PlacedBar& bar : layout.bars) {
    const auto next = rows[bar.row].upper_bound(bar.left);
    bar.free = (next == rows[bar.row].end() ? plotWidth : next->first) - bar.left - bar.width;
  }
  layout.rows = std::max<std::size_t>(rows.size(), 1);
  return layout;
}

}  // namespace kydata
