// A span of time, against the standard library's scanning of it.

#include "cutscript/time_text.h"

#include <cstdio>
#include <string>

#include "target.h"

namespace {

// In 32 bits that wrap around.
long long scannedTime(const char* text) {
  long long hours = 0;
  long long minutes = 0;
  long long seconds = 0;
  static_cast<void>(std::sscanf(text, "%lld:%lld:%lldZ", &hours, &minutes, &seconds));
  const auto bits = [](long long field) { return static_cast<std::uint32_t>(field); };
  return static_cast<std::int32_t>(((bits(hours) * 60 + bits(minutes)) * 60 + bits(seconds)) *
                                   1000);
}

// What the standard library makes of a number beyond 64 bits is its own business.
bool hasLongNumber(const std::string& text) {
  std::size_t digits = 0;
  for (const char c : text) {
    digits = c >= '0' && c <= '9' ? digits + 1 : 0;
    if (digits > 18) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size).c_str();  // up to a zero byte
  ZOL::Span span{-1, -1};
  const bool isSpan = ZOL::readSpan(text.c_str(), span);
  const std::size_t hyphen = text.find('-');
  require(isSpan == (hyphen != std::string::npos), "a span has a hyphen");
  if (!isSpan || hasLongNumber(text)) return 0;
  require(span.start == scannedTime(text.substr(0, hyphen).c_str()), "the start as it is scanned");
  require(span.end == scannedTime(text.c_str() + hyphen + 1), "the end as it is scanned");
  return 0;
}
