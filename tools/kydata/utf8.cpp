#include "utf8.h"

#include <array>
#include <cstdio>

namespace kydata {

namespace {

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u; }

std::size_t lengthByLead(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

bool isOverlongOrNoCharacter(char32_t value, std::size_t length) {
  return (length == 3 && value < 0x800) || (length == 4 && value < 0x10000) || value > 0x10FFFF ||
         (value >= 0xD800 && value < 0xE000);
}

bool turnsDirection(char32_t value) {
  return (value >= 0x202A && value <= 0x202E) || (value >= 0x2066 && value <= 0x2069) ||
         value == 0x200E || value == 0x200F;
}

bool needsEscape(char32_t value) {
  return value < 0x20 || (value >= 0x7F && value < 0xA0) || value == 0x2028 || value == 0x2029 ||
         value == 0xFEFF || value == 0xFFFE || value == 0xFFFF || turnsDirection(value);
}

std::string escape(const CodePoint& point) {
  if (point.value == '\n') return "\\n";
  if (point.value == '\r') return "\\r";
  if (point.value == '\t') return "\\t";
  std::array<char, 16> text;
  const auto value = static_cast<unsigned int>(point.value);
  if (value < 0x80 || !point.valid) {
    std::snprintf(text.data(), text.size(), "\\x%02x", value);
  } else {
    std::snprintf(text.data(), text.size(), "\\u%04x", value);
  }
  return text.data();
}

}  // namespace

CodePoint firstCodePoint(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = lengthByLead(lead);
  const CodePoint stray{lead, 1, false};
  if (length == 0 || length > text.size()) return stray;
  if (length == 1) return {lead, 1, true};
  char32_t value = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (!isContinuation(text[i])) return stray;
    value = value << 6 | (static_cast<unsigned char>(text[i]) & 0x3Fu);
  }
  if (isOverlongOrNoCharacter(value, length)) return stray;
  return {value, length, true};
}

std::size_t codePointCount(std::string_view text) {
  std::size_t count = 0;
  while (!text.empty()) {
    text.remove_prefix(firstCodePoint(text).bytes);
    ++count;
  }
  return count;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    std::size_t plain = 0;
    while (plain < text.size() && static_cast<unsigned char>(text[plain]) < 0x80) ++plain;
    text.remove_prefix(plain);
    if (text.empty()) return true;
    const CodePoint point = firstCodePoint(text);
    if (!point.valid) return false;
    text.remove_prefix(point.bytes);
  }
  return true;
}

std::string printable(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const CodePoint point = firstCodePoint(text);
    if (point.value == '\\') {
      shown += "\\\\";
    } else if (!point.valid || needsEscape(point.value)) {
      shown += escape(point);
    } else {
      shown += text.substr(0, point.bytes);
    }
    text.remove_prefix(point.bytes);
  }
  return shown;
}

}  // namespace kydata
