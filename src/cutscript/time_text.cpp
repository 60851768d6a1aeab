#include "cutscript/time_text.h"

#include <cstdint>
#include <cstring>

namespace ZOL {
namespace {

bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Takes white space, a sign and digits off the front; false if there is no digit. A
// number beyond 32 bits wraps around. The hyphen of the span is no sign.
bool takeInteger(const char*& at, const char* hyphen, std::uint32_t& number) {
  while (isSpace(*at)) ++at;
  const bool negative = *at == '-' && at != hyphen;
  if (negative || *at == '+') ++at;
  if (!isDigit(*at)) return false;
  std::uint32_t value = 0;
  do {
    value = value * 10 + static_cast<std::uint32_t>(*at++ - '0');
  } while (isDigit(*at));
  number = negative ? 0 - value : value;
  return true;
}

bool takeColon(const char*& at) {
  if (*at != ':') return false;
  ++at;
  return true;
}

long long timeOf(const char* at, const char* hyphen) {
  std::uint32_t hours = 0;
  std::uint32_t minutes = 0;
  std::uint32_t seconds = 0;
  static_cast<void>(takeInteger(at, hyphen, hours) && takeColon(at) &&
                    takeInteger(at, hyphen, minutes) && takeColon(at) &&
                    takeInteger(at, hyphen, seconds));
  return static_cast<std::int32_t>(((hours * 60 + minutes) * 60 + seconds) * 1000);
}

}  // namespace

bool readSpan(const char* text, Span& span) {
  const char* const hyphen = std::strchr(text, '-');
  if (!hyphen) return false;
  span.start = timeOf(text, hyphen);
  span.end = timeOf(hyphen + 1, hyphen);
  return true;
}

}  // namespace ZOL
