#include "times.h"

#include <array>
#include <cstdio>
#include <limits>

namespace kydata {

namespace {

using Limits = std::numeric_limits<long long>;

}  // namespace

long long plus(long long a, long long b) {
  if (b > 0 && a > Limits::max() - b) return Limits::max();
  if (b < 0 && a < Limits::min() - b) return Limits::min();
  return a + b;
}

long long minus(long long a, long long b) {
  if (b < 0 && a > Limits::max() + b) return Limits::max();
  if (b > 0 && a < Limits::min() + b) return Limits::min();
  return a - b;
}

std::string timeText(long long milliseconds) {
  // Unsigned, because the lowest number has no positive counterpart.
  const bool isNegative = milliseconds < 0;
  const auto number = static_cast<unsigned long long>(milliseconds);
  const unsigned long long size = isNegative ? 0 - number : number;
  const unsigned long long hours = size / 3600000;
  const unsigned long long minutes = size / 60000 % 60;
  const unsigned long long seconds = size / 1000 % 60;
  const unsigned long long rest = size % 1000;
  const char* sign = isNegative ? "-" : "";
  std::array<char, 48> text;
  if (hours > 0) {
    std::snprintf(text.data(), text.size(), "%s%llu:%02llu:%02llu.%03llu", sign, hours, minutes,
                  seconds, rest);
  } else {
    std::snprintf(text.data(), text.size(), "%s%llu:%02llu.%03llu", sign, minutes, seconds, rest);
  }
  return text.data();
}

std::string spanText(const Span& span) { return timeText(span.start) + " - " + timeText(span.end); }

}  // namespace kydata
