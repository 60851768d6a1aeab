#ifndef KYDATA_TIME_AXIS_H_
#define KYDATA_TIME_AXIS_H_

#include <string>
#include <vector>

namespace kydata {

/// A stretch of time laid out over a width, with ticks at round times.
class TimeAxis {
 public:
  struct Tick {
    double x;
    std::string label;
  };

  /// `low` and `high` are the ends of all that is to be shown.
  TimeAxis(long long low, long long high, double width);

  /// From 0 at the low end to the width at the high end.
  double x(long long time) const;
  /// As close together as their labels allow.
  std::vector<Tick> ticks() const;

 private:
  long long step() const;
  std::string label(long long time, long long step) const;

  long long low_;
  long long high_;
  double width_;
};

}  // namespace kydata

#endif  // KYDATA_TIME_AXIS_H_
