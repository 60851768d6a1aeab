#ifndef KYDATA_LANE_LAYOUT_H_
#define KYDATA_LANE_LAYOUT_H_

#include <cstddef>
#include <vector>

#include "chart.h"
#include "time_axis.h"

namespace kydata {

/// Where a bar lies in its lane.
struct PlacedBar {
  double left;
  double width;
  std::size_t row;  ///< counted from the top
  double free;      ///< from the bar's right edge to the next bar of its row
};

struct LaneLayout {
  std::vector<PlacedBar> bars;
  std::size_t rows = 1;
};

/// Lays each bar into the topmost row in which it touches no bar before it.
LaneLayout layOut(const std::vector<Bar>& bars, const TimeAxis& axis, double plotWidth);

}  // namespace kydata

#endif  // KYDATA_LANE_LAYOUT_H_
