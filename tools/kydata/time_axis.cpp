#include "time_axis.h"

#include <algorithm>

#include "svg.h"
#include "times.h"

namespace kydata {

namespace {

constexpr double kFontSize = 11;
constexpr double kRoomBetweenLabels = 24;

constexpr long long kSecond = 1000;
constexpr long long kMinute = 60 * kSecond;
constexpr long long kHour = 60 * kMinute;
constexpr long long kDay = 24 * kHour;

/// Round distances, ascending.
std::vector<long long> roundSteps() {
  std::vector<long long> steps;
  for (const long long power : {1, 10, 100}) {
    for (const long long digit : {1, 2, 5}) steps.push_back(digit * power);
  }
  for (const long long unit : {kSecond, kMinute}) {
    for (const long long count : {1, 2, 5, 10, 15, 30}) steps.push_back(count * unit);
  }
  for (const long long count : {1, 2, 3, 6, 12}) steps.push_back(count * kHour);
  for (long long power = kDay; power <= kDay * 10'000'000'000; power *= 10) {
    for (const long long digit : {1, 2, 5}) steps.push_back(digit * power);
  }
  return steps;
}

double distance(long long low, long long high) {
  return static_cast<double>(high) - static_cast<double>(low);
}

}  // namespace

TimeAxis::TimeAxis(long long low, long long high, double width)
    : low_(low), high_(high), width_(width) {
  // What begins soon is shown from 0 on; what lies far away only where it is.
  if (low_ > 0 && low_ <= minus(high_, low_)) low_ = 0;
  if (low_ == high_) high_ = plus(low_, kSecond);
  if (low_ == high_) low_ = minus(high_, kSecond);
}

double TimeAxis::x(long long time) const {
  return distance(low_, time) / distance(low_, high_) * width_;
}

long long TimeAxis::step() const {
  const std::vector<long long> steps = roundSteps();
  const auto hasRoom = [this](long long step) {
    const double label = std::max(widestWidth(this->label(low_, step), kFontSize),
                                  widestWidth(this->label(high_, step), kFontSize));
    const double apart = static_cast<double>(step) / distance(low_, high_) * width_;
    return apart >= label + kRoomBetweenLabels;
  };
  const auto found = std::find_if(steps.begin(), steps.end(), hasRoom);
  return found == steps.end() ? steps.back() : *found;
}

std::string TimeAxis::label(long long time, long long step) const {
  if (step >= kDay) return std::to_string(time / kDay) + " d";
  std::string text = timeText(time);
  if (step >= kSecond) text.erase(text.size() - 4);  // the ".000"
  return text;
}

std::vector<TimeAxis::Tick> TimeAxis::ticks() const {
  const long long step = this->step();
  long long time = low_ / step * step;
  if (time < low_) time = plus(time, step);
  std::vector<Tick> ticks;
  while (time >= low_ && time <= high_) {
    ticks.push_back({x(time), label(time, step)});
    const long long next = plus(time, step);
    if (next - time != step) break;
    time = next;
  }
  return ticks;
}

}  // namespace kydata
