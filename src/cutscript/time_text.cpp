#include "cutscript/time_text.h"

#include <cstdint>

namespace ZOL {
namespace {

bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Takes white space, a sign and digits off the front; false if there is no digit. A
// number beyond 32 bits wraps around.
bool takeInteger(std::string_view& text, std::uint32_t& number) {
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  bool negative = false;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  if (text.empty() || !isDigit(text.front())) return false;
  std::uint32_t value = 0;
  for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
    value = value * 10 + static_cast<std::uint32_t>(text.front() - '0');
  }
  number = negative ? 0 - value : value;
  return true;
}

bool takeColon(std::string_view& text) {
  if (text.empty() || text.front() != ':') return false;
  text.remove_prefix(1);
  return true;
}

}  // namespace

long long timeOf(std::string_view text) {
  std::uint32_t hours = 0;
  std::uint32_t minutes = 0;
  std::uint32_t seconds = 0;
  static_cast<void>(takeInteger(text, hours) && takeColon(text) && takeInteger(text, minutes) &&
                    takeColon(text) && takeInteger(text, seconds));
  return static_cast<std::int32_t>(((hours * 60 + minutes) * 60 + seconds) * 1000);
}

std::optional<Span> spanOf(std::string_view text) {
  const std::size_t hyphen = text.find('-');
  if (hyphen == std::string_view::npos) return std::nullopt;
  return Span{timeOf(text.substr(0, hyphen)), timeOf(text.substr(hyphen + 1))};
}

}  // namespace ZOL
